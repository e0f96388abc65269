// The key readers, the continuation mark and the comma-list arithmetic.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <random>
#include <string>

#include "s2k/keys.h"
#include "s2k/numbers.h"

namespace {

using Texts = std::vector<std::string>;

TEST(TrimRowLine, CutsAtTheFirstBlankUnderscoreAnywhere) {
  struct Case {
    std::string in;
    int goesOn;
    std::string want;
  };
  for (const Case& c : {
           Case{"   Joint=1   X=0\n", 0, "Joint=1   X=0"},
           Case{"\t Joint=1 _\n", 1, "Joint=1"},
           Case{"   Z=0   _\n", 1, "Z=0  "},        // blanks before the mark stay
           Case{"   Name=\"A _B\" Type=C\n", 1, "Name=\"A"},  // the mark counts inside quotes
           Case{"Joint=1_\n", 0, "Joint=1_"},       // no blank, no mark
           Case{"  \n", 0, ""},
       }) {
    std::string line = c.in;
    EXPECT_EQ(c.goesOn, TrimRowLine(line)) << c.in;
    EXPECT_EQ(c.want, line) << c.in;
  }
}

TEST(ReadStringList, FindsKeysAsPlainSubstringsAndCutsAtTheNextKey) {
  struct Case {
    std::string row, key;
    int found;
    Texts want;
  };
  for (const Case& c : {
           Case{"Joint=1   CoordSys=GLOBAL", "Joint=", 1, {"1"}},
           Case{"Joint=1   CoordSys=GLOBAL", "CoordSys=", 1, {"GLOBAL"}},
           Case{"Joint=1", "Frame=", 0, {}},
           Case{"U1U2=5   U2=7", "U2=", 1, {"5"}},                  // inside a longer key, first one wins
           Case{"AreaType=Shell   Type=Plate", "Type=", 1, {"Shell"}},
           Case{"FileName=a.txt   Name=F1", "Name=", 1, {"a.txt"}},
           Case{"Name=F1   Name=F2", "Name=", 1, {"F1"}},               // a repeated key gives the first
           Case{"Name=\"A B\"  Type=C", "Name=", 1, {"A B"}},
           Case{"Name=\"A=B C\"  Type=D", "Name=", 1, {"A=B C  Type=D"}},
           Case{"Name=\"A B=C\"", "Name=", 1, {"A"}},
           Case{"A=  B=3", "A=", 1, {""}},
           Case{"A= B=3", "A=", 1, {" B=3"}},
           Case{"A=1\tB=2", "A=", 1, {"1 B=2"}},                    // a tab does not end a value
           Case{"A=", "A=", 1, {""}},
           Case{"L=A,,B", "L=", 1, {"A", "", "B"}},
           Case{"L=A,B,", "L=", 1, {"A", "B", ""}},
           Case{"CurrUnits=\"KN, m, C\"   X=1", "CurrUnits=", 1, {"KN", "m", "C"}},
           Case{"L=\"x y, z\"", "L=", 1, {"xy", "z"}},              // a comma takes the blanks with it
           Case{"L=Yes,No", "L=", 1, {"Yes", "No"}},
           Case{"Title=\"a  b\"   ", "Title=", 1, {"a  b"}},
       }) {
    Texts got = {"kept"};
    EXPECT_EQ(c.found, ReadStringList(c.row, c.key, got)) << c.row;
    Texts want = {"kept"};
    want.insert(want.end(), c.want.begin(), c.want.end());
    EXPECT_EQ(want, got) << c.row << " / " << c.key;
  }
}

// The index of a row's '=' finds what a plain search from the start finds.
TEST(S2kRowText, FindsWhatAPlainSearchFinds) {
  std::string full, many;  // as many '=' as the index holds, and more
  for (int i = 0; i < 64; ++i) full += "K" + std::to_string(i) + "=" + std::to_string(i) + "   ";
  many = full;
  for (int i = 64; i < 70; ++i) many += "K" + std::to_string(i) + "=" + std::to_string(i) + "   ";
  const std::string rows[] = {
      "Joint=1   CoordSys=GLOBAL   CoordType=Cartesian   XorR=0",
      "SectionType=Box   AnalSectionType=I   Type=T",  // long keys alike in their last characters
      "XCoordType=1   CoordType=2",
      "=1   A=2   ==3",
      "A=1 B=2",
      "Z=0AboutZ=0   X=1",
      "XbcdefghijType=1   AbcdefghijType=2   XbcdeT=3   AbcdeT=4   XbT=5   AbT=6",  // alike but for the first
      "noequals at all",
      "",
      full,
      many,
  };
  const std::string keys[] = {"Joint=", "CoordType=", "oordType=", "SectionType=", "onType=", "Type=", "=",
                              "A=",     "B=",         "Z=",        "AboutZ=",      "X=",      "K0=", "K63=",
                              "K64=",   "K69=",       "K70=",      "Joint",        "",        "1   A", "= ",
                              "AbcdefghijType=", "bcdefghijType=", "AbcdeT=", "AbT=", "bT="};
  for (const std::string& row : rows) {
    const S2kRowText text(row);
    for (const std::string& key : keys) {
      EXPECT_EQ(std::string_view(row).find(key), text.Find(key)) << row << " / " << key;
      std::string_view value;
      EXPECT_EQ(text.Find(key) != std::string_view::npos, text.FindValue(key, value)) << row << " / " << key;
    }
  }
  struct Case {
    const std::string& row;
    std::string key, want;
  };
  for (const Case& c : {Case{full, "K62=", "62"}, Case{full, "K63=", "63"}, Case{many, "K63=", "63"},
                        Case{many, "K69=", "69"}, Case{rows[3], "=", "1"}, Case{rows[3], "A=", "2"}}) {
    std::string_view value;
    ASSERT_TRUE(S2kRowText(c.row).FindValue(c.key, value)) << c.key;
    EXPECT_EQ(c.want, value) << c.key;
  }
}

TEST(ReadNumberList, ReadsOneNumberOrEvaluatesEachItemOfAList) {
  struct Case {
    std::string row, key;
    int found;
    std::vector<double> want;
  };
  for (const Case& c : {
           Case{"X=1.5   Y=2", "X=", 1, {1.5}},
           Case{"X=1+2", "X=", 1, {1}},  // no arithmetic without a comma
           Case{"X=abc", "X=", 1, {0}},
           Case{"X=", "X=", 1, {0}},
           Case{"X=1+2, 2*3", "X=", 1, {3, 6}},
           Case{"X=1,,2", "X=", 1, {1, 0, 2}},
           Case{"AboutX=9   X=3", "X=", 1, {9}},
           Case{"Y=4", "X=", 0, {}},
           Case{"X=\"7\"", "X=", 1, {7}},
           Case{"X=1\tY=2", "X=", 1, {1}},
       }) {
    std::vector<double> got;
    EXPECT_EQ(c.found, ReadNumberList(c.row, c.key, got)) << c.row;
    EXPECT_EQ(c.want, got) << c.row;
  }
}

TEST(ReadFirstItem, GivesItemZeroOfTheListOrLeavesTheItemAlone) {
  struct Case {
    std::string row, key;
    int found;
    std::string text;
    double number;
  };
  for (const Case& c : {
           Case{"Joint=1   CoordSys=GLOBAL", "CoordSys=", 1, "GLOBAL", 0},
           Case{"X=1.5   Y=2", "X=", 1, "1.5", 1.5},
           Case{"U1U2=5   U2=7", "U2=", 1, "5", 5},
           Case{"Name=\"A B\"  Type=C", "Name=", 1, "A B", 0},
           Case{"X=\"7\"", "X=", 1, "7", 7},
           Case{"X=1\tY=2", "X=", 1, "1 Y=2", 1},
           Case{"X=1+2, 2*3", "X=", 1, "1+2", 3},
           Case{"X= 4 , 5", "X=", 1, "4", 4},
           Case{"X=,5", "X=", 1, "", 0},
           Case{"CurrUnits=\"KN, m, C\"   X=1", "CurrUnits=", 1, "KN", 0},
           Case{"A=  B=3", "A=", 1, "", 0},
           Case{"A= B=3", "A=", 1, " B=3", 0},
           Case{"X=-0", "X=", 1, "-0", -0.0},
           Case{"Y=4", "X=", 0, "kept", -1},
       }) {
    std::string text = "kept";
    double number = -1;
    EXPECT_EQ(c.found, ReadFirstText(c.row, c.key, text)) << c.row;
    EXPECT_EQ(c.found, ReadFirstNumber(c.row, c.key, number)) << c.row;
    EXPECT_EQ(c.text, text) << c.row;
    EXPECT_EQ(c.number, number) << c.row;
    EXPECT_EQ(std::signbit(c.number), std::signbit(number)) << c.row;
    // The same as the lists' first items.
    Texts texts;
    std::vector<double> numbers;
    if (ReadStringList(c.row, c.key, texts) && ReadNumberList(c.row, c.key, numbers)) {
      EXPECT_EQ(texts[0], text) << c.row;
      EXPECT_EQ(numbers[0], number) << c.row;
    }
  }
}

TEST(EvaluateExpression, RunsLeftToRightWithoutPrecedence) {
  struct Case {
    std::string in;
    double want;
  };
  for (const Case& c : {
           Case{"2.5", 2.5},       Case{"1+2*3", 9},     Case{"2*3+1", 7},    Case{"10/4", 2.5},
           Case{"1*-2", -2},       Case{"-3+1", -2},     Case{"1e-2*100", 1}, Case{"1E+2/4", 25},
           Case{"5-", 5},          Case{"6/2/3", 1},     Case{"2 -1", 2},     Case{"", 0},
           Case{"4-1-1", 2},       Case{"1.5e1+0.5", 15.5},
       }) {
    EXPECT_DOUBLE_EQ(c.want, EvaluateExpression(c.in)) << c.in;
  }
  EXPECT_TRUE(std::isinf(EvaluateExpression("1/0")));
  EXPECT_TRUE(std::isnan(EvaluateExpression("0/0")));
}

TEST(IsYesAndIsDigit, AreExact) {
  for (const char* yes : {"Yes"}) EXPECT_EQ(1, IsYes(yes));
  for (const char* no : {"YES", "yes", "No", "", "Yes "}) EXPECT_EQ(0, IsYes(no)) << no;
  for (char c : std::string("0123456789")) EXPECT_EQ(1, IsDigit(c));
  EXPECT_EQ(1, IsDigit('\0'));
  for (char c : {'-', '+', ' ', 'a', '.'}) EXPECT_EQ(0, IsDigit(c)) << c;
}

TEST(ParseDouble, ReadsTheLongestDecimalPrefixOnly) {
  const double inf = std::numeric_limits<double>::infinity();
  struct Case {
    std::string in;
    double want;
  };
  for (const Case& c : {
           Case{"12.5", 12.5},   Case{"-3", -3},      Case{"+4.", 4},      Case{".5", 0.5},
           Case{"1e3", 1000},    Case{"2.5E-2", 0.025}, Case{"1e", 1},     Case{"1e+", 1},
           Case{"  \t7", 7},     Case{"8kN", 8},      Case{"9.5.1", 9.5},  Case{"", 0},
           Case{"abc", 0},       Case{"-", 0},        Case{".", 0},        Case{"inf", 0},
           Case{"-infinity", 0}, Case{"nan", 0},      Case{"0x1A", 0},     Case{"1e400", inf},
           Case{"-1e400", -inf}, Case{"1e-400", 0},  Case{"4.9e-324", 4.9e-324},
           Case{"1" + std::string(399, '0'), inf},     Case{"0." + std::string(398, '0') + "1", 0},
           Case{"0.1000000000000000055511151231257827", 0.1},  Case{"9007199254740993", 9007199254740992.0},
       }) {
    EXPECT_EQ(c.want, ParseDouble(c.in)) << c.in;
  }
}

// Short decimals take a path of their own; strtod is the judge of every digit.
TEST(ParseDouble, AgreesWithStrtodOnDecimalsOfEveryLength) {
  std::mt19937_64 random(20261123);
  Texts samples = {"-0", "0.0", "-0.000", "9007199254740992", "9007199254740993.5", "0.3", "2.675",
                   "123456789012345678", "1234567890123456789", "0.0000000000000000000001",
                   "0.00000000000000000000001", "00000000000000000000000001.5", "-.25", "+.125"};
  for (int i = 0; i < 20000; ++i) {
    std::string whole = std::to_string(random() >> (random() % 64));
    std::string fraction = std::to_string(random() >> (random() % 64)).substr(0, random() % 24);
    std::string text = (random() % 2 ? "-" : "") + whole.substr(0, random() % 20 + 1) + "." + fraction;
    samples.push_back(text);
  }
  for (const std::string& text : samples) {
    const double want = std::strtod(text.c_str(), nullptr);
    const double got = ParseDouble(text);
    EXPECT_EQ(std::signbit(want), std::signbit(got)) << text;
    EXPECT_EQ(want, got) << text;
  }
}

TEST(IntegerConversions, FollowThePlatformAndX86) {
  EXPECT_EQ(7, ParseInt("007"));
  EXPECT_EQ(-539222987, ParseInt("12345678901"));
  EXPECT_EQ(12, ParseInt(" 12abc"));
  EXPECT_EQ(0, ParseInt("A1"));
  EXPECT_EQ(3, TruncateToInt(3.9));
  EXPECT_EQ(-3, TruncateToInt(-3.9));
  for (double out : {3e9, -3e9, std::numeric_limits<double>::infinity(), std::nan("")})
    EXPECT_EQ(-2147483647 - 1, TruncateToInt(out)) << out;
}

}  // namespace
