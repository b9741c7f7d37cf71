// The roster and coach check that runs after every load.
#include "league/roster_check.h"

#include <functional>

#include "support/found_file_set.h"
#include "support/golden.h"
#include "support/kvl_test.h"

namespace kvl::test {
namespace {

// Slots of a standard roster: C 0-3, LW 4-7, RW 8-11, D 12-18, G 19-21, then a
// minor-league centre (22) and defenceman (23). Minor leaguers count too. In
// every case goalie 19 is injured but fit and goalie 20 suspended: both count.
TEST(RosterCheck, TheReportNamesEachShortage) {
  struct Case {
    const char* name;
    std::vector<int> blank, tired;  // slots emptied, and slots at `condition`
    int condition;
    std::vector<std::string> shortages;  // empty: the roster is fine
  } cases[] = {
      {"legal", {}, {}, 0, {}},
      {"condition above ninety counts", {}, {19, 20, 21}, 91, {}},
      {"condition ninety does not", {}, {19, 20}, 90, {"- only 1 of 2 required Goaltenders available"}},
      {"centres", {0, 1, 2, 22}, {}, 0, {"- only 1 of the 3 required Centres available"}},
      {"every forward kind",
       {0, 1, 2, 22, 4, 5, 8, 9},
       {},
       0,
       {"- only 16 of 20 players available", "- only 1 of the 3 required Centres available",
        "- only 2 of the 3 required Left Wingers available", "- only 2 of the 3 required Right Wingers available"}},
      {"defence", {}, {12, 13, 14, 15}, 50, {"- only 4 of 5 required Defencemen available"}},
  };
  for (const auto& c : cases) {
    Harness h;
    LeaguePlan plan = StandardLeague(8);
    std::vector<Player>& r = plan.rosters[2];
    r[19].Status = 203, r[20].Suspended = 5;
    for (int s : c.blank) r[static_cast<std::size_t>(s)] = Player{};
    for (int s : c.tired) r[static_cast<std::size_t>(s)].Condition = static_cast<u8>(c.condition);
    std::string path = h.load(plan);
    fs::path report = h.home / "InvalidRosters.txt";
    EXPECT_EQ(fs::exists(report), !c.shortages.empty()) << c.name;
    if (c.shortages.empty()) continue;
    std::string expected = "Invalid roster configurations were detected in the following league files:\r\n" + path +
                           ".ros\r\n" + "League Roster Validation performed Tuesday, Dec 9 2025 12:00:00 PM\r\n";
    for (int t = 0; t < 8; ++t) {
      expected += "Team" + std::to_string(t) + "     " + (t == 2 ? "" : "- Roster OK!\r\n");
      if (t == 2)
        for (const auto& s : c.shortages) expected += s + "\r\n";
    }
    EXPECT_EQ(ReadAll(report), expected) << c.name;
    EXPECT_TRUE(h.ui.told("Details saved in " + report.string(), "Games cannot be run with invalid rosters:"));
    EXPECT_EQ(h.ui.callsOf("progress").back().title, "Invalid Rosters Detected");
  }
}

// ---- coaches ---------------------------------------------------------------------

// Every team t linked to coach record t + 1 and back.
LeaguePlan LinkedLeague() {
  LeaguePlan plan = StandardLeague(8);
  Enrich(plan, 4);
  return plan;
}

TEST(CoachCheck, BrokenLinksAreToldAndRepaired) {
  struct Case {
    const char* name;
    std::function<void(LeaguePlan&)> change;
    std::vector<std::string> told;  // texts, all titled "Validate Coaches"
    int coachRec4;                  // team 4's link afterwards
  };
  const std::string relink = "Attempting to relink the team to its previous coach by name.";
  const std::string found = "Found a match for Coach 4 at record 5\nRelinking to Team4.";
  const Case cases[] = {
      {"all sound", [](LeaguePlan&) {}, {}, 5},
      {"a free coach still linked", [](LeaguePlan& s) { s.coaches[4].Team = Coach::kNoTeam; }, {}, 5},
      {"the last team is no broken link", [](LeaguePlan& s) { s.teams[7].CoachRec = 0, s.coaches[7].Team = 8; }, {}, 5},
      {"relinked by name",
       [](LeaguePlan& s) { s.teams[4].CoachRec = 6; },
       {"Team Files say Team4 coach is Coach 4\nHowever, coach record #6 is held by Coach 5\n" + relink, found},
       5},
      {"a link past the file",
       [](LeaguePlan& s) { s.teams[4].CoachRec = 40; },
       {"Team Files say Team4 coach is Coach 4\nHowever, coach record #40 is held by \n" + relink, found},
       5},
      {"no such coach",
       [](LeaguePlan& s) { s.teams[4].Coach.Name.set("Nobody"); },
       {"Team Files say Team4 coach is Nobody\nHowever, coach record #5 is held by Coach 4\n" + relink,
        "Team4 coach link is corrupted.\nRemoving link to between Team4 and Nobody"},
       0},
      {"held by another team",
       [](LeaguePlan& s) { s.coaches[4].Team = 7; },
       {"Team4 coach link is corrupted.\nRemoving link to between Team4 and Coach 4"},
       0},
  };
  for (const auto& c : cases) {
    Harness h;
    LeaguePlan plan = LinkedLeague();
    c.change(plan);
    Team before = plan.teams[4];
    h.load(plan);
    std::vector<std::string> told;
    for (const auto& t : h.ui.callsOf("tell")) told.push_back(t.title == "Validate Coaches" ? t.text : t.title);
    EXPECT_EQ(told, c.told) << c.name;
    const Team& t = h.state.team(4);
    EXPECT_EQ(t.CoachRec, c.coachRec4) << c.name;
    if (c.coachRec4 != 0) {
      EXPECT_EQ(t.Coach.Name, before.Coach.Name) << c.name;
    } else {
      EXPECT_EQ(t.Coach.Name.raw() + std::to_string(t.Coach.Salary + t.Coach.Contract), std::string(22, ' ') + "0");
    }
  }
}

// Only the first 253 coach records are looked at.
TEST(CoachCheck, HiredByATeamPastTheLeagueIsFreed) {
  for (int team : {9, 200}) {
    Harness h;
    LeaguePlan plan = LinkedLeague();
    plan.teams[2].CoachRec = 0;
    plan.coaches[2].Team = static_cast<u8>(team);
    while (plan.coaches.size() < 254) plan.coaches.push_back(Coach{});
    plan.coaches[253].Name.set("Far Away");
    plan.coaches[253].Team = 99;
    h.load(plan);
    EXPECT_TRUE(
        h.ui.told("Coach Coach 2 seems to be hired by a team that doesn't exist.\n"
                  "Removing employment link to team #" +
                      std::to_string(team),
                  "Validate Coaches"));
    EXPECT_EQ(h.ui.callsOf("tell").size(), 1u);
    RecordFile coa(h.state.swap(swp::Coaches), Coach::kSize);
    EXPECT_EQ(coa.getRecord<Coach>(3).Team, Coach::kNoTeam);
  }
}

}  // namespace
}  // namespace kvl::test
