// A save stopped at any write, rename or removal leaves the old league or the
// new one, never a mix; and a league is opened by one copy of the program at a time.
#include <gtest/gtest.h>

#include "league/league_files.h"
#include "support/failing_file_system.h"
#include "support/found_file_set.h"
#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl {
namespace {

using test::Harness;
using test::LeagueDir;
using test::Snapshot;
using test::SnapshotDir;

struct FaultCase {
  const char* name;
  const char* target;  // the league saved to; "test" is the one loaded
};

class SaveFaults : public ::testing::TestWithParam<FaultCase> {
 protected:
  // A loaded league with unsaved work that touches most files: a player, a team,
  // the header, and a schedule deleted (so the save removes a file too).
  std::string OpenChanged(Harness& h) {
    auto plan = test::StandardLeague(10, 3);
    test::Enrich(plan, 11);
    std::string path = test::WriteLeagueIn(h, plan, true);
    LoadLg(h.state, path);
    loadteam(h.state, 2, 0);
    h.state.player(0, 0).G = 40;
    SaveTeam(h.state, 2, 0);
    h.state.team(4).GF = 77;
    h.state.league.LeagueName.set("Changed");
    RemoveIfExists(h.state.swap(swp::Schedule));
    return path;
  }
  std::string Target(const Harness& h) const { return (LeagueDir(h) / GetParam().target).string(); }
  void Save(Harness& h) {
    if (std::string(GetParam().target) == "test") SaveLg(h.state);
    else SaveLeagueAs(h.state, "", fs::path(Target(h) + ".lge"));
  }
};

TEST_P(SaveFaults, EveryStopLeavesTheOldLeagueOrTheNew) {
  Snapshot before, after;
  {
    Harness h;
    OpenChanged(h);
    before = SnapshotDir(LeagueDir(h));
    Save(h);
    after = SnapshotDir(LeagueDir(h));
  }
  ASSERT_NE(before, after);
  int old = 0, saved = 0;
  for (int n = 1;; ++n) {
    Harness h;
    OpenChanged(h);
    test::FailingFileSystem failing(n);
    h.state.fileSystem = &failing;
    bool stopped = false;
    try {
      Save(h);
    } catch (const KvlError&) {
      stopped = true;
    }
    h.state.fileSystem = &RealFileSystem();
    bool journal = fs::exists(LeagueJournal(Target(h)));
    // The next start: a load of the saved league completes what the stop left.
    if (journal || fs::exists(Target(h) + ".lge")) LoadLg(h.state, Target(h));
    EXPECT_EQ(h.ui.told("A save of " + Target(h) + " was interrupted; it has now been completed.", "Load League"), journal)
        << "step " << n;
    Snapshot now = SnapshotDir(LeagueDir(h));
    if (now == before) ++old;
    else if (now == after) ++saved;
    else ADD_FAILURE() << "stopped at step " << n << ", the folder is a mix: "
                       << ::testing::PrintToString(test::Differences(after, now));
    if (!stopped) break;
  }
  EXPECT_GT(old, 10) << "stops before the journal keep the old league";
  EXPECT_GT(saved, 10) << "stops after it end with the new";
}

INSTANTIATE_TEST_SUITE_P(Saves, SaveFaults,
                         ::testing::Values(FaultCase{"Save", "test"}, FaultCase{"SaveAs", "copy"}),
                         [](const auto& info) { return std::string(info.param.name); });

// ---- one copy a league -----------------------------------------------------------

TEST(LeagueLock, ASecondCopyFromAnotherHomeIsRefusedUntilTheFirstCloses) {
  Harness first;
  std::string path = first.load(test::StandardLeague(8));
  auto second = std::make_unique<Harness>();
  EXPECT_THROW(LoadLg(second->state, path), Refused);
  EXPECT_TRUE(second->ui.told("The league " + path + " is open in another copy of KVL (" + path +
                                  ".lock is held). To ensure no files will be corrupted, it cannot be opened here.",
                              "League in use"));
  EXPECT_FALSE(second->state.hasLeague());
  // Saving over it from elsewhere is refused the same way, and writes nothing.
  second->load(test::StandardLeague(8, 4), "other");
  Snapshot held = SnapshotDir(LeagueDir(first));
  EXPECT_THROW(SaveLeagueAs(second->state, "", fs::path(path + ".lge")), Refused) << "without asking to overwrite";
  EXPECT_EQ(SnapshotDir(LeagueDir(first)), held);
  first.state.leagueLock.release();
  EXPECT_NO_THROW(LoadLg(second->state, path));
}

TEST(LeagueLock, ALockFileLeftByAKilledCopyDoesNotBlock) {
  Harness h;
  std::string path = test::WriteLeagueIn(h, test::StandardLeague(8), false);
  WriteFileAtomic(path + ".lock", Bytes{});
  LoadLg(h.state, path);
  EXPECT_TRUE(h.state.hasLeague());
  LoadLg(h.state, path);  // this copy opening it again is no second copy
  h.state.leagueLock.release();
  EXPECT_FALSE(fs::exists(path + ".lock")) << "the lock file goes with the lock";
}

}  // namespace
}  // namespace kvl
