// Coaches: the style rule, and what only the forms themselves refuse. Edits, creating, deleting,
// hiring and the card are the forms transcript's (e2e/golden/forms_coaches.txt).
#include "support/kvl_test.h"
#include "team/coach_card.h"
#include "team/coach_list.h"
#include "team/coach_rules.h"

namespace kvl::test {
namespace {

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

}  // namespace
}  // namespace kvl::test
