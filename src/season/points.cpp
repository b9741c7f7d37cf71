#include "season/points.h"

#include <algorithm>
#include <numeric>

namespace kvl {

u8 TeamPoints(const League& league, const Team& t) {
  const int w = t.W[0], l1 = t.L[1], tie = t.T[0], w1 = t.W[1];
  int p = 2 * w + tie;
  if (!league.InPlayoffs) {
    if (league.PointSystem == kModern)
      p = 2 * w + tie + l1;
    else if (league.PointSystem == kAmerican)
      p = 2 * w;
    else if (league.PointSystem == kSwedish)
      p = 3 * w + tie + l1 - w1;
  }
  return static_cast<u8>(p);
}

bool Beats(const League& league, const Team& a, const Team& b) {
  const int pa = TeamPoints(league, a), pb = TeamPoints(league, b);
  if (pa != pb) return pa > pb;
  if (a.W[0] != b.W[0]) return a.W[0] > b.W[0];
  return a.GF - a.GA > b.GF - b.GA;
}

std::vector<int> RankTeams(const LeagueState& s) {
  std::vector<int> order(static_cast<std::size_t>(s.numTeams()));
  std::iota(order.begin(), order.end(), 0);
  std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return Beats(s.league, s.team(a), s.team(b)); });
  return order;
}

}  // namespace kvl
