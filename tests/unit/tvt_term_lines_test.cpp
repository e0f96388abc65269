// The list layout of *SFUNCTION and *LOADCOMB: four items on the first line,
// three on each next one, no comma before a break.
#include <gtest/gtest.h>

#include "frame/converter.h"
#include "recording_ui.h"
#include "test_support.h"
#include "tvt/term_lines.h"

namespace {

std::string Layout(std::size_t count) {
  TempFolder folder;
  RecordingUserInterface ui;
  CS2kConverter engine(ui);
  engine.outputFile.Create((folder / "out.tvt").string(), nullptr);
  WriteTermLines(engine, count, [&](std::size_t k) { engine.WriteText("a%zu", k); });
  engine.outputFile.Close();
  return ReadFile(folder / "out.tvt");
}

TEST(WriteTermLines, BreaksAfterTheFourthItemAndEveryThirdAfterIt) {
  const std::pair<std::size_t, const char*> cases[] = {
      {0, ""},
      {1, "a0"},
      {2, "a0,a1"},
      {3, "a0,a1,a2"},
      {4, "a0,a1,a2,a3\n\t\t"},
      {5, "a0,a1,a2,a3\n\t\ta4"},
      {6, "a0,a1,a2,a3\n\t\ta4,a5"},
      {7, "a0,a1,a2,a3\n\t\ta4,a5,a6\n\t\t"},
      {8, "a0,a1,a2,a3\n\t\ta4,a5,a6\n\t\ta7"},
      {11, "a0,a1,a2,a3\n\t\ta4,a5,a6\n\t\ta7,a8,a9\n\t\ta10"},
  };
  for (const auto& [count, expected] : cases) EXPECT_EQ(expected, Layout(count)) << count << " items";
}

}  // namespace
