#include "util/numbers.h"

#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

#include "util/error.h"

namespace kvl {

double Int(double x) { return std::floor(x); }

std::int16_t CInt(double x) {
  double r = std::floor(x);
  double diff = x - r;
  if (diff > 0.5 || (diff == 0.5 && std::fmod(r, 2.0) != 0.0)) r += 1.0;
  // NaN fails both comparisons and lands here too.
  if (!(r >= std::numeric_limits<std::int16_t>::min() && r <= std::numeric_limits<std::int16_t>::max()))
    throw KvlError("Overflow");
  return static_cast<std::int16_t>(r);
}

namespace {

// Val ignores these anywhere in the text, not only in front.
bool IsValBlank(char c) { return c == ' ' || c == '\t' || c == '\n'; }

std::string WithoutBlanks(std::string_view text) {
  std::string out;
  for (char c : text)
    if (!IsValBlank(c)) out += c;
  return out;
}

bool IsDigitIn(char c, int radix) {
  if (radix == 16) return std::isxdigit(static_cast<unsigned char>(c)) != 0;
  return c >= '0' && c < '0' + radix;
}

// "&H..." and "&O...": as the old platform typed them, up to four hex digits
// make a 16-bit Integer and up to eight a 32-bit Long, so &HFFFF is -1.
double RadixVal(std::string_view s, int radix) {
  std::size_t n = 0;
  while (n < s.size() && IsDigitIn(s[n], radix)) ++n;
  std::uint64_t v = 0;
  if (std::from_chars(s.data(), s.data() + n, v, radix).ec == std::errc::result_out_of_range) throw KvlError("Overflow");
  if (v <= 0xFFFF) return static_cast<std::int16_t>(v);
  if (v <= 0xFFFFFFFF) return static_cast<std::int32_t>(v);
  throw KvlError("Overflow");
}

std::size_t DigitsFrom(std::string_view s, std::size_t i) {
  while (i < s.size() && s[i] >= '0' && s[i] <= '9') ++i;
  return i;
}

// The leading decimal number of a text: sign, digits, one point, exponent.
struct DecimalText {
  std::string number;     // ready for from_chars, exponent letter as 'e'
  int integerDigits = 0;  // before the point, leading zeros left out
  long exponent = 0;
};

// An exponent letter counts only when digits follow it: "3e" reads as 3.
void ScanExponent(std::string_view s, std::size_t i, DecimalText& d) {
  if (i >= s.size() || std::string_view("EeDd").find(s[i]) == std::string_view::npos) return;
  std::size_t signAt = i + 1;
  std::size_t digitsAt = signAt < s.size() && (s[signAt] == '+' || s[signAt] == '-') ? signAt + 1 : signAt;
  std::size_t end = DigitsFrom(s, digitsAt);
  if (end == digitsAt) return;
  std::from_chars(s.data() + (s[signAt] == '+' ? digitsAt : signAt), s.data() + end, d.exponent);
  d.number += 'e';
  d.number += s.substr(signAt, end - signAt);
}

DecimalText ScanDecimal(std::string_view s) {
  DecimalText d;
  std::size_t i = 0;
  bool negative = i < s.size() && s[i] == '-';
  if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
  std::size_t intStart = i;
  i = DigitsFrom(s, i);
  std::size_t intEnd = i;
  std::size_t fracDigits = 0;
  if (i < s.size() && s[i] == '.') {
    std::size_t fracEnd = DigitsFrom(s, i + 1);
    fracDigits = fracEnd - i - 1;
    i = fracEnd;
  }
  if (intEnd == intStart && fracDigits == 0) return d;
  std::string_view intPart = s.substr(intStart, intEnd - intStart);
  std::size_t firstNonZero = intPart.find_first_not_of('0');
  d.integerDigits = firstNonZero == std::string_view::npos ? 0 : static_cast<int>(intPart.size() - firstNonZero);
  d.number = std::string(negative ? "-" : "") + std::string(s.substr(intStart, i - intStart));
  ScanExponent(s, i, d);
  return d;
}

}  // namespace

double Val(std::string_view text) {
  std::string s = WithoutBlanks(text);
  if (s.size() >= 2 && s[0] == '&') {
    char kind = static_cast<char>(std::toupper(static_cast<unsigned char>(s[1])));
    if (kind == 'H') return RadixVal(std::string_view(s).substr(2), 16);
    if (kind == 'O') return RadixVal(std::string_view(s).substr(2), 8);
  }
  DecimalText d = ScanDecimal(s);
  if (d.number.empty()) return 0.0;
  double v = 0.0;
  auto [end, ec] = std::from_chars(d.number.data(), d.number.data() + d.number.size(), v);
  if (ec == std::errc::result_out_of_range) {
    if (d.integerDigits + d.exponent > 0) throw KvlError("Overflow");
    return 0.0;  // too small to hold
  }
  return v;
}

std::optional<double> WholeIn(std::string_view text, double low, double high) {
  double v = std::nearbyint(Val(text));
  if (!(v >= low && v <= high)) return std::nullopt;
  return v;
}

std::optional<double> DollarsIn(std::string_view text, double high) {
  while (!text.empty() && text.front() == ' ') text.remove_prefix(1);
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  if (!text.empty() && text.front() == '$') text.remove_prefix(1);
  double v = 0;
  bool digit = false;
  for (char c : text) {
    if (c == ',' && digit) continue;
    if (c < '0' || c > '9') return std::nullopt;
    v = v * 10 + (c - '0');
    digit = true;
  }
  if (!digit || v > high) return std::nullopt;
  return v;
}

std::string NumText(double x) {
  if (x == 0.0) return "0";
  // A whole number prints as its digits, and most are whole: skip the printf.
  if (std::fabs(x) < 1e15 && x == std::trunc(x)) return std::to_string(static_cast<long long>(x));
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.15G", x);
  std::string s = buf;
  // The old platform wrote ".5" and "-.5", never "0.5".
  if (s.rfind("0.", 0) == 0) s.erase(0, 1);
  else if (s.rfind("-0.", 0) == 0) s.erase(1, 1);
  return s;
}

}  // namespace kvl
