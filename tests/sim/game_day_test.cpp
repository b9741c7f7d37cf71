// The game day: where a day ends, the season's end, rest days, a bad record, the
// year's turn and the daily page. (Play and rest-day commands without a schedule
// are run by kvl.)
#include "sim/game_day.h"

#include "season/schedule_file.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/sim_league.h"

namespace kvl::test {
namespace {

std::vector<int> PlayedFlags(const Harness& h) {
  std::vector<int> out;
  for (const auto& g : ReadSchedule(h.state.swap(swp::Schedule))) out.push_back(g.Played != 0);
  return out;
}

// The last record ends the day and the season. (That the results agree with the
// team records is checked over a whole season played by the kvl program.)
TEST(GameDay, EndsWhereATeamWouldPlayTwiceAndTheLastRecordEndsTheSeason) {
  ScheduledLeague lg({{0, 1}, {2, 3}, {1, 2}, {3, 0}});
  Games games(lg.h.state);
  ASSERT_TRUE(games.MultipleGames());
  EXPECT_EQ(PlayedFlags(lg.h), (std::vector<int>{1, 1, 0, 0}));
  EXPECT_EQ(lg.h.state.league.GamesPlayed, 2);
  EXPECT_FALSE(games.IsSeasonOver);
  ExpectGolden(__FILE__, "today_games_seed7.html", lg.page("TodayGames.html"));
  ASSERT_TRUE(games.MultipleGames());
  EXPECT_EQ(PlayedFlags(lg.h), (std::vector<int>{1, 1, 1, 1}));
  EXPECT_TRUE(games.IsSeasonOver && lg.h.state.league.SeasonOver);
  EXPECT_EQ(lg.page("TodayGames.html").find("Next Games"), std::string::npos);
  EXPECT_FALSE(games.MultipleGames());
}

// Ctrl-C asks for a stop: the day in progress ends whole and the run stops there.
TEST(GameDay, AStopRequestEndsARunBetweenDays) {
  ScheduledLeague lg({{0, 1}, {2, 3}, {1, 2}, {3, 0}});
  lg.h.ui.push("yes");
  lg.h.ui.requestStop();
  ASSERT_TRUE(Games(lg.h.state).BulkGameButton(2));
  EXPECT_EQ(PlayedFlags(lg.h), (std::vector<int>{1, 1, 0, 0}));
}

int ConditionSum(LeagueState& s, int team) {
  loadteam(s, team, 0);
  int sum = 0;
  for (int slot = 1; slot < kRosterSlots; ++slot) sum += s.player(0, slot).Condition;
  return sum;
}

TEST(GameDay, TeamsThatDidNotPlayRestButNeverSlotZero) {
  ScheduledLeague lg({{0, 1}, {0, 2}});
  LeagueState& s = lg.h.state;
  for (int t : {2, 3}) {
    loadteam(s, t, 0);
    // Tired, but above the 90 a roster needs to play.
    for (int slot = 0; slot < kRosterSlots; ++slot)
      if (!s.player(0, slot).empty()) s.player(0, slot).Condition = 91;
    SaveTeam(s, t, 0);
  }
  const int before = ConditionSum(s, 2);
  Games(s).MultipleGames();
  EXPECT_GT(ConditionSum(s, 2), before);
  EXPECT_GT(ConditionSum(s, 3), before);
  EXPECT_EQ(s.player(0, 0).Condition, 91) << "slot 0 never rests";
}

TEST(GameDay, ARecordNamingAMissingTeamStopsAndKeepsTheGamesBefore) {
  ScheduledLeague lg({{0, 1}, {2, 7}});
  try {
    Games(lg.h.state).MultipleGames();
    FAIL() << "no stop";
  } catch (const KvlError& e) {
    EXPECT_NE(std::string(e.what()).find("Schedule game 2 names team 7"), std::string::npos) << e.what();
  }
  EXPECT_EQ(PlayedFlags(lg.h), (std::vector<int>{1, 0}));
}

TEST(GameDay, TheYearTurnsAtTheFirstGameOfANewSeasonOnly) {
  ScheduledLeague lg({{0, 1}, {1, 2}});
  League& l = lg.h.state.league;
  l.CurrentYear = 2026;
  l.FirstDayPending = kTrue;
  Games games(lg.h.state);
  const std::size_t calls = lg.h.ui.calls().size();
  EXPECT_FALSE(games.BulkGameButton(0)) << "days below one do nothing";
  EXPECT_EQ(lg.h.ui.calls().size(), calls) << "not even ask";
  games.MultipleGames();
  EXPECT_EQ(l.CurrentYear, 2027);
  games.MultipleGames();
  EXPECT_EQ(l.CurrentYear, 2027);
}

}  // namespace
}  // namespace kvl::test
