// The desktop windows' rules that need no display: the dialog's filters and
// names, the progress bar of 16-bit range, the placement on the parent.
#include <gtest/gtest.h>

#include <set>

#include "desktop/window_rules.h"

using namespace quillmesh::desktop;

TEST(DesktopFileFilter, CatalogueTextToFilters) {
  struct Case {
    const char* text;
    std::vector<FileFilter> want;
  };
  for (const Case& c : {
           Case{"SAP2000 V8 text files (*.s2k)|*.s2k|All files (*)|*||",
                {{"SAP2000 V8 text files (*.s2k)", {"*.s2k"}}, {"All files (*)", {"*"}}}},
           Case{"Models|*.s2k; *.S2K ;*.$2k||", {{"Models", {"*.s2k", "*.S2K", "*.$2k"}}}},
           Case{"Models|*.s2k||Ignored|*.x||", {{"Models", {"*.s2k"}}}},
           Case{"No end|*.s2k", {{"No end", {"*.s2k"}}}},
           Case{"Name only|", {{"Name only", {"*"}}}},
           Case{"Error : DLL is not loaded. check message dll!", {{"Error : DLL is not loaded. check message dll!", {"*"}}}},
           Case{"", {{"*", {"*"}}}},
           Case{"||", {{"*", {"*"}}}},
       })
    EXPECT_EQ(c.want, ParseFileFilter(c.text)) << c.text;
}

TEST(DesktopFileDialog, TheFileMustExistAndANameWithoutExtensionGetsTheDefault) {
  const std::set<std::string> files = {"/m/model.s2k", "/m/plain", "/m/typed.dat", "/m.d/x.dat"};
  auto isFile = [&](const std::string& path) { return files.count(path) > 0; };
  struct Case {
    const char* chosen;
    const char* want;
  };
  for (const Case& c : {
           Case{"/m/model.s2k", "/m/model.s2k"},
           Case{"/m/plain", "/m/plain"},       // the name as it stands comes first
           Case{"/m/typed", "/m/typed.dat"},   // no extension: the default one
           Case{"/m/typed.s2k", ""},           // an extension of its own: no default
           Case{"/m.d/x", "/m.d/x.dat"},       // a dot in the folder is not the name's
           Case{"/m/missing", ""},
           Case{"/m/", ""},
           Case{"", ""},
       })
    EXPECT_EQ(c.want, ResolveChosenFile(c.chosen, ".dat", isFile)) << c.chosen;
}

TEST(DesktopProgressBar, RangeOf16BitsAndPositionsHeldInIt) {
  struct Step {
    char what;  // 'r' range, 'p' position
    int value;
    int wantHigh, wantPosition;
  };
  const Step steps[] = {
      {'r', 65551, 15, 0},  // a line count cut to its low 16 bits
      {'p', 9, 15, 9},
      {'p', 65540, 15, 15},  // beyond the range: at its end
      {'r', 20, 20, 15},     // a new range keeps the position
      {'p', 19, 20, 19},     // conversion ends one short of full
      {'r', 37, 37, 19},
      {'r', 10, 10, 10},     // a position beyond a smaller range: at its end
      {'p', -3, 10, 0},
      {'r', 65536, 0, 0},
  };
  ProgressBarModel bar;
  for (const Step& step : steps) {
    if (step.what == 'r')
      bar.SetRange(step.value);
    else
      bar.SetPosition(step.value);
    EXPECT_EQ(step.wantHigh, bar.High()) << step.what << step.value;
    EXPECT_EQ(step.wantPosition, bar.Position()) << step.what << step.value;
  }
  EXPECT_EQ(0.0, bar.Fraction()) << "an empty range shows an empty bar";
  bar.SetRange(20);
  bar.SetPosition(19);
  EXPECT_DOUBLE_EQ(0.95, bar.Fraction());
}

TEST(DesktopPlacement, CornerOnTheParentThenOnTheScreen) {
  const Rect screen{0, 0, 1280, 800};
  struct Case {
    const char* name;
    Rect parent, screen;
    int wantX, wantY;
  };
  for (const Case& c : {
           Case{"inside", {100, 50, 600, 400}, screen, 100, 50},
           Case{"right edge", {1000, 50, 600, 400}, screen, 1279 - 362, 50},
           Case{"bottom edge", {100, 700, 600, 400}, screen, 100, 799 - 159},
           Case{"just fits", {918, 641, 10, 10}, screen, 918, 641},
           Case{"one past", {919, 642, 10, 10}, screen, 917, 640},
           Case{"left and top", {-40, -10, 600, 400}, screen, 0, 0},
           Case{"work area off the origin", {0, 0, 600, 400}, {64, 32, 1216, 768}, 64, 32},
           Case{"wider than the screen", {500, 0, 10, 10}, {0, 0, 300, 100}, 0, 0},
       }) {
    Rect placed = PlaceOnParent(c.parent, 362, 159, c.screen);
    EXPECT_EQ((Rect{c.wantX, c.wantY, 362, 159}), placed) << c.name;
  }
}

TEST(DesktopProgressWindow, TemplateUnitsToPixels) {
  EXPECT_EQ((Rect{0, 0, 362, 159}), ToPixels({0, 0, kTemplateWidth, kTemplateHeight}));
  EXPECT_EQ((Rect{12, 13, 337, 26}), ToPixels(kProgressBar.units));
  EXPECT_EQ((Rect{12, 114, 337, 31}), ToPixels(kStopButton.units));
}
