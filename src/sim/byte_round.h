#pragma once
// Storing a computed value into a byte field rounds it, ties to even, as the
// record types of the game do.
#include "league/records.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

inline u8 CByte(double x) {
  int v = CInt(x);
  if (v < 0 || v > 255) throw KvlError("Overflow");
  return static_cast<u8>(v);
}

}  // namespace kvl
