#include "team/coach_rules.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace kvl {

u8 CoachStyle(int of, int df) {
  if (std::abs(of - df) < 10) return 2;
  if (of <= df) return 1;
  return 0;
}

int ClampCoachRating(double value) {
  return static_cast<int>(std::clamp(std::nearbyint(value), double(kCoachRatingMin), double(kCoachRatingMax)));
}

i32 ClampCoachSalary(double value) {
  return static_cast<i32>(std::clamp(std::nearbyint(value), double(kCoachSalaryMin), double(kCoachSalaryMax)));
}

u8& CoachRatingRef(Coach& c, int which) {
  switch (which) {
    case kCoachOF: return c.OF;
    case kCoachDF: return c.DF;
    case kCoachEX: return c.EX;
    default: return c.LD;
  }
}

}  // namespace kvl
