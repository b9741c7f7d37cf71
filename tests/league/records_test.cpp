// Byte layouts of every record: the whole listing of sizes and field offsets
// against the file formats, the bytes of indexed and nested fields, and round
// trips of arbitrary bytes.
#include "league/records.h"

#include <random>

#include "support/golden.h"
#include "support/kvl_test.h"

namespace kvl {
namespace {

// The field that holds byte `at`, to name a difference.
template <class R>
std::string FieldAt(std::size_t at) {
  for (const auto& f : FieldMap<R>())
    if (at >= f.offset && at < f.offset + f.size) return f.name + "+" + std::to_string(at - f.offset);
  return "byte " + std::to_string(at) + " outside every field";
}

// "Name size", then "  field offset size" for every field. The fields must fill
// the record with no gap or overlap. A record that is one group of fields
// repeated (the draft picks) lists the group once. Arbitrary bytes must survive
// a decode and encode.
template <class R>
std::string Listing(const char* record) {
  std::mt19937 gen(12345);
  for (int round = 0; round < 25; ++round) {
    Bytes in(R::kSize);
    for (auto& b : in) b = static_cast<std::uint8_t>(round == 0 ? 0xFF : gen());
    Bytes out = EncodeRecord(DecodeRecord<R>(in));
    auto diff = std::mismatch(in.begin(), in.end(), out.begin(), out.end());
    EXPECT_TRUE(diff.first == in.end()) << record << " round " << round << ": "
                                        << FieldAt<R>(static_cast<std::size_t>(diff.first - in.begin()));
  }
  const auto fields = FieldMap<R>();
  std::size_t at = 0, group = 1;
  for (const auto& f : fields) {
    EXPECT_EQ(f.offset, at) << record << "." << f.name << ": a gap or an overlap";
    at = f.offset + f.size;
  }
  EXPECT_EQ(at, R::kSize) << record;
  while (group < fields.size() && fields[group].name != fields[0].name) ++group;
  std::string out = fmt::format("{} {}\n", record, R::kSize);
  if (group < fields.size())
    out += fmt::format("  {} times, every {} bytes:\n", fields.size() / group, at / (fields.size() / group));
  for (std::size_t i = 0; i < fields.size(); ++i) {
    EXPECT_EQ(fields[i].name, fields[i % group].name) << record << " field " << i;
    if (i < group) out += fmt::format("  {} {} {}\n", fields[i].name, fields[i].offset, fields[i].size);
  }
  return out;
}

TEST(RecordLayout, ListingMatchesTheFileFormatsAndBytesSurvive) {
  std::string text = Listing<Player>("Player") + Listing<Team>("Team") + Listing<League>("League") +
                     Listing<ProspectList>("ProspectList") + Listing<Coach>("Coach") + Listing<FarmTeam>("FarmTeam") +
                     Listing<DbRecord>("DbRecord") + Listing<CareerRecord>("CareerRecord") +
                     Listing<WaiverRecord>("WaiverRecord") + Listing<DraftListRecord>("DraftListRecord") +
                     Listing<ContractFuture>("ContractFuture") + Listing<DraftPickRecord>("DraftPickRecord") +
                     Listing<ScheduleRecord>("ScheduleRecord") + Listing<ScheduleRecord13>("ScheduleRecord13") +
                     Listing<ScheduleRecord6>("ScheduleRecord6") + Listing<PlayoffState>("PlayoffState") +
                     Listing<LinesFileRecord>("LinesFileRecord") + Listing<InjuryText>("InjuryText");
  test::ExpectGolden(__FILE__, "record_layouts.txt", text);
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

TEST(RecordLayout, LeagueSlidersInOrder) {
  League lg;
  lg.InjuriesLevel() = 1, lg.ShotsLevel() = 2, lg.PenaltiesLevel() = 3, lg.GoalsLevel() = 4, lg.FinancesLevel() = 5;
  Bytes b = EncodeRecord(lg);
  EXPECT_EQ(Bytes(b.begin() + 432, b.begin() + 437), (Bytes{1, 2, 3, 4, 5}));
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
  EXPECT_EQ((Bytes{b[46], b[47], b[48], b[49], b[55], b[56], b[24], b[25]}),
            (Bytes{4, 3, 2, 1, 0xFE, 0xFF, 0xFF, 0xFF}));

  WaiverRecord w;
  w.WaivedAt = 2.5;  // 0x4004000000000000
  Bytes wb = EncodeRecord(w);
  EXPECT_EQ((Bytes(wb.begin() + 24, wb.begin() + 32)), (Bytes{0, 0, 0, 0, 0, 0, 0x04, 0x40}));
}

TEST(RecordLayout, ShortInputIsAnError) {
  Bytes b(Player::kSize - 1, 0);
  EXPECT_THROW(DecodeRecord<Player>(b), KvlError);
}

}  // namespace
}  // namespace kvl
