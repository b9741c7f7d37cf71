// The team forms' own rules, which the command line does not reach: the roster editor's caption, its
// rating edits' limits and leaving without keeping; the protection limits; the coach style and what only
// the coach forms refuse; a full prospect list. Moves, releases, protection marks, coach edits and hiring,
// and activating prospects are the forms transcripts' (e2e/golden/forms_rosters.txt, forms_coaches.txt,
// forms_youth.txt).
#include "support/kvl_test.h"
#include "support/team_rosters.h"
#include "team/coach_card.h"
#include "team/coach_list.h"
#include "team/coach_rules.h"
#include "team/protection.h"
#include "team/roster_editor.h"
#include "team/roster_rules.h"
#include "team/youth_form.h"

namespace kvl::test {
namespace {

struct RosterEditorTest : ::testing::Test {
  Harness h;
  void open(const std::vector<Player>& roster) {
    LeaguePlan plan = StandardLeague(2);
    plan.rosters[0] = roster;
    h.load(plan);
  }
  Player& at(int i) { return h.state.player(0, i); }
};

TEST_F(RosterEditorTest, CaptionCallsARosterCompleteOnlyWhenItFitsTheRules) {
  struct Case {
    std::array<int, 5> dressed;
    const char* caption;
  } cases[] = {
      // Twenty dressed with one short position each (D, C, LW, RW, a third goalie), then 17 and 21.
      {{4, 4, 3, 7, 2}, "Roster Complete"},  {{3, 3, 3, 9, 2}, "Roster Complete"},
      {{5, 4, 4, 5, 2}, "20 Total Players"}, {{2, 4, 4, 8, 2}, "20 Total Players"},
      {{4, 2, 4, 8, 2}, "20 Total Players"}, {{4, 4, 2, 8, 2}, "20 Total Players"},
      {{4, 4, 3, 6, 3}, "20 Total Players"}, {{3, 3, 3, 6, 2}, "17 Total Players"},
      {{4, 4, 4, 7, 2}, "21 Total Players"},
  };
  for (const auto& c : cases) {
    open(Join({Squad(c.dressed, 70), Squad({1, 1, 1, 1, 1}, 40, 100)}));
    EXPECT_EQ(RosterEditor(h.state, 0).caption(), c.caption);
  }
}

TEST_F(RosterEditorTest, NameAndRatingEditsAndLeavingWithNoOrClosingKeepsNothing) {
  open(Squad({4, 4, 4, 6, 2}, 70));
  h.state.Dirty = false;
  RosterEditor e(h.state, 0);
  e.SetName(0, "A Name Much Longer Than Twenty-Two");
  EXPECT_EQ(at(0).Name.raw(), "A Name Much Longer Tha");
  struct Case {
    const char* text;
    int stored;
  } cases[] = {{"15", 15}, {"14", 70}, {"99.7", 99}, {"100", 70}, {"abc", 70}, {"42x", 42}};
  for (auto c : cases) {
    at(1).rating(kSco) = 70;
    e.SetRating(1, kSco, c.text);
    EXPECT_EQ(at(1).rating(kSco), c.stored) << c.text;
  }
  e.cmdMovePlayer(RosterMove::DressedToScratch, {0});
  h.ui.push("no");
  EXPECT_FALSE(e.cmdExit());
  loadteam(h.state, 0, 0);
  EXPECT_EQ(at(0).Status, 200);
  EXPECT_FALSE(h.state.Dirty);
  RosterEditor again(h.state, 0);
  again.SetName(3, "Renamed");
  again.cmdClose();
  EXPECT_TRUE(h.ui.told("Changes were not saved", "Edit Roster"));
}

TEST(ProtectionTest, LimitsTightenAsMarksAreSpent) {
  struct Case {
    int f, d, g, fl, dl, gl;
  } cases[] = {{0, 0, 0, 10, 6, 2}, {0, 6, 0, 9, 6, 1}, {10, 0, 0, 10, 5, 1}, {0, 5, 0, 10, 6, 1}, {9, 0, 0, 10, 6, 1},
               {0, 0, 2, 8, 4, 2},  {0, 4, 2, 7, 4, 2}, {8, 4, 2, 7, 3, 2},   {10, 6, 0, 9, 5, 1}};
  for (auto c : cases) {
    ProtectionLimits l = LimitsFor(c.f, c.d, c.g);
    EXPECT_EQ((std::array{l.forwards, l.defence, l.goalies}), (std::array{c.fl, c.dl, c.gl})) << c.f << c.d << c.g;
  }
}

TEST(CoachRulesTest, StyleFollowsTheGapBetweenOffenceAndDefence) {
  struct Case {
    int of, df, style;
  } cases[] = {{90, 81, 2}, {90, 80, 0}, {80, 90, 1}, {81, 90, 2}, {70, 70, 2}, {50, 99, 1}};
  for (auto c : cases) EXPECT_EQ(CoachStyle(c.of, c.df), c.style) << c.of << "/" << c.df;
}

TEST(CoachTest, ThePlainListAndTheCardRefuseToHireOrEdit) {
  Harness h;
  h.load(StandardLeague(4));
  EXPECT_THROW(CoachList(h.state).cmdSelect(1), Refused);
  EXPECT_TRUE(h.ui.told("You may only hire and fire coaches from Coach | Rosters | Coach Info", "List Coaches"));
  EXPECT_THROW(RefuseCoachEdit(h.state), Refused);
  EXPECT_TRUE(h.ui.told(
      "You cannot change coach attributes here.\nHire a new coach or change ratings from Manager | View All Coaches.",
      "Edit Coach Info"));
  h.state.team(2).CoachRec = 101;
  EXPECT_FALSE(DisplayCoach(h.state, 2).coach) << "a record past the file's end is no coach";
}

TEST(ProspectsTest, AFullListRefusesBeforeThePrompt) {
  Harness h;
  h.load(StandardLeague(2));
  ViewProspects v(h.state, 0);
  for (int i = 0; i < kMaxProspects; ++i) ASSERT_EQ(v.cmdAdd("P" + std::to_string(i)), i);
  EXPECT_EQ(v.cmdAdd(), -1);
  EXPECT_TRUE(h.ui.told("No room on prospect list", "Add Prospect"));
  EXPECT_TRUE(h.ui.callsOf("prompt").empty());
  v.cmdDelete(7);
  EXPECT_EQ(ViewProspects(h.state, 0).cmdAdd("Again"), 7) << "a deleted entry frees its place, on file too";
}

}  // namespace
}  // namespace kvl::test
