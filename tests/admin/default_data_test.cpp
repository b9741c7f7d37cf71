#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "admin/default_data.h"
#include "console/startup.h"
#include "league/ratings.h"
#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl {
namespace {

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

TEST(DefaultData, AFreshHomeIsSeededAndKeepsFilesItAlreadyHas) {
  test::TempDir dir;
  fs::path home = dir.path() / "home";
  fs::create_directories(home);
  WriteFileAtomic(home / "default.drs", Bytes(88, 1));
  PrepareHomeFolder(home);
  EXPECT_EQ(ReadFileBytes(home / "default.drs"), Bytes(88, 1));
  for (const char* name : {"default.lge", "default.coa", "inj.dtf"})
    EXPECT_EQ(ReadFileBytes(home / name), ReadFileBytes(fs::path(KVL_DATA_DIR) / name)) << name;
}

class DefaultPlayers : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { players_ = new std::vector<DbRecord>(MakeDefaultPlayers()); }
  static void TearDownTestSuite() { delete players_; }
  static const std::vector<DbRecord>& players() { return *players_; }
  static inline std::vector<DbRecord>* players_ = nullptr;
};

TEST_F(DefaultPlayers, AreManyUniqueAndFree) {
  ASSERT_GE(players().size(), 1200u);
  std::set<std::string> names;
  for (const DbRecord& r : players()) {
    EXPECT_EQ(r.DbFlag, 0);
    EXPECT_TRUE(names.insert(r.P.Name.str()).second) << "twice: " << r.P.Name.str();
    EXPECT_NE(r.P.Name.str().find(' '), std::string::npos) << "first and last name: " << r.P.Name.str();
    EXPECT_EQ(r.P.Birthplace.str().size(), 3u);
    EXPECT_GE(r.P.Age, 18);
    EXPECT_LE(r.P.Age, 38);
    EXPECT_GE(r.P.Contract, 1);
    EXPECT_LE(r.P.Contract, 5);
    EXPECT_TRUE(r.P.Hand == 'L' || r.P.Hand == 'R');
    EXPECT_GE(r.P.Height, 66);
    EXPECT_LE(r.P.Height, 80);
  }
}

TEST_F(DefaultPlayers, PositionsComeInHockeyProportions) {
  // Share in percent: at least, at most; and enough of each for 50 clubs of 28.
  struct Share { int lo, hi, forFiftyClubs; };
  constexpr std::array<Share, 5> kShares{{{15, 22, 250}, {15, 22, 250}, {15, 22, 250}, {28, 36, 450}, {10, 15, 200}}};
  std::array<int, 5> count{};
  for (const DbRecord& r : players()) ++count.at(r.P.Pos);
  int total = static_cast<int>(players().size());
  for (std::size_t pos = 0; pos < 5; ++pos) {
    EXPECT_GE(count[pos] * 100, kShares[pos].lo * total) << "position " << pos;
    EXPECT_LE(count[pos] * 100, kShares[pos].hi * total) << "position " << pos;
    EXPECT_GE(count[pos], kShares[pos].forFiftyClubs) << "position " << pos;
  }
}

TEST_F(DefaultPlayers, OverallSpreadsFromFortyToTheLowNineties) {
  std::map<int, int> byTen;
  int lo = 99, hi = 0;
  for (const DbRecord& r : players()) {
    int ov = Overall(r.P);
    lo = std::min(lo, ov);
    hi = std::max(hi, ov);
    ++byTen[ov / 10];
  }
  EXPECT_GE(lo, 38);
  EXPECT_LE(lo, 45);
  EXPECT_GE(hi, 89);
  EXPECT_LE(hi, 94);
  // Stars are rare, the middle is crowded.
  EXPECT_LT(byTen[9], byTen[8]);
  EXPECT_LT(byTen[8], byTen[6]);
}

double Mean(const std::vector<DbRecord>& ps, auto select, auto value) {
  double sum = 0;
  int n = 0;
  for (const DbRecord& r : ps)
    if (select(r.P)) sum += value(r.P), ++n;
  return n ? sum / n : 0;
}

TEST_F(DefaultPlayers, RatingsFollowThePosition) {
  auto pos = [](int p) { return [p](const Player& x) { return x.Pos == p; }; };
  auto rating = [](int i) { return [i](const Player& x) { return double(x.rating(i)); }; };
  // Goalies are strong where their Overall looks, and weak where it does not.
  EXPECT_GT(Mean(players(), pos(kGoalie), rating(kSpd)), Mean(players(), pos(kGoalie), rating(kDef)) + 20);
  EXPECT_GT(Mean(players(), pos(kGoalie), rating(kPcc)), Mean(players(), pos(kGoalie), rating(kSco)) + 30);
  EXPECT_GT(Mean(players(), pos(kDefence), rating(kDef)), Mean(players(), pos(kLeftWing), rating(kDef)) + 8);
  EXPECT_GT(Mean(players(), pos(kRightWing), rating(kSco)), Mean(players(), pos(kDefence), rating(kSco)) + 8);
  EXPECT_GT(Mean(players(), pos(kCentre), rating(kPas)), Mean(players(), pos(kDefence), rating(kPas)));
}

TEST_F(DefaultPlayers, PayAndExperienceFollowQualityAndAge) {
  auto salary = [](const Player& p) { return double(p.Salary); };
  double stars = Mean(players(), [](const Player& p) { return Overall(p) >= 80; }, salary);
  double fringe = Mean(players(), [](const Player& p) { return Overall(p) < 60; }, salary);
  EXPECT_GT(stars, 3 * fringe);
  auto exp = [](const Player& p) { return double(p.rating(kExp)); };
  EXPECT_GT(Mean(players(), [](const Player& p) { return p.Age >= 32; }, exp),
            Mean(players(), [](const Player& p) { return p.Age <= 21; }, exp) + 25);
}

TEST(DefaultCoaches, AreSpreadWithinTheirLimits) {
  std::vector<Coach> coaches = MakeDefaultCoaches();
  ASSERT_GE(coaches.size(), 60u);
  int lo = 99, hi = 0;
  for (const Coach& c : coaches) {
    for (u8 r : {c.OF, c.DF, c.EX, c.LD}) {
      EXPECT_GE(r, 50);
      EXPECT_LE(r, 99);
    }
    lo = std::min<int>(lo, c.OF);
    hi = std::max<int>(hi, c.OF);
    EXPECT_EQ(c.Team, Coach::kNoTeam);
    EXPECT_EQ(c.Salary % 2, 0) << "stored at twice the amount shown";
    EXPECT_GE(c.Salary / 2, 50000);
    EXPECT_LE(c.Salary / 2, 10000000);
  }
  EXPECT_GE(hi - lo, 30);
}

TEST(DefaultInjuries, EveryClassHasSeveralTexts) {
  std::vector<InjuryText> texts = DefaultInjuryTexts();
  ASSERT_LE(texts.size(), 100u);
  std::array<int, 7> perClass{};
  for (const InjuryText& t : texts) {
    ASSERT_GE(t.Class, 1);
    ASSERT_LE(t.Class, 6);
    ++perClass[t.Class];
    EXPECT_FALSE(t.Text.str().empty());
  }
  for (int c = 1; c <= 6; ++c) EXPECT_GE(perClass[static_cast<std::size_t>(c)], 5) << "class " << c;
}

}  // namespace
}  // namespace kvl
