// The player database form and the ratings update: edits, deletes that keep every other record byte
// for byte, namesakes taking successive records, and merges giving the league the database's values.
// A file of part records refused at open is the e2e tests'.
#include "admin/player_database.h"

#include "admin/update_stats.h"
#include "support/failing_file_system.h"
#include "support/golden.h"
#include "support/kvl_test.h"

namespace kvl::test {
namespace {

struct PlayerDatabaseTest : ::testing::Test {
  Harness h;
  fs::path file;
  void SetUp() override {
    h.load(StandardLeague(2));
    file = h.dir.path() / "new.drs";
  }
  // Records named "P1".."Pn" with ratings 41.., even ones used.
  Bytes Write(int n) {
    std::vector<DbRecord> v;
    for (int i = 1; i <= n; ++i)
      v.push_back({static_cast<i16>(i % 2 ? 0 : -1), MakePlayer("P" + std::to_string(i), i % 5, 40 + i)});
    return WriteDb(v);
  }
  Bytes WriteDb(const std::vector<DbRecord>& v) {
    Bytes bytes = EncodeRecords(v);
    WriteFileAtomic(file, bytes);
    return bytes;
  }
};

TEST_F(PlayerDatabaseTest, DeletingKeepsEveryOtherRecordByteForByte) {
  struct Case {
    const char* what;
    int records, index;
    const char* answer;
    int failAt = 0;  // the file system step that fails
  } cases[] = {
      {"a middle one", 4, 1, "yes"},
      {"answered no", 4, 1, "no"},
      {"a refused rename is copied instead", 4, 2, "yes", 2},
  };
  for (const auto& c : cases) {
    Bytes expected = Write(c.records);
    FailingFileSystem failing(c.failAt);
    h.state.fileSystem = &failing;
    frmPlayerDB f(h.state, file);
    h.ui.push(c.answer);
    const bool yes = std::string(c.answer) == "yes";
    EXPECT_EQ(f.cmdDelete(c.index), yes) << c.what;
    h.state.fileSystem = &RealFileSystem();
    if (yes) expected.erase(expected.begin() + c.index * 88, expected.begin() + (c.index + 1) * 88);
    EXPECT_EQ(ReadFileBytes(file), expected) << c.what;
    EXPECT_FALSE(fs::exists(h.state.AppPath / "temp.drs")) << c.what;
  }
}

TEST_F(PlayerDatabaseTest, FieldsTakeOnlyValuesThatFitAndUpdateWritesThem) {
  // What the fields show afterwards; nullptr: refused, nothing changes.
  const std::tuple<const char*, const char*, const char*> cases[] = {
      {"Name", "Zed Zulu", "Name Zed Zulu\n"},
      {"Birthplace", "Finland", "Birthplace Fin\n"},
      {"Hand", "R", "Hand R "},
      {"Hand", "X", nullptr},
      {"Salary", "$1500", "Salary $1,500"},
      {"Salary", "-1", nullptr},
      {"Spd", "77", "Spd 77 "},
      {"Spd", "256", nullptr},
      {"Pos", "D", "Pos D "},
      {"Pos", "Q", nullptr},
      {"Contract", "3", "Contract 3 "},
      {"Colour", "red", nullptr},
  };
  Write(3);
  frmPlayerDB f(h.state, file);
  const Bytes untouched = ReadFileBytes(file);
  f.cmdUpdate();  // nothing selected
  EXPECT_EQ(ReadFileBytes(file), untouched);
  f.Select(1);
  for (auto [field, text, shown] : cases) {
    const std::string before = f.FieldsText();
    EXPECT_EQ(f.SetField(field, text), shown != nullptr) << field << "=" << text;
    const std::string after = f.FieldsText();
    EXPECT_TRUE(shown ? after.find(shown) != std::string::npos : after == before) << text << "\n" << after;
  }
  f.cmdUpdate();
  const Player p = frmPlayerDB(h.state, file).records()[1].P;
  EXPECT_EQ(p.Name.str() + "|" + std::to_string(p.Salary), "Zed Zulu|1500");
}

TEST_F(PlayerDatabaseTest, ListingAddingClearingAndThePlayersPage) {
  Player odd = MakePlayer("Odd", 7, 50);
  odd.rating(kSco) = 255;
  odd.Hand = 0;
  WriteDb({{0, MakePlayer("Plain", kCentre, 60)}, {-1, odd}});
  frmPlayerDB f(h.state, file);
  EXPECT_EQ(f.LineText(0).find("used"), std::string::npos) << f.LineText(0);
  EXPECT_TRUE(f.LineText(1).ends_with("  used")) << f.LineText(1);
  EXPECT_NE(f.LineText(1).find("Odd                     ?"), std::string::npos) << f.LineText(1);
  f.Select(1);
  EXPECT_NE(f.FieldsText().find("Hand na"), std::string::npos) << f.FieldsText();
  EXPECT_NE(ReadAll(f.cmdOutput()).find(" NA "), std::string::npos) << "a rating of 255 is shown as NA";
  f.cmdAdd();
  EXPECT_EQ(frmPlayerDB(h.state, file).records().size(), 3u);
  h.ui.push("no");
  EXPECT_FALSE(f.cmdClear());
  EXPECT_EQ(fs::file_size(file), 3 * DbRecord::kSize);
  h.ui.push("yes");
  EXPECT_TRUE(f.cmdClear());
  EXPECT_EQ(fs::file_size(file), 0u);
}

// Team 0 has Twin at slots 0 and 5 and the prospect Kid, team 1 a Twin at slot 0, and the league's
// database the free agent Free Guy.
TEST_F(PlayerDatabaseTest, UpdateGivesNamesakesSuccessiveRecordsAndReachesProspectsAndFreeAgents) {
  Player kid = MakePlayer("Kid", kDefence, 50);
  kid.Salary = 4000000;  // 40,000 hundreds: more than the field holds
  kid.Age = 19;
  kid.Contract = 3;
  WriteDb({{0, MakePlayer("Twin", kGoalie, 61)},
           {0, MakePlayer("Free Guy", kCentre, 66)},
           {0, MakePlayer("Twin", kGoalie, 63)},
           {0, kid}});
  loadteam(h.state, 0, 0);
  h.state.player(0, 0).Name.set("Twin");
  h.state.player(0, 5).Name.set("Twin");
  h.state.Prospects[0].Name[4].set("Kid");
  SaveTeam(h.state, 0, 0);
  loadteam(h.state, 1, 0);
  h.state.player(0, 0).Name.set("Twin");
  const u8 untouched = h.state.player(0, 0).rating(kSpd);
  SaveTeam(h.state, 1, 0);
  RecordFile(h.state.swap(swp::Database), DbRecord::kSize)
      .putRecord(2, DbRecord{0, MakePlayer("Free Guy", kCentre, 40)});
  for (const char* a : {"no", "yes", "no", "<cancel>", "yes", "yes"}) h.ui.push(a);
  EXPECT_FALSE(UpdateStats(h.state)) << "declined";
  EXPECT_FALSE(UpdateStats(h.state)) << "no file chosen";
  ASSERT_TRUE(UpdateStats(h.state, file));
  EXPECT_TRUE(
      h.ui.told("Warning Kid new salary is greater than the maximum integer size. It has been lowered to 32,767",
                "Update Ratings"));
  loadteam(h.state, 0, 0);
  EXPECT_EQ((std::array{int(h.state.player(0, 0).rating(kSpd)), int(h.state.player(0, 5).rating(kSpd)),
                        int(h.state.player(0, 5).Pos)}),
            (std::array{61, 63, int(kGoalie)}));
  const ProspectList& l = h.state.Prospects[0];
  EXPECT_EQ((std::array{int(l.Salary[4]), int(l.Pos[4]), int(l.Age[4]), int(l.Contract[4])}),
            (std::array{32767, int(kDefence), 19, 3}));
  loadteam(h.state, 1, 0);
  EXPECT_EQ(h.state.player(0, 0).rating(kSpd), untouched) << "no record of the name is left";
  DbRecord agent = RecordFile(h.state.swap(swp::Database), DbRecord::kSize).getRecord<DbRecord>(2);
  EXPECT_EQ(agent.P.rating(kSpd), 66);
}

TEST_F(PlayerDatabaseTest, AMergeTakesTheValuesAndFreesTheRest) {
  for (const char* salaries : {"no", "yes"}) {
    Harness fresh;
    fresh.load(StandardLeague(2));
    loadteam(fresh.state, 0, 0);
    const Player before = fresh.state.player(0, 3);
    Player db = MakePlayer(before.Name.str(), kCentre, 88);
    db.Salary = 900000;
    WriteDb({{-1, db}, {-1, MakePlayer("Left Over", kCentre, 70)}});
    const std::size_t count = RecordFile(fresh.state.swap(swp::Database), DbRecord::kSize).count();
    frmPlayerDB f(fresh.state, file);
    fresh.ui.push(salaries);
    f.cmdMerge();
    loadteam(fresh.state, 0, 0);
    EXPECT_EQ(fresh.state.player(0, 3).rating(kSco), 88);
    EXPECT_EQ(fresh.state.player(0, 3).Salary, *salaries == 'y' ? 900000 : before.Salary);
    EXPECT_NE(f.records()[0].DbFlag, 0);
    EXPECT_EQ(f.records()[1].DbFlag, 0);
    RecordFile league(fresh.state.swap(swp::Database), DbRecord::kSize);
    ASSERT_EQ(league.count(), count + 1);
    EXPECT_EQ(league.getRecord<DbRecord>(count + 1).P.Name.str(), "Left Over");
  }
}

}  // namespace
}  // namespace kvl::test
