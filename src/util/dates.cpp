#include "util/dates.h"

#include <cmath>

namespace kvl {
namespace {

// Days from 1 January 1970 in the proleptic Gregorian calendar (H. Hinnant's method).
long DaysFromCivil(long y, int m, int d) {
  y -= m <= 2;
  long era = (y >= 0 ? y : y - 399) / 400;
  long yoe = y - era * 400;
  long doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  long doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

void CivilFromDays(long z, CivilTime& t) {
  z += 719468;
  long era = (z >= 0 ? z : z - 146096) / 146097;
  long doe = z - era * 146097;
  long yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  long doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  long mp = (5 * doy + 2) / 153;
  t.day = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  t.month = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  t.year = static_cast<int>(yoe + era * 400 + (t.month <= 2));
}

const long kEpoch = DaysFromCivil(1899, 12, 30);

long FloorDiv(long a, long b) { return a / b - (a % b != 0 && (a < 0) != (b < 0)); }

}  // namespace

// Months and days out of range carry over, as DateSerial(2026, 13, 0) is 31 Dec 2026.
double DateSerial(int year, int month, int day) {
  long y = year + FloorDiv(month - 1, 12);
  int m = static_cast<int>(month - 1 - FloorDiv(month - 1, 12) * 12) + 1;
  return static_cast<double>(DaysFromCivil(y, m, 1) - kEpoch + day - 1);
}

// Before day 0 the time still counts forward from midnight: 29 Dec 1899 6:00 is -1.25.
double DateTime(const CivilTime& t) {
  double day = DateSerial(t.year, t.month, t.day);
  double time = (t.hour * 3600.0 + t.minute * 60.0 + t.second) / 86400.0;
  return day < 0 ? day - time : day + time;
}

CivilTime ToCivil(double date) {
  double whole = std::trunc(date);
  long seconds = std::lround(std::fabs(date - whole) * 86400.0);
  long day = static_cast<long>(whole);
  if (seconds >= 86400) {  // rounded up to the next midnight
    seconds -= 86400;
    ++day;
  }
  CivilTime t{};
  CivilFromDays(day + kEpoch, t);
  t.hour = static_cast<int>(seconds / 3600);
  t.minute = static_cast<int>(seconds / 60 % 60);
  t.second = static_cast<int>(seconds % 60);
  return t;
}

int Weekday(double date) {
  CivilTime t = ToCivil(date);
  long days = DaysFromCivil(t.year, t.month, t.day);  // 1 Jan 1970 was a Thursday
  return static_cast<int>((days % 7 + 11) % 7) + 1;
}

}  // namespace kvl
