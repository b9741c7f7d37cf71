// The player database form and the ratings update: deletes keep every other
// record byte for byte, bad files are refused at open, namesakes take
// successive records, and a merge gives the league the database's values.
#include "admin/player_database.h"

#include <gtest/gtest.h>

#include "admin/update_stats.h"
#include "league/league_files.h"
#include "support/league_fixture.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl::test {
namespace {

struct PlayerDatabaseTest : ::testing::Test {
  Harness h;
  fs::path file;
  void SetUp() override {
    h.load(StandardLeague(2));
    file = h.dir.path() / "new.drs";
  }
  // Records named "P1".."Pn" with ratings 41.., each a different byte pattern.
  Bytes Write(int n) {
    Bytes all;
    for (int i = 1; i <= n; ++i) {
      Bytes r =
          EncodeRecord(DbRecord{static_cast<i16>(i % 2 ? 0 : -1), MakePlayer("P" + std::to_string(i), i % 5, 40 + i)});
      all.insert(all.end(), r.begin(), r.end());
    }
    WriteFileAtomic(file, all);
    return all;
  }
};

TEST_F(PlayerDatabaseTest, DeletingKeepsEveryOtherRecordByteForByte) {
  struct Case {
    const char* what;
    int records, index;
    const char* answer;
  } cases[] = {
      {"the first", 4, 0, "yes"},  {"one in the middle", 4, 2, "yes"},
      {"the last", 4, 3, "yes"},   {"the only one leaves an empty database", 1, 0, "yes"},
      {"answered no", 4, 1, "no"},
  };
  for (const auto& c : cases) {
    Bytes expected = Write(c.records);
    frmPlayerDB f(h.state, file);
    h.ui.push(c.answer);
    const bool yes = std::string(c.answer) == "yes";
    EXPECT_EQ(f.cmdDelete(c.index), yes) << c.what;
    EXPECT_EQ(h.ui.callsOf("ask").back().text, "Delete P" + std::to_string(c.index + 1) + " ?") << c.what;
    if (yes) {
      const auto at = expected.begin() + c.index * static_cast<long>(DbRecord::kSize);
      expected.erase(at, at + DbRecord::kSize);
    }
    EXPECT_EQ(ReadFileBytes(file), expected) << c.what;
    EXPECT_EQ(frmPlayerDB(h.state, file).records().size(), f.records().size()) << c.what << ": opens again";
  }
}

TEST_F(PlayerDatabaseTest, AFileOfPartRecordsIsRefusedAtOpen) {
  Bytes all = Write(2);
  for (std::size_t cut : {std::size_t{1}, DbRecord::kSize + 1}) {
    WriteFileAtomic(file, Bytes(all.begin(), all.end() - static_cast<long>(cut)));
    try {
      frmPlayerDB f(h.state, file);
      ADD_FAILURE() << "opened a file cut by " << cut;
    } catch (const KvlError& e) {
      EXPECT_NE(std::string(e.what()).find(file.string()), std::string::npos) << e.what();
    }
  }
}

TEST_F(PlayerDatabaseTest, NamesakesTakeSuccessiveRecordsOnce) {
  loadteam(h.state, 0, 0);
  h.state.player(0, 0).Name.set("Twin");
  h.state.player(0, 5).Name.set("Twin");
  SaveTeam(h.state, 0, 0);
  loadteam(h.state, 1, 0);
  h.state.player(0, 0).Name.set("Twin");
  const u8 untouched = h.state.player(0, 0).rating(kSpd);
  SaveTeam(h.state, 1, 0);
  Bytes all;
  for (auto [name, level] : {std::pair{"Twin", 61}, {"Other", 62}, {"Twin", 63}}) {
    Bytes r = EncodeRecord(DbRecord{0, MakePlayer(name, kGoalie, level)});
    all.insert(all.end(), r.begin(), r.end());
  }
  WriteFileAtomic(file, all);
  h.ui.push("yes");
  h.ui.push("no");
  ASSERT_TRUE(UpdateStats(h.state, file));
  loadteam(h.state, 0, 0);
  EXPECT_EQ(h.state.player(0, 0).rating(kSpd), 61);
  EXPECT_EQ(h.state.player(0, 5).rating(kSpd), 63);
  EXPECT_EQ(h.state.player(0, 5).Pos, kGoalie);
  loadteam(h.state, 1, 0);
  EXPECT_EQ(h.state.player(0, 0).rating(kSpd), untouched) << "no record of the name is left";
  EXPECT_TRUE(h.ui.told("Done", "Update Ratings"));
}

TEST_F(PlayerDatabaseTest, AMergeTakesTheValuesAndFreesTheRest) {
  loadteam(h.state, 0, 0);
  const std::string name = h.state.player(0, 3).Name.str();
  Bytes all;
  for (auto [n, level] : {std::pair{name, 88}, {std::string("Left Over"), 70}}) {
    Bytes r = EncodeRecord(DbRecord{-1, MakePlayer(n, kCentre, level)});
    all.insert(all.end(), r.begin(), r.end());
  }
  WriteFileAtomic(file, all);
  const std::size_t before = RecordFile(h.state.swap(swp::Database), DbRecord::kSize).count();
  frmPlayerDB f(h.state, file);
  h.ui.push("no");
  f.cmdMerge();
  loadteam(h.state, 0, 0);
  EXPECT_EQ(h.state.player(0, 3).rating(kSco), 88);
  EXPECT_EQ(h.state.player(0, 3).Salary, 500000);
  EXPECT_NE(f.records()[0].DbFlag, 0);
  RecordFile league(h.state.swap(swp::Database), DbRecord::kSize);
  ASSERT_EQ(league.count(), before + 1);
  EXPECT_EQ(league.getRecord<DbRecord>(before + 1).P.Name.str(), "Left Over");
  EXPECT_TRUE(h.ui.told("Done", "Merge Database"));
}

}  // namespace
}  // namespace kvl::test
