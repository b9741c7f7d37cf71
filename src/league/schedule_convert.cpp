#include "league/schedule_convert.h"

#include <fmt/format.h>

#include <optional>
#include <set>
#include <vector>

#include "league/league_files.h"
#include "ui/ui.h"
#include "util/record_file.h"

namespace kvl {

// The old ".scd" is read as a run of game records, 13 bytes each, or 6 in the
// oldest form, with no header. The 4642 bytes a new league's .scd is given are
// one blank block, not a game: bytes past the last whole game record, and blank
// records at the end, are such padding and are dropped.
namespace {

bool Blank(std::span<const std::uint8_t> bytes) {
  for (auto b : bytes)
    if (b != 0) return false;
  return true;
}

// The games of `bytes` read as records R, without the padding; nullopt when
// the bytes cannot be games of that form.
template <class R>
std::optional<std::vector<R>> ReadAs(std::span<const std::uint8_t> bytes, int numTeams) {
  std::size_t whole = bytes.size() / R::kSize;
  if (!Blank(bytes.subspan(whole * R::kSize))) return std::nullopt;
  while (whole > 0 && Blank(bytes.subspan((whole - 1) * R::kSize, R::kSize))) --whole;
  std::vector<R> games;
  for (std::size_t k = 0; k < whole; ++k) {
    R r = DecodeRecord<R>(bytes.subspan(k * R::kSize));
    bool teamsOk = r.Home < numTeams && r.Away < numTeams && r.Home != r.Away;
    if (!teamsOk || (r.Played != 0 && r.Played != kTrue)) return std::nullopt;
    games.push_back(r);
  }
  return games;
}

u8 TiedOvertime(u8 homeScore, u8 awayScore) { return homeScore == awayScore && homeScore != 0 ? 1 : 0; }

ScheduleRecord FromOld(u8 home, u8 homeScore, u8 away, u8 awayScore, i16 played) {
  ScheduleRecord r;
  r.HomeTeam = home;
  r.HomeScore = homeScore;
  r.AwayTeam = away;
  r.AwayScore = awayScore;
  r.Played = played;
  r.Overtime = TiedOvertime(homeScore, awayScore);
  return r;
}

std::vector<ScheduleRecord> From13(const std::vector<ScheduleRecord13>& old) {
  std::vector<ScheduleRecord> games;
  for (const auto& o : old) {
    ScheduleRecord r = FromOld(o.Home, o.HomeScore, o.Away, o.AwayScore, o.Played);
    r.GameNumber = o.GameNumber;
    r.DayA = o.DayA;
    r.GameDay = o.DayB;
    if (o.Overtime) r.Overtime = o.Overtime;
    games.push_back(r);
  }
  return games;
}

// The oldest form keeps no days: a new one starts whenever a team comes round again.
std::vector<ScheduleRecord> From6(const std::vector<ScheduleRecord6>& old) {
  std::vector<ScheduleRecord> games;
  std::set<int> used;
  i16 day = 1;
  for (const auto& o : old) {
    if (used.count(o.Home) || used.count(o.Away)) {
      ++day;
      used.clear();
    }
    used.insert({o.Home, o.Away});
    ScheduleRecord r = FromOld(o.Home, o.HomeScore, o.Away, o.AwayScore, o.Played);
    r.GameNumber = static_cast<i16>(games.size() + 1);
    r.DayA = r.GameDay = day;
    games.push_back(r);
  }
  return games;
}

bool NumberedInTurn(const std::vector<ScheduleRecord13>& games) {
  for (std::size_t k = 0; k < games.size(); ++k)
    if (games[k].GameNumber != static_cast<i16>(k + 1)) return false;
  return true;
}

// Both forms can fit the same bytes only by chance; the 13-byte form wins when
// its game numbers run 1, 2, 3, as its maker wrote them.
std::optional<std::vector<ScheduleRecord>> ConvertSCD2SCX(std::span<const std::uint8_t> bytes, int numTeams) {
  auto as13 = ReadAs<ScheduleRecord13>(bytes, numTeams);
  auto as6 = ReadAs<ScheduleRecord6>(bytes, numTeams);
  if (as13 && (!as6 || NumberedInTurn(*as13))) return From13(*as13);
  if (as6) return From6(*as6);
  return std::nullopt;
}

}  // namespace

// A league that has its schedule only in the old form gets it as swp.scx; a
// league that already has a .scx keeps it, and the .scd stays as it is.
void ConvertSchedCheck(LeagueState& s) {
  fs::path old = s.swap(swp::OldSchedule);
  fs::path scx = s.swap(swp::Schedule);
  if (fs::exists(scx) || !fs::exists(old)) return;
  auto games = ConvertSCD2SCX(ReadFileBytes(old), s.numTeams());
  if (!games) {
    s.ui.tell(fmt::format("{}: the old schedule holds neither 13-byte nor 6-byte games of this league's teams; it "
                          "was not converted.",
                          FindLeagueFile(s.LeaguePath, ".scd").string()),
              "Convert Schedule");
    return;
  }
  if (games->empty()) return;
  Bytes out;
  for (const auto& g : *games) {
    Bytes rec = EncodeRecord(g);
    out.insert(out.end(), rec.begin(), rec.end());
  }
  WriteFileAtomic(scx, out);
  s.Dirty = true;
}

}  // namespace kvl
