#pragma once
// The daily results page, Transfer/<league>TodayGames.html, written fresh on
// every game day: the day's games linked to their box scores, then the next
// games while the season goes on.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

class TodayPage {
 public:
  // Starts the page: the header file or the default heading, and the date.
  explicit TodayPage(const LeagueState& s);

  // A game of the day as its record stands after the game; `overtime` for a
  // playoff game decided in overtime.
  void AddGame(int number, const ScheduleRecord& r, bool overtime);
  // The games from the first unplayed one while both teams are free, at most
  // 31 of them.
  void AddNextGames(const std::vector<ScheduleRecord>& games);
  // The footer file or the default end; writes the page and returns its path.
  fs::path Close();

  const std::vector<std::string>& lines() const { return lines_; }

 private:
  const LeagueState& s_;
  std::vector<std::string> lines_;
};

}  // namespace kvl
