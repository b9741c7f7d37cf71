#include "console/demo.h"

#include "league/roster_check.h"
#include "support/kvl_test.h"

namespace kvl {
namespace {

// The year itself, played from the command line, is the e2e demo transcript's.
TEST(Demo, AlignsEvenDivisionsAndRefusesSizesOutsideEightToFifty) {
  for (int teams : {8, 40, 41, 50}) {
    test::Harness h;
    BuildDemo(h.state, {teams, 3});
    ASSERT_EQ(h.state.numTeams(), teams);
    int counted = 0;
    for (const Conference& c : h.state.league.Conf) {
      EXPECT_EQ(c.NumDivs, teams > 40 ? 3 : 2) << teams;
      for (int d = 0; d < c.NumDivs; ++d) {
        const int n = c.Div[static_cast<std::size_t>(d)].NumTeams;
        EXPECT_LE(std::abs(n * 2 * c.NumDivs - teams), 2 * c.NumDivs) << teams << ": divisions come out even";
        counted += n;
      }
    }
    EXPECT_EQ(counted, teams);
    EXPECT_TRUE(CheckRosters(h.state).allValid) << teams;
  }
  for (int teams : {7, 51}) {
    test::Harness h;
    EXPECT_THROW(RunDemo(h.state, {teams, 1}), Refused);
    EXPECT_TRUE(h.ui.told("The demo league has 8 to 50 teams.", "Demo"));
    EXPECT_FALSE(fs::exists(h.home / "Demo.lge"));
  }
}

}  // namespace
}  // namespace kvl
