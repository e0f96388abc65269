// The desktop windows' rules, apart from the toolkit.
#include "desktop/window_rules.h"

namespace quillmesh::desktop {
namespace {

std::string Trim(const std::string& text) {
  std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string::npos) return "";
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

std::vector<std::string> SplitPatterns(const std::string& text) {
  std::vector<std::string> patterns;
  std::size_t start = 0;
  for (;;) {
    std::size_t end = text.find(';', start);
    std::string pattern = Trim(text.substr(start, end == std::string::npos ? std::string::npos : end - start));
    if (!pattern.empty()) patterns.push_back(pattern);
    if (end == std::string::npos) break;
    start = end + 1;
  }
  if (patterns.empty()) patterns.push_back("*");
  return patterns;
}

}  // namespace

std::vector<FileFilter> ParseFileFilter(const std::string& text) {
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t bar; (bar = text.find('|', start)) != std::string::npos; start = bar + 1)
    parts.push_back(text.substr(start, bar - start));
  parts.push_back(text.substr(start));
  // "||" ends the list; what follows it is not read.
  std::vector<FileFilter> filters;
  for (std::size_t i = 0; i < parts.size(); i += 2) {
    if (parts[i].empty()) break;
    filters.push_back({parts[i], SplitPatterns(i + 1 < parts.size() ? parts[i + 1] : "")});
  }
  if (filters.empty()) filters.push_back({"*", {"*"}});
  return filters;
}

std::string ResolveChosenFile(const std::string& path, const std::string& defaultExtension,
                              const std::function<bool(const std::string&)>& isFile) {
  if (path.empty()) return "";
  if (isFile(path)) return path;
  std::size_t slash = path.rfind('/');
  std::string name = slash == std::string::npos ? path : path.substr(slash + 1);
  if (!name.empty() && name.find('.') == std::string::npos && isFile(path + defaultExtension))
    return path + defaultExtension;
  return "";
}

Rect PlaceOnParent(const Rect& parent, int width, int height, const Rect& screen) {
  Rect own{parent.x, parent.y, width, height};
  int right = screen.x + screen.width;
  int bottom = screen.y + screen.height;
  if (own.x + width > right) own.x = right - 1 - width;
  if (own.x < screen.x) own.x = screen.x;
  if (own.y + height > bottom) own.y = bottom - 1 - height;
  if (own.y < screen.y) own.y = screen.y;
  return own;
}

Rect ToPixels(const Rect& units) {
  constexpr int kCellWidth = 7, kCellHeight = 15;
  return {units.x * kCellWidth / 4, units.y * kCellHeight / 8, units.width * kCellWidth / 4,
          units.height * kCellHeight / 8};
}

void ProgressBarModel::SetRange(int high) {
  high_ = static_cast<int>(static_cast<unsigned>(high) & 0xFFFFu);
  SetPosition(position_);
}

void ProgressBarModel::SetPosition(int position) {
  position_ = position < 0 ? 0 : position > high_ ? high_ : position;
}

double ProgressBarModel::Fraction() const { return high_ > 0 ? static_cast<double>(position_) / high_ : 0.0; }

}  // namespace quillmesh::desktop
