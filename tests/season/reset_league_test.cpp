#include <gtest/gtest.h>

#include "league/league_files.h"
#include "season/reset_league.h"
#include "support/league_fixture.h"

namespace kvl {
namespace {

// An injured player with season figures, on team 0, slot 0.
void Hurt(test::Harness& h) {
  loadteam(h.state, 0, 0);
  Player& p = h.state.player(0, 0);
  p.Status = 203;
  p.Condition = 60;
  p.G = 12;
  p.Hits = 40;
  SaveTeam(h.state, 0, 0);
  h.state.team(0).W[0] = 5;
}

TEST(ResetLeague, HealsOnlyOutsideAFinishedSeasonOrExhibition) {
  for (bool seasonOver : {false, true}) {
    test::Harness h;
    h.load(test::StandardLeague(8));
    Hurt(h);
    h.state.league.SeasonOver = ToBool16(seasonOver);
    ResetLeague(h.state);
    loadteam(h.state, 0, 0);
    const Player& p = h.state.player(0, 0);
    EXPECT_EQ(p.G, 0);
    EXPECT_EQ(p.Hits, 0);
    EXPECT_EQ(h.state.team(0).W[0], 0);
    EXPECT_EQ(p.Status, seasonOver ? 203 : 200) << "seasonOver=" << seasonOver;
    EXPECT_EQ(p.Condition, seasonOver ? 60 : 100);
  }
}

}  // namespace
}  // namespace kvl
