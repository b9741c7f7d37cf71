#pragma once
// The names of penalties as the game reports them. The spellings and the
// repeated rows are the league's own and stay as they are.
#include <array>
#include <string_view>

namespace kvl {

enum PenaltyKind : int { kNoPenalty = 0, kMinor = 1, kDoubleMinor = 2, kMajor = 3, kMisconduct = 4 };

inline constexpr std::array<std::string_view, 5> PenaltyKindName{"", "Minor", "Double Minor", "Major", "Misconduct"};

// [row][kind], kinds 1..3; column 0 is unused.
inline constexpr std::array<std::array<std::string_view, 4>, 11> PenaltyName{{
    {"", "BOARDING", "BOARDING", "CHECKING-FROM-BEHIND"},
    {"", "CHARGING", "ROUGHING", "HEAD-BUTTING"},
    {"", "CROSS-CHECKING", "CROSS-CHECKING", "SPEARING"},
    {"", "HIGHSTICKING", "HIGHSTICKING", "KICKING"},
    {"", "HOOKING", "ELBOWING", "HIGHSTICKING"},
    {"", "ELBOWING", "HIGHSTICKING", "HIGHSTICKING"},
    {"", "GOALIE INTERERENCE", "BOARDING", "BOARDING"},
    {"", "ROUGHING", "CHARGING", "CROSS-CHECKING"},
    {"", "ROUGHING", "ROUGHING", "ELBOWING"},
    {"", "UNSPORTSMANLIKE-CONDUCT", "HIGHSTICKING", "CHARGING"},
    {"", "DELAY-OF-GAME", "UNSPORTSMANLIKE-CONDUCT", "ABUSE-OF-OFFICIAL"},
}};

}  // namespace kvl
