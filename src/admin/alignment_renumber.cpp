#include "admin/alignment_renumber.h"

#include <algorithm>

#include "league/league_files.h"
#include "team/cards_email.h"
#include "util/record_file.h"

namespace kvl {

namespace {

// What every step needs: the team going, and the team count before.
struct Removal {
  int gone;
  int oldCount;
  std::optional<u8> map(int t) const { return NumberAfterRemoval(t, gone, oldCount); }
  // For fields that cannot name the team going (it was dropped before).
  u8 moved(u8 t) const { return map(t).value_or(t); }
};

template <class R>
std::optional<std::vector<R>> ReadRecords(const fs::path& p) {
  if (!fs::exists(p)) return std::nullopt;
  Bytes all = ReadFileBytes(p);
  std::vector<R> out;
  for (std::size_t at = 0; at + R::kSize <= all.size(); at += R::kSize)
    out.push_back(DecodeRecord<R>(std::span<const std::uint8_t>(all).subspan(at, R::kSize)));
  return out;
}

template <class R>
void WriteRecords(const fs::path& p, const std::vector<R>& records) {
  Bytes all;
  all.reserve(records.size() * R::kSize);
  for (const auto& r : records) {
    Bytes b = EncodeRecord(r);
    all.insert(all.end(), b.begin(), b.end());
  }
  WriteFileAtomic(p, all);
}

// Reads a swap file's records, lets `edit` change them, writes them back; a
// missing file is left missing.
template <class R, class Edit>
void EditSwap(const LeagueState& s, const char* name, Edit edit) {
  fs::path p = s.swap(name);
  auto records = ReadRecords<R>(p);
  if (!records) return;
  edit(*records);
  WriteRecords(p, *records);
}

// Drops `count` records from record `first` (0-based) of a swap file, as bytes.
void DropRecords(const LeagueState& s, const char* name, std::size_t len, std::size_t first, std::size_t count) {
  fs::path p = s.swap(name);
  if (!fs::exists(p)) return;
  Bytes all = ReadFileBytes(p);
  all.resize(all.size() / len * len);
  std::size_t from = std::min(all.size(), first * len), to = std::min(all.size(), (first + count) * len);
  all.erase(all.begin() + static_cast<long>(from), all.begin() + static_cast<long>(to));
  WriteFileAtomic(p, all);
}

template <class T, std::size_t N>
void ShiftDown(std::array<T, N>& a, int gone) {
  std::move(a.begin() + gone + 1, a.end(), a.begin() + gone);
  a.back() = T{};
}

void RenumberHeader(LeagueState& s, const Removal& r) {
  for (auto& conf : s.league.Conf)
    for (auto& div : conf.Div) {
      auto teams = div.Team.begin(), end = teams + std::min<int>(div.NumTeams, 10);
      auto kept = std::remove(teams, end, static_cast<u8>(r.gone));
      div.NumTeams = static_cast<u8>(kept - teams);
      std::fill(kept, div.Team.end(), u8{0});
      for (auto it = teams; it != kept; ++it) *it = r.moved(*it);
    }
  s.league.NumTeams = static_cast<u8>(r.oldCount - 1);
  if (s.CurTeam == r.gone) s.CurTeam = 0;
  else s.CurTeam = r.moved(s.CurTeam);
}

void RemoveFromMemory(LeagueState& s, const Removal& r) {
  ShiftDown(s.Teams, r.gone);
  ShiftDown(s.Farm, r.gone);
  RenumberHeader(s, r);
}

void RenumberPicks(std::vector<DraftPickRecord>& records, const Removal& r) {
  for (std::size_t holder = 0; holder < records.size(); ++holder) {
    auto& picks = records[holder].Pick;
    for (std::size_t k = 1; k < picks.size(); ++k) {
      DraftPick& p = picks[k];
      if (!p.Active) continue;
      if (p.OrigTeam == r.gone) {
        p = DraftPick{};  // made for a team that is no more: it lapses
        continue;
      }
      p.OrigTeam = r.moved(p.OrigTeam);
      p.Owner = r.map(p.Owner).value_or(static_cast<u8>(holder));
    }
    // Picks in use stay first, so lists that stop at the first unused entry see them all.
    std::stable_partition(picks.begin() + 1, picks.end(), [](const DraftPick& p) { return p.Active != 0; });
  }
}

void RenumberCoaches(std::vector<Coach>& coaches, const Removal& r) {
  for (auto& c : coaches) {
    if (c.Team == Coach::kNoTeam || c.Team == 0) continue;
    auto t = r.map(c.Team - 1);
    c.Team = t ? static_cast<u8>(*t + 1) : Coach::kNoTeam;
  }
}

// The priority list without the team going; each team's Priority follows its place.
void RenumberPriority(LeagueState& s, const Removal& r, u8 gonePriority) {
  fs::path p = s.swap(swp::Priority);
  int count = r.oldCount - 1;
  if (!fs::exists(p)) {
    for (int t = 0; t < count; ++t)
      if (s.team(t).Priority > gonePriority) --s.team(t).Priority;
    return;
  }
  Bytes places = ReadFileBytes(p);
  places.resize(static_cast<std::size_t>(r.oldCount), 0);
  if (auto at = std::find(places.begin(), places.end(), static_cast<u8>(r.gone)); at != places.end()) places.erase(at);
  places.resize(static_cast<std::size_t>(count));
  for (std::size_t place = 0; place < places.size(); ++place) {
    places[place] = r.moved(places[place]);
    if (places[place] < count) s.team(places[place]).Priority = static_cast<u8>(place);
  }
  WriteFileAtomic(p, places);
}

// Games of the team going are dropped and the rest renumbered; the header's
// counts follow.
void RenumberSchedule(LeagueState& s, std::vector<ScheduleRecord>& games, const Removal& r) {
  int playedDropped = 0, index = 0;
  std::erase_if(games, [&](const ScheduleRecord& g) {
    ++index;
    bool drop = g.HomeTeam == r.gone || g.AwayTeam == r.gone;
    if (drop && index <= s.league.GamesPlayed) ++playedDropped;
    return drop;
  });
  for (std::size_t i = 0; i < games.size(); ++i) {
    games[i].HomeTeam = r.moved(games[i].HomeTeam);
    games[i].AwayTeam = r.moved(games[i].AwayTeam);
    games[i].GameNumber = static_cast<i16>(i + 1);
  }
  s.league.GamesPlayed = static_cast<i16>(std::max(0, s.league.GamesPlayed - playedDropped));
  s.league.LeagueGames = static_cast<i16>(games.size());
}

void RenumberWaivers(std::vector<WaiverRecord>& waivers, const Removal& r) {
  for (auto& w : waivers) {
    if (w.Name.empty()) continue;
    if (w.Holder == r.gone) {
      w = WaiverRecord{};  // the player left with his team; the place stays
      continue;
    }
    w.Holder = r.moved(w.Holder);
    w.Owner = r.map(w.Owner).value_or(kNoPlayer);
    w.ClaimedBy = r.map(w.ClaimedBy).value_or(kNoPlayer);
    if (r.gone < static_cast<int>(w.Open.size())) {
      std::move(w.Open.begin() + r.gone + 1, w.Open.end(), w.Open.begin() + r.gone);
      w.Open.back() = 0;
    }
  }
}

void RenumberFutures(std::vector<ContractFuture>& futures, const Removal& r) {
  for (std::size_t own = 0; own < futures.size(); ++own)
    for (std::size_t y = 0; y < futures[own].OwnerTeam.size(); ++y)
      for (std::size_t slot = 0; slot < futures[own].OwnerTeam[y].size(); ++slot) {
        u8& team = futures[own].OwnerTeam[y][slot];
        auto moved = r.map(team);
        team = moved ? *moved : futures[own].Amount[y][slot] ? static_cast<u8>(own) : u8{0};
      }
}

void RenumberCareer(std::vector<CareerRecord>& lines, const Removal& r) {
  std::erase_if(lines, [&](const CareerRecord& c) { return c.Team == r.gone; });
  for (auto& c : lines) c.Team = r.moved(c.Team);
}

void RenumberEmail(const LeagueState& s, const Removal& r) {
  fs::path p = s.swap(swp::Email);
  if (!fs::exists(p)) return;
  auto lines = ReadEmailLines(p);
  std::erase_if(lines, [&](const EmailLine& e) { return e.team == r.gone; });
  for (auto& e : lines)
    if (e.team > r.gone && e.team < r.oldCount) --e.team;
  WriteEmailLines(p, lines);
}

// The team's players leave the league: their database records become free
// again, found by name as the database merge finds them.
void FreeDatabasePlayers(LeagueState& s, const Removal& r) {
  if (!fs::exists(s.swap(swp::Roster))) return;
  std::vector<FixedText<22>> names;
  RecordFile roster(s.swap(swp::Roster), Player::kSize);
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    Player p = roster.getRecord<Player>(static_cast<std::size_t>(r.gone * kRosterSlots + slot + 1));
    if (!p.empty()) names.push_back(p.Name);
  }
  EditSwap<DbRecord>(s, swp::Database, [&](auto& db) {
    for (const auto& name : names) {
      auto held = std::find_if(db.begin(), db.end(), [&](const DbRecord& d) { return d.DbFlag != 0 && d.P.Name == name; });
      if (held != db.end()) held->DbFlag = 0;
    }
  });
}

// Per-team files: the team's records go, later ones move up a place.
void DropTeamRecords(LeagueState& s, const Removal& r) {
  auto gone = static_cast<std::size_t>(r.gone);
  DropRecords(s, swp::Roster, Player::kSize, gone * kRosterSlots, kRosterSlots);
  DropRecords(s, swp::Prospects, ProspectList::kSize, gone, 1);
  DropRecords(s, swp::Farm, FarmTeam::kSize, gone, 1);
  EditSwap<DraftPickRecord>(s, swp::Picks, [&](auto& v) {
    if (gone < v.size()) v.erase(v.begin() + static_cast<long>(gone));
    RenumberPicks(v, r);
  });
  EditSwap<ContractFuture>(s, swp::Futures, [&](auto& v) {
    if (gone < v.size()) v.erase(v.begin() + static_cast<long>(gone));
    RenumberFutures(v, r);
  });
}

void WriteTeams(LeagueState& s) {
  std::vector<Team> teams(s.Teams.begin(), s.Teams.begin() + s.numTeams());
  WriteRecords(s.swap(swp::Teams), teams);
}

}  // namespace

std::optional<u8> NumberAfterRemoval(int t, int gone, int oldCount) {
  if (t == gone) return std::nullopt;
  if (t < gone || t >= oldCount) return static_cast<u8>(t);
  return static_cast<u8>(t - 1);
}

void RemoveTeam(LeagueState& s, int gone) {
  const Removal r{gone, s.numTeams()};
  u8 gonePriority = s.team(gone).Priority;
  RemoveFromMemory(s, r);
  FreeDatabasePlayers(s, r);
  DropTeamRecords(s, r);
  EditSwap<Coach>(s, swp::Coaches, [&](auto& v) { RenumberCoaches(v, r); });
  RenumberPriority(s, r, gonePriority);
  EditSwap<ScheduleRecord>(s, swp::Schedule, [&](auto& v) { RenumberSchedule(s, v, r); });
  EditSwap<WaiverRecord>(s, swp::Waivers, [&](auto& v) { RenumberWaivers(v, r); });
  EditSwap<CareerRecord>(s, swp::Career, [&](auto& v) { RenumberCareer(v, r); });
  RenumberEmail(s, r);
  WriteTeams(s);
  s.Dirty = true;
}

}  // namespace kvl
