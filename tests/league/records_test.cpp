// Byte layouts of every record: sizes, field offsets as the file formats give
// them, and round trips of arbitrary bytes.
#include <gtest/gtest.h>

#include <random>

#include "league/records.h"

namespace kvl {
namespace {

// One field of a layout table: "Div.Name#2" is the third field of that name.
struct Expect {
  std::string field;
  std::size_t offset;
  std::size_t size;
};

const FieldMapper::Field* Find(const std::vector<FieldMapper::Field>& map, const std::string& key) {
  std::string name = key;
  std::size_t nth = 0;
  if (auto hash = key.find('#'); hash != std::string::npos) {
    name = key.substr(0, hash);
    nth = std::stoul(key.substr(hash + 1));
  }
  for (const auto& f : map)
    if (f.name == name && nth-- == 0) return &f;
  return nullptr;
}

template <class R>
void CheckLayout(const std::vector<Expect>& table) {
  auto map = FieldMap<R>();
  for (const auto& e : table) {
    const auto* f = Find(map, e.field);
    ASSERT_NE(f, nullptr) << "no field " << e.field;
    EXPECT_EQ(f->offset, e.offset) << e.field;
    EXPECT_EQ(f->size, e.size) << e.field;
  }
}

// The field that holds byte `at`, to name a difference.
template <class R>
std::string FieldAt(std::size_t at) {
  for (const auto& f : FieldMap<R>())
    if (at >= f.offset && at < f.offset + f.size) return f.name + "+" + std::to_string(at - f.offset);
  return "byte " + std::to_string(at) + " outside every field";
}

TEST(RecordLayout, Player) {
  CheckLayout<Player>({{"Name", 0, 22},       {"Pos", 22, 1},        {"Num", 23, 1},        {"Rookie", 24, 2},
                       {"Hand", 26, 1},       {"Height", 27, 1},     {"Weight", 28, 1},     {"Age", 29, 1},
                       {"Status", 30, 1},     {"Condition", 31, 1},  {"Ratings", 32, 14},   {"Salary", 46, 4},
                       {"Contract", 50, 1},   {"Suspended", 51, 1},  {"GP", 52, 1},         {"G", 53, 1},
                       {"A", 54, 1},          {"Plus", 55, 2},       {"PIM", 57, 2},        {"Shots", 59, 2},
                       {"PP", 61, 1},         {"SH", 62, 1},         {"GW", 63, 1},         {"GT", 64, 1},
                       {"GSStreak", 65, 1},   {"PSStreak", 66, 1},   {"Protected", 67, 2},  {"Traded", 69, 2},
                       {"FarmStatA", 71, 1},  {"FarmStatB", 72, 1},  {"StarPoints", 73, 2}, {"Release", 75, 1},
                       {"Birthplace", 76, 3}, {"InjuryType", 79, 1}, {"HatTricks", 80, 1},  {"FarmStatC", 81, 1},
                       {"FarmStatD", 82, 2},  {"Hits", 84, 2}});
}

TEST(RecordLayout, PlayerRatingsAndTeamLinesByIndex) {
  // Int at 32 through Ldr at 44 and the spare at 45; lines at row + 13 x slot.
  for (int r = kInt; r <= kRatingSpare; ++r) {
    Player p;
    p.rating(r) = 0xA5;
    Bytes b = EncodeRecord(p);
    EXPECT_EQ(std::find(b.begin(), b.end(), 0xA5) - b.begin(), 32 + r) << "rating " << r;
  }
  for (auto [row, slot] : {std::pair{0, 0}, {12, 0}, {0, 1}, {2, 3}, {12, 4}}) {
    Team t;
    t.Lines.at(row, slot) = 7;
    Bytes b = EncodeRecord(t);
    EXPECT_EQ(std::find(b.begin(), b.end(), 7) - b.begin(), 174 + row + 13 * slot) << row << "," << slot;
  }
}

TEST(RecordLayout, Team) {
  CheckLayout<Team>({{"Name", 0, 10},        {"Owner", 10, 25},      {"ExpFwd", 35, 1},      {"ICQ", 36, 12},
                     {"Password", 48, 10},   {"TeamBytesA", 58, 2},  {"TeamByteA", 60, 1},   {"Abbrev", 61, 3},
                     {"Arena", 64, 30},      {"Seats", 94, 2},       {"Ticket", 96, 1},      {"Conf", 97, 1},
                     {"Div", 98, 1},         {"CurFin", 99, 4},      {"Coach.Name", 103, 22}, {"Coach.Salary", 125, 4},
                     {"Coach.Contract", 129, 1}, {"ExpDef", 130, 1}, {"ExpGoal", 131, 1},    {"W", 132, 3},
                     {"L", 135, 3},          {"T", 138, 3},          {"GA", 141, 2},         {"GF", 143, 2},
                     {"Streak", 145, 1},     {"PlayoffOut", 146, 1}, {"DraftOrder", 147, 1}, {"TeamWordA", 148, 2},
                     {"TeamWordB", 150, 2},  {"TeamWordC", 152, 2},  {"TeamByteB", 154, 1},  {"TeamByteC", 155, 1},
                     {"PPO", 156, 2},        {"PPG", 158, 1},        {"PKO", 159, 2},        {"PKG", 161, 1},
                     {"SF", 162, 4},         {"SA", 166, 4},         {"TeamPIM", 170, 4},    {"Lines", 174, 65},
                     {"Attendance", 239, 2}, {"HomeGames", 241, 1},  {"Revenue", 242, 4},    {"TeamByteD", 246, 1},
                     {"Waived", 247, 2},     {"CoachRec", 249, 1},   {"Priority", 250, 1},   {"Expansion", 251, 1},
                     {"LinesOK", 252, 2}});
}

std::vector<Expect> LeagueTable() {
  std::vector<Expect> t{{"LeagueName", 0, 25},     {"NumTeams", 25, 1},         {"Conf.Name#0", 26, 12},
                        {"Conf.NumDivs#0", 38, 1}, {"Conf.Name#1", 123, 12},    {"Conf.NumDivs#1", 135, 1},
                        {"ScheduleMade", 220, 2},  {"SeasonOver", 222, 2},      {"PlayoffSize", 224, 1},
                        {"TradeDeadline", 225, 1}, {"NextGameMark", 226, 2},    {"OptInjuries", 228, 2},
                        {"LgByteA", 230, 1},       {"OptWaivers", 231, 2},      {"ExpansionRounds", 233, 1},
                        {"LgFlagA", 234, 2},       {"UnresAge", 236, 1},        {"LgByteB", 237, 1},
                        {"CheckFlags", 238, 32},   {"OptAutoOutput", 270, 2},   {"GamesPlayed", 272, 2},
                        {"LeagueGames", 274, 2},   {"RootDir", 276, 20},        {"CommandDir", 296, 20},
                        {"LeagueDir", 316, 20},    {"LgTextA", 336, 15},        {"BoxscoreDir", 351, 20},
                        {"OutputDir", 371, 20},    {"CurrentYear", 391, 2},     {"DraftRounds", 393, 1},
                        {"MinGP", 394, 1},         {"AgeExempt", 395, 1},       {"TwoWayAfter", 396, 1},
                        {"FirstDayPending", 397, 2}, {"LgByteC", 399, 1},       {"PlayoffTeams", 400, 1},
                        {"SeedDivLeaders", 401, 2}, {"OptCoach", 403, 2},       {"OptMoney", 405, 2},
                        {"OptSuspensions", 407, 2}, {"OptStreaks", 409, 2},     {"OptFarm", 411, 2},
                        {"OptExpLdr", 413, 2},     {"LgWordA", 415, 2},         {"ExpansionDraftOn", 417, 2},
                        {"InPlayoffs", 419, 2},    {"OffSeason", 421, 2},       {"EntryDraftOn", 423, 2},
                        {"DraftRound", 425, 1},    {"DraftPick", 426, 1},       {"OptLottery", 427, 2},
                        {"OptFarmStreaks", 429, 1}, {"PointSystem", 430, 1},    {"LgByteD", 431, 1},
                        {"Slider", 432, 5},        {"Exhibition", 437, 2},      {"LgWords", 439, 20}};
  // Each conference holds four divisions of 21 bytes: name 10, count 1, teams 10.
  for (std::size_t d = 0; d < 8; ++d) {
    std::size_t base = (d < 4 ? 39 : 136) + 21 * (d % 4);
    std::string n = "#" + std::to_string(d);
    t.push_back({"Div.Name" + n, base, 10});
    t.push_back({"Div.NumTeams" + n, base + 10, 1});
    t.push_back({"Div.Team" + n, base + 11, 10});
  }
  return t;
}

TEST(RecordLayout, League) { CheckLayout<League>(LeagueTable()); }

TEST(RecordLayout, LeagueSlidersInOrder) {
  League lg;
  lg.InjuriesLevel() = 1, lg.ShotsLevel() = 2, lg.PenaltiesLevel() = 3, lg.GoalsLevel() = 4, lg.FinancesLevel() = 5;
  Bytes b = EncodeRecord(lg);
  EXPECT_EQ(Bytes(b.begin() + 432, b.begin() + 437), (Bytes{1, 2, 3, 4, 5}));
}

TEST(RecordLayout, SmallRecords) {
  CheckLayout<ProspectList>({{"Name", 0, 2200}, {"Pos", 2200, 100}, {"Salary", 2300, 200}, {"Age", 2500, 100},
                             {"Contract", 2600, 100}});
  CheckLayout<Coach>({{"Name", 0, 22}, {"OF", 22, 1}, {"DF", 23, 1}, {"EX", 24, 1}, {"LD", 25, 1},
                      {"Salary", 26, 4}, {"Team", 30, 1}});
  CheckLayout<FarmTeam>({{"Name", 0, 15}, {"W", 15, 1}, {"L", 16, 1}, {"T", 17, 1}, {"GF", 18, 2}, {"GA", 20, 2},
                         {"Recent", 22, 21}});
  CheckLayout<DbRecord>({{"DbFlag", 0, 2}, {"Name", 2, 22}, {"Salary", 48, 4}, {"Hits", 86, 2}});
  CheckLayout<CareerRecord>({{"Team", 0, 1}, {"Name", 1, 22}, {"Salary", 47, 4}, {"Hits", 85, 2}});
  CheckLayout<WaiverRecord>({{"Name", 0, 22}, {"Slot", 22, 1}, {"Holder", 23, 1}, {"WaivedAt", 24, 8},
                             {"ClaimedBy", 32, 1}, {"Owner", 33, 1}, {"Open", 34, 98}, {"Active", 132, 2}});
  CheckLayout<DraftListRecord>({{"Name", 0, 22}, {"FieldA", 22, 2}, {"FieldB", 24, 10}, {"FieldC", 34, 10},
                                {"FieldD", 44, 1}, {"FieldE", 45, 2}});
  CheckLayout<ContractFuture>({{"Value", 0, 100}, {"OwnerTeam", 100, 250}, {"Amount", 350, 1000}});
  CheckLayout<DraftPickRecord>({{"CurrentYear#0", 0, 1}, {"Round#0", 1, 1}, {"OrigTeam#0", 2, 1}, {"Owner#0", 3, 1},
                                {"Active#0", 4, 2}, {"CurrentYear#1", 6, 1}, {"Active#255", 1534, 2}});
  CheckLayout<ScheduleRecord>({{"HomeTeam", 0, 1}, {"HomeScore", 1, 1}, {"AwayTeam", 2, 1}, {"AwayScore", 3, 1},
                               {"Played", 4, 2}, {"GameNumber", 6, 2}, {"DayA", 8, 2}, {"GameDay", 10, 2},
                               {"Overtime", 12, 1}, {"Reserved", 13, 18}});
  CheckLayout<ScheduleRecord13>({{"Home", 0, 1}, {"HomeScore", 1, 1}, {"Away", 2, 1}, {"AwayScore", 3, 1},
                                 {"GameNumber", 4, 2}, {"Played", 6, 2}, {"DayA", 8, 2}, {"DayB", 10, 2},
                                 {"Overtime", 12, 1}});
  CheckLayout<ScheduleRecord6>({{"Home", 0, 1}, {"HomeScore", 1, 1}, {"Away", 2, 1}, {"AwayScore", 3, 1},
                                {"Played", 4, 2}});
  CheckLayout<PlayoffState>({{"SeriesHome", 0, 40}, {"SeriesAway", 40, 40}, {"HomeWins", 80, 40},
                             {"AwayWins", 120, 40}, {"PlayoffRound", 160, 1}, {"SeriesDone", 161, 80},
                             {"Seeds", 241, 49}, {"DivLeader", 290, 98}});
  CheckLayout<LinesFileRecord>({{"TeamNumber", 0, 1}, {"Password", 1, 10}, {"Zero", 11, 10}, {"Lines", 21, 65},
                                {"Status", 86, 50}, {"Protected", 136, 100}});
  CheckLayout<InjuryText>({{"Text", 0, 30}, {"Class", 30, 1}});
}

TEST(RecordLayout, ArraysOfArraysVarySlotFastest) {
  ContractFuture f;
  f.OwnerTeam[2][7] = 0xAB;
  f.Amount[4][49] = 0x01020304;
  Bytes b = EncodeRecord(f);
  EXPECT_EQ(b[100 + 2 * 50 + 7], 0xAB);
  std::size_t at = 350 + 4 * (4 * 50 + 49);
  EXPECT_EQ((Bytes{b[at], b[at + 1], b[at + 2], b[at + 3]}), (Bytes{4, 3, 2, 1}));

  PlayoffState p;
  p.SeriesAway[PlayoffState::Index(3, 1)] = 9;  // stage + 5 x series
  EXPECT_EQ(EncodeRecord(p)[40 + 3 + 5], 9);
}

TEST(RecordLayout, IntegersAreLittleEndianAndBooleansAllOnes) {
  Player p;
  p.Salary = 0x01020304, p.Plus = -2, p.Rookie = kTrue;
  Bytes b = EncodeRecord(p);
  EXPECT_EQ((Bytes{b[46], b[47], b[48], b[49], b[55], b[56], b[24], b[25]}), (Bytes{4, 3, 2, 1, 0xFE, 0xFF, 0xFF, 0xFF}));

  WaiverRecord w;
  w.WaivedAt = 2.5;  // 0x4004000000000000
  Bytes wb = EncodeRecord(w);
  EXPECT_EQ((Bytes(wb.begin() + 24, wb.begin() + 32)), (Bytes{0, 0, 0, 0, 0, 0, 0x04, 0x40}));
}

TEST(RecordLayout, ShortInputIsAnError) {
  Bytes b(Player::kSize - 1, 0);
  EXPECT_THROW(DecodeRecord<Player>(b), KvlError);
}

TEST(RecordLayout, SizesAreTheFileRecordLengths) {
  EXPECT_EQ((std::vector<std::size_t>{Player::kSize, Team::kSize, League::kSize, ProspectList::kSize, Coach::kSize,
                                      FarmTeam::kSize, DbRecord::kSize, CareerRecord::kSize, WaiverRecord::kSize,
                                      DraftListRecord::kSize, ContractFuture::kSize, DraftPickRecord::kSize,
                                      ScheduleRecord::kSize, ScheduleRecord13::kSize, ScheduleRecord6::kSize,
                                      PlayoffState::kSize, LinesFileRecord::kSize, InjuryText::kSize}),
            (std::vector<std::size_t>{86, 254, 459, 2700, 31, 43, 88, 87, 134, 47, 1350, 1536, 31, 13, 6, 388, 236, 31}));
}

// Every record type: fields that fill it, and bytes that survive a decode and encode.
template <class R>
class RecordRoundTrip : public ::testing::Test {};

using AllRecords = ::testing::Types<Player, Team, League, ProspectList, Coach, FarmTeam, DbRecord, CareerRecord,
                                    WaiverRecord, DraftListRecord, ContractFuture, DraftPickRecord, ScheduleRecord,
                                    ScheduleRecord13, ScheduleRecord6, PlayoffState, LinesFileRecord, InjuryText>;
TYPED_TEST_SUITE(RecordRoundTrip, AllRecords);

TYPED_TEST(RecordRoundTrip, FieldsFillTheRecordWithNoGapOrOverlap) {
  std::size_t at = 0;
  for (const auto& f : FieldMap<TypeParam>()) {
    EXPECT_EQ(f.offset, at) << f.name;
    at = f.offset + f.size;
  }
  EXPECT_EQ(at, TypeParam::kSize);
}

TYPED_TEST(RecordRoundTrip, RandomBytesSurvive) {
  std::mt19937 gen(12345);
  for (int round = 0; round < 25; ++round) {
    Bytes in(TypeParam::kSize);
    for (auto& b : in) b = static_cast<std::uint8_t>(gen());
    if (round == 0) std::fill(in.begin(), in.end(), 0xFF);
    Bytes out = EncodeRecord(DecodeRecord<TypeParam>(in));
    ASSERT_EQ(out.size(), in.size());
    auto diff = std::mismatch(in.begin(), in.end(), out.begin());
    EXPECT_TRUE(diff.first == in.end()) << "round " << round << ": "
                                        << FieldAt<TypeParam>(static_cast<std::size_t>(diff.first - in.begin()));
  }
}

}  // namespace
}  // namespace kvl
