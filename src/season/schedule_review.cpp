#include "season/schedule_review.h"

#include <fmt/format.h>

#include "league/league_files.h"
#include "season/schedule_file.h"
#include "ui/ui.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Review Schedule";

// Names stay in the records' code page; the front end shows them.
std::string TeamName(const LeagueState& s, int t) {
  return t < s.numTeams() ? s.team(t).Name.str() : fmt::format("#{}", t);
}

std::string GameLine(const LeagueState& s, const ScheduleRecord& g) {
  std::string away = TeamName(s, g.AwayTeam), home = TeamName(s, g.HomeTeam);
  if (!g.Played) return fmt::format("{:>6}  {} at {}", g.GameNumber, away, home);
  return fmt::format("{:>6}  {} {} at {} {}{}", g.GameNumber, away, g.AwayScore, home, g.HomeScore,
                     g.Overtime ? " (OT)" : "");
}

std::string DayText(const LeagueState& s, const std::vector<ScheduleRecord>& games,
                    const std::vector<std::size_t>& day, int number) {
  std::string text = fmt::format("Game day {} ({} games)\n", number, day.size());
  for (std::size_t k : day) text += GameLine(s, games[k]) + "\n";
  return text;
}

}  // namespace

bool RevSched(LeagueState& s, std::optional<int> day) {
  std::vector<ScheduleRecord> games = s.league.ScheduleMade ? ReadSchedule(s.swap(swp::Schedule))
                                                            : std::vector<ScheduleRecord>{};
  if (games.empty()) {
    s.ui.print("No Schedule\n");
    return true;
  }
  auto days = GameDays(games, s.numTeams());
  int count = static_cast<int>(days.size());
  if (day && (*day < 1 || *day > count)) {
    s.ui.tell(fmt::format("There is no game day {}: the schedule has {} game days.", *day, count), kTitle);
    return false;
  }
  std::string text;
  for (int d = day.value_or(1); d <= day.value_or(count); ++d)
    text += DayText(s, games, days[static_cast<std::size_t>(d - 1)], d);
  s.ui.print(text);
  return true;
}

}  // namespace kvl
