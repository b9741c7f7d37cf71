// The individual leaders: ten-deep lists of many categories, two to a table
// row, and the top fives of goals and assists taken from them.
#include "reports/html.h"
#include "reports/page_groups.h"
#include "reports/player_lists.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kIndividual{"Individual.html", " Individual Leaders", 10, 10, "<H2>Individual Leaders</H2>", true};
const PageInfo kTop5Goals{"Top5Goals.html", "", -1, -1, nullptr, false, nullptr};
const PageInfo kTop5Assist{"Top5Assist.html", "", -1, -1, nullptr, false, nullptr};

constexpr std::size_t kListRows = 10;

// A category: who is in it, what ranks him, and how the figure is printed.
struct Category {
  const char* caption;
  const char* figure;  // the caption of the figure's column
  std::function<bool(const Player&)> in;
  std::function<double(const Player&)> rank;
  std::function<std::string(const Player&)> text;
  std::string note;  // under the caption
};

bool Skater(const Player& p) { return p.Pos != kGoalie && p.GP > 0; }
bool Goalie(const Player& p) { return p.Pos == kGoalie && p.GP > 0; }

Category Counted(const char* caption, const char* figure, int (*value)(const Player&),
                 bool (*in)(const Player&) = Skater, std::string suffix = "") {
  return {caption, figure, [in, value](const Player& p) { return in(p) && value(p) > 0; },
          [value](const Player& p) { return value(p); },
          [value, suffix](const Player& p) { return NumText(value(p)) + suffix; }, ""};
}

Category PositionPoints(const char* caption, int pos) {
  return {caption, "Points",
          [pos](const Player& p) { return Skater(p) && (pos < 0 ? p.Rookie != 0 : p.Pos == pos) && p.G + p.A > 0; },
          [](const Player& p) { return p.G + p.A; }, [](const Player& p) { return NumText(p.G + p.A); }, ""};
}

std::vector<Category> ScoringCategories(int minShots) {
  return {
      Counted("Points", "Points", [](const Player& p) { return p.G + p.A; }),
      Counted("Goals", "Goals", [](const Player& p) { return int{p.G}; }),
      Counted("Assists", "Assists", [](const Player& p) { return int{p.A}; }),
      Counted("Power Play Goals", "PP Goals", [](const Player& p) { return int{p.PP}; }),
      Counted("Short Hand Goals", "SH Goals", [](const Player& p) { return int{p.SH}; }),
      {"Shooting Percentage", "Shooting %",
       [minShots](const Player& p) { return Skater(p) && p.Shots > 0 && p.Shots >= minShots; },
       [](const Player& p) { return double(p.G) / p.Shots; },
       [](const Player& p) { return FormatNumber(100.0 * p.G / p.Shots, "#0.0"); },
       "(Minimum " + NumText(minShots) + " shots)<BR>"},
      Counted("Shots", "Shots", [](const Player& p) { return int{p.Shots}; }),
      Counted("Penalty Minutes", " PIM", [](const Player& p) { return int{p.PIM}; }),
      Counted("+/-", " +/-", [](const Player& p) { return int{p.Plus}; }),
      Counted("Goal Scoring Streak", "GS Streak", [](const Player& p) { return int{p.GSStreak}; }, Skater, " gms"),
      Counted("Point Scoring Streak", "PS Streak", [](const Player& p) { return int{p.PSStreak}; }, Skater, " gms"),
      PositionPoints("Centers", kCentre),
      PositionPoints("Left Wings", kLeftWing),
      PositionPoints("Right Wings", kRightWing),
      PositionPoints("Defensemen", kDefence),
      PositionPoints("Rookies", -1),
      Counted("Hat Tricks", "Hat Tricks", [](const Player& p) { return int{p.HatTricks}; }),
  };
}

// Goalies' fields hold their own figures: Plus minutes, PIM goals against,
// Shots shots against, PP shutouts, SH wins, GW losses, GT ties, G penalty minutes.
std::vector<Category> GoalieCategories(int minGP) {
  return {
      {"Save Percentage", "Save %", [minGP](const Player& p) { return Goalie(p) && p.GP >= minGP && p.Shots > 0; },
       [](const Player& p) { return double(p.Shots - p.PIM) / p.Shots; },
       [](const Player& p) { return FormatNumber(double(p.Shots - p.PIM) / p.Shots, "#.000"); },
       "(Minimum " + NumText(minGP) + " games)<BR>"},
      Counted("Shutouts", "Shutouts", [](const Player& p) { return int{p.PP}; }, Goalie),
      Counted("Minutes Played", "Minutes", [](const Player& p) { return int{p.Plus}; }, Goalie),
      {"Record", "Record", [](const Player& p) { return Goalie(p) && p.SH > 0; }, [](const Player& p) { return p.SH; },
       [](const Player& p) { return NumText(p.SH) + "-" + NumText(p.GW) + "-" + NumText(p.GT); }, ""},
      Counted("PIM", "PIM", [](const Player& p) { return int{p.G}; }, Goalie),
  };
}

std::vector<RosterEntry> Ranked(const std::vector<RosterEntry>& all, const Category& c) {
  std::vector<RosterEntry> in;
  for (const RosterEntry& e : all)
    if (c.in(e.p)) in.push_back(e);
  // On a tie the first met keeps its place.
  return RankPlayers(in, kListRows, [&](const RosterEntry& a, const RosterEntry& r) { return c.rank(a.p) > c.rank(r.p); });
}

std::vector<std::string> List(const LeagueState& s, const std::vector<RosterEntry>& all, const Category& c) {
  std::string columns = std::string("<PRE>                          GP   ") + c.figure;
  std::vector<std::string> out{"<B>" + std::string(c.caption) + "</B><BR>"};
  if (!c.note.empty()) out.push_back(c.note);
  out.push_back(columns);
  const std::vector<std::size_t> ends{CaptionEnds("                          GP")[0], columns.size() - 5};
  for (const RosterEntry& e : Ranked(all, c))
    out.push_back(RowUnder(LeaderLabel(s, RookieMark(e.p), e, ends[0] - 3), {NumText(e.p.GP), c.text(e.p)}, ends));
  out.push_back("</PRE>");
  return out;
}

void Section(const LeagueState& s, const std::vector<RosterEntry>& all, const char* heading,
             const std::vector<Category>& cats, Page& page) {
  page.add(heading);
  page.add("<TABLE>");
  for (std::size_t i = 0; i < cats.size(); ++i) {
    page.add(std::string(i % 2 == 0 ? "<TR>" : "") + "<TD VALIGN=top>");
    for (std::string& line : List(s, all, cats[i])) page.add(std::move(line));
    page.add(std::string("</TD>") + (i % 2 == 1 || i + 1 == cats.size() ? "</TR>" : ""));
  }
  page.add("</TABLE>");
}

void Top5(PageRun& run, const PageInfo& info, const char* columns, const std::vector<RosterEntry>& all,
          const Category& c) {
  Page page(run, info);
  page.add(std::string("<PRE>") + columns);
  const auto ends = CaptionEnds(columns);
  const std::vector<std::size_t> valueEnds{ends[1], ends[2]};
  std::vector<RosterEntry> rows = Ranked(all, c);
  for (std::size_t i = 0; i < rows.size() && i < 5; ++i)
    page.add(RowUnder(LeaderLabel(run.s, RookieMark(rows[i].p), rows[i], valueEnds[0] - 3),
                      {NumText(rows[i].p.GP), c.text(rows[i].p)}, valueEnds));
  page.add("</PRE>");
  page.write();
}

}  // namespace

void WriteIndividual(PageRun& run) {
  std::vector<RosterEntry> all = AllPlayers(run.s);
  const int minimum = MinGoalieGP(run.s);
  std::vector<Category> scoring = ScoringCategories(minimum);
  Page page(run, kIndividual);
  Section(run.s, all, "<HR><H3>Scoring</H3>", scoring, page);
  Section(run.s, all, "<HR><H3>Goaltending</H3>", GoalieCategories(minimum), page);
  Section(run.s, all, "<HR><H3>Star Points</H3>",
          {{"Star Points", "Star Points", [](const Player& p) { return p.GP > 0 && p.StarPoints > 0; },
            [](const Player& p) { return p.StarPoints; }, [](const Player& p) { return NumText(p.StarPoints); }, ""}},
          page);
  page.write();
  Top5(run, kTop5Goals, " Player                GP    G", all, scoring[1]);
  Top5(run, kTop5Assist, " Player                GP    A", all, scoring[2]);
}

}  // namespace kvl
