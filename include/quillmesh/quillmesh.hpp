// The C++ interface of libquillmesh: one conversion driven by a user interface.
#pragma once

#include <string>

#include "quillmesh/convert.h"

namespace quillmesh {

/// What the engine needs from a platform: the file dialog, modal message
/// boxes and the progress window.
class QM_EXPORT UserInterface {
 public:
  virtual ~UserInterface();

  /// The file dialog. \returns false when it is left without a file.
  virtual bool ChooseInputFile(const std::string& filter, std::string& path) = 0;
  /// A modal box with OK alone; returns once the user has closed it.
  /// \p key is the catalogue key, empty for the texts of the system itself.
  virtual void ShowMessage(const std::string& text, const std::string& key) = 0;
  /// The same for a catalogue text formatted with one text \p argument;
  /// by default shown as any other message.
  virtual void ShowFormattedMessage(const std::string& text, const std::string& key, const std::string& argument) {
    (void)argument;
    ShowMessage(text, key);
  }

  /// Opens the window; the bar of the reading stage runs to \p lineCount.
  virtual void OpenProgress(int lineCount) = 0;
  virtual void SetStage(int stage) = 0;
  virtual void SetRange(int high) = 0;
  /// Moves the bar. \returns false when the run is to stop; the window is
  /// then gone already.
  virtual bool Advance(int position) = 0;
  /// Closes the window if it is still open.
  virtual void CloseProgress() = 0;

  /// The input's last line lies outside any table and begins with FILE, so
  /// reading could never end; the run stops with code 1 right after this.
  virtual void InputEndsInFileLine() {}
};

/// The reading stage can run past the end of a file that ends inside a
/// table: the last line is seen again and again. A front end stops the run
/// once the reading position has passed the counted lines.
QM_EXPORT bool ReadingPastEnd(int stage, int position, int lineCount);

/// The path of the .tvt file for an input: the text before the last dot of
/// the path, wherever it stands, plus ".tvt".
QM_EXPORT std::string OutputPathFor(const std::string& inputPath);

/// The library's version, "major.minor.patch".
QM_EXPORT const char* Version();

/// Converts \p inputPath. \returns 0 finished, 1 stopped, -1 failed.
QM_EXPORT int ConvertPath(const std::string& inputPath, UserInterface& ui);

/// The file dialog, then the conversion; \p outputPath is set on 0 only.
QM_EXPORT int Convert(UserInterface& ui, std::string& outputPath);

/// The catalogue's text for \p key, or the fallback text when no catalogue
/// is bound.
QM_EXPORT const char* LoadMessage(const char* key);
/// Binds the catalogue beside the library (done when the library loads).
QM_EXPORT bool BindMessageLibrary();
/// Releases the catalogue; every message then reads the fallback text.
QM_EXPORT void ReleaseMessageLibrary();

}  // namespace quillmesh
