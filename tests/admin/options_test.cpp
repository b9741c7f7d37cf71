// The Options form's rules that the command line does not reach: the draft rounds' limit, closing
// the form, and the playoff size held once the playoffs run. What each option stores is the
// forms transcript's (e2e/golden/forms_options.txt).
#include "admin/options.h"

#include "support/kvl_test.h"
#include "util/numbers.h"

namespace kvl::test {
namespace {

// Rounds below 1 become 1, more than 255 picks a draft cut the rounds to what fits, and 9 is the most.
TEST(OptionsRules, DraftRoundsKeepTheDraftWithin255PicksAnd9Rounds) {
  struct Case {
    int teams;
    const char* typed;
    int stored;
  } cases[] = {{29, "9", 8}, {28, "9", 9}, {50, "9", 5}, {8, "12", 9}, {8, "0", 1}, {8, "x", 1}, {0, "9", 9}};
  for (const auto& c : cases) EXPECT_EQ(DraftRoundsFor(Val(c.typed), c.teams), c.stored) << c.teams << " " << c.typed;
}

TEST(OptionsForm, CloseAsksOnlyWithChangesAndAppliesOnYes) {
  for (const char* answer : std::initializer_list<const char*>{"yes", "no", nullptr}) {
    Harness h;
    h.load(StandardLeague(4));
    Options o(h.state);
    if (answer) o.set("ShotsLevel", "2"), h.ui.push(answer);
    o.cmdClose();
    EXPECT_EQ(h.ui.callsOf("ask").size(), answer ? 1u : 0u);
    EXPECT_EQ(h.state.league.ShotsLevel(), answer && *answer == 'y' ? 2 : 5);
    EXPECT_TRUE(answer || !h.state.Dirty);
  }
}

TEST(OptionsForm, ThePlayoffSizeIsNotChangedOnceThePlayoffsRun) {
  Harness h;
  h.load(StandardLeague(4));
  h.state.league.InPlayoffs = kTrue;
  Options o(h.state);
  o.set("PlayoffSize", "2");
  o.cmdApply();
  EXPECT_EQ(h.state.league.PlayoffSize, 0);
}

}  // namespace
}  // namespace kvl::test
