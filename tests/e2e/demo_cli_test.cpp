// `kvl demo` run as a user runs it.
#include <gtest/gtest.h>

#include "support/found_cli.h"
#include "support/found_file_set.h"

namespace kvl::test {
namespace {

TEST(DemoCommand, MakesTheSameLeagueTwiceInFreshHomesAndInfoShowsIt) {
  TempDir dir;
  auto kvl = [&](const char* home, std::vector<std::string> args) {
    args.insert(args.begin(), {"--home", (dir.path() / home).string()});
    return RunKvl(args, dir.path() / "io");
  };
  ProgramRun one = kvl("one", {"--seed", "7", "demo"});
  ASSERT_EQ(one.status, 0) << one.out << one.err;
  EXPECT_NE(one.out.find("Demo league: 24 teams, 672 players"), std::string::npos) << one.out;
  EXPECT_NE(one.out.find((dir.path() / "one" / "Demo.lge").string()), std::string::npos) << one.out;
  ASSERT_EQ(kvl("two", {"demo", "--seed", "7"}).status, 0);
  EXPECT_EQ(SnapshotDir(dir.path() / "one", "Demo."), SnapshotDir(dir.path() / "two", "Demo."));
  ProgramRun info = kvl("one", {"info"});
  ASSERT_EQ(info.status, 0) << info.out << info.err;
  EXPECT_NE(info.out.find("Teams: 24"), std::string::npos) << info.out;
  EXPECT_EQ(info.out.find("invalid rosters"), std::string::npos) << info.out;
  EXPECT_EQ(kvl("one", {"demo", "--teams", "51"}).status, 2) << "a usage error";
}

}  // namespace
}  // namespace kvl::test
