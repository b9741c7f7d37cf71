// The player database form: a delete keeps every other record byte for byte, even when the file
// system refuses the rename. Fields, listings, merges and the ratings update are the forms
// transcript's (e2e/golden/forms_database.txt, forms_merge_update.txt).
#include "admin/player_database.h"

#include "admin/update_stats.h"
#include "support/failing_file_system.h"
#include "support/kvl_test.h"

namespace kvl::test {
namespace {

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
