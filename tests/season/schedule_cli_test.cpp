#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdio>

#include "season/schedule_file.h"
#include "support/league_fixture.h"
#include "support/schedule_leagues.h"
#include "util/record_file.h"

namespace kvl {
namespace {

struct KvlRun {
  int rc;
  std::string out;
};

// A league written into a temporary folder, and kvl run over it.
struct CliLeague {
  explicit CliLeague(const test::LeaguePlan& plan) {
    fs::create_directories(dir.path() / "league");
    path = (dir.path() / "league" / "cli").string();
    test::WriteLeague(plan, path);
  }
  KvlRun kvl(const std::string& args) {
    std::string cmd = std::string(KVL_BINARY) + " --home " + (dir.path() / "home").string() + " --league " + path +
                      ".lge --seed 5 " + args + " 2>&1";
    KvlRun r{0, ""};
    FILE* p = ::popen(cmd.c_str(), "r");
    char buf[4096];
    for (std::size_t n; (n = std::fread(buf, 1, sizeof buf, p)) > 0;) r.out.append(buf, n);
    int status = ::pclose(p);
    r.rc = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    return r;
  }
  test::TempDir dir;
  std::string path;
};

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

TEST(MakeScheduleCommand, MakesAndSavesTheDemoAlignmentsSchedule) {
  CliLeague lg(test::AlignedLeague({{6, 6}, {6, 6}}));
  KvlRun r = lg.kvl("--yes make-schedule --tries 20");
  ASSERT_EQ(r.rc, 0) << r.out;
  EXPECT_TRUE(Has(r.out, "Suggested games per team: 66")) << r.out;
  EXPECT_TRUE(Has(r.out, "Schedule is complete")) << r.out;
  EXPECT_EQ(ReadSchedule(lg.path + ".scx").size(), 792u) << "saved over the league's files";

  KvlRun review = lg.kvl("review-schedule --day 1");
  ASSERT_EQ(review.rc, 0) << review.out;
  EXPECT_TRUE(Has(review.out, "Game day 1 (")) << review.out;
  EXPECT_FALSE(Has(review.out, "Game day 2")) << review.out;
  KvlRun beyond = lg.kvl("review-schedule --day 5000");
  EXPECT_EQ(beyond.rc, 1);
  EXPECT_TRUE(Has(beyond.out, "There is no game day 5000")) << beyond.out;
}

TEST(MakeScheduleCommand, ReportsTheSystemsRefusals) {
  struct Case {
    test::LeaguePlan plan;
    std::string args, text;
    int rc;
  };
  std::vector<Case> cases{
      {test::StandardLeague(7), "make-schedule", "Not enough teams in league", 1},
      {test::AlignedLeague({{6, 6}, {6, 6}}), "make-schedule --gp 60", "Total GP/Team must be from 66 to 110", 1},
      {test::AlignedLeague({{6, 6}, {6, 6}}), "make-schedule --div 17", "Intra-division must be from 2 to 16", 1},
      {test::AlignedLeague({{6, 6}, {6, 6}}), "make-schedule --tries 0", "--tries", 2},
      {test::AlignedLeague({{7, 7}, {6, 6}}), "make-schedule", "Your league is currently unbalanced.", 1},
  };
  for (auto& c : cases) {
    CliLeague lg(c.plan);
    KvlRun r = lg.kvl("--no " + c.args);
    EXPECT_EQ(r.rc, c.rc) << c.args << "\n" << r.out;
    EXPECT_TRUE(Has(r.out, c.text)) << c.args << "\n" << r.out;
    EXPECT_FALSE(fs::exists(lg.path + ".scx")) << c.args;
  }
}

// 9 teams at 29 games can never be placed whole; every press fails the same
// way, and the command gives up after its tries.
TEST(MakeScheduleCommand, PressesAgainOnlyWhilePlacementFails) {
  CliLeague lg(test::AlignedLeague({{3, 2}, {2, 2}}));
  KvlRun r = lg.kvl("--no make-schedule --gp 29 --tries 3");
  EXPECT_EQ(r.rc, 1) << r.out;
  std::size_t presses = 0;
  for (std::size_t at = 0; (at = r.out.find("Scheduler is unable to place game", at)) != std::string::npos; ++at)
    ++presses;
  EXPECT_EQ(presses, 3u) << r.out;
}

TEST(ScheduleCommands, EachHasHelp) {
  CliLeague lg(test::StandardLeague(8));
  for (const char* cmd : {"make-schedule", "review-schedule"}) {
    KvlRun r = lg.kvl(std::string(cmd) + " --help");
    EXPECT_EQ(r.rc, 0) << cmd;
    EXPECT_TRUE(Has(r.out, "--")) << r.out;
  }
  KvlRun r = lg.kvl("make-schedule --help");
  for (const char* opt : {"--div", "--conf", "--lg", "--gp", "--gp-day", "--variance", "--var-total", "--var-home",
                          "--exhibition", "--tries"})
    EXPECT_TRUE(Has(r.out, opt)) << opt;
}

}  // namespace
}  // namespace kvl
