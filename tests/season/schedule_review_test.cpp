#include <gtest/gtest.h>

#include "league/league_files.h"
#include "season/schedule_review.h"
#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl {
namespace {

ScheduleRecord Game(int number, int home, int away, int hs = -1, int as = 0, bool ot = false) {
  ScheduleRecord r;
  r.GameNumber = static_cast<i16>(number);
  r.HomeTeam = static_cast<u8>(home);
  r.AwayTeam = static_cast<u8>(away);
  if (hs >= 0) {
    r.Played = kTrue;
    r.HomeScore = static_cast<u8>(hs);
    r.AwayScore = static_cast<u8>(as);
    r.Overtime = ot ? 1 : 0;
  }
  return r;
}

struct ReviewLeague {
  ReviewLeague() {
    h.load(test::StandardLeague(8));
    h.state.league.ScheduleMade = kTrue;
    RecordFile f(h.state.swap(swp::Schedule), ScheduleRecord::kSize);
    std::vector<ScheduleRecord> games{Game(1, 0, 1, 3, 2), Game(2, 2, 3, 1, 1, true), Game(3, 1, 4), Game(4, 5, 6)};
    for (std::size_t k = 0; k < games.size(); ++k) f.putRecord(k + 1, games[k]);
  }
  std::string printed() {
    auto prints = h.ui.callsOf("print");
    return prints.empty() ? "" : prints.back().text;
  }
  test::Harness h;
};

TEST(RevSched, ShowsTheDaysTheDriverWillPlayWithScores) {
  ReviewLeague lg;
  ASSERT_TRUE(RevSched(lg.h.state));
  EXPECT_EQ(lg.printed(),
            "Game day 1 (2 games)\n"
            "     1  Team1 2 at Team0 3\n"
            "     2  Team3 1 at Team2 1 (OT)\n"
            "Game day 2 (2 games)\n"
            "     3  Team4 at Team1\n"
            "     4  Team6 at Team5\n");
}

TEST(RevSched, OneDayOrNone) {
  ReviewLeague lg;
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
