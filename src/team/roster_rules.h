#pragma once
// What a roster must hold, and the ways the automatic makers rank players.
#include <array>

#include "league/league_state.h"

namespace kvl {

constexpr int kDressedPlayers = 20;
constexpr int kProRosterLimit = 25;
constexpr u8 kDressedHealthy = 200;
constexpr u8 kScratch = 100;
constexpr u8 kHoldOut = 99;  // Suspended: a hold-out, off the pro roster count
constexpr u8 kPersonal = 88;  // Suspended: away for personal reasons
constexpr int kAnySkater = 5;  // a position argument: any Pos but goalie

// How a picker ranks: by OffenseRating, DefenseRating or Overall.
enum RankMode : int { kByOffense = 0, kByDefense = 1, kByOverall = 2 };

int RateBy(const Player& p, int mode);
// True when a player of `playerPos` answers a request for `pos` (kAnySkater: no goalie).
constexpr bool PosMatches(int playerPos, int pos) {
  return playerPos == pos || (pos == kAnySkater && playerPos != kGoalie);
}

// Named players of a buffered roster, whatever their list or health.
struct NamedCounts {
  int total = 0;
  std::array<int, 5> byPos{};
};
NamedCounts CountNamed(const LeagueState& s, int side);

}  // namespace kvl
