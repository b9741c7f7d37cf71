#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <optional>

#include "util/error.h"
#include "util/numbers.h"

namespace kvl {
namespace {

TEST(Int, FloorsTowardMinusInfinity) {
  EXPECT_EQ(std::tuple(Int(2.7), Int(-2.3), Int(-2.0), Int(0.5)), std::tuple(2.0, -3.0, -2.0, 0.0));
}

// Outside 16 bits (no value given) the old platform stopped with "Overflow".
TEST(CInt, RoundsHalfToEvenAndOverflowsOutsideSixteenBits) {
  struct Case { double in; std::optional<int> out; };
  for (Case c : {Case{2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0}, {-0.5, 0}, {2.4, 2}, {2.6, 3},
                 {-2.6, -3}, {32767.0, 32767}, {32767.4, 32767}, {-32768.0, -32768}, {-32768.5, -32768},
                 {32767.5, {}}, {-32768.6, {}}, {1e10, {}}, {std::nan(""), {}}}) {
    if (c.out)
      EXPECT_EQ(CInt(c.in), *c.out) << c.in;
    else
      EXPECT_THAT([&] { CInt(c.in); }, testing::ThrowsMessage<KvlError>(testing::StrEq("Overflow"))) << c.in;
  }
}

TEST(Val, ReadsTheLeadingNumber) {
  struct Case { const char* in; double out; };
  for (Case c : {Case{"abc", 0}, {"-.", 0}, {"24 and 57", 24}, {" 1615 198th Street N.E.", 1615198}, {"\t5", 5},
                 {"  -3.5", -3.5}, {"+7", 7}, {".5", 0.5}, {"1.2.3", 1.2}, {"1e3", 1000}, {"2D2", 200},
                 {"1.5E-1", 0.15}, {"3e", 3}, {"3e+", 3}, {"&h1f", 31}, {"&O17", 15}, {"&HFFFF", -1},
                 {"&H10000", 65536}, {"&H", 0}}) {
    EXPECT_DOUBLE_EQ(Val(c.in), c.out) << '"' << c.in << '"';
  }
}

TEST(DollarsIn, TakesWholeDollarsAsTypedAndNothingElse) {
  struct Case { const char* in; std::optional<double> out; };
  for (Case c : {Case{"250000", 250000}, {"$250,000", 250000}, {" 250,000 ", 250000}, {"0", 0},
                 {"99,999,999", 99999999}, {"100,000,000", std::nullopt}, {"abc", std::nullopt},
                 {"250k", std::nullopt}, {"2.5", std::nullopt}, {"-5", std::nullopt}, {"$", std::nullopt},
                 {",5", std::nullopt}, {"", std::nullopt}}) {
    EXPECT_EQ(DollarsIn(c.in, 99999999), c.out) << '"' << c.in << '"';
  }
}

TEST(Val, TooLargeOverflows) {
  EXPECT_THROW(Val("1e400"), KvlError);
  EXPECT_EQ(Val("1e-400"), 0.0);
}

TEST(NumText, PrintsLikeStrWithoutTheBlank) {
  struct Case { double in; const char* out; };
  for (Case c : {Case{12, "12"}, {-3, "-3"}, {1234567.5, "1234567.5"}, {0, "0"}, {-0.0, "0"}, {0.5, ".5"},
                 {-0.5, "-.5"}, {2.0 / 3, ".666666666666667"}, {0.1 + 0.2, ".3"},
                 {123456789012345.0, "123456789012345"}, {1e15, "1E+15"}}) {
    EXPECT_EQ(NumText(c.in), c.out) << c.in;
  }
}

TEST(FormatNumber, MatchesTheOldFormat) {
  struct Case {
    double in;
    const char* mask;
    const char* out;
  };
  for (Case c : {Case{12, "0,000", "0,012"}, {123456789, "0,000", "123,456,789"}, {0, "$#,##0", "$0"},
                 {-1234, "$#,##0", "-$1,234"}, {1234567.891, "$#,##0.00", "$1,234,567.89"}, {0.5, "$#,##0.00", "$0.50"},
                 {1234.5, "$0,000", "$1,235"}, {3, "$0.00", "$3.00"}, {0.3456, ".000", ".346"}, {1.5, ".000", "1.500"},
                 {0.0004, ".000", ".000"}, {-0.3456, ".000", "-.346"}, {0.5, "#.000", ".500"},
                 {3.14159, "#0.00", "3.14"}, {1.005, "#0.00", "1.01"}, {0.125, ".00", ".13"}, {0.05, "#0.0", "0.1"},
                 {-0.04, "#0.0", "-0.0"}, {999.96, "#0.0", "1000.0"}, {0.5, "###.0", ".5"}, {7, "0000", "0007"},
                 {12, "#,000", "012"}, {1234, "#,000", "1,234"}, {2.5, "0", "3"}, {-2.5, "0", "-3"}, {1e-20, "0", "0"},
                 {5, "0 goals", "5 goals"}}) {
    EXPECT_EQ(FormatNumber(c.in, c.mask), c.out) << c.in << " " << c.mask;
  }
}

}  // namespace
}  // namespace kvl
