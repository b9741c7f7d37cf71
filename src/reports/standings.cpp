// The standings: by conference with the clinch marks, by division, the farm
// league's, and the playoff tree.
#include "league/tables.h"
#include "reports/html.h"
#include "reports/page_groups.h"
#include "reports/standings_rank.h"
#include "season/playoff_series.h"
#include "season/schedule_file.h"
#include "league/league_files.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kStandings{"Standings.html", " Standings", 1, 1, "<HTML><H2>Standings</H2>"};
const PageInfo kTree{"StandingsTree.html", " Playoff Tree Standings", 1, 1, "<HTML><H2>Standings</H2>"};
const PageInfo kFarm{"FarmStandings.html", " Standings", -1, -1, "<HTML><H2>Farm League Standings</H2>"};

std::string Pct(int points, int gp, int perGame) {
  if (gp == 0) return "N/A";
  return FormatNumber(Int(static_cast<double>(points) / (gp * perGame) * 1000) / 1000, ".000");
}

std::string Streak(const Team& t) {
  static const char* kKinds[] = {"L", "T", "W"};
  int kind = t.Streak / 100;
  return std::string(kind <= 2 ? kKinds[kind] : "") + NumText(t.Streak % 100);
}

void ColumnLines(const League& lg, Page& page) {
  if (lg.PointSystem == 1) {
    page.add("<PRE>                                                 - Home -  - Conf -  -- OT --");
    page.add("              GP   W  L  T OTL  P  GF  GA   PCT   W  L  T   W  L  T   W  L  T   L10    STK");
  } else {
    page.add("<PRE>                                               - Home -  - Conf -  -- OT --");
    page.add("              GP   W   L   T   P   GF  GA   PCT   W  L  T   W  L  T   W  L  T   L10    STK");
  }
}

std::string Row(const LeagueState& s, const StandingRow& r, const GameWalk& w, const std::string& mark) {
  const Team& t = s.team(r.team);
  const TeamSplits& sp = w.splits[static_cast<std::size_t>(r.team)];
  std::string line = mark + PaddedTeamLink(s, r.team, 10) + Fill(r.GP, 5);
  if (s.league.PointSystem == 1)
    line += Fill(t.W[0], 4) + Fill(t.L[0] - t.L[1], 3) + Fill(t.T[0], 3) + Fill(t.L[1], 3) + Fill(r.Points, 4) +
            Fill(t.GF, 4);
  else
    line += Fill(t.W[0], 4) + Fill(t.L[0], 4) + Fill(t.T[0], 4) + Fill(r.Points, 4) + Fill(t.GF, 5);
  int perGame = PointSystemInForce(s.league) == 3 ? 3 : 2;
  line += Fill(t.GA, 4) + Fill(Pct(r.Points, r.GP, perGame), 6);
  line += Fill(sp.HomeW, 4) + Fill(sp.HomeL, 3) + Fill(sp.HomeT, 3);
  line += Fill(sp.ConfW, 4) + Fill(sp.ConfL, 3) + Fill(sp.ConfT, 3);
  line += Fill(t.W[1], 4) + Fill(t.L[1], 3) + Fill(t.T[1], 3);
  line += Fill(NumText(sp.L10W) + "-" + NumText(sp.L10L) + "-" + NumText(sp.L10T), 8);
  return line + Fill(Streak(t), 4);
}

std::vector<StandingRow> Filter(const LeagueState& s, const std::vector<StandingRow>& rows, int conf, int div) {
  std::vector<StandingRow> out;
  for (const StandingRow& r : rows)
    if (s.team(r.team).Conf == conf && (div < 0 || s.team(r.team).Div == div)) out.push_back(r);
  return out;
}

// Returns whether an "x" was given.
bool ConferenceTable(const LeagueState& s, const std::vector<StandingRow>& rows, const GameWalk& w, int conf,
                     Page& page) {
  page.add("<H3>" + HtmlText(s.league.Conf[static_cast<std::size_t>(conf)].Name.str()) + " Conference</H3>");
  ColumnLines(s.league, page);
  std::vector<StandingRow> confRows = Filter(s, rows, conf, -1);
  // Without a schedule there is nothing to clinch.
  const bool marked = !s.league.Exhibition && s.league.ScheduleMade;
  std::vector<std::string> marks =
      marked ? ClinchMarks(s, confRows, w) : std::vector<std::string>(confRows.size(), " ");
  bool x = false;
  for (std::size_t i = 0; i < confRows.size(); ++i) {
    page.add(Row(s, confRows[i], w, marks[i]));
    x = x || marks[i] == "x";
    if (static_cast<int>(i + 1) == Berths(s.league)) page.add("<HR WIDTH=90% ALIGN=LEFT>");
  }
  page.add("</PRE>");
  return x;
}

void StandingsPage(PageRun& run, const std::vector<StandingRow>& rows, const GameWalk& w) {
  const LeagueState& s = run.s;
  Page page(run, kStandings);
  page.add("<H3>By Conference</H3>");
  bool x = false;
  for (int c = 0; c < 2; ++c) x = ConferenceTable(s, rows, w, c, page) || x;
  if (x) {
    page.add("<PRE>x - Clinched Playoff Berth");
    page.add("y - Clinched Division Title");
    page.add("z - Clinched Conference Title</PRE>");
  }
  page.add("<BR><H3>By Division</H3>");
  for (int c = 0; c < 2; ++c) {
    const Conference& conf = s.league.Conf[static_cast<std::size_t>(c)];
    for (int d = 0; d < conf.NumDivs; ++d) {
      page.add("<H3>" + HtmlText(conf.Div[static_cast<std::size_t>(d)].Name.str()) + " Division</H3>");
      ColumnLines(s.league, page);
      for (const StandingRow& r : Filter(s, rows, c, d)) page.add(Row(s, r, w, " "));
      page.add("</PRE>");
    }
  }
  page.write();
}

// Farm clubs ranked with the league's comparisons on their own figures.
std::vector<StandingRow> RankFarm(const LeagueState& s) {
  std::vector<StandingRow> rows;
  for (int t = 0; t < s.numTeams(); ++t) {
    const FarmTeam& f = s.Farm[static_cast<std::size_t>(t)];
    StandingRow r{t, 2 * f.W + f.T, f.W + f.L + f.T, f.GF, f.GF - f.GA, f.W, 0};
    InsertRanked(rows, r);
  }
  return rows;
}

void FarmStandingsPage(PageRun& run) {
  const LeagueState& s = run.s;
  Page page(run, kFarm);
  page.add("<BR><BR><H3>By Conference</H3><BR>");
  std::vector<StandingRow> rows = RankFarm(s);
  for (int c = 0; c < 2; ++c) {
    page.add("<BR><H3>" + HtmlText(s.league.Conf[static_cast<std::size_t>(c)].Name.str()) + " Conference</H3>");
    page.add("<PRE>                      GP   W  L  T    P  GF  GA   PCT");
    for (const StandingRow& r : Filter(s, rows, c, -1)) {
      const FarmTeam& f = s.Farm[static_cast<std::size_t>(r.team)];
      // The widest label: a 15-letter name and "(ABC)".
      const std::string label = f.Name.str() + "(" + s.team(r.team).Abbrev.str() + ")";
      page.add(CutLabel(label, 20) + Fill(r.GP, 4) + Fill(f.W, 4) + Fill(f.L, 3) + Fill(f.T, 3) + Fill(r.Points, 5) +
               Fill(f.GF, 4) + Fill(f.GA, 4) + Fill(Pct(r.Points, r.GP, 2), 6));
    }
    page.add("</PRE>");
  }
  page.write();
}

std::string Matchup(const LeagueState& s, std::size_t i) {
  const PlayoffState& p = s.Playoff;
  auto side = [&](int t, int wins) {
    return t < s.numTeams() ? TeamLink(s, t) + " " + NumText(wins) : std::string("?");
  };
  return side(p.SeriesHome[i], p.HomeWins[i]) + "<BR>" + side(p.SeriesAway[i], p.AwayWins[i]) + "<BR>";
}

// One column per round played so far, none before the playoffs; later
// rounds' cells are staggered down by spacers so each matchup sits between
// the two it came from.
void TreePage(PageRun& run) {
  const LeagueState& s = run.s;
  Page page(run, kTree);
  page.add("<H2>Playoff Tree</H2>");
  page.add("<TABLE>");
  const int rounds = ShownPlayoffRound(s);
  if (rounds == 0) {
    page.add("</TABLE>");
    return page.write();
  }
  std::string head = "<TR>";
  for (int r = 1; r <= rounds; ++r) head += "<TH WIDTH=150 ALIGN=left><PRE><B>Round " + NumText(r) + "</B></TH>";
  page.add(head + "</TR>");
  page.add("<TR>");
  for (int r = 1; r <= rounds; ++r) {
    const int stage = s.league.PlayoffSize + r - 1;
    std::string cell = "<TD VALIGN=top>";
    for (int k = 1; k < r; ++k) cell += "<PRE> <BR> <BR></PRE>";
    for (int i = 0; i < SeriesInStage(stage); ++i) {
      cell += Matchup(s, PlayoffState::Index(stage, i));
      cell += r > 1 ? "<PRE> <BR> <BR></PRE>" : "<BR>";
    }
    page.add(cell + "</TD>");
  }
  page.add("</TR>");
  page.add("</TABLE>");
  page.write();
}

}  // namespace

void WriteStandings(PageRun& run) {
  const LeagueState& s = run.s;
  if (run.treeAlways || s.league.InPlayoffs) TreePage(run);
  std::vector<StandingRow> rows = RankTeams(s);
  GameWalk walk = WalkGames(s, ReadSchedule(s.swap(swp::Schedule)));
  StandingsPage(run, rows, walk);
  FarmStandingsPage(run);
}

}  // namespace kvl
