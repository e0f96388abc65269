// WriteText prints by printf's rules whichever way it formats.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "frame/converter.h"
#include "test_support.h"

namespace {

constexpr double inf = std::numeric_limits<double>::infinity();

TEST(WriteText, PrintsNumbersAndTextsAsPrintfDoes) {
  struct Case {
    std::string want;
    void (*write)(CS2kConverter&);
  };
  const Case cases[] = {
      {"100000", [](CS2kConverter& e) { e.WriteText("%5g", 100000.0); }},
      {"1e+06", [](CS2kConverter& e) { e.WriteText("%5g", 1000000.0); }},
      {"    0", [](CS2kConverter& e) { e.WriteText("%5g", 0.0); }},
      {"   -0", [](CS2kConverter& e) { e.WriteText("%5g", -0.0); }},
      {"0.0001", [](CS2kConverter& e) { e.WriteText("%5g", 0.0001); }},
      {"1e-05", [](CS2kConverter& e) { e.WriteText("%5g", 0.00001); }},
      {"123456", [](CS2kConverter& e) { e.WriteText("%5g", 123456.5); }},  // a tie goes to even
      {"123458", [](CS2kConverter& e) { e.WriteText("%5g", 123457.5); }},
      {"0.333333", [](CS2kConverter& e) { e.WriteText("%g", 1.0 / 3); }},
      {"1e+300", [](CS2kConverter& e) { e.WriteText("%g", 1e300); }},
      {"4.94066e-324", [](CS2kConverter& e) { e.WriteText("%g", 4.9e-324); }},
      {"  inf", [](CS2kConverter& e) { e.WriteText("%5g", inf); }},
      {" -inf", [](CS2kConverter& e) { e.WriteText("%5g", -inf); }},
      {"  nan", [](CS2kConverter& e) { e.WriteText("%5g", std::nan("")); }},
      {" -nan", [](CS2kConverter& e) { e.WriteText("%5g", -std::nan("")); }},
      {"\t   12,    -3, 2147483647, -2147483648\n",
       [](CS2kConverter& e) { e.WriteText("\t%5d, %5d, %d, %d\n", 12, -3, 2147483647, -2147483647 - 1); }},
      {"   ab, abcdefg,       x", [](CS2kConverter& e) { e.WriteText("%5s, %5s, %7s", "ab", "abcdefg", "x"); }},
      {"      NO|", [](CS2kConverter& e) { e.WriteText("%8s|", "NO"); }},
      {"plain, no conversion", [](CS2kConverter& e) { e.WriteText("plain, no conversion"); }},
      {"100%, 05, 3  |", [](CS2kConverter& e) { e.WriteText("100%%, %02d, %-3d|", 5, 3); }},
      {std::string(600, 'y') + "|", [](CS2kConverter& e) { e.WriteText("%s|", std::string(600, 'y').c_str()); }},
      {std::string(80, ' ') + "z", [](CS2kConverter& e) { e.WriteText("%81s", "z"); }},
      // More than the file's buffer holds, in one line.
      {std::string(300000, 'w') + "|    1",
       [](CS2kConverter& e) { e.WriteText("%s|%5d", std::string(300000, 'w').c_str(), 1); }},
      {"\t1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26, 27, 28, 29, "
       "30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42\n",
       [](CS2kConverter& e) {
         e.WriteText("\t%d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, "
                     "%d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d, %d\n",
                     1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25, 26,
                     27, 28, 29, 30, 31, 32, 33, 34, 35, 36, 37, 38, 39, 40, 41, 42);
       }},
      // A format made at run time that changes at the same address.
      {"7|  2.5|x",
       [](CS2kConverter& e) {
         char format[8] = "%d|";
         e.WriteText(format, 7);
         std::strcpy(format, "%5g|");
         e.WriteText(format, 2.5);
         std::strcpy(format, "%s");
         e.WriteText(format, "x");
       }},
      {"3|  nan|    1", [](CS2kConverter& e) { e.WriteText("%d|%5g|%5d", 3, std::nan(""), 1); }},
  };
  for (const Case& c : cases) {
    TempFolder folder;
    RecordingUserInterface ui;
    CS2kConverter engine(ui);
    engine.outputFile.Create((folder / "out.tvt").string(), nullptr);
    c.write(engine);
    engine.outputFile.Close();
    EXPECT_EQ(c.want, ReadFile(folder / "out.tvt"));
  }
}

}  // namespace
