#include "sim/game_day.h"

#include <fmt/format.h>

#include "league/league_files.h"
#include "league/roster_check.h"
#include "reports/auto_output.h"
#include "season/playoff_series.h"
#include "season/schedule_file.h"
#include "sim/condition.h"
#include "sim/finish_game.h"
#include "sim/game.h"
#include "sim/today_page.h"
#include "transactions/waivers_day.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/numbers.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr std::size_t kGameListLines = 20;

std::string GameText(const LeagueState& s, std::size_t index, const ScheduleRecord& r) {
  return fmt::format("game {} ({} at {})", index + 1, s.team(r.AwayTeam).Name.str(), s.team(r.HomeTeam).Name.str());
}

// A record that names a team the league no longer has is refused before play.
void CheckTeams(const LeagueState& s, std::size_t index, const ScheduleRecord& r) {
  for (int t : {r.AwayTeam, r.HomeTeam})
    if (t >= s.numTeams())
      throw KvlError(
          fmt::format("Schedule game {} names team {}, but the league has only teams 0 to {}; make the "
                      "schedule again after changing the alignment",
                      index + 1, t, s.numTeams() - 1));
}

}  // namespace

Games::Games(LeagueState& s) : s_(s) {
  const League& l = s.league;
  IsSeasonOver = (l.SeasonOver && !l.InPlayoffs) || l.OffSeason;
  RefreshGameList();
  NeedsRefresh = true;
}

void Games::RefreshGameList() {
  GameList.clear();
  if (!s_.league.ScheduleMade) {
    GameList.push_back("No Schedule");
    return;
  }
  std::vector<ScheduleRecord> games = ReadSchedule(s_.swap(swp::Schedule));
  std::array<bool, kMaxTeams> listed{};
  std::size_t i = FirstUnplayed(games);
  for (; i < games.size() && GameList.size() < kGameListLines; ++i) {
    const ScheduleRecord& r = games[i];
    if (EndsPass(r, s_.numTeams()) || listed[r.AwayTeam] || listed[r.HomeTeam]) break;
    listed[r.AwayTeam] = listed[r.HomeTeam] = true;
    GameList.push_back(" " + NumText(static_cast<double>(i + 1)) + "  " + s_.team(r.AwayTeam).Name.str() + " at " +
                       s_.team(r.HomeTeam).Name.str());
  }
  if (GameList.empty() && i >= games.size()) GameList.push_back("Season is Over");
}

void Games::PlayRecord(std::vector<ScheduleRecord>& games, std::size_t index) {
  ScheduleRecord& r = games[index];
  CheckTeams(s_, index, r);
  IsExhibition = false;
  BoxScoreInfo info;
  info.kind = s_.league.InPlayoffs ? GameKind::Playoffs : GameKind::RegularSeason;
  info.gameNumber = GameNumber;
  info.round = s_.Playoff.PlayoffRound;
  GameOptions opt;
  opt.isBatchRunning = IsBatchRunning;
  opt.finish = [info](Game& g) { FinishGame(g, info); };
  Game game(s_, opt);
  try {
    game.PlayGame(r.AwayTeam, r.HomeTeam);
  } catch (const KvlError& e) {
    throw KvlError(fmt::format("{} of {}: {}", GameText(s_, index, r), s_.LeagueShort, e.what()));
  }
  r.AwayScore = static_cast<u8>(game.side[0].Goals);
  r.HomeScore = static_cast<u8>(game.side[1].Goals);
  r.Played = -1;
  r.Overtime = static_cast<u8>(game.OvertimeCount);
  RecordFile(s_.swap(swp::Schedule), ScheduleRecord::kSize).putRecord(index + 1, r);
  ++gamesPlayed;
  if (onGame) onGame(game, static_cast<int>(index + 1));
}

bool Games::PlayGameDay() {
  League& l = s_.league;
  if (IsSeasonOver) {
    s_.ui.tell("Season is over", "Season Over");
    return false;
  }
  if (NeedsRefresh) RefreshGameList();
  std::vector<ScheduleRecord> games = ReadSchedule(s_.swap(swp::Schedule));
  TodayPage page(s_);
  std::array<bool, kMaxTeams> played{};
  std::size_t i = FirstUnplayed(games);
  auto free = [&](const ScheduleRecord& r) {
    return !EndsPass(r, s_.numTeams()) && !played[r.AwayTeam] && !played[r.HomeTeam];
  };
  while (i < games.size() && free(games[i])) {
    ScheduleRecord& r = games[i];
    GameNumber = static_cast<i16>(i + 1);
    if (r.Played == 0) {
      PlayRecord(games, i);
      played[r.AwayTeam] = played[r.HomeTeam] = true;
    }
    // The league's year turns at the first game of a new season.
    if (l.GamesPlayed == 0 && !l.SeasonOver && l.FirstDayPending) {
      ++l.CurrentYear;
      l.FirstDayPending = kFalse;
    }
    l.GamesPlayed = GameNumber;
    page.AddGame(GameNumber, r, r.Overtime != 0);
    ++i;
  }
  if (i >= games.size()) {
    IsSeasonOver = true;
    if (!l.Exhibition) l.SeasonOver = kTrue;
  }
  const bool finalDecided = l.InPlayoffs && EndPlayoffRound();
  // Read again: the playoffs may have struck games or begun a round.
  if (!IsSeasonOver) page.AddNextGames(ReadSchedule(s_.swap(swp::Schedule)));
  dailyPage = page.Close();
  RestTeams(played);
  WaiversDay(s_);
  ++daysPlayed;
  pagesDue_ = true;
  // A run publishes once, at its end; the final ends every run, and its pages
  // go out before the re-rate saves the league under another name.
  if (!IsBatchRunning || finalDecided) PublishPages();
  // The champion is told, and the re-rate and its save run, once the day is whole.
  if (finalDecided) {
    champion = PlayoffChampion(s_);
    FinishPlayoffs(s_, playoffEnd);
  }
  return true;
}

void Games::PublishPages() {
  if (pagesDue_ && s_.league.OptAutoOutput) AutoHTMLOutput(s_);
  pagesDue_ = false;
}

// A finished round writes the next one's schedule, and play goes on; true
// when the final is decided. The finished round's schedule page goes out
// before its schedule is replaced.
bool Games::EndPlayoffRound() {
  switch (EndPlayoffDay(s_, [this] {
    if (s_.league.OptAutoOutput) AutoRoundOutput(s_);
  })) {
    case PlayoffProgress::NewRound:
      IsSeasonOver = false;
      return false;
    case PlayoffProgress::FinalDecided:
      IsSeasonOver = true;
      return true;
    case PlayoffProgress::RoundGoesOn:
      break;
  }
  return false;
}

void Games::RestTeams(const std::array<bool, kMaxTeams>& played) {
  for (int t = 0; t < s_.numTeams(); ++t) {
    if (played[static_cast<std::size_t>(t)]) continue;
    loadteam(s_, t, 0);
    RestDay(s_, t, 0);
    SaveTeam(s_, t, 0);
  }
}

bool Games::RefuseWithoutSchedule() {
  if (s_.league.ScheduleMade) return false;
  s_.ui.tell("You must make a schedule first", "KVL");
  return true;
}

// Every run of game days starts with the roster check: a team that cannot
// dress a side would stop the run half way, so nothing is played. A season
// that is over lets the day tell so.
bool Games::MayPlay() {
  if (RefuseWithoutSchedule()) return false;
  return IsSeasonOver || RosterCheck(s_, true);
}

bool Games::MultipleGames() {
  if (!MayPlay()) return false;
  s_.Dirty = true;
  return PlayGameDay();
}

// The label tells the day, the games played and the time left: by days in a
// run of N days, by games in a full season.
void Games::ShowProgress(int day, int days) {
  const League& l = s_.league;
  std::string label = "Game Day " + NumText(day) + (days > 0 ? " of " + NumText(days) : "");
  if (!l.InPlayoffs) label += fmt::format(", {} of {} games played", l.GamesPlayed, l.LeagueGames);
  const double elapsed = std::chrono::duration<double>(std::chrono::steady_clock::now() - runStart_).count();
  const int done = gamesPlayed - runStartGames_;
  double left = -1;
  if (days > 0 && day > 1) left = elapsed / (day - 1) * (days - day + 1);
  if (days == 0 && done > 0 && !l.InPlayoffs) left = elapsed / done * (l.LeagueGames - l.GamesPlayed);
  if (left >= 0) label += fmt::format(", about {:.0f} s left", left);
  s_.ui.progress("Games", label, days > 0 ? day : l.GamesPlayed, days > 0 ? days : l.LeagueGames);
}

// Ctrl-C is honoured between days in every run: the day in progress ends
// whole. The old console's key press stopped only the full season.
bool Games::RunDays(int days) {
  if (IsSeasonOver) return PlayGameDay();  // which tells so
  IsBatchRunning = true;
  s_.Dirty = true;
  runStart_ = std::chrono::steady_clock::now();
  runStartGames_ = gamesPlayed;
  for (int day = 1; (days == 0 || day <= days) && !IsSeasonOver; ++day) {
    ShowProgress(day, days);
    const int before = gamesPlayed;
    PlayGameDay();
    // A record that ends every pass leaves nothing more to play.
    if (gamesPlayed == before && !IsSeasonOver) break;
    StopRequested = StopRequested || s_.ui.stopRequested();
    if (StopRequested) break;
    RefreshGameList();
  }
  s_.ui.progressDone();
  PublishPages();
  IsBatchRunning = false;
  return true;
}

bool Games::BulkGameButton(int days) {
  if (days < 1) return false;
  if (!MayPlay()) return false;
  const std::string question = "Are you sure you want to run " + NumText(days) +
                               "\n\nThis could take up to an hour.\n\nTo interrupt while running multiple game days, "
                               "press any key. days of games?";
  if (s_.ui.ask(question, "Full Season", Buttons::YesNo) != Answer::Yes) return false;
  return RunDays(days);
}

bool Games::Command5() {
  if (!MayPlay()) return false;
  const std::string question =
      "Are you sure you want to run a Full Season?\n\nThis could take up to an hour.\n\nTo interrupt while running "
      "the Full Season, press any key.";
  if (s_.ui.ask(question, "Full Season", Buttons::YesNo) != Answer::Yes) return false;
  StopRequested = false;
  return RunDays(0);
}

bool Games::PlayToEnd() {
  if (IsSeasonOver) {
    s_.ui.tell("Season is over", "Season Over");
    return false;
  }
  if (!MayPlay()) return false;
  return RunDays(0);
}

void Games::cmdHelp() {
  RestTeams({});  // nobody played
  s_.Dirty = true;
  s_.ui.tell("All Teams Rested For One Day", "Rest Day");
}

}  // namespace kvl
