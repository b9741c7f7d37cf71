#pragma once
// Storing a computed value into a byte field rounds it, ties to even, as the
// record types of the game do.
#include <cmath>

#include "league/records.h"
#include "util/error.h"

namespace kvl {

// nearbyint rounds ties to even in the default rounding mode. So does adding
// 2^52 to a number from 0 to 2^52, where doubles step by 1, and that takes no
// call into the maths library.
inline u8 CByte(double x) {
  constexpr double kWhole = 0x1.0p52;
  double r = x >= 0 && x < kWhole ? (x + kWhole) - kWhole : std::nearbyint(x);
  if (!(r >= 0 && r <= 255)) throw KvlError("Overflow");
  return static_cast<u8>(r);
}

}  // namespace kvl
