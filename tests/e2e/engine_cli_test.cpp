// The engine's commands as a user meets them: where a league is not ready for
// them (each refusal said once and no save asked, so nothing changed), the
// calibration report, and schedules reviewed, old ones too.
#include "support/kvl_test.h"
#include "support/league_cli.h"
#include "support/schedule_leagues.h"

namespace kvl::test {
namespace {

// No schedule: no game day of any length plays, and the review says so; a
// rest day needs none. A team without a division stops the schedule's making.
// The calibration report at the default sliders sets the target ranges beside
// the means per team and game (the goals are the shots less the saves); its
// figures are the same on two threads; a team cannot be paired with itself.
TEST(EngineCommands, WithoutAScheduleNothingPlays) {
  LeaguePlan plan = StandardLeague(8);
  plan.teams[4].Conf = 255;  // no conference
  CliLeague lg(plan, "test", {"--seed", "2"});
  lg.kvlEach({{"--yes", "play-games"},
              {"--yes", "play-games", "--days", "3"},
              {"--yes", "play-games", "--season"},
              {"review-schedule"},
              {"--yes", "play-games", "--rest-day"},
              {"--no", "make-schedule"},
              {"sim-profile", "--games", "10"},
              {"sim-profile", "--games", "10", "--jobs", "2"},
              {"sim-profile", "--pair", "1", "1"}});
  lg.expectTranscript(__FILE__, "engine_no_schedule.txt");
}

// A season over with a playoff size no conference can fill: the playoffs are
// refused before anything is written.
TEST(EngineCommands, PlayoffsNoConferenceCanFillAreRefused) {
  LeaguePlan plan = AlignedLeague({{2, 2}, {2, 2}});
  plan.header.ScheduleMade = plan.header.SeasonOver = kTrue;
  plan.header.PlayoffSize = 0;
  CliLeague lg(plan);
  lg.kvl({"--yes", "start-playoffs"});
  lg.expectTranscript(__FILE__, "engine_playoffs_refused.txt");
}

// A team that cannot dress a side (here its goalies are worn) refuses every run
// of game days before its first game, naming the team and what it lacks:
// nothing is played, and no save is asked. The season profile says so too.
TEST(EngineCommands, InvalidRostersRefuseARunBeforeItsFirstGame) {
  CliLeague lg(AlignedLeague({{2, 2}, {2, 2}}), "test", {"--seed", "3"});
  lg.kvl({"--yes", "make-schedule"});
  for (int g : {19, 20, 21}) EditRecord<Player>(lg.path + ".ros", 3 * kRosterSlots + g + 1, [](Player& p) { p.Condition = 90; });
  const Bytes schedule = ReadFileBytes(lg.path + ".scx");
  lg.kvlEach({{"play-games"}, {"--yes", "play-games", "--season"}, {"sim-profile", "--season"}});
  EXPECT_EQ(ReadFileBytes(lg.path + ".scx"), schedule);
  lg.expectTranscript(__FILE__, "engine_rosters_refused.txt");
}

// An old schedule holding no game is left alone (no save asked), one that
// cannot be read is told, and one beside a current schedule gives way to it.
// The review shows the game days as the driver will play them, with the scores
// and overtime marks of the games played, or only the day asked for.
TEST(EngineCommands, OldSchedulesAndTheReviewByGameDays) {
  CliLeague lg(StandardLeague(8), "old");
  WriteFileAtomic(lg.path + ".scd", Bytes(4642, 0));  // the blank block of a new league
  lg.kvl({"--yes", "review-schedule"});
  WriteFileAtomic(lg.path + ".scd", Bytes(26, 9));  // team 9 under either reading
  lg.kvl({"--yes", "review-schedule"});
  WriteFileAtomic(lg.path + ".scd", EncodeRecord(ScheduleRecord6{.Home = 7, .Away = 6}));
  EditRecord<League>(lg.path + ".lge", 1, [](League& l) { l.ScheduleMade = kTrue; });
  RecordFile f(lg.path + ".scx", ScheduleRecord::kSize);
  const std::vector<ScheduleRecord> games{
      {.HomeTeam = 0, .HomeScore = 3, .AwayTeam = 1, .AwayScore = 2, .Played = kTrue, .GameNumber = 1},
      {.HomeTeam = 2, .HomeScore = 1, .AwayTeam = 3, .AwayScore = 1, .Played = kTrue, .GameNumber = 2, .Overtime = 1},
      {.HomeTeam = 1, .AwayTeam = 4, .GameNumber = 3},
      {.HomeTeam = 5, .AwayTeam = 6, .GameNumber = 4}};
  for (std::size_t k = 0; k < games.size(); ++k) f.putRecord(k + 1, games[k]);
  lg.kvlEach({{"--yes", "review-schedule"}, {"review-schedule", "--day", "2"}});
  lg.expectTranscript(__FILE__, "engine_schedules.txt");
}

}  // namespace
}  // namespace kvl::test
