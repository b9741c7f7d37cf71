#include "transactions/draft_pick_editor.h"

#include <gtest/gtest.h>

#include "support/league_fixture.h"
#include "transactions/draft_picks.h"

namespace kvl {
namespace {

struct PickEditor : ::testing::Test {
  test::Harness h;
  void SetUp() override {
    test::LeaguePlan plan = test::StandardLeague(4);
    plan.header.CurrentYear = 2026;
    h.load(plan);
    MakeDraftPicks(h.state);
  }
};

TEST_F(PickEditor, KeptChangesAreWrittenInOrder) {
  DraftPickEditor form(h.state, 0);
  ASSERT_TRUE(form.cmdRemove(1));     // its own 2027 first rounder
  ASSERT_TRUE(form.cmdAdd(0, 0, 3));  // team 3's instead
  h.ui.push("yes");
  ASSERT_TRUE(form.cmdExit());
  const DraftPickRecord r = ReadDraftPicks(h.state, 0);
  // Sorted back to the head of its year and round.
  EXPECT_EQ((std::array{int(r.Pick[1].OrigTeam), int(r.Pick[1].Owner), int(r.Pick[2].Round), int(r.Pick[55].Active)}),
            (std::array{3, 0, 1, 0}));
  EXPECT_TRUE(h.state.Dirty);
}

TEST_F(PickEditor, ANoOrABadPickChangesNothing) {
  DraftPickEditor form(h.state, 1);
  struct Row {
    int year, round, team;
    const char* told;
  };
  const Row bad[] = {
      {6, 0, 0, "Draft picks of Team1: draft 2033 is outside the next six drafts."},
      {0, 9, 0, "Draft picks of Team1: round 10 is outside rounds 1 to 9."},
      {0, 0, 4, "Draft picks of Team1: team 4 is outside the league's teams."},
  };
  for (const Row& b : bad) {
    EXPECT_FALSE(form.cmdAdd(b.year, b.round, b.team));
    EXPECT_TRUE(h.ui.told(b.told, "Edit Draft Picks")) << b.told;
  }
  EXPECT_FALSE(form.cmdRemove(60)) << "no pick there";
  EXPECT_FALSE(form.Changed);
  ASSERT_TRUE(form.cmdRemove(5));
  h.ui.push("no");
  EXPECT_FALSE(form.cmdExit());
  EXPECT_EQ(ReadDraftPicks(h.state, 1).Pick[5].Active, kTrue);
}

}  // namespace
}  // namespace kvl
