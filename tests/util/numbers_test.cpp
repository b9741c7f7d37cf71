#include <gtest/gtest.h>

#include <cmath>

#include "util/error.h"
#include "util/numbers.h"

namespace kvl {
namespace {

TEST(Int, FloorsTowardMinusInfinity) {
  EXPECT_EQ(Int(2.7), 2.0);
  EXPECT_EQ(Int(-2.3), -3.0);
  EXPECT_EQ(Int(-2.0), -2.0);
  EXPECT_EQ(Int(0.5), 0.0);
}

TEST(CInt, RoundsHalfToEven) {
  struct Case { double in; int out; };
  for (Case c : {Case{2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0}, {1.5, 2}, {-0.5, 0}, {2.4, 2},
                 {2.6, 3}, {-2.6, -3}, {32767.0, 32767}, {32767.4, 32767}, {-32768.0, -32768},
                 {-32768.5, -32768}}) {
    EXPECT_EQ(CInt(c.in), c.out) << c.in;
  }
}

TEST(CInt, OutsideSixteenBitsOverflows) {
  for (double x : {32767.5, 32768.0, -32768.6, -32769.0, 1e10, std::nan("")}) {
    try {
      CInt(x);
      ADD_FAILURE() << x;
    } catch (const KvlError& e) {
      EXPECT_STREQ(e.what(), "Overflow");
    }
  }
}

TEST(Val, ReadsTheLeadingNumber) {
  struct Case { const char* in; double out; };
  for (Case c : {Case{"", 0}, {"abc", 0}, {"-", 0}, {".", 0}, {"24 and 57", 24},
                 {" 1615 198th Street N.E.", 1615198}, {" 2 45 7", 2457}, {" 1 2", 12}, {"\t5", 5},
                 {"  -3.5", -3.5}, {"- 4", -4}, {"+7", 7}, {"1,000", 1}, {".5", 0.5}, {"1.2.3", 1.2},
                 {"12abc", 12}, {"1e3", 1000}, {"2D2", 200}, {"1.5E-1", 0.15}, {"1 e 2", 100}, {"3e", 3},
                 {"3e+", 3}, {"007", 7}, {"&H1F", 31}, {"&h1f", 31}, {"&O17", 15}, {"&HFFFF", -1},
                 {"&H10000", 65536}, {"&H", 0}}) {
    EXPECT_DOUBLE_EQ(Val(c.in), c.out) << '"' << c.in << '"';
  }
}

TEST(Val, TooLargeOverflows) {
  EXPECT_THROW(Val("1e400"), KvlError);
  EXPECT_EQ(Val("1e-400"), 0.0);
}

TEST(NumText, PrintsLikeStrWithoutTheBlank) {
  struct Case { double in; const char* out; };
  for (Case c : {Case{12, "12"}, {-3, "-3"}, {2.5, "2.5"}, {0, "0"}, {-0.0, "0"}, {0.5, ".5"}, {-0.5, "-.5"},
                 {100.25, "100.25"}, {1234567.5, "1234567.5"}, {1.0 / 3, ".333333333333333"},
                 {2.0 / 3, ".666666666666667"}, {0.1 + 0.2, ".3"}, {123456789012345.0, "123456789012345"},
                 {1e15, "1E+15"}}) {
    EXPECT_EQ(NumText(c.in), c.out) << c.in;
  }
}

TEST(FormatNumber, MatchesTheOldFormat) {
  struct Case {
    double in;
    const char* mask;
    const char* out;
  };
  for (Case c : {Case{12, "0,000", "0,012"}, {123456789, "0,000", "123,456,789"}, {1234567, "$#,##0", "$1,234,567"},
                 {0, "$#,##0", "$0"}, {-1234, "$#,##0", "-$1,234"}, {1234567.891, "$#,##0.00", "$1,234,567.89"},
                 {0.5, "$#,##0.00", "$0.50"}, {1234.5, "$0,000", "$1,235"}, {3, "$0.00", "$3.00"},
                 {9.995, "$0.00", "$10.00"}, {0.3456, ".000", ".346"}, {1.5, ".000", "1.500"},
                 {0.0004, ".000", ".000"}, {-0.3456, ".000", "-.346"}, {0.5, "#.000", ".500"},
                 {3.14159, "#0.00", "3.14"}, {1.005, "#0.00", "1.01"}, {0.25, "#.00", ".25"}, {0.125, ".00", ".13"},
                 {0.05, "#0.0", "0.1"}, {-0.04, "#0.0", "-0.0"}, {999.96, "#0.0", "1000.0"}, {0.5, "###.0", ".5"},
                 {12.34, "###.0", "12.3"}, {7, "0000", "0007"}, {0, "0000", "0000"}, {12, "#,000", "012"},
                 {1234, "#,000", "1,234"}, {2.5, "0", "3"}, {-2.5, "0", "-3"}, {0.5, "0", "1"}, {1e-20, "0", "0"},
                 {5, "0 goals", "5 goals"}}) {
    EXPECT_EQ(FormatNumber(c.in, c.mask), c.out) << c.in << " " << c.mask;
  }
}

}  // namespace
}  // namespace kvl
