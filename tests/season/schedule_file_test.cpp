// Old schedule files converted on load. (What is left alone or cannot be read,
// and the review by game day, are run by kvl.)
#include "season/schedule_file.h"

#include "support/golden.h"
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

// The golden lists each conversion's records. 13-byte games keep their numbers
// and days (DayA 100 + n, GameDay 200 + n); overtime is their own mark or a tie
// that is not 0-0. 6-byte games are numbered and given days: team 1 comes round
// again at the third game, so a new day starts there; 0-0 is a game not played.
TEST(ConvertSchedCheck, OldGamesAreNumberedAndGivenDays) {
  Bytes scd = EncodeRecords(std::vector{Old13(1, 0, 1, 4, 2), Old13(3, 2, 2, 3, 3, 1), Old13(5, 4, 3, 2, 2)});
  scd.resize(4642);  // padded out to the blank block a new league is given
  OldScheduleLeague thirteen(scd);
  OldScheduleLeague six(
      EncodeRecords(std::vector{Old6(0, 1, 3, 3), Old6(2, 3, 1, 0), Old6(1, 4), Old6(5, 6), Old6(0, 2)}));
  std::string text;
  for (OldScheduleLeague* lg : {&thirteen, &six}) {
    EXPECT_TRUE(lg->h.state.Dirty);
    text += "---\n";
    for (const ScheduleRecord& g : lg->converted())
      text += fmt::format("game {} day {} dayA {}: {} at {} {}-{} played {} overtime {}\n", g.GameNumber, g.GameDay,
                          g.DayA, g.AwayTeam, g.HomeTeam, g.AwayScore, g.HomeScore, g.Played, g.Overtime);
  }
  test::ExpectGolden(__FILE__, "converted_schedules.txt", text);
}

}  // namespace
}  // namespace kvl
