#include "sim/box_score.h"

#include <limits>

#include "reports/html.h"
#include "reports/page_files.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const char* const kPeriodTableHead =
    "<TABLE BORDER=2><TR><TD WIDTH=100></TD><TD WIDTH=25 ALIGN=right>1</TD><TD WIDTH=25 ALIGN=right>2</TD><TD "
    "WIDTH=25 ALIGN=right>3</TD><TD WIDTH=25 ALIGN=right>OT</TD><TD WIDTH=25 ALIGN=right><B>T</B></TD></TR>";
const char* const kPlayerHeading = "                      G  A  P   +/- PIM  S  HT IT";

// Each cell holds the period's own count: the running total less the one before.
// A period that was not played shows 0.
void PeriodTable(const Game& g, const std::array<std::array<int, 5>, 2>& totals, bool goals,
                 std::vector<std::string>& out) {
  out.push_back(kPeriodTableHead);
  int played = std::min(g.Period, 4);
  for (int sd = 0; sd < 2; ++sd) {
    const auto& t = totals[static_cast<std::size_t>(sd)];
    std::string row = "<TR><TD>" + g.TeamName(sd) + "</TD>";
    for (int p = 1; p <= 4; ++p) {
      int v = p <= played ? t[static_cast<std::size_t>(p)] - t[static_cast<std::size_t>(p - 1)] : 0;
      row += "<TD WIDTH=25 ALIGN=right>" + NumText(v) + "</TD>";
    }
    int total = goals ? g.sideOf(sd).Goals : g.sideOf(sd).Shots;
    row += std::string(goals ? "<TD WIDTH=25 ALIGN=right><B>" : "<TD ALIGN=right><B>") + NumText(total) +
           "</B></TD></TR>";
    out.push_back(row);
  }
}

void GoalieLines(const Game& g, std::vector<std::string>& out) {
  for (int sd = 0; sd < 2; ++sd) {
    const GameSide& own = g.sideOf(sd);
    int opp = g.sideOf(Game::other(sd)).Goals;
    for (int slot = 0; slot < kGameSlots; ++slot) {
      const Player& p = g.s.player(sd, slot);
      if (p.Pos != kGoalie || own.IceTime[slot] <= 0) continue;
      int shots = own.ShotsOnGoalie[slot];
      std::string line = HtmlText(p.Name.str()) + " (" + g.TeamAbbrev(sd) + "), " + NumText(shots - own.GoalsOnGoalie[slot]) +
                         " saves out of " + NumText(shots) + " shots";
      if (slot == own.CreditGoalie) {
        line += own.Goals > opp ? ",  W, " : own.Goals < opp ? ",  L, " : ",  T, ";
        line += NumText(p.SH) + "-" + NumText(p.GW) + "-" + NumText(p.GT);
      }
      out.push_back(line + "<BR>");
    }
    out.push_back("<BR>");
  }
}

// Pads to a 1-based column, as the old Tab() placed text; text that already
// reaches the column keeps one blank before the next value.
void TabTo(std::string& line, std::size_t column) {
  line.resize(std::max(column - 1, line.size() + 1), ' ');
}

}  // namespace

// Set in the shown characters, then escaped: an entity does not move the columns.
std::string PlayerStatsRow(const Game& g, int sd, int slot) {
  const GameSide& own = g.sideOf(sd);
  std::string line = g.s.player(sd, slot).Name.str();
  int goals = own.PlayerGoals[slot], assists = own.PlayerAssists[slot], pm = own.PlusMinus[slot];
  TabTo(line, 23);
  line += NumText(goals);
  TabTo(line, 26);
  line += NumText(assists);
  TabTo(line, 29);
  line += NumText(goals + assists);
  if (pm == 0) {
    TabTo(line, 32);
    line += "Even";
  } else {
    TabTo(line, 34);
    if (pm > 0) line += '+';
    line += NumText(pm);
  }
  TabTo(line, 37);
  line += NumText(own.PIM[slot]);
  TabTo(line, 42);
  line += NumText(own.PlayerShots[slot]);
  TabTo(line, 45);
  line += NumText(own.Hits[slot]);
  TabTo(line, 48);
  line += NumText(own.IceTime[slot] / 60);
  return HtmlText(line);
}

namespace {

void PlayerTable(const Game& g, std::vector<std::string>& out) {
  out.push_back("<BR><B>Player Statistics</B><P>");
  out.push_back("<TABLE><TR>");
  for (int sd = 0; sd < 2; ++sd) {
    if (sd == 1) out.push_back("</TD><TD><PRE>   </PRE></TD><TD>");
    out.push_back("<TD VALIGN=top>");
    out.push_back(g.TeamName(sd));
    out.push_back("<BR><BR><PRE>");
    out.push_back(kPlayerHeading);
    out.push_back(std::string(49, '-'));
    for (int slot = 0; slot < kGameSlots; ++slot)
      if (g.sideOf(sd).Status[slot] >= 0) out.push_back(PlayerStatsRow(g, sd, slot));
  }
  out.push_back("</TR></TABLE>");
}

}  // namespace

double StarPoints(const Game& g, int sd, int slot) {
  const GameSide& own = g.sideOf(sd);
  if (g.s.player(sd, slot).Pos == kGoalie) {
    int shots = own.ShotsOnGoalie[slot], against = own.GoalsOnGoalie[slot];
    return shots / 2.0 - 3 * against + (against == 0 && shots > 25 ? 10 : 0);
  }
  return 3 * own.PlayerGoals[slot] + 2 * own.PlayerAssists[slot] + own.PlusMinus[slot] + 0.75 * own.PlayerShots[slot];
}

std::vector<Star> PickStars(const Game& g) {
  std::vector<Star> stars;
  for (int n = 0; n < 3; ++n) {
    Star best{-1, -1, -std::numeric_limits<double>::infinity()};
    for (int sd = 0; sd < 2; ++sd)
      for (int slot = 0; slot < kGameSlots; ++slot) {
        if (g.sideOf(sd).Status[slot] < 0) continue;
        bool taken = false;
        for (const Star& st : stars) taken = taken || (st.side == sd && st.slot == slot);
        double pts = StarPoints(g, sd, slot);
        if (!taken && pts > best.points) best = {sd, slot, pts};
      }
    if (best.side < 0) break;
    stars.push_back(best);
  }
  return stars;
}

fs::path BoxScorePath(const LeagueState& s, const BoxScoreInfo& info) {
  switch (info.kind) {
    case GameKind::RegularSeason:
      return TransferFile(s, NumText(info.gameNumber) + ".html");
    case GameKind::Playoffs:
      return TransferFile(s, "-R" + NumText(info.round) + "-" + NumText(info.gameNumber) + ".html");
    case GameKind::Exhibition:
      break;
  }
  for (int n = 1;; ++n) {
    fs::path p = TransferFile(s, "ex" + NumText(n) + ".html");
    if (!fs::exists(p)) return p;
  }
}

std::vector<std::string> BoxScoreLines(Game& g, const BoxScoreInfo& info) {
  std::vector<std::string> out;
  const LeagueState& s = g.s;
  if (!ReadPageLines(HeaderFile(s, 20), out)) {
    out.push_back("<HTML>");
    out.push_back("<!--Generated by KVL v1.5-->");
  }
  out.push_back(g.PlayByPlay.empty() ? "" : g.PlayByPlay.front());
  out.push_back("<TABLE><TR><TD>");
  out.push_back("<B>Shots</B><BR>");
  PeriodTable(g, g.PeriodShots, false, out);
  out.push_back("</TABLE></TD><TD WIDTH=50></TD><TD>");
  out.push_back("<B>Goals</B><BR>");
  PeriodTable(g, g.PeriodGoals, true, out);
  out.push_back("</TABLE></TD></TR></TABLE><BR><BR>");
  out.push_back("<B>Scoring Summary</B><P>");
  for (std::size_t i = 1; i < g.PlayByPlay.size(); ++i) out.push_back(g.PlayByPlay[i]);
  out.push_back("<BR><B>Goalie Statistics</B><P>");
  GoalieLines(g, out);
  out.push_back("<BR><B>Power Play Conversions</B><P>");
  for (int sd = 0; sd < 2; ++sd)
    out.push_back(g.TeamAbbrev(sd) + "  " + NumText(g.sideOf(sd).PowerPlayGoals) + " for " +
                  NumText(g.sideOf(sd).PowerPlays) + "<BR>");
  out.push_back("<BR><B>Game Stars</B><P>");
  int n = 0;
  for (const Star& st : PickStars(g))
    out.push_back(NumText(++n) + "- " + g.PlayerName(st.side, st.slot) + " (" + g.TeamAbbrev(st.side) + ")<BR>");
  PlayerTable(g, out);
  if (info.kind != GameKind::Exhibition) {
    out.push_back("<BR><B>Financial</B><P>");
    out.push_back("Attendance: " + NumText(info.attendance) + "<BR>");
    out.push_back("Net Profit: " + FormatNumber(info.net, "$#,##0.00") + "<BR>");
  }
  out.push_back("<BR><B>Game Notes</B><P>");
  out.insert(out.end(), g.Notes.begin(), g.Notes.end());
  if (info.farmPlayed) {
    out.push_back("<BR><B>Minor League Box Score</B></P>");
    out.push_back("<PRE>");
    out.insert(out.end(), info.farmLines.begin(), info.farmLines.end());
    out.push_back("</PRE>");
  }
  if (!ReadPageLines(FooterFile(s, 20), out)) out.push_back("</HTML>");
  return out;
}

fs::path WriteBoxScore(Game& g, const BoxScoreInfo& info) {
  fs::path path = BoxScorePath(g.s, info);
  WritePage(path, BoxScoreLines(g, info));
  if (info.kind != GameKind::Exhibition)
    for (const Star& st : PickStars(g)) {
      Player& p = g.player(st.side, st.slot);
      p.StarPoints = CInt(p.StarPoints + st.points);
    }
  return path;
}

}  // namespace kvl
