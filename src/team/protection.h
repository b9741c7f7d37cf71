#pragma once
// Protection marks: the players an expansion draft may not take, within limits
// that tighten as marks are spent on each group.
#include "league/league_state.h"

namespace kvl {

struct ProtectionLimits {
  int forwards = 10, defence = 6, goalies = 2;
};
// The limits for a team that has already marked f forwards, d D and g goalies.
ProtectionLimits LimitsFor(int f, int d, int g);
// True when the player of Player(side, index) may be marked as well.
bool MayProtect(const LeagueState& s, int side, int index);

}  // namespace kvl
