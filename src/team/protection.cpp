#include "team/protection.h"

#include <array>

namespace kvl {

ProtectionLimits LimitsFor(int f, int d, int g) {
  ProtectionLimits l;
  if (d >= 6) l.forwards = 9, l.goalies = 1;
  if (f >= 10) l.defence = 5, l.goalies = 1;
  if (d > 4) l.goalies = 1;
  if (f > 8) l.goalies = 1;
  if (g == 2) {
    l.forwards = 8, l.defence = 4;
    if (d >= 4) l.forwards = 7;
    if (f >= 8) l.defence = 3;
  }
  return l;
}

bool MayProtect(const LeagueState& s, int side, int index) {
  // Forwards, D, goalies.
  std::array<int, 3> marked{};
  auto group = [](int pos) { return pos < kDefence ? 0 : pos == kDefence ? 1 : 2; };
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = s.player(side, i);
    if (!p.empty() && p.Protected != 0) ++marked[static_cast<std::size_t>(group(p.Pos))];
  }
  ProtectionLimits l = LimitsFor(marked[0], marked[1], marked[2]);
  const std::array<int, 3> limit{l.forwards, l.defence, l.goalies};
  auto g = static_cast<std::size_t>(group(s.player(side, index).Pos));
  return marked[g] + 1 <= limit[g];
}

}  // namespace kvl
