#pragma once
// What the schedule maker needs to know of the league's alignment: teams per
// conference and per division, and whether every team has a division.
#include <array>
#include <optional>

#include "league/league_state.h"

namespace kvl {

constexpr u8 kNoConference = 255;

struct AlignmentCounts {
  std::array<int, 2> conf{};                  // ConfTeams
  std::array<std::array<int, 4>, 2> div{};    // DivTeams(c, d)
  bool unassigned = false;                    // a team without a conference
};

// A team is unassigned when its Conf is 255, or when its conference or division
// lies outside the header's two conferences of four divisions.
bool Unassigned(const Team& t);
AlignmentCounts CountAlignment(const LeagueState& s);

// Games per team the three minimums ask for, raised to the next even number;
// nullopt when a team has no conference.
std::optional<int> SuggestedGamesPerTeam(const LeagueState& s, int vsDiv, int vsConf, int vsLg);

// False when the conferences differ by more than one team, or the largest and
// smallest divisions do (each conference walked by its own number of divisions).
bool CheckAlignmentBalance(const LeagueState& s);

}  // namespace kvl
