#pragma once
// Taking a team out of a league. Team numbers are stored all over the file set
// (roster and prospect records by position, picks, coach links, the priority
// list, the schedule, waivers, contract futures, career lines, e-mail lines),
// so every later team moves down one place in each of them at once.
#include <optional>

#include "league/league_state.h"

namespace kvl {

// The number team `t` takes once team `gone` is out of a league of `oldCount`
// teams: nullopt for `gone` itself; values at or above `oldCount` (markers such
// as 255) are kept as they are.
std::optional<u8> NumberAfterRemoval(int t, int gone, int oldCount);

// Removes team `gone` from memory and from every swap file: later teams move
// down one place, records of the team are dropped, picks made for it lapse, its
// coach and its players' database records become free, and its scheduled
// games disappear. The division lists of
// the header are renumbered too.
void RemoveTeam(LeagueState& s, int gone);

}  // namespace kvl
