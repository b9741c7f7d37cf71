// Dates as day counts from 30 Dec 1899: to and from the calendar, and formatted.
#include <gtest/gtest.h>

#include <ctime>

#include "util/clock.h"
#include "util/dates.h"

namespace kvl {
namespace {

TEST(DateSerial, CountsDaysFromTheEpochAndCarriesMonthsAndDaysOutOfRange) {
  struct Case { int y, m, d; double out; };
  for (Case c : {Case{1899, 12, 30, 0}, {1800, 1, 1, -36522}, {2023, 3, 15, 45000},
                 {2026, 13, 1, DateSerial(2027, 1, 1)}, {2026, 0, 1, DateSerial(2025, 12, 1)},
                 {2026, 3, 0, DateSerial(2026, 2, 28)}, {2024, 3, 0, DateSerial(2024, 2, 29)},
                 {2026, 1, 32, DateSerial(2026, 2, 1)}}) {
    EXPECT_EQ(DateSerial(c.y, c.m, c.d), c.out) << c.y << '-' << c.m << '-' << c.d;
  }
}

int DaysInMonth(int y, int m) {
  static const int kDays[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  bool leap = (y % 4 == 0 && y % 100 != 0) || y % 400 == 0;
  return m == 2 && leap ? 29 : kDays[m - 1];
}

// Every day of five centuries, both ways, and its weekday (1 Jan 1700 was a Friday, 6).
TEST(ToCivil, WalksTheCalendarDayByDay) {
  CivilTime expected{1700, 1, 1, 0, 0, 0};
  int weekday = 6;
  for (double day = -73046; day < DateSerial(2200, 1, 1); ++day) {
    ASSERT_EQ(ToCivil(day), expected) << day;
    ASSERT_EQ(DateSerial(expected.year, expected.month, expected.day), day);
    ASSERT_EQ(Weekday(day), weekday) << day;
    weekday = weekday % 7 + 1;
    if (++expected.day > DaysInMonth(expected.year, expected.month)) {
      expected.day = 1;
      if (++expected.month > 12) expected = {expected.year + 1, 1, 1, 0, 0, 0};
    }
  }
}

TEST(ToCivil, SplitsDayAndTime) {
  struct Case { double date; CivilTime t; };
  for (Case c : {Case{45000.5, {2023, 3, 15, 12, 0, 0}}, {-1.25, {1899, 12, 29, 6, 0, 0}},
                 // Between -1 and 0 the time counts from 30 Dec 1899 as well.
                 {-0.25, {1899, 12, 30, 6, 0, 0}}, {1.9999999, {1900, 1, 1, 0, 0, 0}},
                 {-2.9999999, {1899, 12, 29, 0, 0, 0}}}) {
    EXPECT_EQ(ToCivil(c.date), c.t) << c.date;
  }
}

TEST(FormatDate, MatchesTheOldFormat) {
  struct Case {
    CivilTime t;
    const char* mask;
    const char* out;
  };
  constexpr CivilTime kSat{2026, 11, 21, 15, 7, 9};
  // The twelve-hour clock's edges follow the Saturday afternoon. DateTime makes
  // each date, after the epoch and before it.
  for (Case c : {Case{kSat, "dddd, mmm d yyyy", "Saturday, Nov 21 2026"}, {kSat, "hh:mm:ss AMPM", "03:07:09 PM"},
                 {kSat, "hh:mm ampm mmm d", "03:07 pm Nov 21"}, {kSat, "mm/dd/yyyy", "11/21/2026"},
                 {kSat, "DD/MM/YYYY", "21/11/2026"}, {kSat, "d/m/yy", "21/11/26"},
                 {kSat, "ddd mmmm", "Sat November"}, {kSat, "h:nn:ss", "15:07:09"}, {kSat, "h:n:s", "15:7:9"},
                 {kSat, "y", "325"}, {kSat, "h:mm AM/PM", "3:07 PM"}, {{2009, 3, 5, 9, 4, 0}, "d-m-yy", "5-3-09"},
                 {{1899, 12, 29, 6, 0, 0}, "mm/dd/yyyy hh:nn", "12/29/1899 06:00"},
                 {{2026, 1, 1, 0, 30, 0}, "hh:mm AMPM", "12:30 AM"}, {{2026, 1, 1, 0, 30, 0}, "hh:nn", "00:30"},
                 {{2026, 1, 1, 11, 59, 0}, "hh:mm AMPM", "11:59 AM"},
                 {{2026, 1, 1, 12, 0, 0}, "hh:mm AMPM", "12:00 PM"},
                 {{2026, 1, 1, 23, 59, 0}, "hh:mm AMPM", "11:59 PM"}}) {
    EXPECT_EQ(FormatDate(DateTime(c.t), c.mask), c.out) << c.mask;
  }
}

TEST(SystemClock, GivesTodayInLocalTime) {
  double unixDays = static_cast<double>(std::time(nullptr)) / 86400.0 + DateSerial(1970, 1, 1);
  // Local time is at most 14 hours off UTC.
  EXPECT_NEAR(SystemClock().now(), unixDays, 14.0 / 24 + 0.001);
}

}  // namespace
}  // namespace kvl
