// Old schedule files converted on load, and the schedule reviewed by game day.
#include "season/schedule_file.h"

#include "season/schedule_review.h"
#include "support/kvl_test.h"

namespace kvl {
namespace {

// Writes an 8-team league with `scd` as its .scd (and `scx` as its .scx when
// given), then loads it.
struct OldScheduleLeague {
  explicit OldScheduleLeague(const Bytes& scd, const Bytes* scx = nullptr) {
    fs::create_directories(h.dir.path() / "league");
    path = (h.dir.path() / "league" / "old").string();
    test::WriteLeague(test::StandardLeague(8), path);
    WriteFileAtomic(path + ".scd", scd);
    if (scx) WriteFileAtomic(path + ".scx", *scx);
    LoadLg(h.state, path);
  }
  std::vector<ScheduleRecord> converted() { return ReadSchedule(h.state.swap(swp::Schedule)); }
  test::Harness h;
  std::string path;
};

i16 PlayedMark(u8 hs, u8 as) { return (hs || as) ? kTrue : kFalse; }

// Day fields 100 + n and 200 + n, to see where each goes.
ScheduleRecord13 Old13(u8 home, u8 away, i16 number, u8 hs = 0, u8 as = 0, u8 ot = 0) {
  return {
      home, hs, away, as, number, PlayedMark(hs, as), static_cast<i16>(100 + number), static_cast<i16>(200 + number),
      ot};
}

ScheduleRecord6 Old6(u8 home, u8 away, u8 hs = 0, u8 as = 0) { return {home, hs, away, as, PlayedMark(hs, as)}; }

TEST(ConvertSchedCheck, ThirteenByteGamesKeepTheirNumbersAndDays) {
  Bytes scd = EncodeRecords(std::vector{Old13(1, 0, 1, 4, 2), Old13(3, 2, 2, 3, 3, 1), Old13(5, 4, 3, 2, 2)});
  scd.resize(4642);  // padded out to the blank block a new league is given
  OldScheduleLeague lg(scd);
  std::vector<ScheduleRecord> g = lg.converted();
  ASSERT_EQ(g.size(), 3u);
  EXPECT_EQ(std::tuple(g[0].HomeTeam, g[0].AwayTeam, g[0].HomeScore, g[0].AwayScore), std::tuple(1, 0, 4, 2));
  EXPECT_EQ(std::tuple(g[0].GameNumber, g[0].Played, g[0].DayA, g[0].GameDay), std::tuple(1, kTrue, 101, 201));
  // Overtime: none, its own mark, and a tie that is not 0-0.
  EXPECT_EQ(std::tuple(g[0].Overtime, g[1].Overtime, g[2].Overtime), std::tuple(0, 1, 1));
  EXPECT_TRUE(lg.h.state.Dirty);
}

TEST(ConvertSchedCheck, SixByteGamesAreNumberedAndGivenDays) {
  OldScheduleLeague lg(
      EncodeRecords(std::vector{Old6(0, 1, 3, 3), Old6(2, 3, 1, 0), Old6(1, 4), Old6(5, 6), Old6(0, 2)}));
  std::vector<ScheduleRecord> g = lg.converted();
  ASSERT_EQ(g.size(), 5u);
  // Team 1 comes round again at the third game: a new day starts there.
  std::vector<std::tuple<int, int, int>> numberDays;
  for (const auto& r : g) numberDays.emplace_back(r.GameNumber, r.GameDay, r.DayA);
  EXPECT_EQ(numberDays,
            (std::vector<std::tuple<int, int, int>>{{1, 1, 1}, {2, 1, 1}, {3, 2, 2}, {4, 2, 2}, {5, 2, 2}}));
  // A tie, a win, and 0-0: a game not yet played.
  EXPECT_EQ(std::tuple(g[0].Overtime, g[1].Overtime, g[2].Overtime, g[1].Played, g[2].Played),
            std::tuple(1, 0, 0, kTrue, kFalse));
}

TEST(ConvertSchedCheck, LeavesAloneWhatNeedsNoConversion) {
  {
    // The blank block of a new league holds no game.
    OldScheduleLeague lg(Bytes(4642, 0));
    EXPECT_FALSE(fs::exists(lg.h.state.swap(swp::Schedule)));
    EXPECT_FALSE(lg.h.state.Dirty);
  }
  {
    // A league with a current schedule keeps it.
    Bytes scx = EncodeRecord(ScheduleRecord{.HomeTeam = 7, .AwayTeam = 6, .GameNumber = 1});
    OldScheduleLeague lg(EncodeRecords(std::vector{Old6(0, 1)}), &scx);
    std::vector<ScheduleRecord> g = lg.converted();
    ASSERT_EQ(g.size(), 1u);
    EXPECT_EQ(g[0].HomeTeam, 7);
  }
}

TEST(ConvertSchedCheck, TellsOfAnOldScheduleItCannotRead) {
  // Team 9 is not in an 8-team league under either reading.
  Bytes junk(26, 9);
  OldScheduleLeague lg(junk);
  EXPECT_FALSE(fs::exists(lg.h.state.swap(swp::Schedule)));
  auto tells = lg.h.ui.callsOf("tell");
  ASSERT_FALSE(tells.empty());
  EXPECT_EQ(tells.back().title, "Convert Schedule");
  EXPECT_NE(tells.back().text.find("old.scd"), std::string::npos);
}

struct ReviewLeague {
  ReviewLeague() {
    h.load(test::StandardLeague(8));
    h.state.league.ScheduleMade = kTrue;
    RecordFile f(h.state.swap(swp::Schedule), ScheduleRecord::kSize);
    const std::vector<ScheduleRecord> games{
        {.HomeTeam = 0, .HomeScore = 3, .AwayTeam = 1, .AwayScore = 2, .Played = kTrue, .GameNumber = 1},
        {.HomeTeam = 2, .HomeScore = 1, .AwayTeam = 3, .AwayScore = 1, .Played = kTrue, .GameNumber = 2, .Overtime = 1},
        {.HomeTeam = 1, .AwayTeam = 4, .GameNumber = 3},
        {.HomeTeam = 5, .AwayTeam = 6, .GameNumber = 4}};
    for (std::size_t k = 0; k < games.size(); ++k) f.putRecord(k + 1, games[k]);
  }
  std::string printed() {
    auto prints = h.ui.callsOf("print");
    return prints.empty() ? "" : prints.back().text;
  }
  test::Harness h;
};

TEST(RevSched, ShowsTheDaysTheDriverWillPlayWithScoresOrOneDayOrNone) {
  ReviewLeague lg;
  ASSERT_TRUE(RevSched(lg.h.state));
  EXPECT_EQ(lg.printed(),
            "Game day 1 (2 games)\n"
            "     1  Team1 2 at Team0 3\n"
            "     2  Team3 1 at Team2 1 (OT)\n"
            "Game day 2 (2 games)\n"
            "     3  Team4 at Team1\n"
            "     4  Team6 at Team5\n");
  ASSERT_TRUE(RevSched(lg.h.state, 2));
  EXPECT_EQ(lg.printed().substr(0, 20), "Game day 2 (2 games)");
  EXPECT_FALSE(RevSched(lg.h.state, 3));
  EXPECT_TRUE(lg.h.ui.told("There is no game day 3: the schedule has 2 game days.", "Review Schedule"));
  lg.h.state.league.ScheduleMade = kFalse;
  ASSERT_TRUE(RevSched(lg.h.state));
  EXPECT_EQ(lg.printed(), "No Schedule\n");
}

}  // namespace
}  // namespace kvl
