// CText: texts of every length round the in-place limit keep their bytes
// through every way a record copies, moves and compares them.
#include <gtest/gtest.h>

#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "s2k/text.h"

namespace {

std::vector<std::string> Samples() {
  return {"", "1", "GLOBAL", "Default", "Rectangular", std::string(6, 'x'), std::string(7, 'y'),
          std::string(10000, 'n'), std::string("a b\tc"), "-0.5e+3"};
}

TEST(Text, EveryLengthKeepsItsBytesThroughCopyMoveAndAssignment) {
  for (const std::string& sample : Samples()) {
    SCOPED_TRACE(sample.size());
    CText text(sample);
    EXPECT_EQ(text.size(), sample.size());
    EXPECT_EQ(text.empty(), sample.empty());
    EXPECT_EQ(std::string(text.c_str()), sample);  // ends in a zero
    EXPECT_EQ(text.str(), sample);

    CText copy = text;
    EXPECT_EQ(copy, text);
    CText moved = std::move(copy);
    EXPECT_EQ(moved.str(), sample);
    EXPECT_TRUE(copy.empty());  // NOLINT: a moved-from text is empty

    CText assigned("something else entirely");
    assigned = moved;
    moved = "z";  // the copy stays when its source changes
    EXPECT_EQ(assigned.str(), sample);
    assigned = assigned;  // NOLINT: self-assignment
    EXPECT_EQ(assigned.str(), sample);

    std::vector<CText> many(50, text);  // shared many times, released in turn
    many.erase(many.begin(), many.begin() + 25);
    for (const CText& each : many) EXPECT_EQ(each.str(), sample);
  }
}

TEST(Text, ComparesAndHashesAsItsCharacters) {
  const std::vector<std::string> samples = Samples();
  for (const std::string& a : samples)
    for (const std::string& b : samples) {
      const CText ta(a), tb(b);
      EXPECT_EQ(ta == tb, a == b) << a << " / " << b;
      EXPECT_EQ(ta == b, a == b);
      EXPECT_EQ(ta == std::string_view(b), a == b);
      EXPECT_EQ(ta == b.c_str(), a == b);
      EXPECT_EQ(ta < tb, a < b);
    }
  // A map of texts is found by any form of the name, without making a key.
  std::unordered_map<CText, int, CTextHash, std::equal_to<>> map;
  for (std::size_t i = 0; i < samples.size(); ++i) map.emplace(samples[i], static_cast<int>(i));
  for (std::size_t i = 0; i < samples.size(); ++i) {
    auto it = map.find(std::string_view(samples[i]));
    ASSERT_NE(it, map.end());
    EXPECT_EQ(it->second, static_cast<int>(i));
  }
  EXPECT_EQ(map.find(std::string_view("Defaul")), map.end());
}

TEST(Text, GrowsAcrossTheInPlaceLimit) {
  CText text;
  std::string expected;
  for (char c : std::string("ABCDEFGHIJ")) {
    text += c;
    expected += c;
    EXPECT_EQ(text.str(), expected);
  }
  text += std::string_view("-tail");
  EXPECT_EQ(text.str(), "ABCDEFGHIJ-tail");
  EXPECT_EQ(text + "!", "ABCDEFGHIJ-tail!");
  EXPECT_EQ("(" + text, "(ABCDEFGHIJ-tail");
}

}  // namespace
