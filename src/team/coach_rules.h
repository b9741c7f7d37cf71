#pragma once
// The numbers of a coach: style, the salary as shown, and the limits of edits.
#include <array>
#include <string_view>

#include "league/records.h"

namespace kvl {

// 2 balanced (OF and DF within 10), 1 defensive (OF not above DF), 0 offensive.
u8 CoachStyle(int of, int df);

// A coach's Salary is stored as twice what the user sees.
constexpr i32 ShownSalary(i32 stored) { return stored >= 0 ? stored / 2 : -((-stored + 1) / 2); }
constexpr i32 StoredSalary(i32 shown) { return shown * 2; }

constexpr int kCoachRatingMin = 50, kCoachRatingMax = 99, kCoachRatingPromptMax = 100;
constexpr i32 kCoachSalaryMin = 50000, kCoachSalaryMax = 10000000;
// The list's edit fields clamp; the create prompts ask again instead.
int ClampCoachRating(double value);
i32 ClampCoachSalary(double value);

enum CoachRating : int { kCoachOF, kCoachDF, kCoachEX, kCoachLD };
inline constexpr std::array<std::string_view, 4> kCoachRatingNames{"OF", "DF", "EX", "LD"};
u8& CoachRatingRef(Coach& c, int which);

// The short copy of the coach in the Team record keeps the style in its third byte.
inline u8& StoredCoachStyle(Team& t) { return t.Coach.Contract; }

}  // namespace kvl
