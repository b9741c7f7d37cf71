// The scoring and goaltending leaders, their top five, and the farm league's.
#include "reports/html.h"
#include "reports/page_groups.h"
#include "reports/player_lists.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kLeaders{"Leaders.html", " Scoring Leaders", 3, 3, "<H2>Scoring Leaders</H2>", true};
const PageInfo kTop5{"Top5Points.html", "", -1, -1, nullptr, false, nullptr};
const PageInfo kFarmLeaders{"FarmLeaders.html", " Farm League Scoring Leaders", -1, -1,
                            "<H2>Farm League Scoring Leaders</H2>"};

const char* const kScoringColumns = "<PRE> Player                     GP   G   A    P +/-  PIM  PP  SH  Shots  Sh%";
const char* const kGoalieColumns = " Player                GP  W  L  T   MIN  GA  SO   AVG PIM Shots   Pct  A";
const char* const kFarmColumns = "<PRE> Player                     GP   G   A    P   PIM";

constexpr std::size_t kScoringRows = 30, kGoalieRows = 15;

int Points(const Player& p) { return p.G + p.A; }

// Goals against a minute-less goalie count as 255 a game.
double Gaa(int against, int minutes) { return minutes == 0 ? 255 : against / (minutes / 60.0); }

// Cut where the games column begins, leaving room for three digits.
std::string Label(const LeagueState& s, std::size_t place, const RosterEntry& e, const std::vector<std::size_t>& ends) {
  return LeaderLabel(s, RookieMark(e.p) + NumText(static_cast<double>(place + 1)) + ".", e, ends[0] - 3);
}

std::string ShotPct(int goals, int shots) { return shots == 0 ? "0.0" : FormatNumber(100.0 * goals / shots, "###.0"); }

std::vector<RosterEntry> Scorers(const std::vector<RosterEntry>& all) {
  std::vector<RosterEntry> c;
  for (const RosterEntry& e : all)
    if (e.p.Pos != kGoalie && Points(e.p) > 0) c.push_back(e);
  return RankPlayers(c, kScoringRows, [](const RosterEntry& a, const RosterEntry& r) { return OutScores(a.p, r.p); });
}

std::vector<RosterEntry> Goalies(const std::vector<RosterEntry>& all, int minGP) {
  std::vector<RosterEntry> c;
  for (const RosterEntry& e : all)
    if (e.p.Pos == kGoalie && e.p.GP >= minGP) c.push_back(e);
  return RankPlayers(c, kGoalieRows, [](const RosterEntry& a, const RosterEntry& r) {
    if (a.p.Plus <= 0) return false;
    if (r.p.Plus <= 0) return true;
    double ga = Gaa(a.p.PIM, a.p.Plus), gr = Gaa(r.p.PIM, r.p.Plus);
    return gr > ga || (gr == ga && r.p.Plus < a.p.Plus);
  });
}

void ScoringTable(const LeagueState& s, const std::vector<RosterEntry>& rows, Page& page) {
  page.add(kScoringColumns);
  const auto ends = CaptionEnds(kScoringColumns);
  const std::vector<std::size_t> valueEnds(ends.begin() + 1, ends.end());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Player& p = rows[i].p;
    page.add(RowUnder(Label(s, i, rows[i], valueEnds),
                      {NumText(p.GP), NumText(p.G), NumText(p.A), NumText(Points(p)), NumText(p.Plus), NumText(p.PIM),
                       NumText(p.PP), NumText(p.SH), NumText(p.Shots), ShotPct(p.G, p.Shots)},
                      valueEnds));
  }
  page.add("</PRE>");
}

void GoalieTable(const LeagueState& s, const std::vector<RosterEntry>& rows, int minGP, Page& page) {
  page.add("<H3>Goaltending Leaders</H3>");
  page.add("<PRE>Minimum " + NumText(minGP) + " Games Played<BR><BR>");
  page.add(kGoalieColumns);
  const auto ends = CaptionEnds(kGoalieColumns);
  const std::vector<std::size_t> valueEnds(ends.begin() + 1, ends.end());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Player& p = rows[i].p;
    std::string pct = p.Shots == 0 ? "N/A" : FormatNumber(double(p.Shots - p.PIM) / p.Shots, "#.000");
    std::string avg = p.Plus == 0 ? "N/A" : FormatNumber(Gaa(p.PIM, p.Plus), "#0.00");
    page.add(RowUnder(Label(s, i, rows[i], valueEnds),
                      {NumText(p.GP), NumText(p.SH), NumText(p.GW), NumText(p.GT), NumText(p.Plus), NumText(p.PIM),
                       NumText(p.PP), avg, NumText(p.G), NumText(p.Shots), pct, NumText(p.A)},
                      valueEnds));
  }
  page.add("</PRE>");
}

void Top5Page(PageRun& run, const std::vector<RosterEntry>& scorers) {
  Page page(run, kTop5);
  const char* columns = "<PRE> Player                 GP  Pts";
  page.add(columns);
  const auto ends = CaptionEnds(columns);
  const std::vector<std::size_t> valueEnds{ends[1], ends[2]};
  for (std::size_t i = 0; i < scorers.size() && i < 5; ++i)
    page.add(RowUnder(Label(run.s, i, scorers[i], valueEnds),
                      {NumText(scorers[i].p.GP), NumText(Points(scorers[i].p))}, valueEnds));
  page.add("</PRE>");
  page.write();
}

// The farm game keeps games, goals and assists of skaters and games and goals
// against of goalies; there are no farm penalty minutes to show.
void FarmLeadersPage(PageRun& run, const std::vector<RosterEntry>& all) {
  const LeagueState& s = run.s;
  std::vector<RosterEntry> skaters, goalies;
  int farmGames = 0;
  for (int t = 0; t < s.numTeams(); ++t) {
    const FarmTeam& f = s.Farm[static_cast<std::size_t>(t)];
    farmGames += f.W + f.L + f.T;
  }
  const int minGP = s.numTeams() == 0 ? 0 : static_cast<int>(Int(double(farmGames) / s.numTeams() * 0.4 + 0.5));
  for (const RosterEntry& e : all) {
    if (e.p.list() != 0) continue;
    if (e.p.Pos != kGoalie && e.p.FarmStatC + e.p.FarmStatD > 0) skaters.push_back(e);
    if (e.p.Pos == kGoalie && e.p.FarmStatA > 0 && e.p.FarmStatA >= minGP) goalies.push_back(e);
  }
  // The farm game adds two to its scorer's total for each goal credited.
  auto farmGoals = [](const Player& p) { return p.FarmStatD / 2; };
  auto farmPoints = [&](const Player& p) { return p.FarmStatC + farmGoals(p); };
  skaters = RankPlayers(skaters, kScoringRows, [&](const RosterEntry& a, const RosterEntry& r) {
    return OutScores(farmPoints(a.p), a.p.FarmStatA, farmGoals(a.p), farmPoints(r.p), r.p.FarmStatA, farmGoals(r.p));
  });
  auto farmGaa = [](const Player& p) { return double(p.FarmStatB) / p.FarmStatA; };
  goalies = RankPlayers(goalies, kGoalieRows,
                        [&](const RosterEntry& a, const RosterEntry& r) { return farmGaa(a.p) < farmGaa(r.p); });
  Page page(run, kFarmLeaders);
  page.add(kFarmColumns);
  const auto ends = CaptionEnds(kFarmColumns);
  const std::vector<std::size_t> valueEnds(ends.begin() + 1, ends.end());
  for (std::size_t i = 0; i < skaters.size(); ++i) {
    const Player& p = skaters[i].p;
    page.add(RowUnder(Label(s, i, skaters[i], valueEnds),
                      {NumText(p.FarmStatA), NumText(farmGoals(p)), NumText(p.FarmStatC), NumText(farmPoints(p)), "0"},
                      valueEnds));
  }
  page.add("</PRE>");
  page.add("<H3>Goaltending Leaders</H3>");
  page.add("<PRE>Minimum " + NumText(minGP) + " Games Played<BR><BR>");
  const char* goalieColumns = " Player                GP  AVG";
  page.add(goalieColumns);
  const auto gEnds = CaptionEnds(goalieColumns);
  const std::vector<std::size_t> goalieEnds{gEnds[1], gEnds[2]};
  for (std::size_t i = 0; i < goalies.size(); ++i)
    page.add(RowUnder(Label(s, i, goalies[i], goalieEnds),
                      {NumText(goalies[i].p.FarmStatA), FormatNumber(farmGaa(goalies[i].p), "#0.00")}, goalieEnds));
  page.add("</PRE>");
  page.write();
}

}  // namespace

void WriteLeaders(PageRun& run) {
  std::vector<RosterEntry> all = AllPlayers(run.s);
  const int minGP = MinGoalieGP(run.s);
  std::vector<RosterEntry> scorers = Scorers(all);
  Page page(run, kLeaders);
  ScoringTable(run.s, scorers, page);
  GoalieTable(run.s, Goalies(all, minGP), minGP, page);
  page.write();
  Top5Page(run, scorers);
  FarmLeadersPage(run, all);
}

}  // namespace kvl
