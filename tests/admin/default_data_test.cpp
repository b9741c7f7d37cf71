#include "admin/default_data.h"

#include <algorithm>
#include <set>

#include "console/startup.h"
#include "support/kvl_test.h"

namespace kvl {
namespace {

// Seeding a home folder from these files is the start-up tests'.
TEST(DefaultData, TheGeneratorRemakesTheCommittedFilesByteForByte) {
  test::TempDir dir;
  WriteDefaultFiles(dir.path(), true);
  for (const char* name : {"default.lge", "default.coa", "default.drs", "inj.dtf"}) {
    Bytes made = ReadFileBytes(dir.path() / name);
    Bytes kept = ReadFileBytes(fs::path(KVL_DATA_DIR) / name);
    ASSERT_EQ(made.size(), kept.size()) << name;
    auto diff = std::mismatch(made.begin(), made.end(), kept.begin());
    EXPECT_TRUE(diff.first == made.end()) << name << " differs at byte " << (diff.first - made.begin());
  }
}

// The generator is held to the committed files above; these are the
// properties those files were made to have.
TEST(DefaultPlayers, AreManyUniqueAndFree) {
  const std::vector<DbRecord> players = MakeDefaultPlayers();
  ASSERT_GE(players.size(), 1200u);
  std::set<std::string> names;
  auto within = [](int v, int lo, int hi) { return v >= lo && v <= hi; };
  for (const DbRecord& r : players) {
    const Player& p = r.P;
    EXPECT_TRUE(names.insert(p.Name.str()).second) << "twice: " << p.Name.str();
    EXPECT_NE(p.Name.str().find(' '), std::string::npos) << "first and last name: " << p.Name.str();
    EXPECT_TRUE(r.DbFlag == 0 && p.Birthplace.str().size() == 3 && (p.Hand == 'L' || p.Hand == 'R') &&
                within(p.Age, 18, 38) && within(p.Contract, 1, 5) && within(p.Height, 66, 80))
        << p.Name.str();
  }
}

}  // namespace
}  // namespace kvl
