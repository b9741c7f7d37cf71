// Number masks: a literal prefix, digit placeholders ('0' always shows a digit,
// '#' only a significant one), one '.', ',' for thousands, a literal suffix.
#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "util/numbers.h"

namespace kvl {
namespace {

struct NumberMask {
  std::string prefix, suffix;
  int minIntDigits = 0;   // '0's before the point
  bool point = false;
  int fracDigits = 0;     // placeholders after the point
  int minFracDigits = 0;  // up to the last '0' after the point
  bool grouped = false;
};

bool IsPlaceholder(char c) { return c == '0' || c == '#' || c == '.' || c == ','; }

NumberMask ParseMask(std::string_view mask) {
  NumberMask m;
  std::size_t start = 0;
  while (start < mask.size() && !IsPlaceholder(mask[start])) ++start;
  std::size_t end = start;
  while (end < mask.size() && IsPlaceholder(mask[end])) ++end;
  m.prefix = mask.substr(0, start);
  m.suffix = mask.substr(end);
  for (char c : mask.substr(start, end - start)) {
    if (c == '.' && !m.point) {
      m.point = true;
    } else if (m.point) {
      if (c == '0' || c == '#') ++m.fracDigits;
      if (c == '0') m.minFracDigits = m.fracDigits;
    } else if (c == '0') {
      ++m.minIntDigits;
    } else if (c == ',') {
      m.grouped = true;
    }
  }
  return m;
}

// |x| as decimal digits with the point after intDigits digits, rounded half away
// from zero at fracDigits decimals. Rounding the 15-digit decimal form rather than
// the binary value makes 1.005 round up, as the old platform did.
struct Decimal {
  std::string intPart, fracPart;
};

Decimal RoundDecimal(double x, int fracDigits) {
  char buf[40];
  std::snprintf(buf, sizeof buf, "%.14e", std::fabs(x));
  std::string digits{buf[0]};
  digits.append(buf + 2, 14);
  int pointAt = std::atoi(std::strchr(buf, 'e') + 1) + 1;  // digits before the point
  // Make room so that the point and the rounding position fall inside the digits.
  if (pointAt < 0) {
    digits.insert(0, static_cast<std::size_t>(-pointAt), '0');
    pointAt = 0;
  }
  std::size_t keep = static_cast<std::size_t>(pointAt + fracDigits);
  if (digits.size() < keep + 1) digits.resize(keep + 1, '0');
  bool up = digits[keep] >= '5';
  digits.resize(keep);
  for (std::size_t i = keep; up && i-- > 0;) {
    up = digits[i] == '9';
    digits[i] = up ? '0' : static_cast<char>(digits[i] + 1);
  }
  if (up) {
    digits.insert(0, "1");
    ++pointAt;
  }
  Decimal d{digits.substr(0, static_cast<std::size_t>(pointAt)), digits.substr(static_cast<std::size_t>(pointAt))};
  d.intPart.erase(0, std::min(d.intPart.find_first_not_of('0'), d.intPart.size()));
  return d;
}

std::string GroupThousands(const std::string& digits) {
  std::string out;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) out += ',';
    out += digits[i];
  }
  return out;
}

}  // namespace

std::string FormatNumber(double x, std::string_view mask) {
  if (!std::isfinite(x)) return NumText(x);
  NumberMask m = ParseMask(mask);
  Decimal d = RoundDecimal(x, m.fracDigits);
  std::string intPart = d.intPart;
  if (intPart.size() < static_cast<std::size_t>(m.minIntDigits))
    intPart.insert(0, static_cast<std::size_t>(m.minIntDigits) - intPart.size(), '0');
  if (m.grouped) intPart = GroupThousands(intPart);
  std::string frac = d.fracPart;
  while (frac.size() > static_cast<std::size_t>(m.minFracDigits) && frac.back() == '0') frac.pop_back();
  // A negative keeps its sign even when it rounds to nothing, as the old platform's did.
  std::string out = x < 0 ? "-" : "";
  out += m.prefix + intPart;
  if (m.point) out += '.' + frac;
  return out + m.suffix;
}

}  // namespace kvl
