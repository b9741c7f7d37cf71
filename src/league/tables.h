#pragma once
// Fixed tables of the game: position names and the injury classes.
#include <array>
#include <string_view>

namespace kvl {

inline constexpr std::array<std::string_view, 5> PosName{" C", "LW", "RW", " D", " G"};
inline constexpr std::array<std::string_view, 5> PosPlural{"Centers", "Left Wings", "Right Wings", "Defencemen",
                                                           "Goalies"};

// Indexed by injury class 0..6.
inline constexpr std::array<std::string_view, 7> InjuryName{"None",      "day-to-day", "1-2 weeks",   "2-4 weeks",
                                                            "4-6 weeks", "2-4 months", "indefinitely"};
inline constexpr std::array<std::string_view, 7> InjuryCode{"", "DD", "1W", "3W", "1M", "3M", "IN"};
inline constexpr std::array<int, 7> InjuryScale{0, 85, 75, 60, 50, 40, 20};
inline constexpr std::array<int, 7> InjuryRate{0, 8, 6, 4, 3, 2, 1};

// The class whose texts stand for an injury count; counts above 6 read as class 6.
constexpr int InjuryClassFor(int count) { return count > 6 ? 6 : count; }

}  // namespace kvl
