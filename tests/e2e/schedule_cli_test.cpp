#include <gtest/gtest.h>

#include "season/schedule_file.h"
#include "support/league_cli.h"
#include "support/schedule_leagues.h"

namespace kvl::test {
namespace {

// What a seeded run printed, on either stream.
struct KvlRun {
  int rc;
  std::string out;
};

KvlRun Kvl(const CliLeague& lg, const std::string& args) {
  std::vector<std::string> words{"--seed", "5"};
  for (std::size_t at = 0, end; at < args.size(); at = end + 1) {
    end = std::min(args.find(' ', at), args.size());
    words.push_back(args.substr(at, end - at));
  }
  ProgramRun r = lg.kvl(words);
  return {r.status, r.out + r.err};
}

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

TEST(MakeScheduleCommand, MakesAndSavesTheDemoAlignmentsScheduleAndHelpsWithEachOption) {
  CliLeague lg(AlignedLeague({{6, 6}, {6, 6}}));
  KvlRun r = Kvl(lg, "--yes make-schedule --tries 20");
  ASSERT_EQ(r.rc, 0) << r.out;
  EXPECT_TRUE(Has(r.out, "Suggested games per team: 66")) << r.out;
  EXPECT_TRUE(Has(r.out, "Schedule is complete")) << r.out;
  EXPECT_EQ(ReadSchedule(lg.path + ".scx").size(), 792u) << "saved over the league's files";

  KvlRun review = Kvl(lg, "review-schedule --day 1");
  ASSERT_EQ(review.rc, 0) << review.out;
  EXPECT_TRUE(Has(review.out, "Game day 1 (")) << review.out;
  EXPECT_FALSE(Has(review.out, "Game day 2")) << review.out;
  KvlRun beyond = Kvl(lg, "review-schedule --day 5000");
  EXPECT_EQ(beyond.rc, 1);
  EXPECT_TRUE(Has(beyond.out, "There is no game day 5000")) << beyond.out;
  EXPECT_EQ(Kvl(lg, "review-schedule --help").rc, 0);
  KvlRun help = Kvl(lg, "make-schedule --help");
  EXPECT_EQ(help.rc, 0);
  for (const char* opt : {"--div", "--conf", "--lg", "--gp", "--gp-day", "--variance", "--var-total", "--var-home",
                          "--exhibition", "--tries"})
    EXPECT_TRUE(Has(help.out, opt)) << opt;
}

TEST(MakeScheduleCommand, ReportsTheSystemsRefusals) {
  struct Case {
    LeaguePlan plan;
    std::string args, text;
    int rc;
  };
  std::vector<Case> cases{
      {StandardLeague(7), "make-schedule", "Not enough teams in league", 1},
      {AlignedLeague({{6, 6}, {6, 6}}), "make-schedule --gp 60", "Total GP/Team must be from 66 to 110", 1},
      {AlignedLeague({{6, 6}, {6, 6}}), "make-schedule --div 17", "Intra-division must be from 2 to 16", 1},
      {AlignedLeague({{6, 6}, {6, 6}}), "make-schedule --tries 0", "--tries", 2},
      {AlignedLeague({{7, 7}, {6, 6}}), "make-schedule", "Your league is currently unbalanced.", 1},
  };
  for (auto& c : cases) {
    CliLeague lg(c.plan);
    KvlRun r = Kvl(lg, "--no " + c.args);
    EXPECT_EQ(r.rc, c.rc) << c.args << "\n" << r.out;
    EXPECT_TRUE(Has(r.out, c.text)) << c.args << "\n" << r.out;
    EXPECT_FALSE(fs::exists(lg.path + ".scx")) << c.args;
  }
}

// 9 teams at 29 games can never be placed whole; every press fails the same
// way, and the command gives up after its tries.
TEST(MakeScheduleCommand, PressesAgainOnlyWhilePlacementFails) {
  CliLeague lg(AlignedLeague({{3, 2}, {2, 2}}));
  KvlRun r = Kvl(lg, "--no make-schedule --gp 29 --tries 3");
  EXPECT_EQ(r.rc, 1) << r.out;
  std::size_t presses = 0;
  for (std::size_t at = 0; (at = r.out.find("Scheduler is unable to place game", at)) != std::string::npos; ++at)
    ++presses;
  EXPECT_EQ(presses, 3u) << r.out;
}

}  // namespace
}  // namespace kvl::test
