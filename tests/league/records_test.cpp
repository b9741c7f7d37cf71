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

// Every byte of the record that differs from a default one, as offset=value in hex.
template <class R>
std::string Set(const std::string& what, const R& r) {
  const Bytes b = EncodeRecord(r), blank = EncodeRecord(R{});
  std::string out = what;
  for (std::size_t i = 0; i < b.size(); ++i)
    if (b[i] != blank[i]) out += fmt::format(" {}={:02X}", i, b[i]);
  return out + "\n";
}

// Where indexed and nested fields land: ratings from Int at 32, lines at row +
// 13 x slot from 174, the sliders at 432, arrays of arrays slot fastest, a
// playoff series at stage + 5 x series; integers little-endian, booleans all
// ones, a Double in IEEE form.
TEST(RecordLayout, IndexedFieldsAndNumbersByTheByte) {
  std::string text;
  for (int r = kInt; r <= kRatingSpare; ++r) {
    Player p;
    p.rating(r) = 0xA5;
    text += Set(fmt::format("rating {}", r), p);
  }
  for (auto [row, slot] : {std::pair{0, 0}, {12, 0}, {0, 1}, {2, 3}, {12, 4}}) {
    Team t;
    t.Lines.at(row, slot) = 7;
    text += Set(fmt::format("line {} slot {}", row, slot), t);
  }
  League lg;
  lg.InjuriesLevel() = 1, lg.ShotsLevel() = 2, lg.PenaltiesLevel() = 3, lg.GoalsLevel() = 4, lg.FinancesLevel() = 5;
  ContractFuture f;
  f.OwnerTeam[2][7] = 0xAB;
  f.Amount[4][49] = 0x01020304;
  PlayoffState ps;
  ps.SeriesAway[PlayoffState::Index(3, 1)] = 9;
  Player p;
  p.Salary = 0x01020304, p.Plus = -2, p.Rookie = kTrue;
  WaiverRecord w;
  w.WaivedAt = 2.5;
  text += Set("sliders 1-5", lg) + Set("owner [2][7], amount [4][49]", f) + Set("series away (3, 1)", ps) +
          Set("salary, plus -2, rookie", p) + Set("waived at 2.5", w);
  test::ExpectGolden(__FILE__, "field_bytes.txt", text);
}

TEST(RecordLayout, ShortInputIsAnError) {
  Bytes b(Player::kSize - 1, 0);
  EXPECT_THROW(DecodeRecord<Player>(b), KvlError);
}

}  // namespace
}  // namespace kvl
