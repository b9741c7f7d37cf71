#pragma once
// The coach file of the open league (swp.c): 31-byte records numbered from 1.
#include <vector>

#include "league/league_state.h"

namespace kvl {

// Every record, at its number; element 0 is an unused blank.
std::vector<Coach> ReadCoaches(const LeagueState& s);
void WriteCoach(const LeagueState& s, std::size_t rec, const Coach& c);
// Writes behind the last record and returns the new record's number.
std::size_t AppendCoach(const LeagueState& s, const Coach& c);

// The 0-based team a coach works for, or -1; his Team field is 1-based.
constexpr int CoachTeamIndex(const Coach& c) { return c.Team == Coach::kNoTeam ? -1 : c.Team - 1; }
constexpr u8 CoachTeamField(int team) { return static_cast<u8>(team + 1); }

}  // namespace kvl
