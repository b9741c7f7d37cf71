#pragma once
// The farm clubs' game that rides along with a league game: a few draws
// between the minor-league players of the two teams in the buffer (side 0 the
// visitors, side 1 the home team), no ticks.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

constexpr int kFarmLineup = 18;  // places a farm club fills; empty ones count as weak players

// A side's strength in two ratings: 3 x a + 3 x b over its farm skaters, and
// 150 for each place missing up to 18.
int FarmStrength(const LeagueState& s, int side, int ratingA, int ratingB);
// A farm skater drawn by the square of `rating`; kNoPlayer when the draw
// falls on the empty places.
u8 FarmPick(LeagueState& s, int side, int rating);
// A farm goalie at random, or kNoPlayer.
u8 FarmGoalie(LeagueState& s, int side);
// Plays the game, keeps the farm records and statistics, and returns the text
// box score for the league game's page.
std::vector<std::string> PlayFarmGame(LeagueState& s, int away, int home);

}  // namespace kvl
