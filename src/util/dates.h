#pragma once
// Dates as days since 30 December 1899 with the time as the fraction.
#include <string>
#include <string_view>

namespace kvl {

struct CivilTime {
  int year, month, day, hour, minute, second;
  bool operator==(const CivilTime&) const = default;
};

double DateSerial(int year, int month, int day);
double DateTime(const CivilTime& t);
CivilTime ToCivil(double date);
// Day of the week, 1 for Sunday to 7 for Saturday.
int Weekday(double date);
// Formats with a date mask: "dddd, mmm d yyyy", "hh:mm:ss AMPM", "hh:mm ampm mmm d",
// "mm/dd/yyyy" (and the tokens d dd ddd dddd m mm mmm mmmm yy yyyy h hh n nn s ss AMPM ampm).
std::string FormatDate(double date, std::string_view mask);

}  // namespace kvl
