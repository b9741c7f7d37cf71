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
// The golden holds each case's report, the legal ones none.
TEST(RosterCheck, TheReportNamesEachShortage) {
  struct Case {
    const char* name;
    std::vector<int> blank, tired;  // slots emptied, and slots at `condition`
    int condition;
  } cases[] = {
      {"legal", {}, {}, 0},
      {"condition above ninety counts", {}, {19, 20, 21}, 91},
      {"condition ninety does not", {}, {19, 20}, 90},
      {"centres", {0, 1, 2, 22}, {}, 0},
      {"every forward kind", {0, 1, 2, 22, 4, 5, 8, 9}, {}, 0},
      {"defence", {}, {12, 13, 14, 15}, 50},
  };
  std::string reports;
  for (const auto& c : cases) {
    Harness h;
    LeaguePlan plan = StandardLeague(8);
    std::vector<Player>& r = plan.rosters[2];
    r[19].Status = 203, r[20].Suspended = 5;
    for (int s : c.blank) r[static_cast<std::size_t>(s)] = Player{};
    for (int s : c.tired) r[static_cast<std::size_t>(s)].Condition = static_cast<u8>(c.condition);
    std::string path = h.load(plan);
    fs::path report = h.home / "InvalidRosters.txt";
    reports += fmt::format("--- {}\n", c.name);
    if (!fs::exists(report)) continue;
    std::string text = ReadAll(report);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\r'), std::count(text.begin(), text.end(), '\n')) << c.name;
    std::erase(text, '\r');
    reports += text.replace(text.find(path), path.size(), "$LEAGUE");
    EXPECT_TRUE(h.ui.told("Details saved in " + report.string(), "Games cannot be run with invalid rosters:"));
    EXPECT_EQ(h.ui.callsOf("progress").back().title, "Invalid Rosters Detected");
  }
  ExpectGolden(__FILE__, "invalid_rosters.txt", reports);
}

// The golden holds what each case tells (all titled "Validate Coaches") and the
// links left: team 4's, and coach record 3's.
TEST(CoachCheck, BrokenLinksAreToldAndRepaired) {
  const std::pair<const char*, std::function<void(LeaguePlan&)>> cases[] = {
      {"all sound", [](LeaguePlan&) {}},
      {"a free coach still linked", [](LeaguePlan& s) { s.coaches[4].Team = Coach::kNoTeam; }},
      {"the last team is no broken link", [](LeaguePlan& s) { s.teams[7].CoachRec = 0, s.coaches[7].Team = 8; }},
      {"relinked by name", [](LeaguePlan& s) { s.teams[4].CoachRec = 6; }},
      {"a link past the file", [](LeaguePlan& s) { s.teams[4].CoachRec = 40; }},
      {"no such coach", [](LeaguePlan& s) { s.teams[4].Coach.Name.set("Nobody"); }},
      {"held by another team", [](LeaguePlan& s) { s.coaches[4].Team = 7; }},
      {"hired by a team past the league", [](LeaguePlan& s) { s.teams[2].CoachRec = 0, s.coaches[2].Team = 9; }},
      // Only the first 253 coach records are looked at.
      {"hired by team 200, one hired past record 253",
       [](LeaguePlan& s) {
         s.teams[2].CoachRec = 0, s.coaches[2].Team = 200;
         s.coaches.resize(254);
         s.coaches[253].Name.set("Far Away");
         s.coaches[253].Team = 99;
       }},
  };
  std::string text;
  for (const auto& [name, change] : cases) {
    Harness h;
    LeaguePlan plan = StandardLeague(8);
    Enrich(plan, 4);  // every team t linked to coach record t + 1 and back
    change(plan);
    h.load(plan);
    text += fmt::format("--- {}\n", name);
    for (const auto& t : h.ui.callsOf("tell")) text += fmt::format("[{}] {}\n", t.title, t.text);
    const Team& t = h.state.team(4);
    RecordFile coa(h.state.swap(swp::Coaches), Coach::kSize);
    text += fmt::format("Team4: record {}, \"{}\" paid {} for {}; record 3 works for team {}\n", t.CoachRec,
                        t.Coach.Name.raw(), t.Coach.Salary, t.Coach.Contract, coa.getRecord<Coach>(3).Team);
  }
  ExpectGolden(__FILE__, "coach_links.txt", text);
}

}  // namespace
}  // namespace kvl::test
