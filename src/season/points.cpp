#include "season/points.h"

#include <algorithm>
#include <numeric>

namespace kvl {

namespace {

// The seeds compare points as the byte they were kept in.
bool SeedsAbove(const League& league, const Team& a, const Team& b) {
  const int pa = static_cast<u8>(TeamPoints(league, a)), pb = static_cast<u8>(TeamPoints(league, b));
  if (pa != pb) return pa > pb;
  if (a.W[0] != b.W[0]) return a.W[0] > b.W[0];
  return a.GF - a.GA > b.GF - b.GA;
}

}  // namespace

int PointSystemInForce(const League& league) { return league.InPlayoffs ? int{kClassic} : int{league.PointSystem}; }

int TeamPoints(const League& league, const Team& t) {
  switch (PointSystemInForce(league)) {
    case kModern: return 2 * t.W[0] + t.T[0] + t.L[1];
    case kAmerican: return 2 * t.W[0];
    case kSwedish: return 3 * t.W[0] + t.T[0] + t.L[1] - t.W[1];
    default: return 2 * t.W[0] + t.T[0];
  }
}

std::vector<int> SeedOrder(const LeagueState& s) {
  std::vector<int> order(static_cast<std::size_t>(s.numTeams()));
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(),
                   [&](int a, int b) { return SeedsAbove(s.league, s.team(a), s.team(b)); });
  return order;
}

}  // namespace kvl
