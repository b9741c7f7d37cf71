#pragma once
// Players of the league's database (swap .drs) going onto a team's roster.
#include <vector>

#include "league/league_state.h"

namespace kvl {

// Every record of the database swap file, in record order (record n at n - 1).
std::vector<DbRecord> ReadDatabase(const LeagueState& s);
// True when a player of that name stands on any team's roster.
bool OnAnyRoster(const LeagueState& s, const FixedText<22>& name);
// Marks the records (numbered from 1) as held by a team.
void MarkUsed(LeagueState& s, const std::vector<int>& records);

// The first empty slot of the buffered side, or -1 when all 50 are taken.
int FirstFreeSlot(const LeagueState& s, int side);
// Where a newcomer goes: the pro roster as a scratch (100) while it holds
// fewer than 25, else the minors (0).
int NewcomerStatus(const LeagueState& s, int side);
// Puts `p` in `slot` of the side, healthy and with `status`; his number
// changes when a team-mate already wears it.
void PlaceOnRoster(LeagueState& s, int side, int slot, const Player& p, int status);

}  // namespace kvl
