// The admin forms' own rules, which the command line does not reach: the draft rounds' limit, closing
// the Options form and the playoff size held once the playoffs run; a database delete that keeps every
// other record byte for byte when the rename is refused, and the update's questions. What each option
// stores, the database's fields, listings, merges and the ratings update are the forms transcripts'
// (e2e/golden/forms_options.txt, forms_database.txt, forms_merge_update.txt).
#include "admin/options.h"
#include "admin/player_database.h"
#include "admin/update_stats.h"
#include "support/failing_file_system.h"
#include "support/kvl_test.h"
#include "util/numbers.h"

namespace kvl::test {
namespace {

// Rounds below 1 become 1, more than 255 picks a draft cut the rounds to what fits, and 9 is the most.
TEST(OptionsRules, DraftRoundsKeepTheDraftWithin255PicksAnd9Rounds) {
  struct Case {
    int teams;
    const char* typed;
    int stored;
  } cases[] = {{29, "9", 8}, {28, "9", 9}, {50, "9", 5}, {8, "12", 9}, {8, "0", 1}, {8, "x", 1}, {0, "9", 9}};
  for (const auto& c : cases) EXPECT_EQ(DraftRoundsFor(Val(c.typed), c.teams), c.stored) << c.teams << " " << c.typed;
}

TEST(OptionsForm, CloseAsksOnlyWithChangesAndAppliesOnYes) {
  for (const char* answer : std::initializer_list<const char*>{"yes", "no", nullptr}) {
    Harness h;
    h.load(StandardLeague(4));
    Options o(h.state);
    if (answer) o.set("ShotsLevel", "2"), h.ui.push(answer);
    o.cmdClose();
    EXPECT_EQ(h.ui.callsOf("ask").size(), answer ? 1u : 0u);
    EXPECT_EQ(h.state.league.ShotsLevel(), answer && *answer == 'y' ? 2 : 5);
    EXPECT_TRUE(answer || !h.state.Dirty);
  }
}

TEST(OptionsForm, ThePlayoffSizeIsNotChangedOnceThePlayoffsRun) {
  Harness h;
  h.load(StandardLeague(4));
  h.state.league.InPlayoffs = kTrue;
  Options o(h.state);
  o.set("PlayoffSize", "2");
  o.cmdApply();
  EXPECT_EQ(h.state.league.PlayoffSize, 0);
}

TEST(PlayerDatabaseTest, ARefusedRenameIsCopiedInsteadAndKeepsEveryOtherRecord) {
  Harness h;
  h.load(StandardLeague(2));
  const fs::path file = h.dir.path() / "new.drs";
  std::vector<DbRecord> v;
  for (int i = 1; i <= 4; ++i) v.push_back({0, MakePlayer("P" + std::to_string(i), i % 5, 40 + i)});
  Bytes expected = EncodeRecords(v);
  WriteFileAtomic(file, expected);
  FailingFileSystem failing(2);  // the rename
  h.state.fileSystem = &failing;
  frmPlayerDB f(h.state, file);
  h.ui.push("yes");
  EXPECT_TRUE(f.cmdDelete(2));
  h.state.fileSystem = &RealFileSystem();
  expected.erase(expected.begin() + 2 * 88, expected.begin() + 3 * 88);
  EXPECT_EQ(ReadFileBytes(file), expected);
  EXPECT_FALSE(fs::exists(h.state.AppPath / "temp.drs"));
}

// The command line always names the file; the form also asks for one.
TEST(PlayerDatabaseTest, AnUpdateAsksFirstAndForTheFile) {
  Harness h;
  h.load(StandardLeague(2));
  for (const char* a : {"no", "yes", "<cancel>"}) h.ui.push(a);
  EXPECT_FALSE(UpdateStats(h.state)) << "declined";
  EXPECT_FALSE(UpdateStats(h.state)) << "no file chosen";
  EXPECT_EQ(h.ui.callsOf("chooseFile").size(), 1u);
}

}  // namespace
}  // namespace kvl::test
