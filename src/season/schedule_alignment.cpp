#include "season/schedule_alignment.h"

#include <algorithm>
#include <cstdlib>

#include "util/numbers.h"

namespace kvl {

namespace {

int DivisionsOf(const LeagueState& s, int c) {
  return std::min<int>(s.league.Conf[static_cast<std::size_t>(c)].NumDivs, 4);
}

}  // namespace

bool Unassigned(const Team& t) { return t.Conf == kNoConference || t.Conf > 1 || t.Div > 3; }

AlignmentCounts CountAlignment(const LeagueState& s) {
  AlignmentCounts a;
  for (int t = 0; t < s.numTeams(); ++t) {
    const Team& team = s.team(t);
    if (Unassigned(team)) {
      a.unassigned = true;
      continue;
    }
    ++a.conf[team.Conf];
    ++a.div[team.Conf][team.Div];
  }
  return a;
}

std::optional<int> SuggestedGamesPerTeam(const LeagueState& s, int vsDiv, int vsConf, int vsLg) {
  AlignmentCounts a = CountAlignment(s);
  if (a.unassigned) return std::nullopt;
  int maxConf = std::max(a.conf[0], a.conf[1]);
  int maxDiv = 0;
  for (int c = 0; c < 2; ++c)
    for (int d = 0; d < DivisionsOf(s, c); ++d) maxDiv = std::max(maxDiv, a.div[static_cast<std::size_t>(c)][static_cast<std::size_t>(d)]);
  // The largest conference stands for the other one too, however they differ.
  int total = (maxDiv - 1) * vsDiv + (maxConf - maxDiv) * vsConf + maxConf * vsLg;
  total = std::clamp(total, 0, 254);  // worked in bytes
  return 2 * static_cast<int>(Int(total / 2.0 + 0.5));
}

bool CheckAlignmentBalance(const LeagueState& s) {
  AlignmentCounts a = CountAlignment(s);
  if (std::abs(a.conf[0] - a.conf[1]) > 1) return false;
  int most = 0, fewest = 255;
  for (int c = 0; c < 2; ++c)
    for (int d = 0; d < DivisionsOf(s, c); ++d) {
      int n = a.div[static_cast<std::size_t>(c)][static_cast<std::size_t>(d)];
      most = std::max(most, n);
      fewest = std::min(fewest, n);
    }
  return most - fewest <= 1;
}

}  // namespace kvl
