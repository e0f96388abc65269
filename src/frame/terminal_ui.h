// The terminal user interface, for the entry points.
#pragma once

#include "quillmesh/terminal.hpp"
