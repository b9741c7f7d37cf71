#pragma once
// Storing a computed value into a byte field rounds it, ties to even, as the
// record types of the game do.
#include <cmath>

#include "league/records.h"
#include "util/error.h"

namespace kvl {

// nearbyint rounds ties to even in the default rounding mode.
inline u8 CByte(double x) {
  double r = std::nearbyint(x);
  if (!(r >= 0 && r <= 255)) throw KvlError("Overflow");
  return static_cast<u8>(r);
}

}  // namespace kvl
