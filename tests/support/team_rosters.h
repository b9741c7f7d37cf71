#pragma once
// Crafted rosters for the team tests: players whose ratings are all one level,
// so every ranking (offence, defence, overall) orders them by that level.
#include <array>
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl::test {

// A player of `pos` at `level` with `status`; named after his position and level.
Player Rated(int pos, int level, int status = 200);
// Puts `players` in slots 0.. of `side`, emptying the rest.
void PutRoster(LeagueState& s, int side, const std::vector<Player>& players);
// `count` players of `pos` with levels start, start - 1, ...
std::vector<Player> Several(int pos, int count, int start, int status = 200);
// counts[pos] players of each position, each group from `level` down.
std::vector<Player> Squad(const std::array<int, 5>& counts, int level, int status = 200);
std::vector<Player> Join(std::vector<std::vector<Player>> groups);
// Slots whose TempStatus-like array holds `value`.
template <class Array>
int CountOf(const Array& a, int value) {
  int n = 0;
  for (auto v : a) n += v == value;
  return n;
}

}  // namespace kvl::test
