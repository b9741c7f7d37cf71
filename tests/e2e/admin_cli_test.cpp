// The league's own edits run as a user runs them: alignment, options, the
// player and team cards.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include "support/found_cli.h"
#include "support/league_fixture.h"

namespace kvl::test {
namespace {

class AdminCli : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(dir.path() / "league");
    league = (dir.path() / "league" / "lg").string();
    test::WriteLeague(test::StandardLeague(8), league);
  }
  test::ProgramRun Run(std::vector<std::string> args) {
    args.insert(args.begin(), {"--home", (dir.path() / "home").string(), "--league", league});
    return test::RunKvl(args, dir.path() / "io");
  }
  test::TempDir dir;
  std::string league;
};

struct Refusal {
  std::vector<std::string> args;
  const char* told;
};

TEST_F(AdminCli, RefusalsTellTheSystemsTextAndExitOne) {
  const std::vector<Refusal> cases{
      {{"align", "divisions", "1", "1"},
       "[Unable to reduce division count] You cannot reduce the number of divisions per conference until"},
      {{"align", "add", "3", "1", "Expo"}, "[Align League] There is no conference 3"},
      {{"align", "move", "Nowhere", "1", "1"}, "There is no team \"Nowhere\""},
      {{"options", "--set", "ShotsLevel=12"}, "[Options] ShotsLevel takes a whole number from 1 to 9, not \"12\"."},
      {{"player", "0", "30"}, "[Edit Player] Slot 30 of Team0 holds no player."},
      {{"view-team", "0", "--set", "Colour=red"}, "[View Team] There is no field \"Colour\" on this card."}};
  for (const auto& c : cases) {
    auto r = Run(c.args);
    std::string cmd = fmt::format("{}", fmt::join(c.args, " "));
    EXPECT_EQ(r.status, 1) << cmd << "\n" << r.out << r.err;
    EXPECT_NE(r.out.find(c.told), std::string::npos) << cmd << "\n" << r.out;
  }
}

TEST_F(AdminCli, EditsAreSavedWithTheLeague) {
  ASSERT_EQ(Run({"--yes", "align", "delete", "Team2"}).status, 0);
  ASSERT_EQ(Run({"--yes", "options", "--set", "ShotsLevel=7", "OptMoney=on"}).status, 0);
  ASSERT_EQ(Run({"--yes", "player", "2", "0", "--set", "Weight=210"}).status, 0);
  ASSERT_EQ(Run({"--yes", "view-team", "T03", "--set", "Ticket=55"}).status, 0);

  auto info = Run({"info"});
  EXPECT_NE(info.out.find("Teams: 7"), std::string::npos) << info.out;
  EXPECT_EQ(info.out.find("invalid rosters"), std::string::npos) << info.out;
  auto options = Run({"options"});
  EXPECT_NE(options.out.find("ShotsLevel       Shots"), std::string::npos);
  EXPECT_NE(options.out.find("Shots                                                7\n"), std::string::npos)
      << options.out;
  auto player = Run({"player", "2", "0"});
  EXPECT_NE(player.out.find("T3 C 1"), std::string::npos) << player.out;  // old team 3 is team 2 now
  EXPECT_NE(player.out.find("Weight 210"), std::string::npos) << player.out;
  EXPECT_NE(Run({"view-team", "2"}).out.find("Ticket $55"), std::string::npos);
}

}  // namespace
}  // namespace kvl::test
