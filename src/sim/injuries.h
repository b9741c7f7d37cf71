#pragma once
// What an injury costs after the game, and healing day by day. The injury
// texts come from inj.dtf in the home folder: 31-byte records of a 30-byte
// text and the class (1..6) it fits; a missing file gives a plain text.
#include "league/league_state.h"

namespace kvl {

// Decides the class and length of the injury of the player in (side, slot)
// of `team`: his Condition falls, Status takes the class, and the season's
// transaction log tells it.
void DecideInjury(LeagueState& s, int team, int side, int slot);
// One day of healing for an injured player; back at full strength he returns.
void RecoverDay(LeagueState& s, int team, int side, int slot);

}  // namespace kvl
