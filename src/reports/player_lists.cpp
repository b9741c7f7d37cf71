#include "reports/player_lists.h"

#include "league/league_files.h"
#include "league/ratings.h"
#include "league/tables.h"
#include "reports/html.h"
#include "season/playoff_series.h"
#include "util/fixed_text.h"
#include "util/numbers.h"

namespace kvl {

void ForEachLoadedTeam(LeagueState& s, const std::function<void(int team)>& fn) {
  for (int t = 0; t < s.numTeams(); ++t) {
    loadteam(s, t, 0);
    fn(t);
  }
}

std::vector<RosterEntry> AllPlayers(LeagueState& s) {
  std::vector<RosterEntry> out;
  ForEachLoadedTeam(s, [&](int t) {
    for (int slot = 0; slot < kRosterSlots; ++slot)
      if (!s.player(0, slot).empty()) out.push_back({t, s.player(0, slot)});
  });
  return out;
}

std::vector<RosterEntry> RankPlayers(const std::vector<RosterEntry>& candidates, std::size_t rows,
                                     const Beats& beats) {
  std::vector<RosterEntry> table;
  for (const RosterEntry& c : candidates) {
    auto at = std::find_if(table.begin(), table.end(), [&](const RosterEntry& r) { return beats(c, r); });
    if (at == table.end() && table.size() >= rows) continue;
    table.insert(at, c);
    if (table.size() > rows) table.pop_back();
  }
  return table;
}

bool OutScores(int points, int gp, int goals, int rowPoints, int rowGp, int rowGoals) {
  if (points != rowPoints) return points > rowPoints;
  if (gp != rowGp) return gp < rowGp;
  return goals > rowGoals;
}

bool OutScores(const Player& a, const Player& row) {
  return OutScores(a.G + a.A, a.GP, a.G, row.G + row.A, row.GP, row.G);
}

int MinGoalieGP(const LeagueState& s) {
  if (s.league.InPlayoffs) return ShownPlayoffRound(s);
  if (s.numTeams() < 2) return 0;
  return static_cast<int>(Int(s.league.GamesPlayed / (s.numTeams() / 2.0) * 0.4 + 0.5));
}

std::vector<std::string> PositionAndRatings(const Player& p) {
  auto text = [&](int value) { return p.Pos == kGoalie && value == 0 ? std::string("NA") : NumText(value); };
  std::vector<std::string> values{Trim(PosName[std::min<std::size_t>(p.Pos, 4)])};
  for (int r = kInt; r <= kLdr; ++r) values.push_back(text(p.rating(r)));
  values.push_back(text(Overall(p)));
  return values;
}

std::string RookieMark(const Player& p) { return p.Rookie ? "*" : " "; }

std::string NameAndTeam(const LeagueState& s, const RosterEntry& e, std::size_t width) {
  const std::string team = " (" + s.team(e.team).Name.str() + ")";
  const std::size_t room = width > team.size() ? width - team.size() : 0;
  std::string name = e.p.Name.str();
  if (name.size() > room) name = ShortName(name);
  return name.substr(0, room) + team;
}

std::string LeaderLabel(const LeagueState& s, const std::string& lead, const RosterEntry& e, std::size_t width) {
  return CutLabel(lead + NameAndTeam(s, e, width > lead.size() ? width - lead.size() : 0), width);
}

}  // namespace kvl
