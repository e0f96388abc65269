// Lines of the input file, rows of a table as the reader keeps them.
#include <gtest/gtest.h>

#include "frame/converter.h"
#include "s2k/input_file.h"
#include "s2k/table_rows.h"
#include "test_support.h"

namespace {

using Texts = std::vector<std::string>;

Texts Repeat(std::size_t count, const std::string& text, Texts tail) {
  Texts texts(count, text);
  texts.insert(texts.end(), tail.begin(), tail.end());
  return texts;
}

TEST(S2kInputFile, GivesEachReadWithOneNewline) {
  const std::string x498(498, 'x'), x499(499, 'x');
  struct Case {
    const char* name;
    std::string text;
    Texts lines;
  };
  for (const Case& c : {
           Case{"LF", "a\nbc\n", {"a\n", "bc\n"}},
           Case{"CR LF", "a\r\nbc\r\n", {"a\n", "bc\n"}},
           Case{"a CR alone stays", "a\rb\n", {"a\rb\n"}},
           Case{"a CR before CR LF stays", "a\r\r\n", {"a\r\n"}},
           Case{"a zero cuts the line", std::string("a\0b\nc\n", 6), {"a", "c\n"}},
           Case{"no newline at the end", "a\nb", {"a\n", "b"}},
           Case{"498 and a newline", x498 + "\n", {x498 + "\n"}},
           Case{"499 and a newline", x499 + "\n", {x499, "\n"}},
           Case{"499 and CR LF", x499 + "\r\n", {x499, "\n"}},
           Case{"a line across the buffer", std::string(65534, '\n') + "abc\ndef\n",
                Repeat(65534, "\n", {"abc\n", "def\n"})},
           Case{"CR LF across the buffer", std::string(65535, '\n') + "\r\nx", Repeat(65535, "\n", {"\n", "x"})},
       }) {
    TempFolder folder;
    WriteFile(folder / "model.s2k", c.text);
    S2kInputFile file;
    ASSERT_TRUE(file.Open((folder / "model.s2k").string())) << c.name;
    Texts lines;
    for (std::string line; file.ReadLine(line);) lines.push_back(line);
    EXPECT_EQ(c.lines, lines) << c.name;
  }
}

// Rows of every size, also larger than a block, keep their text while more
// rows come.
TEST(S2kTableRows, KeepsEveryRowWhileMoreCome) {
  Texts texts;
  for (std::size_t size : {0, 1, 110, 16384, 16385, 65535, 65536, 70000, 110, 0, 40000, 30000, 500})
    texts.push_back(std::string(size, static_cast<char>('a' + texts.size())));
  for (int i = 0; i < 3000; ++i) texts.push_back("Joint=" + std::to_string(i) + "   X=1");
  S2kTableRows rows;
  for (const std::string& text : texts) rows.push_back(text);
  ASSERT_EQ(texts.size(), rows.size());
  for (std::size_t i = 0; i < texts.size(); ++i) EXPECT_EQ(texts[i], rows[i]) << i;
  S2kTableRows moved = std::move(rows);
  moved.push_back("last");
  EXPECT_EQ(texts.front(), moved.front());
  EXPECT_EQ("last", moved[texts.size()]);
  moved.clear();
  EXPECT_TRUE(moved.empty());
  moved.push_back("again");
  EXPECT_EQ("again", moved[0]);
}

// The pieces of a row are trimmed and joined with nothing between them; a
// read of 499 characters is a line of its own; a row still open at the end
// of its table is dropped.
TEST(ReadTables, JoinsContinuedLinesIntoOneRow) {
  const std::string x491(491, 'x'), x109(109, 'x');
  const Texts want = {"Joint=1   X=0", "Joint=2X=5  Y=6", "", "Name=" + x491, x109, "Joint=4"};
  for (const char* newline : {"\n", "\r\n"}) {
    const Texts lines = {"TABLE:  \"PROGRAM CONTROL\"", "   Joint=1   X=0   ", "   Joint=2 _", "  X=5   _", "Y=6",
                         "  ", "   Name=" + x491 + x109, "\tJoint=4", "   Joint=5 _", "", "END"};
    std::string text;
    for (const std::string& line : lines) text += line + newline;
    TempFolder folder;
    WriteFile(folder / "model.s2k", text);
    RecordingUserInterface ui;
    CS2kConverter engine(ui);
    std::vector<Texts> tables;
    engine.onTableRead = [&](const S2kTableRead& read) {
      Texts rows;
      for (std::size_t i = 0; i < read.rows.size(); ++i) rows.emplace_back(read.rows[i]);
      tables.push_back(rows);
    };
    EXPECT_EQ(0, engine.Run((folder / "model.s2k").string(), 1));
    EXPECT_EQ(std::vector<Texts>{want}, tables) << (newline[1] ? "CR LF" : "LF");
  }
}

}  // namespace
