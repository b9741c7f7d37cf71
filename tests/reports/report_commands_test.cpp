// output-html, edit-header and edit-footer as a user runs them.
#include <gtest/gtest.h>

#include "support/found_cli.h"
#include "support/golden.h"
#include "support/sim_league.h"

namespace kvl::test {
namespace {

class ReportCommands : public testing::Test {
 protected:
  ReportCommands() {
    fs::create_directories(dir.path() / "league");
    WriteLeague(SimLeague(4), (dir.path() / "league" / "test").string());
  }
  ProgramRun Kvl(std::vector<std::string> args) {
    std::vector<std::string> all{"--home", (dir.path() / "home").string(), "--league",
                                 (dir.path() / "league" / "test").string()};
    all.insert(all.end(), args.begin(), args.end());
    return RunKvl(all, dir.path());
  }
  TempDir dir;
};

TEST_F(ReportCommands, OutputHtmlWritesTheChosenGroups) {
  ProgramRun run = Kvl({"--no", "output-html", "--pages", "standings,14"});
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_NE(run.out.find("4 pages written to " + (dir.path() / "home" / "Transfer").string()), std::string::npos);
  EXPECT_TRUE(fs::exists(dir.path() / "home" / "Transfer" / "testCoaches.html"));
  EXPECT_FALSE(fs::exists(dir.path() / "home" / "Transfer" / "testRosters.html"));
}

TEST_F(ReportCommands, UsageErrors) {
  for (const std::vector<std::string>& args : std::vector<std::vector<std::string>>{
           {"output-html", "--pages", "standings,nope"}, {"output-html", "--pages", "17"}, {"edit-header", "17"},
           {"edit-footer", "-1"}, {"edit-footer", "2x"}})
    EXPECT_EQ(Kvl(args).status, 2) << args.back();
}

TEST_F(ReportCommands, HeaderFromAFileAndShown) {
  WriteText(dir.path() / "head.html", "<P>Our league</P>\n<HR>\n");
  ASSERT_EQ(Kvl({"edit-header", "20", "--from", (dir.path() / "head.html").string()}).status, 0);
  EXPECT_EQ(ReadAll(dir.path() / "home" / "Headers" / "test.hd20"), "<P>Our league</P>\r\n<HR>\r\n");
  ProgramRun shown = Kvl({"edit-header", "20", "--show"});
  EXPECT_NE(shown.out.find("<P>Our league</P>\r\n<HR>"), std::string::npos);
}

}  // namespace
}  // namespace kvl::test
