#include "transactions/database_players.h"

#include <array>

#include "league/league_files.h"
#include "util/record_file.h"

namespace kvl {

std::vector<DbRecord> ReadDatabase(const LeagueState& s) {
  Bytes all = ReadFileBytes(s.swap(swp::Database));
  std::vector<DbRecord> out;
  for (std::size_t at = 0; at + DbRecord::kSize <= all.size(); at += DbRecord::kSize)
    out.push_back(DecodeRecord<DbRecord>(std::span<const u8>(all).subspan(at, DbRecord::kSize)));
  return out;
}

bool OnAnyRoster(const LeagueState& s, const FixedText<22>& name) {
  const Bytes all = ReadFileBytes(s.swap(swp::Roster));
  for (std::size_t at = 0; at + Player::kSize <= all.size(); at += Player::kSize)
    if (DecodeRecord<Player>(std::span<const u8>(all).subspan(at, Player::kSize)).Name == name) return true;
  return false;
}

void MarkUsed(LeagueState& s, const std::vector<int>& records) {
  RecordFile f(s.swap(swp::Database), DbRecord::kSize);
  const std::array<u8, 2> used{0xff, 0xff};  // DbFlag -1
  for (int n : records) {
    Bytes rec = f.get(static_cast<std::size_t>(n));
    std::copy(used.begin(), used.end(), rec.begin());
    f.put(static_cast<std::size_t>(n), rec);
  }
}

int FirstFreeSlot(const LeagueState& s, int side) {
  for (int slot = 0; slot < kRosterSlots; ++slot)
    if (s.player(side, slot).empty()) return slot;
  return -1;
}

namespace {

bool NumberTaken(const LeagueState& s, int side, int num) {
  for (int slot = 0; slot < kRosterSlots; ++slot)
    if (!s.player(side, slot).empty() && s.player(side, slot).Num == num) return true;
  return false;
}

}  // namespace

int NewcomerStatus(const LeagueState& s, int side) {
  constexpr int kMaxPro = 25;
  int pro = 0;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(side, slot);
    if (!p.empty() && p.list() > 0 && p.Suspended != 99) ++pro;
  }
  return pro < kMaxPro ? 100 : 0;
}

void PlaceOnRoster(LeagueState& s, int side, int slot, const Player& p, int status) {
  Player placed = p;
  placed.Status = static_cast<u8>(status);
  placed.Condition = 100;
  for (int tries = 0; tries < 98 && NumberTaken(s, side, placed.Num); ++tries)
    placed.Num = static_cast<u8>(placed.Num % 98 + 1);
  s.player(side, slot) = placed;
}

}  // namespace kvl
