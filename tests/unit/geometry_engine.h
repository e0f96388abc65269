// An engine with fresh models, for the tests of the geometry conversion.
#pragma once

#include "frame/converter.h"
#include "recording_ui.h"

struct GeometryEngine {
  RecordingUserInterface ui;
  CS2kConverter engine{ui};
  GeometryEngine() {
    engine.ResetConversion();
  }
};
