#include "reports/glance.h"

#include <algorithm>

#include "league/ratings.h"
#include "reports/player_lists.h"

namespace kvl {

namespace {

std::vector<StandingRow> Members(const LeagueState& s, const std::vector<StandingRow>& rows, int conf, int div) {
  std::vector<StandingRow> out;
  for (const StandingRow& r : rows)
    if (s.team(r.team).Conf == conf && (div < 0 || s.team(r.team).Div == div)) out.push_back(r);
  return out;
}

std::string RosterStatus(const Player& p) {
  static constexpr const char* kLists[] = {"minors", "scratched", "dressed"};
  const int list = p.list();
  std::string status = list >= 0 && list <= 2 ? kLists[list] : "unknown";
  return p.injury() > 0 ? status + ", injured" : status;
}

}  // namespace

std::vector<StandingsGroup> GroupStandings(const LeagueState& s, StandingsScope scope) {
  const std::vector<StandingRow> rows = RankTeams(s);
  if (scope == StandingsScope::League) return {{"League", rows}};
  std::vector<StandingsGroup> groups;
  for (int c = 0; c < 2; ++c) {
    const Conference& conf = s.league.Conf[static_cast<std::size_t>(c)];
    if (scope == StandingsScope::Conference) {
      groups.push_back({conf.Name.str() + " Conference", Members(s, rows, c, -1)});
      continue;
    }
    for (int d = 0; d < conf.NumDivs; ++d)
      groups.push_back({conf.Div[static_cast<std::size_t>(d)].Name.str() + " Division", Members(s, rows, c, d)});
  }
  return groups;
}

std::string FoldName(const std::string& cp1252) {
  // The plain letters of Windows-1252's 0xC0..0xFF; the two signs (× ÷) stay.
  static constexpr char kLatin[] = "aaaaaaaceeeeiiiidnooooo\xD7ouuuuytsaaaaaaaceeeeiiiidnooooo\xF7ouuuuyty";
  std::string out;
  for (char ch : cp1252) {
    const auto c = static_cast<unsigned char>(ch);
    if (c >= 0xC0) out += kLatin[c - 0xC0];
    else if (c == 0x8A || c == 0x9A) out += 's';
    else if (c == 0x8E || c == 0x9E) out += 'z';
    else if (c == 0x9F) out += 'y';
    else out += static_cast<char>(c < 0x80 ? std::tolower(c) : c);
  }
  return out;
}

std::vector<FoundPlayer> FindPlayers(LeagueState& s, const std::string& text) {
  const std::string wanted = FoldName(text);
  auto matches = [&](const std::string& name) { return FoldName(name).find(wanted) != std::string::npos; };
  std::vector<FoundPlayer> found;
  ForEachLoadedTeam(s, [&](int team) {
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = s.player(0, slot);
      if (!p.empty() && matches(p.Name.str()))
        found.push_back({p.Name.str(), team, slot, p.Pos, p.Age, Overall(p), RosterStatus(p)});
    }
    const ProspectList& l = s.Prospects[0];
    for (std::size_t i = 0; i < kMaxProspects; ++i)
      if (!l.Name[i].empty() && matches(l.Name[i].str()))
        found.push_back({l.Name[i].str(), team, static_cast<int>(i), l.Pos[i], l.Age[i], -1, "prospect"});
  });
  for (const FreeAgentEntry& e : FreeAgents(s).list())
    if (matches(e.name)) found.push_back({e.name, -1, e.record, e.pos, e.age, e.overall, "free agent"});
  return found;
}

double GoalsAgainstAverage(const Player& g) { return g.Plus == 0 ? 0 : g.PIM * 60.0 / g.Plus; }
double SavePercentage(const Player& g) { return g.Shots == 0 ? 0 : double(g.Shots - g.PIM) / g.Shots; }

namespace {

// The figure a skater category ranks by.
int SkaterFigure(const Player& p, LeaderCategory c) {
  switch (c) {
    case LeaderCategory::Goals: return p.G;
    case LeaderCategory::Assists: return p.A;
    case LeaderCategory::PlusMinus: return p.Plus;
    case LeaderCategory::Penalties: return p.PIM;
    default: return p.G + p.A;
  }
}

bool Ranked(const Player& p, LeaderCategory c, int minGoalieGP) {
  const bool goalieCategory = c == LeaderCategory::Gaa || c == LeaderCategory::Save;
  if (goalieCategory) return p.Pos == kGoalie && p.GP >= minGoalieGP && p.Plus > 0 && p.Shots > 0;
  return p.Pos != kGoalie && p.GP > 0 && (c == LeaderCategory::PlusMinus || SkaterFigure(p, c) > 0);
}

}  // namespace

std::vector<RosterEntry> Leaders(LeagueState& s, LeaderCategory c, std::size_t top) {
  const int minGP = MinGoalieGP(s);
  std::vector<RosterEntry> candidates;
  for (RosterEntry& e : AllPlayers(s))
    if (Ranked(e.p, c, minGP)) candidates.push_back(std::move(e));
  return RankPlayers(candidates, top, [c](const RosterEntry& a, const RosterEntry& r) {
    if (c == LeaderCategory::Gaa) return GoalsAgainstAverage(a.p) < GoalsAgainstAverage(r.p);
    if (c == LeaderCategory::Save) return SavePercentage(a.p) > SavePercentage(r.p);
    const int fa = SkaterFigure(a.p, c), fr = SkaterFigure(r.p, c);
    return fa > fr || (fa == fr && OutScores(a.p, r.p));
  });
}

std::vector<FreeAgentEntry> ChooseFreeAgents(std::vector<FreeAgentEntry> list, std::optional<int> pos,
                                             FreeAgentOrder order, std::size_t top) {
  if (pos) std::erase_if(list, [&](const FreeAgentEntry& e) { return e.pos != *pos; });
  std::stable_sort(list.begin(), list.end(), [order](const FreeAgentEntry& a, const FreeAgentEntry& b) {
    switch (order) {
      case FreeAgentOrder::Overall: return a.overall > b.overall;
      case FreeAgentOrder::Age: return a.age < b.age;
      default: return a.salary > b.salary;
    }
  });
  if (list.size() > top) list.resize(top);
  return list;
}

}  // namespace kvl
