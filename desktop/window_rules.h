// What the desktop windows do, apart from the toolkit: the file dialog's
// filters and name rules, the progress window's template, bar and placement.
#pragma once

#include <functional>
#include <string>
#include <vector>

namespace quillmesh::desktop {

/// One entry of the dialog's filter list.
struct FileFilter {
  std::string name;
  std::vector<std::string> patterns;  ///< never empty; "*" for every file
  bool operator==(const FileFilter&) const = default;
};

/// The filter text of the catalogue, "name|patterns|name|patterns||" with
/// patterns separated by ';'. A text without '|' (the fallback text) is one
/// filter of that name for every file.
std::vector<FileFilter> ParseFileFilter(const std::string& text);

/// The file that a name chosen in the dialog stands for: the name itself when
/// it is a file; a name without an extension gets the default extension; empty
/// when there is no such file (the file must exist).
std::string ResolveChosenFile(const std::string& path, const std::string& defaultExtension,
                              const std::function<bool(const std::string&)>& isFile);

struct Rect {
  int x = 0, y = 0, width = 0, height = 0;
  bool operator==(const Rect&) const = default;
};

/// The top-left corner of the progress window: that of its parent, then kept
/// on the screen, right and bottom edges first.
Rect PlaceOnParent(const Rect& parent, int width, int height, const Rect& screen);

/// The progress window's template in dialog units, and its size in pixels.
struct TemplateControl {
  const char* text;
  Rect units;
};
inline constexpr int kTemplateWidth = 207;
inline constexpr int kTemplateHeight = 85;
inline constexpr TemplateControl kProgressBar{"", {7, 7, 193, 14}};
inline constexpr TemplateControl kStopButton{"Stop Progress of Conversion!!!", {7, 61, 193, 17}};
inline constexpr TemplateControl kStatusLabel{"Status : ", {7, 32, 28, 8}};
inline constexpr TemplateControl kStageLabel{"Read SAP2000 V8 *.s2k file", {37, 32, 163, 26}};
inline constexpr const char* kProgressTitle = "Conversion Progress Window";

/// Dialog units to pixels for a 9-point sans font: 7 by 15 pixels a
/// character cell, four and eight units to a cell.
Rect ToPixels(const Rect& units);

/// A progress bar of 16-bit range: positions outside the range stand at its
/// nearest end, as do positions already set when the range changes.
class ProgressBarModel {
 public:
  /// Range 0 to \p high, cut to its low 16 bits.
  void SetRange(int high);
  void SetPosition(int position);
  int High() const { return high_; }
  int Position() const { return position_; }
  /// How full the bar is, 0 to 1.
  double Fraction() const;

 private:
  int high_ = 100;
  int position_ = 0;
};

}  // namespace quillmesh::desktop
