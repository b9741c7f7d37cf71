#include "admin/league_creation.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>

#include "league/league_files.h"
#include "season/reset_league.h"
#include "transactions/draft_picks.h"
#include "transactions/priority.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr std::size_t kOldScheduleRecord = 4642;

std::string Upper(std::string text) {
  for (auto& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

void BlankTeamFiles(LeagueState& s, int team) {
  RecordFile ros(s.swap(swp::Roster), Player::kSize);
  for (int slot = 0; slot < kRosterSlots; ++slot)
    ros.putRecord(static_cast<std::size_t>(team * kRosterSlots + slot + 1), Player{});
  RecordFile(s.swap(swp::Prospects), ProspectList::kSize).putRecord(static_cast<std::size_t>(team) + 1, ProspectList{});
}

}  // namespace

std::string UniqueAbbrev(const LeagueState& s, int team, const std::string& name) {
  const std::string first = Upper(name.substr(0, 3));
  std::string letters;
  for (char c : Upper(name))
    if (std::isalnum(static_cast<unsigned char>(c))) letters += c;
  std::vector<std::string> candidates{first};
  for (std::size_t i = 1; i < letters.size(); ++i)
    for (std::size_t j = i + 1; j < letters.size(); ++j) candidates.push_back({letters[0], letters[i], letters[j]});
  for (char digit = '2'; digit <= '9'; ++digit) candidates.push_back(first.substr(0, 2) + digit);
  for (const std::string& c : candidates)
    if (!AbbrevTaken(s, team, c)) return c;
  return first;
}

bool AbbrevTaken(const LeagueState& s, int team, const std::string& abbrev) {
  // The record keeps no trailing blanks: "LA " is stored as "LA".
  std::string wanted = Upper(abbrev.substr(0, Team{}.Abbrev.size()));
  while (!wanted.empty() && wanted.back() == ' ') wanted.pop_back();
  for (int t = 0; t < s.numTeams(); ++t)
    if (t != team && Upper(s.team(t).Abbrev.str()) == wanted) return true;
  return false;
}

void TeamDefaultFiles(LeagueState& s, int team) {
  Team& t = s.team(team);
  Team fresh;
  fresh.Name = t.Name;
  fresh.Conf = t.Conf;
  fresh.Div = t.Div;
  fresh.Abbrev.set(UniqueAbbrev(s, team, t.Name.str()));
  fresh.Lines.cells.fill(kNoPlayer);
  fresh.Priority = static_cast<u8>(team);
  t = fresh;
  s.Farm[static_cast<std::size_t>(team)] = FarmTeam{};
  BlankTeamFiles(s, team);
  RecordFile(s.swap(swp::Teams), Team::kSize).putRecord(static_cast<std::size_t>(team) + 1, t);
  WriteDraftPicks(s, team, NewDraftPicks(team));
  const u8 place = static_cast<u8>(team);
  RecordFile(s.swap(swp::Priority), 1).put(static_cast<std::size_t>(team) + 1, std::span<const u8>(&place, 1));
}

int AddTeam(LeagueState& s, const std::string& name, int conf, int div) {
  int t = s.league.NumTeams++;
  Division& d = s.league.Conf[static_cast<std::size_t>(conf)].Div[static_cast<std::size_t>(div)];
  d.Team[d.NumTeams++] = static_cast<u8>(t);
  Team& team = s.team(t);
  team.Name.set(name);
  team.Conf = static_cast<u8>(conf);
  team.Div = static_cast<u8>(div);
  TeamDefaultFiles(s, t);
  s.Dirty = true;
  return t;
}

void LeagueDefaults(LeagueState& s) {
  for (const char* name : {swp::Teams, swp::Roster, swp::Prospects, swp::Farm})
    RecordFile(s.swap(name), 1);  // opening creates the file
  MakePriority(s);
  ResetLeague(s);
  CopyFileAtomic(s.AppPath / "default.coa", s.swap(swp::Coaches));
  // The database chosen for the league wins; the default one stands in only
  // when there is none.
  if (!fs::exists(s.swap(swp::Database))) CopyFileAtomic(s.AppPath / "default.drs", s.swap(swp::Database));
  MakeDraftPicks(s);
  WriteFileAtomic(s.swap(swp::OldSchedule), Bytes(kOldScheduleRecord, 0));
}

void CheckDatabaseFile(const fs::path& db) {
  if (!fs::is_regular_file(db)) throw KvlError(db.string() + ": the player database does not exist");
  auto size = fs::file_size(db);
  if (size == 0) throw KvlError(db.string() + ": the player database is empty");
  if (size % DbRecord::kSize != 0)
    throw KvlError(fmt::format("{}: {} bytes is not a whole number of {}-byte player records; the file is damaged",
                               db.string(), size, DbRecord::kSize));
}

namespace {

std::optional<fs::path> ChooseDatabase(LeagueState& s, std::optional<fs::path> given) {
  for (;;) {
    std::optional<fs::path> db =
        given ? given
              : s.ui.chooseFile("Select an Existing Player Database", "All Files|*.*|Data Files|*.drs",
                                s.AppPath / "*.drs", false);
    given.reset();
    if (!db) return std::nullopt;
    if (fs::exists(*db)) return db;
    if (s.ui.ask("The player database you have supplied \ndoes not exist. Would you like to try another player database?",
                 "Select Player Database", Buttons::YesNo) != Answer::Yes)
      return std::nullopt;
  }
}

// Swap files survive between runs, so every one goes, not only a loaded league's.
void ClearOldLeague(LeagueState& s) {
  for (const auto& kind : LeagueFileKinds())
    if (*kind.swap) RemoveIfExists(s.swap(kind.swap));
  RemoveIfExists(s.swap(swp::Playoff));
  s.league = League{};
  s.Teams = {};
  s.Farm = {};
  s.Player = {};
  s.Prospects = {};
  s.DbIndex = {};
  s.Playoff = PlayoffState{};
  s.CurTeam = s.CurPlayer = 0;
}

// The database as the league's own, every used mark cleared.
void CopyDatabase(LeagueState& s, const fs::path& db) {
  Bytes bytes = ReadFileBytes(db);
  for (std::size_t at = 0; at + 1 < bytes.size(); at += DbRecord::kSize) bytes[at] = bytes[at + 1] = 0;
  WriteFileAtomic(s.swap(swp::Database), bytes);
}

void SetDefaultAlignment(League& lg) {
  for (int c = 0; c < 2; ++c) {
    Conference& conf = lg.Conf[static_cast<std::size_t>(c)];
    conf.Name.set(fmt::format("CONF {}", c + 1));
    conf.NumDivs = 2;
    for (int d = 0; d < 3; ++d) conf.Div[static_cast<std::size_t>(d)].Name.set(fmt::format("DIV {}", d + 1));
  }
}

}  // namespace

void MakeNewLeague(LeagueState& s, const fs::path& db, const std::string& name) {
  CheckDatabaseFile(db);
  ClearOldLeague(s);
  CopyDatabase(s, db);
  CopyFileAtomic(s.AppPath / "default.lge", s.swap(swp::League));
  Bytes header = ReadFileBytes(s.swap(swp::League));
  if (header.size() != League::kSize)
    throw KvlError(fmt::format("{}: the league header is {} bytes, it should be {}", (s.AppPath / "default.lge").string(),
                               header.size(), League::kSize));
  s.league = DecodeRecord<League>(header);
  s.league.NumTeams = 0;
  s.league.LeagueName.set(name);
  SetDefaultAlignment(s.league);
  s.LeaguePath.clear();
  s.LeagueShort.clear();
  s.leagueLock.release();  // the old league is no longer open here
  s.loaded = true;
  LeagueDefaults(s);
  s.Dirty = true;
}

void OfferToSave(LeagueState& s) {
  if (!s.Dirty || s.ui.ask("Save Current League?", "Save League", Buttons::YesNo) != Answer::Yes) return;
  if (s.LeaguePath.empty()) SaveLeagueAs(s, "");
  else SaveLg(s);
}

bool CreateLeague(LeagueState& s, const NewLeagueChoice& choice) {
  if (s.ui.ask("Do you want to create a new league?", "Confirmation", Buttons::YesNo) != Answer::Yes) return false;
  OfferToSave(s);
  auto db = ChooseDatabase(s, choice.database);
  if (!db) return false;
  std::optional<std::string> name = choice.name ? choice.name : s.ui.prompt("Name of League", "New League", "");
  if (!name || name->empty()) return false;
  try {
    MakeNewLeague(s, *db, *name);
  } catch (const std::exception&) {
    s.ui.tell("Errors in file", "Create New League");
    throw;
  }
  return true;
}

}  // namespace kvl
