#pragma once
// The old platform's number conversions and format masks, with its results.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kvl {

// Floors toward minus infinity.
double Int(double x);
// Rounds to nearest, ties to even, into 16 bits; out of range is a KvlError ("Overflow").
std::int16_t CInt(double x);
// Reads the leading number of a text as the old Val did: leading blanks skipped,
// sign, digits, one decimal point, an exponent; stops at the first other
// character; "" or no digits gives 0. "&H" hex is read too.
double Val(std::string_view text);
// The Val of typed text rounded (half to even) to the whole number a field
// stores; nullopt when that falls outside [low, high], so the field keeps its value.
std::optional<double> WholeIn(std::string_view text, double low, double high);
// An amount of whole dollars as typed: digits, with a "$" before them and
// commas between them allowed ("$250,000"); nullopt for anything else or
// above `high`.
std::optional<double> DollarsIn(std::string_view text, double high);
// A number as text with no leading blank: 12 -> "12", -3 -> "-3", 2.5 -> "2.5".
std::string NumText(double x);
// Formats with a number mask: "0,000", "$#,##0", "$#,##0.00", "$0,000", "$0.00",
// ".000", "#.000", "#0.00", "#.00", "#0.0", "###.0", "0000", "#,000", "0".
std::string FormatNumber(double x, std::string_view mask);

}  // namespace kvl
