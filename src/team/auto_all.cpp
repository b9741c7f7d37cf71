#include "team/auto_all.h"

#include <fmt/format.h>

#include "league/league_files.h"
#include "team/auto_roster.h"
#include "team/renumber.h"
#include "team/roster_rules.h"
#include "ui/ui.h"

namespace kvl {

std::vector<std::string> AutoAllShortages(const LeagueState& s, int side) {
  static constexpr std::array<int, 5> kNeed{3, 3, 3, 5, 2};
  static constexpr std::array<const char*, 5> kTail{" of 3+ C", " of 3+ LW", " of 3+ RW", " of 5+ D", " of 2 G"};
  NamedCounts c = CountNamed(s, side);
  std::vector<std::string> out;
  if (c.total < kDressedPlayers) out.push_back(fmt::format("- only {} of {} available", c.total, kDressedPlayers));
  for (std::size_t pos = 0; pos < kNeed.size(); ++pos)
    if (c.byPos[pos] < kNeed[pos]) out.push_back(fmt::format("- only {}{}", c.byPos[pos], kTail[pos]));
  return out;
}

AutoAllResult AutoAll(LeagueState& s) {
  AutoAllResult r;
  const std::string caption = "Configuring Rosters/Lines";
  for (int t = 0; t < s.numTeams(); ++t) {
    s.ui.progress(caption, s.team(t).Name.str(), t, s.numTeams());
    loadteam(s, t, 0);
    std::vector<std::string> shortages = AutoAllShortages(s, 0);
    if (!shortages.empty()) {
      shortages.insert(shortages.begin(), s.team(t).Name.str());
      r.skipped.push_back(shortages);
      continue;
    }
    Renumber(s, 0);
    AutoRoster(s, t, 0);
    SaveTeam(s, t, 0);
    ++r.teamsSet;
  }
  s.ui.progressDone();
  for (const auto& lines : r.skipped) {
    std::string text = lines.front();
    for (std::size_t i = 1; i < lines.size(); ++i) text += " " + lines[i];
    s.ui.print(text);
  }
  return r;
}

}  // namespace kvl
