// Coaches: style and salary rules, the list's edits and prompts, hiring and firing. Hiring an
// employed coach, firing twice and the card's salary are the e2e tests'.
#include "support/kvl_test.h"
#include "support/team_files.h"
#include "team/coach_card.h"
#include "team/coach_file.h"
#include "team/coach_hire.h"
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

struct CoachTest : ::testing::Test {
  Harness h;
  void SetUp() override {
    LeaguePlan plan = StandardLeague(4);
    HireStandardCoaches(plan);
    plan.teams[3].CoachRec = 0;  // team 3 has no coach; coach 4 is free
    plan.teams[3].Coach = TeamCoach{};
    plan.coaches[3].Team = Coach::kNoTeam;
    h.load(plan);
  }
  Coach onFile(std::size_t rec) { return ReadCoaches(h.state).at(rec); }
};

TEST_F(CoachTest, ListEditsClampAndAreKeptOnlyOnYes) {
  CoachList list(h.state);
  list.SetRating(1, kCoachOF, 100);
  list.SetRating(1, kCoachDF, 49);
  list.SetRating(1, kCoachEX, 77.4);
  list.SetSalary(1, 20000000);
  list.SetSalary(4, 1);
  const Coach& c = list.coach(1);
  EXPECT_EQ((std::array{int(c.OF), int(c.DF), int(c.EX), c.Salary}), (std::array{99, 50, 77, 20000000}));
  EXPECT_EQ(h.state.team(0).Coach.Salary, 20000000) << "the employer's copy follows";
  EXPECT_EQ(list.SalaryCaption(1) + "|" + list.SalaryCaption(4), "Salary with Team0:|Coach 3 asking:");
  EXPECT_EQ(list.rows(), (std::vector<std::size_t>{1, 2, 3, 4}));
  EXPECT_TRUE(list.RowText(4).ends_with("Coach 3 asking: $50,000")) << "half the stored salary is shown";
  EXPECT_EQ(onFile(1).OF, 50) << "nothing written before leaving";
  h.ui.push("yes");
  list.cmdExit();
  EXPECT_EQ((std::array{int(onFile(1).OF), onFile(4).Salary}), (std::array{99, 100000}));
}

TEST_F(CoachTest, CreatePromptsUntilTheValuesFitAndStoresTheSalaryDoubledAndDeleteAsksThenBlanks) {
  for (const char* a : {"New Guy", "101", "100", "49", "60", "70", "80", "40000", "50000"}) h.ui.push(a);
  CoachList list(h.state);
  ASSERT_TRUE(list.cmdCreate());
  Coach c = onFile(5);
  EXPECT_EQ(c.Name.str(), "New Guy");
  // The prompt admits 100, and a salary is stored doubled.
  EXPECT_EQ((std::array{int(c.OF), int(c.DF), int(c.EX), int(c.LD), c.Salary}), (std::array{100, 60, 70, 80, 100000}));
  EXPECT_EQ(c.Team, Coach::kNoTeam);
  EXPECT_EQ(h.ui.callsOf("prompt").size(), 9u) << "each value out of range is asked again";
  for (const char* a : {"Quitter", "70", "<cancel>"}) h.ui.push(a);
  EXPECT_FALSE(list.cmdCreate());
  EXPECT_EQ(ReadCoaches(h.state).size(), 6u) << "a cancelled prompt drops the coach";
  h.ui.push("no");
  EXPECT_FALSE(list.cmdDelete(4));
  EXPECT_FALSE(onFile(4).Name.empty());
  h.ui.push("yes");
  EXPECT_TRUE(list.cmdDelete(4));
  EXPECT_TRUE(onFile(4).Name.empty());
}

TEST_F(CoachTest, HiringIsRefusedFromThePlainListAndFiresThePresentCoachAndLogsBoth) {
  CoachList plain(h.state);
  EXPECT_THROW(plain.cmdSelect(4), Refused);
  EXPECT_TRUE(h.ui.told("You may only hire and fire coaches from Coach | Rosters | Coach Info", "List Coaches"));
  CoachList hire(h.state, 0);
  h.ui.push("no");
  EXPECT_FALSE(hire.cmdSelect(4));
  EXPECT_EQ(h.state.team(0).CoachRec, 1);
  h.ui.push("yes");
  ASSERT_TRUE(hire.cmdSelect(4));
  const Team& t = h.state.team(0);
  EXPECT_EQ(std::to_string(t.CoachRec) + " " + t.Coach.Name.str(), "4 Coach 3");
  EXPECT_EQ((std::array{onFile(4).Team, onFile(1).Team}), (std::array<u8, 2>{1, Coach::kNoTeam}))
      << "the team's number + 1";
  EXPECT_EQ(TransactionLines(h.state), (std::vector<std::string>{"Team0 fire Head Coach Coach 0<BR><BR>",
                                                                 "Team0 hire Head Coach Coach 3<BR><BR>"}));
  EXPECT_TRUE(FireCoach(h.state, 0));
  EXPECT_EQ(onFile(4).Team, Coach::kNoTeam);
}

TEST_F(CoachTest, TheCardShowsTheHalfSalaryAndStoresTheStyle) {
  CoachList list(h.state);
  list.SetRating(2, kCoachOF, 90);
  list.SetRating(2, kCoachDF, 80);
  h.ui.push("yes");
  list.cmdExit();
  CoachCard card = DisplayCoach(h.state, 1);
  ASSERT_TRUE(card.coach);
  EXPECT_EQ(card.style, 0);
  EXPECT_EQ(StoredCoachStyle(h.state.team(1)), 0);
  h.state.team(2).CoachRec = 101;
  EXPECT_FALSE(DisplayCoach(h.state, 2).coach);
  EXPECT_THROW(RefuseCoachEdit(h.state), Refused);
  EXPECT_TRUE(h.ui.told(
      "You cannot change coach attributes here.\nHire a new coach or change ratings from Manager | View All Coaches.",
      "Edit Coach Info"));
}

}  // namespace
}  // namespace kvl::test
