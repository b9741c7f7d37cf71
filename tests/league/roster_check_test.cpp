// The roster and coach check that runs after every load.
#include <gtest/gtest.h>

#include <functional>

#include "league/league_files.h"
#include "league/roster_check.h"
#include "support/found_file_set.h"
#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl {
namespace {

using test::Harness;
using test::LeaguePlan;
using test::StandardLeague;

// Slots of a standard roster: C 0-3, LW 4-7, RW 8-11, D 12-18, G 19-21, then a
// minor-league centre (22) and defenceman (23). Minor leaguers count too.
void Blank(std::vector<Player>& r, std::initializer_list<int> slots) {
  for (int s : slots) r[static_cast<std::size_t>(s)] = Player{};
}
void Tire(std::vector<Player>& r, std::initializer_list<int> slots, int condition) {
  for (int s : slots) r[static_cast<std::size_t>(s)].Condition = static_cast<u8>(condition);
}

struct RosterCase {
  const char* name;
  std::function<void(std::vector<Player>&)> change;
  std::vector<std::string> shortages;  // empty: the roster is fine
};

void PrintTo(const RosterCase& c, std::ostream* os) { *os << c.name; }

class RosterCheckLines : public ::testing::TestWithParam<RosterCase> {};

const std::string kHeading = "Games cannot be run with invalid rosters:";

TEST_P(RosterCheckLines, NameEachShortageInTheReport) {
  const auto& c = GetParam();
  Harness h;
  LeaguePlan plan = StandardLeague(8);
  c.change(plan.rosters[2]);
  std::string path = h.load(plan);
  fs::path report = h.home / "InvalidRosters.txt";
  if (c.shortages.empty()) {
    EXPECT_FALSE(fs::exists(report));
    EXPECT_TRUE(h.ui.callsOf("tell").empty());
    return;
  }
  std::string team2 = "Team2     ";
  for (const auto& s : c.shortages) team2 += s + "\r\n";
  std::string expected =
      "Invalid roster configurations were detected in the following league files:\r\n" + path + ".ros\r\n" +
      "League Roster Validation performed Tuesday, Dec 9 2025 12:00:00 PM\r\n";
  for (int t = 0; t < 8; ++t) expected += t == 2 ? team2 : "Team" + std::to_string(t) + "     - Roster OK!\r\n";
  Bytes got = ReadFileBytes(report);
  EXPECT_EQ(std::string(got.begin(), got.end()), expected);
  EXPECT_TRUE(h.ui.told("Details saved in " + report.string(), kHeading));
  auto progress = h.ui.callsOf("progress");
  ASSERT_FALSE(progress.empty());
  EXPECT_EQ(progress.back().title, "Invalid Rosters Detected");
}

INSTANTIATE_TEST_SUITE_P(
    Shortages, RosterCheckLines,
    ::testing::Values(
        RosterCase{"Legal", [](auto&) {}, {}},
        RosterCase{"ConditionAboveNinetyCounts", [](auto& r) { Tire(r, {19, 20, 21}, 91); }, {}},
        RosterCase{"ConditionNinetyDoesNot", [](auto& r) { Tire(r, {19, 20}, 90); },
                   {"- only 1 of 2 required Goaltenders available"}},
        RosterCase{"NoGoalies", [](auto& r) { Blank(r, {19, 20, 21}); },
                   {"- only 0 of 2 required Goaltenders available"}},
        RosterCase{"Centres", [](auto& r) { Blank(r, {0, 1, 2, 22}); },
                   {"- only 1 of the 3 required Centres available"}},
        RosterCase{"EveryForwardKind", [](auto& r) { Blank(r, {0, 1, 2, 22, 4, 5, 8, 9}); },
                   {"- only 16 of 20 players available", "- only 1 of the 3 required Centres available",
                    "- only 2 of the 3 required Left Wingers available",
                    "- only 2 of the 3 required Right Wingers available"}},
        RosterCase{"Defence", [](auto& r) { Tire(r, {12, 13, 14, 15}, 50); },
                   {"- only 4 of 5 required Defencemen available"}},
        RosterCase{"InjuredButFitIsAvailable", [](auto& r) { r[19].Status = 203; r[20].Suspended = 5; }, {}}),
    [](const auto& info) { return std::string(info.param.name); });

// The line of one team, as the report holds it.
TEST(RosterCheck, TotalCountsEveryNamedFitPlayer) {
  Harness h;
  LeaguePlan plan = StandardLeague(8);
  Blank(plan.rosters[0], {19, 20, 21, 22, 23});  // 19 left, no goalie
  h.load(plan);
  bool ok = true;
  std::string line = RosterLine(h.state, 0, ok);
  EXPECT_FALSE(ok);
  EXPECT_EQ(line, "Team0     - only 19 of 20 players available\r\n- only 0 of 2 required Goaltenders available\r\n");
}

// ---- coaches ---------------------------------------------------------------------

// Every team t linked to coach record t + 1 and back.
LeaguePlan LinkedLeague() {
  LeaguePlan plan = StandardLeague(8);
  test::Enrich(plan, 4);
  return plan;
}

struct CoachCase {
  const char* name;
  std::function<void(LeaguePlan&)> change;
  std::vector<std::string> told;  // texts, all titled "Validate Coaches"
  int coachRec4;                  // team 4's link afterwards
};

void PrintTo(const CoachCase& c, std::ostream* os) { *os << c.name; }

class CoachCheckCases : public ::testing::TestWithParam<CoachCase> {};

TEST_P(CoachCheckCases, ToldAndRepaired) {
  const auto& c = GetParam();
  Harness h;
  LeaguePlan plan = LinkedLeague();
  c.change(plan);
  Team before = plan.teams[4];
  h.load(plan);
  auto tells = h.ui.callsOf("tell");
  ASSERT_EQ(tells.size(), c.told.size());
  for (std::size_t i = 0; i < tells.size(); ++i) {
    EXPECT_EQ(tells[i].text, c.told[i]);
    EXPECT_EQ(tells[i].title, "Validate Coaches");
  }
  const Team& t = h.state.team(4);
  EXPECT_EQ(t.CoachRec, c.coachRec4);
  if (c.coachRec4 == 0) {
    EXPECT_EQ(t.Coach.Name.raw(), std::string(22, ' '));
    EXPECT_EQ(t.Coach.Salary, 0);
    EXPECT_EQ(t.Coach.Contract, 0);
  } else {
    EXPECT_EQ(t.Coach.Name, before.Coach.Name);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Links, CoachCheckCases,
    ::testing::Values(
        CoachCase{"AllSound", [](LeaguePlan&) {}, {}, 5},
        CoachCase{"FreeCoachStillLinked", [](LeaguePlan& s) { s.coaches[4].Team = Coach::kNoTeam; }, {}, 5},
        CoachCase{"LastTeamIsNoBrokenLink", [](LeaguePlan& s) { s.teams[7].CoachRec = 0; s.coaches[7].Team = 8; }, {},
                  5},
        CoachCase{"RelinkedByName",
                  [](LeaguePlan& s) { s.teams[4].CoachRec = 6; },
                  {"Team Files say Team4 coach is Coach 4\nHowever, coach record #6 is held by Coach 5\n"
                   "Attempting to relink the team to its previous coach by name.",
                   "Found a match for Coach 4 at record 5\nRelinking to Team4."},
                  5},
        CoachCase{"LinkPastTheFile",
                  [](LeaguePlan& s) { s.teams[4].CoachRec = 40; },
                  {"Team Files say Team4 coach is Coach 4\nHowever, coach record #40 is held by \n"
                   "Attempting to relink the team to its previous coach by name.",
                   "Found a match for Coach 4 at record 5\nRelinking to Team4."},
                  5},
        CoachCase{"NoSuchCoach",
                  [](LeaguePlan& s) { s.teams[4].Coach.Name.set("Nobody"); },
                  {"Team Files say Team4 coach is Nobody\nHowever, coach record #5 is held by Coach 4\n"
                   "Attempting to relink the team to its previous coach by name.",
                   "Team4 coach link is corrupted.\nRemoving link to between Team4 and Nobody"},
                  0},
        CoachCase{"HeldByAnotherTeam",
                  [](LeaguePlan& s) { s.coaches[4].Team = 7; },
                  {"Team4 coach link is corrupted.\nRemoving link to between Team4 and Coach 4"},
                  0}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(CoachCheck, HiredByATeamPastTheLeagueIsFreed) {
  for (int team : {9, 200}) {
    Harness h;
    LeaguePlan plan = LinkedLeague();
    plan.teams[2].CoachRec = 0;
    plan.coaches[2].Team = static_cast<u8>(team);
    h.load(plan);
    EXPECT_TRUE(h.ui.told("Coach Coach 2 seems to be hired by a team that doesn't exist.\n"
                          "Removing employment link to team #" + std::to_string(team),
                          "Validate Coaches"));
    EXPECT_EQ(h.ui.callsOf("tell").size(), 1u);
    RecordFile coa(h.state.swap(swp::Coaches), Coach::kSize);
    EXPECT_EQ(coa.getRecord<Coach>(3).Team, Coach::kNoTeam);
  }
}

TEST(CoachCheck, LooksAtNoMoreThan253Records) {
  Harness h;
  LeaguePlan plan = LinkedLeague();
  while (plan.coaches.size() < 254) plan.coaches.push_back(Coach{});
  plan.coaches[253].Name.set("Far Away");
  plan.coaches[253].Team = 99;
  h.load(plan);
  EXPECT_TRUE(h.ui.callsOf("tell").empty());
}

}  // namespace
}  // namespace kvl
