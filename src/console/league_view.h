#pragma once
// What the console shows of the open league, shared by every front end.
#include <set>
#include <string>

#include "league/league_state.h"

namespace kvl {

// The state of the season as the header tells it ("Regular season", ...).
std::string LeagueStateName(const League& lg);
// League, conferences, divisions with their teams and numbers, state, and the
// enabled menu commands among `commands` (the names the front end offers); an
// enabled menu entry it does not offer is listed apart, as not available.
std::string InfoText(const LeagueState& s, const std::set<std::string>& commands);
// A team named by number (0-based, as shown by info) or by name or abbreviation
// in any case; Refused (after telling) when there is no such team.
int ResolveTeam(LeagueState& s, const std::string& arg);

}  // namespace kvl
