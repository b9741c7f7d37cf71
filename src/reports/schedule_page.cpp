// The season's schedule by game day, with links to the box scores of the
// games played and the trade deadline marked; in the playoffs, the round's.
#include "league/league_files.h"
#include "reports/html.h"
#include "reports/page_groups.h"
#include "season/playoff_series.h"
#include "season/schedule_file.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kSchedule{"Schedule.html", " League Schedule", 8, 8, "<HTML><BODY><H2>Season Schedule</H2>",
                         false, ")</P>", true};

constexpr int kPlayoffDaysHeaded = 7;

std::string Overtime(int periods) {
  if (periods == 0) return "";
  return periods == 1 ? " (OT)" : " (" + NumText(periods) + "OT)";
}

std::string GameLine(const LeagueState& s, int n, const ScheduleRecord& r) {
  const std::string num = NumText(n), away = TeamText(s, r.AwayTeam), home = TeamText(s, r.HomeTeam);
  const bool playoffs = s.league.InPlayoffs != 0;
  if (!r.Played) return num + "  " + away + " at " + home + "<BR>";
  // A game of a series that ended before it was needed.
  if (playoffs && r.AwayScore == 0 && r.HomeScore == 0) return "<strike>" + num + "</strike><BR>";
  std::string file = playoffs ? "-R" + NumText(ShownPlayoffRound(s)) + "-" + num : num;
  return Link(s.LeagueShort + file + ".html",
              num + "  " + away + " " + NumText(r.AwayScore) + " at " + home + " " + NumText(r.HomeScore)) +
         Overtime(r.Overtime) + "<BR>";
}

}  // namespace

void WriteSchedule(PageRun& run) {
  const LeagueState& s = run.s;
  if (!fs::exists(s.swap(swp::Schedule))) return;
  const std::vector<ScheduleRecord> games = ReadSchedule(s.swap(swp::Schedule));
  const bool playoffs = s.league.InPlayoffs != 0;
  Page page(run, kSchedule,
            playoffs ? "-Round" + NumText(ShownPlayoffRound(s)) + "-Schedule.html" : std::string(kSchedule.file));
  const int deadlineGame = CInt(s.league.LeagueGames * s.league.TradeDeadline / 100.0);
  bool deadlineShown = s.league.Exhibition != 0 || playoffs;
  int day = 0;
  for (const std::vector<std::size_t>& today : GameDays(games, s.numTeams())) {
    const int first = static_cast<int>(today.front()) + 1;
    if (++day > 1 && !deadlineShown && first >= deadlineGame) {
      page.add("<HR width=50%>TRADE DEADLINE<HR width=50%>");
      deadlineShown = true;
    }
    if (!playoffs || day <= kPlayoffDaysHeaded) page.add(day == 1 ? "Day1<BR>" : "<BR>Day" + NumText(day) + "<BR> ");
    for (std::size_t i : today) page.add(GameLine(s, static_cast<int>(i) + 1, games[i]));
  }
  page.write();
}

}  // namespace kvl
