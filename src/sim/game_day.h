#pragma once
// The Games console: plays what the schedule says, one game day at a time. A
// day is the run of records from the first unplayed one until a team would
// play twice; after it the teams that did not play rest and the waivers day
// runs. The league's pages may be published at the end of a run of days.
#include <array>
#include <chrono>
#include <functional>
#include <string>
#include <vector>

#include "league/league_state.h"
#include "season/playoffs.h"

namespace kvl {

class Game;

class Games {
 public:
  // Opening the console: the season's state and the next games.
  explicit Games(LeagueState& s);

  // Plays one game day; false, after telling, when the season is over.
  bool PlayGameDay();
  // The play commands answer false when they played nothing: no schedule,
  // the season over, or the question answered no.
  // Play one day.
  bool MultipleGames();
  // Play `days` days after the question; below 1 does nothing.
  bool BulkGameButton(int days);
  // Play the full season after the question.
  bool Command5();
  // Plays to the end of the schedule without a question (the playoffs use it).
  bool PlayToEnd();
  // Rest Day: every team rests one day.
  void cmdHelp();
  // The next games, up to twenty lines.
  void RefreshGameList();

  bool IsExhibition = false;
  bool IsBatchRunning = false;
  bool IsSeasonOver = false;
  bool StopRequested = false;
  bool NeedsRefresh = false;
  i16 GameNumber = 0;
  std::vector<std::string> GameList;

  // What follows the final: the re-rate and the save under a new name.
  PlayoffEnd playoffEnd;
  // What this console has played, for the front ends' summaries.
  int gamesPlayed = 0, daysPlayed = 0;
  int champion = -1;  // once the final is decided
  // Called after each game of the schedule with its number, for a report
  // that follows the season game by game.
  std::function<void(Game&, int)> onGame;
  fs::path dailyPage;  // the last daily results page written

 private:
  bool RefuseWithoutSchedule();
  bool MayPlay();
  void PlayRecord(std::vector<ScheduleRecord>& games, std::size_t index);
  void RestTeams(const std::array<bool, kMaxTeams>& played);
  bool EndPlayoffRound();
  bool RunDays(int days);
  // The automatic output of the league's pages, once for the days played.
  void PublishPages();
  void ShowProgress(int day, int days);

  LeagueState& s_;
  std::chrono::steady_clock::time_point runStart_;
  int runStartGames_ = 0;
  bool pagesDue_ = false;
};

}  // namespace kvl
