// Each team's scoring and goaltending, with the team's totals; a player traded
// this season has a row for each team he played for.
#include "league/league_files.h"
#include "reports/html.h"
#include "reports/page_files.h"
#include "reports/page_groups.h"
#include "reports/player_lists.h"
#include "transactions/trade_office.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kTeamScoring{"TeamScoring.html", " Team Scoring", 4, 4, "<HTML><H1>Team Scoring</H1>"};

const char* const kSkaterColumns =
    "                            TEAM GP   G   A   P +/- PIM PP SH GW GT   HT    S  PCTG GS PS";
const char* const kGoalieColumns =
    "                           TEAM  GP  MIN   AVG   W   L   T  SO  GA   SA   PCT PIM AS";
constexpr const char* kPosLetter = "CLRDG";

std::string Pctg(int goals, int shots) { return shots == 0 ? "0.0" : FormatNumber(100.0 * goals / shots, "#0.0"); }

// The figures of a skater's row and of the totals line, in column order.
struct SkaterSums {
  int GP = 0, G = 0, A = 0, Plus = 0, PIM = 0, PP = 0, SH = 0, GW = 0, GT = 0, HT = 0, S = 0;
  void add(const Player& p) {
    GP += p.GP, G += p.G, A += p.A, Plus += p.Plus, PIM += p.PIM, PP += p.PP, SH += p.SH, GW += p.GW, GT += p.GT,
        HT += p.HatTricks, S += p.Shots;
  }
  std::vector<std::string> values(const std::string& team) const {
    return {team,          NumText(GP), NumText(G),  NumText(A),  NumText(G + A), NumText(Plus), NumText(PIM),
            NumText(PP),   NumText(SH), NumText(GW), NumText(GT), NumText(HT),    NumText(S),    Pctg(G, S)};
  }
  // A player's row ends with his running streaks; the totals line has none.
  static std::vector<std::string> streaks(const Player& p) { return {NumText(p.GSStreak), NumText(p.PSStreak)}; }
};

struct GoalieSums {
  int GP = 0, MIN = 0, W = 0, L = 0, T = 0, SO = 0, GA = 0, SA = 0, PIM = 0, AS = 0;
  // A goalie's fields: Plus minutes, PIM goals against, Shots shots against,
  // PP shutouts, SH wins, GW losses, GT ties, G penalty minutes.
  void add(const Player& p) {
    GP += p.GP, MIN += p.Plus, W += p.SH, L += p.GW, T += p.GT, SO += p.PP, GA += p.PIM, SA += p.Shots, PIM += p.G,
        AS += p.A;
  }
  std::vector<std::string> values(const std::string& team) const {
    std::string avg = MIN == 0 ? "0.00" : FormatNumber(GA / (MIN / 60.0), "#0.00");
    std::string pct = SA == 0 ? " N/A" : FormatNumber(double(SA - GA) / SA, ".000");
    return {team, NumText(GP), NumText(MIN), avg, NumText(W), NumText(L), NumText(T), NumText(SO),
            NumText(GA), NumText(SA), pct, NumText(PIM), NumText(AS)};
  }
  static std::vector<std::string> streaks(const Player&) { return {}; }
};

// A player's season with one team.
struct Stint {
  int team;
  Player p;
};

// A traded player's rows: his career lines of the teams he left, as the
// trade wrote them, then what remains of his season for his present team.
std::vector<Stint> Stints(const Player& p, int team, const std::vector<CareerRecord>& career) {
  std::vector<Stint> out;
  Player present = p;
  if (p.Traded)
    for (const CareerRecord& line : career)
      if (line.P.Name == p.Name && line.Team != team) {
        out.push_back({line.Team, line.P});
        AddFigures(present, line.P, -1);
      }
  out.push_back({team, present});
  return out;
}

std::string Abbrev(const LeagueState& s, int team) {
  return team < s.numTeams() ? HtmlText(s.team(team).Abbrev.str()) : "";
}

// Rows of the team's players, each stint under its team's tag; the totals
// count the stints with this team.
template <class Sums>
Sums StintRows(const LeagueState& s, int team, const std::vector<RosterEntry>& players,
               const std::vector<CareerRecord>& career, const std::vector<std::size_t>& ends, Page& page) {
  Sums total;
  for (const RosterEntry& e : players)
    for (const Stint& st : Stints(e.p, team, career)) {
      Sums one;
      one.add(st.p);
      std::vector<std::string> values = one.values(Abbrev(s, st.team));
      // The streaks run on with the present team only.
      if (st.team == team) {
        total.add(st.p);
        for (std::string& v : Sums::streaks(st.p)) values.push_back(std::move(v));
      }
      page.add(RowUnder(std::string(1, kPosLetter[e.p.Pos]) + " " + RookieMark(e.p) + PlayerText(e.p), values, ends));
    }
  return total;
}

void Skaters(const LeagueState& s, int team, const std::vector<CareerRecord>& career, Page& page) {
  std::vector<RosterEntry> skaters;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(0, slot);
    if (!p.empty() && p.Pos != kGoalie) skaters.push_back({team, p});
  }
  // Ranked by points as the leaders are.
  skaters = RankPlayers(skaters, skaters.size(),
                        [](const RosterEntry& a, const RosterEntry& r) { return OutScores(a.p, r.p); });
  const auto ends = CaptionEnds(kSkaterColumns);
  page.add("SCORING");
  page.add(kSkaterColumns);
  SkaterSums total = StintRows<SkaterSums>(s, team, skaters, career, ends, page);
  page.add(std::string(89, '-'));
  page.add(RowUnder(" Totals", total.values(""), ends));
  page.add("<BR><BR>");
}

void Goalies(const LeagueState& s, int team, const std::vector<CareerRecord>& career, Page& page) {
  std::vector<RosterEntry> goalies;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(0, slot);
    if (!p.empty() && p.Pos == kGoalie) goalies.push_back({team, p});
  }
  const auto ends = CaptionEnds(kGoalieColumns);
  page.add("<BR>GOALTENDING");
  page.add(kGoalieColumns);
  GoalieSums total = StintRows<GoalieSums>(s, team, goalies, career, ends, page);
  page.add(std::string(84, '-'));
  page.add(RowUnder(" TOT", total.values(""), ends));
  page.add("</PRE><BR>");
}

}  // namespace

void WriteTeamScoring(PageRun& run) {
  LeagueState& s = run.s;
  Page page(run, kTeamScoring);
  const std::vector<CareerRecord> career = ReadSwapRecords<CareerRecord>(s, swp::Career);
  ForEachLoadedTeam(s, [&](int team) {
    page.add(TeamAnchor(s, team));
    page.add("<PRE>");
    Skaters(s, team, career, page);
    Goalies(s, team, career, page);
  });
  page.write();
}

}  // namespace kvl
