#include "sim/today_page.h"

#include <set>

#include "reports/html.h"
#include "reports/page_files.h"
#include "season/schedule_file.h"
#include "util/dates.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr std::size_t kNextGamesShown = 31;

std::string Name(const LeagueState& s, int team) { return HtmlText(s.team(team).Name.str()); }

}  // namespace

TodayPage::TodayPage(const LeagueState& s) : s_(s) {
  if (!ReadPageLines(HeaderFile(s, 0), lines_)) lines_.push_back("<HTML><BODY><H2>Latest Results</H2>");
  lines_.push_back("<P>Games of " + FormatDate(s.clock.now(), "dddd, mmm d yyyy") + "</P>");
}

void TodayPage::AddGame(int number, const ScheduleRecord& r, bool overtime) {
  const std::string away = Name(s_, r.AwayTeam), home = Name(s_, r.HomeTeam);
  const std::string n = NumText(number);
  if (!s_.league.InPlayoffs) {
    lines_.push_back(Link(s_.LeagueShort + n + ".html",
                          n + "  " + away + " " + NumText(r.AwayScore) + " " + home + " " + NumText(r.HomeScore)) +
                     "<BR>");
    return;
  }
  // A game left over when its series ended is struck out.
  if (r.AwayScore + r.HomeScore == 0) {
    lines_.push_back(n + "<strike>" + "  " + away + " at " + home + "</strike><BR>");
    return;
  }
  lines_.push_back(Link(s_.LeagueShort + "-R" + NumText(s_.Playoff.PlayoffRound) + "-" + n + ".html",
                        n + "  " + away + " " + NumText(r.AwayScore) + " " + home + " " + NumText(r.HomeScore) +
                            (overtime ? " OT" : "")) +
                   "<BR>");
}

void TodayPage::AddNextGames(const std::vector<ScheduleRecord>& games) {
  lines_.push_back("<H2>Next Games</H2>");
  const std::size_t from = FirstUnplayed(games);
  std::set<int> busy;
  for (std::size_t i = from; i < games.size() && i - from < kNextGamesShown; ++i) {
    const ScheduleRecord& r = games[i];
    if (EndsPass(r, s_.numTeams())) break;
    if (busy.count(r.HomeTeam) || busy.count(r.AwayTeam)) break;
    busy.insert({r.HomeTeam, r.AwayTeam});
    lines_.push_back(NumText(static_cast<double>(i + 1)) + "  " + Name(s_, r.AwayTeam) + " at " + Name(s_, r.HomeTeam) +
                     "<BR>");
  }
}

fs::path TodayPage::Close() {
  if (!ReadPageLines(FooterFile(s_, 0), lines_)) lines_.push_back("</BODY></HTML>");
  fs::path path = TransferFile(s_, "TodayGames.html");
  WritePage(path, lines_);
  return path;
}

}  // namespace kvl
