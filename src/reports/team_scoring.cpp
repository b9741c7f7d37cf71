// Each team's scoring and goaltending, with the team's totals.
#include "reports/html.h"
#include "reports/page_groups.h"
#include "reports/player_lists.h"
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
};

void Skaters(const LeagueState& s, int team, Page& page) {
  std::vector<RosterEntry> skaters;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(0, slot);
    if (!p.empty() && p.Pos != kGoalie) skaters.push_back({team, p});
  }
  // Ranked by points as the leaders are.
  skaters = RankPlayers(skaters, skaters.size(),
                        [](const RosterEntry& a, const RosterEntry& r) { return OutScores(a.p, r.p); });
  const std::string abbrev = HtmlText(s.team(team).Abbrev.str());
  const auto ends = CaptionEnds(kSkaterColumns);
  page.add("SCORING");
  page.add(kSkaterColumns);
  SkaterSums total;
  for (const RosterEntry& e : skaters) {
    SkaterSums one;
    one.add(e.p);
    total.add(e.p);
    page.add(RowUnder(std::string(1, kPosLetter[e.p.Pos]) + " " + RookieMark(e.p) + PlayerText(e.p),
                      one.values(abbrev), ends));
  }
  page.add(std::string(89, '-'));
  page.add(RowUnder(" Totals", total.values(""), ends));
  page.add("<BR><BR>");
}

void Goalies(const LeagueState& s, int team, Page& page) {
  const std::string abbrev = HtmlText(s.team(team).Abbrev.str());
  const auto ends = CaptionEnds(kGoalieColumns);
  page.add("<BR>GOALTENDING");
  page.add(kGoalieColumns);
  GoalieSums total;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(0, slot);
    if (p.empty() || p.Pos != kGoalie) continue;
    GoalieSums one;
    one.add(p);
    total.add(p);
    page.add(RowUnder("G " + RookieMark(p) + PlayerText(p), one.values(abbrev), ends));
  }
  page.add(std::string(84, '-'));
  page.add(RowUnder(" TOT", total.values(""), ends));
  page.add("</PRE><BR>");
}

}  // namespace

void WriteTeamScoring(PageRun& run) {
  LeagueState& s = run.s;
  Page page(run, kTeamScoring);
  ForEachLoadedTeam(s, [&](int team) {
    page.add(TeamAnchor(s, team));
    page.add("<PRE>");
    Skaters(s, team, page);
    Goalies(s, team, page);
  });
  page.write();
}

}  // namespace kvl
