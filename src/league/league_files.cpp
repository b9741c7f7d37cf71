#include "league/league_files.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <fstream>

#include "league/roster_check.h"
#include "league/schedule_convert.h"
#include "league/value_check.h"
#include "ui/ui.h"
#include "util/file_set_write.h"
#include "util/record_file.h"

namespace kvl {

const std::vector<LeagueFileKind>& LeagueFileKinds() {
  static const std::vector<LeagueFileKind> kinds{
      {".tms", swp::Teams, Team::kSize},         {".ros", swp::Roster, Player::kSize},
      {".pct", swp::Prospects, ProspectList::kSize}, {".lge", swp::League, League::kSize},
      {".drs", swp::Database, DbRecord::kSize},  {".dpk", swp::Picks, DraftPickRecord::kSize},
      {".coa", swp::Coaches, Coach::kSize},      {".fas", swp::Futures, ContractFuture::kSize},
      {".dft", swp::DraftList, DraftListRecord::kSize}, {".eml", swp::Email, 0},
      {".rec", swp::Rec, 0},                     {".csr", swp::Career, CareerRecord::kSize},
      {".tra", swp::Transactions, 0},            {".htr", swp::History, 0},
      {".wvr", swp::Waivers, WaiverRecord::kSize}, {".scd", swp::OldSchedule, 0},
      {".scx", swp::Schedule, ScheduleRecord::kSize}, {".pri", swp::Priority, 1},
      {".frm", swp::Farm, FarmTeam::kSize},      {".plf", "", PlayoffState::kSize},
  };
  return kinds;
}

const LeagueFileKind& FileKind(const std::string& ext) {
  for (const auto& k : LeagueFileKinds())
    if (ext == k.ext) return k;
  throw KvlError("unknown league file kind " + ext);
}

namespace {

std::string Lower(std::string s) {
  for (auto& c : s) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return s;
}

// The files LoadLg copies, in its order; true where the load fails without it.
const std::vector<std::pair<std::string, bool>>& LoadOrder() {
  static const std::vector<std::pair<std::string, bool>> order{
      {".tms", true},  {".ros", true},  {".pct", false}, {".lge", true},  {".drs", true},  {".dpk", true},
      {".coa", true},  {".fas", false}, {".dft", false}, {".eml", false}, {".rec", false}, {".csr", false},
      {".tra", false}, {".htr", false}, {".wvr", false}, {".scd", false}, {".scx", false}, {".pri", false},
  };
  return order;
}

// The swap files SaveLg copies back, in its order.
const std::vector<std::string>& SaveOrder() {
  static const std::vector<std::string> order{".tms", ".dft", ".ros", ".frm", ".fas", ".pct", ".scx", ".dpk",
                                              ".pri", ".coa", ".drs", ".eml", ".tra", ".htr", ".csr", ".rec"};
  return order;
}

[[noreturn]] void MissingFile(LeagueState& s, const fs::path& file) {
  s.ui.tell("KVL was unable to find the following file \n" + file.string() +
                "\nPlease ensure that you have a complete set of league files.",
            "File not found");
  RemoveIfExists(s.AppPath / "kvl.def");
  throw FatalStop("missing league file " + file.string());
}

[[noreturn]] void Damaged(const fs::path& file, const std::string& what) {
  throw KvlError(fmt::format("{}: {}", file.string(), what));
}

void CheckIsFile(const fs::path& f) {
  if (!fs::is_regular_file(f)) Damaged(f, "is not a file: a folder or a device stands where the league's file should be");
}

void CheckWholeRecords(const fs::path& f, const std::string& ext) {
  CheckIsFile(f);
  std::size_t len = FileKind(ext).recordLen;
  auto size = fs::file_size(f);
  if (len > 0 && size % len != 0)
    Damaged(f, fmt::format("{} bytes is not a whole number of {}-byte records; the file is damaged", size, len));
}

// Everything that would make the load stop half way is checked before any swap
// file is touched.
League CheckFileSet(LeagueState& s, const std::string& path) {
  for (const auto& [ext, required] : LoadOrder()) {
    fs::path f = FindLeagueFile(path, ext);
    if (fs::exists(f)) CheckWholeRecords(f, ext);
    else if (required) MissingFile(s, f);
  }
  if (fs::path frm = FindLeagueFile(path, ".frm"); fs::exists(frm)) CheckWholeRecords(frm, ".frm");
  fs::path lge = FindLeagueFile(path, ".lge");
  CheckIsFile(lge);
  Bytes header = ReadFileBytes(lge);
  if (header.size() != League::kSize)
    Damaged(lge, fmt::format("the league header is {} bytes, it should be {}", header.size(), League::kSize));
  League lg = DecodeRecord<League>(header);
  lg.NumTeams = static_cast<u8>(lg.NumTeams + 1);
  if (lg.NumTeams > kMaxTeams)
    Damaged(lge, fmt::format("the header counts {} teams, at most {} are possible", lg.NumTeams, kMaxTeams));
  fs::path tms = FindLeagueFile(path, ".tms");
  auto teamRecords = fs::file_size(tms) / Team::kSize;
  if (teamRecords < lg.NumTeams)
    Damaged(tms, fmt::format("holds {} teams but the league has {}", teamRecords, lg.NumTeams));
  if (lg.InPlayoffs) {
    fs::path plf = FindLeagueFile(path, ".plf");
    if (!fs::exists(plf)) MissingFile(s, plf);
    CheckIsFile(plf);
    if (fs::file_size(plf) < PlayoffState::kSize) Damaged(plf, "the playoff state is shorter than 388 bytes");
  }
  return lg;
}

void CopyToSwap(LeagueState& s, const std::string& path) {
  for (const auto& [ext, required] : LoadOrder()) {
    fs::path f = FindLeagueFile(path, ext);
    fs::path w = s.swap(FileKind(ext).swap);
    if (fs::exists(f)) CopyFileAtomic(f, w);
    else if (ext != ".pct") RemoveIfExists(w);
  }
}

void ReadTeamsAndFarm(LeagueState& s, const std::string& path, bool clearWaived) {
  fs::path frm = FindLeagueFile(path, ".frm");
  if (fs::exists(frm)) {
    CopyFileAtomic(frm, s.swap(swp::Farm));
    RecordFile f(s.swap(swp::Farm), FarmTeam::kSize);
    for (int i = 0; i < s.numTeams(); ++i) s.Farm[static_cast<std::size_t>(i)] = f.getRecord<FarmTeam>(static_cast<std::size_t>(i) + 1);
  } else {
    RemoveIfExists(s.swap(swp::Farm));
  }
  RecordFile t(s.swap(swp::Teams), Team::kSize);
  for (int i = 0; i < s.numTeams(); ++i) {
    Team& team = s.team(i);
    team = t.getRecord<Team>(static_cast<std::size_t>(i) + 1);
    if (clearWaived) team.Waived = kFalse;
  }
}

// The saved waiver file drops the empty entries the swap copy keeps.
Bytes CompactWaivers(const Bytes& all) {
  Bytes kept;
  for (std::size_t at = 0; at + WaiverRecord::kSize <= all.size(); at += WaiverRecord::kSize)
    if (all[at] >= 1)
      kept.insert(kept.end(), all.begin() + static_cast<long>(at), all.begin() + static_cast<long>(at + WaiverRecord::kSize));
  return kept;
}

fs::path LeagueLockFile(const std::string& path) {
  return fs::weakly_canonical(fs::absolute(fs::path(path + ".lock")));
}

// The lock of the league at `path`: nullopt when this state holds it already.
// Refused, after telling, when another copy of the program has it open.
std::optional<FileLock> TakeLeagueLock(LeagueState& s, const std::string& path) {
  fs::path file = LeagueLockFile(path);
  if (s.leagueLock.held() && s.leagueLock.file() == file) return std::nullopt;
  FileLock lock(true);
  if (lock.acquire(file)) return lock;
  s.ui.tell("The league " + path + " is open in another copy of KVL (" + file.string() +
                " is held). To ensure no files will be corrupted, it cannot be opened here.",
            "League in use");
  throw Refused("league in use: " + path);
}

}  // namespace

fs::path LeagueJournal(const std::string& leaguePath) { return fs::path(leaguePath + ".saving"); }

std::string StripLeagueExtension(const std::string& path) {
  if (path.size() >= 4 && Lower(path.substr(path.size() - 4)) == ".lge") return path.substr(0, path.size() - 4);
  return path;
}

std::string ExtractLast(const std::string& path) {
  auto pos = path.find_last_of("/\\");
  return pos == std::string::npos ? path : path.substr(pos + 1);
}

fs::path FindLeagueFile(const std::string& leaguePath, const std::string& ext) {
  fs::path exact(leaguePath + ext);
  if (fs::exists(exact)) return exact;
  fs::path base(leaguePath);
  fs::path dir = base.has_parent_path() ? base.parent_path() : fs::path(".");
  std::string stem = base.filename().string() + Lower(ext);
  std::error_code ec;
  for (const auto& e : fs::directory_iterator(dir, ec)) {
    std::string name = e.path().filename().string();
    if (name.size() == stem.size() && name.compare(0, stem.size() - ext.size(), base.filename().string()) == 0 &&
        Lower(name.substr(name.size() - ext.size())) == Lower(ext))
      return e.path();
  }
  return exact;
}

void WriteKvlDef(const LeagueState& s) {
  std::ofstream out(s.AppPath / "kvl.def", std::ios::trunc);
  out << s.LeaguePath << "\r\n";
}

void LoadLg(LeagueState& s, const std::string& path) {
  std::optional<FileLock> lock = TakeLeagueLock(s, path);
  if (RollForward(s.files(), LeagueJournal(path)))
    s.ui.tell("A save of " + path + " was interrupted; it has now been completed.", "Load League");
  League lg = CheckFileSet(s, path);
  bool wvrMissing = !fs::exists(FindLeagueFile(path, ".wvr"));
  CopyToSwap(s, path);
  for (auto& c : lg.Conf)
    if (c.NumDivs == 0) c.NumDivs = 2;
  s.league = lg;
  ReadTeamsAndFarm(s, path, wvrMissing);
  if (lg.InPlayoffs)
    s.Playoff = DecodeRecord<PlayoffState>(ReadFileBytes(FindLeagueFile(path, ".plf")));
  s.LeaguePath = path;
  s.LeagueShort = ExtractLast(path);
  s.loaded = true;
  if (lock) s.leagueLock = std::move(*lock);
  WriteKvlDef(s);
  s.Dirty = false;
  ConvertSchedCheck(s);
  if (!s.league.InPlayoffs && s.league.PointSystem > 3) s.league.PointSystem = 0;
  RosterCheck(s);
  TellUnplayableValues(s);
}

void SaveLg(LeagueState& s) {
  if (s.LeaguePath.empty()) throw KvlError("the league has no name to save under");
  {
    RecordFile t(s.swap(swp::Teams), Team::kSize);
    RecordFile f(s.swap(swp::Farm), FarmTeam::kSize);
    for (int i = 0; i < s.numTeams(); ++i) {
      t.putRecord(static_cast<std::size_t>(i) + 1, s.team(i));
      f.putRecord(static_cast<std::size_t>(i) + 1, s.Farm[static_cast<std::size_t>(i)]);
    }
  }
  // Every file goes in as one set, so a stop half way leaves the old league or the new.
  FileSetWrite set(s.files(), LeagueJournal(s.LeaguePath));
  League stored = s.league;
  stored.NumTeams = static_cast<u8>(stored.NumTeams - 1);
  set.write(FindLeagueFile(s.LeaguePath, ".lge"), EncodeRecord(stored));
  for (const auto& ext : SaveOrder()) {
    fs::path w = s.swap(FileKind(ext).swap);
    fs::path f = FindLeagueFile(s.LeaguePath, ext);
    if (fs::exists(w)) set.copy(w, f);
    else set.remove(f);
  }
  fs::path wv = s.swap(swp::Waivers);
  if (fs::exists(wv)) set.write(FindLeagueFile(s.LeaguePath, ".wvr"), CompactWaivers(ReadFileBytes(wv)));
  if (s.league.InPlayoffs) set.write(FindLeagueFile(s.LeaguePath, ".plf"), EncodeRecord(s.Playoff));
  set.commit();
  s.Dirty = false;
}

bool SaveLeagueAs(LeagueState& s, const std::string& defaultName, std::optional<fs::path> chosen) {
  if (!chosen)
    chosen = s.ui.chooseFile(defaultName.empty() ? "Save League As" : defaultName,
                                "All Files|*.*|KVL League Files|*.lge", fs::path(s.LeaguePath + ".lge"), true);
  if (!chosen) return false;
  std::string name = StripLeagueExtension(chosen->string());
  std::optional<FileLock> lock = TakeLeagueLock(s, name);  // before asking: a league open elsewhere is no choice
  if (fs::exists(*chosen) && s.ui.ask(kOverwriteQuestion, "Save League", Buttons::YesNo) != Answer::Yes)
    return false;
  std::string oldPath = s.LeaguePath;
  s.LeaguePath = name;
  try {
    SaveLg(s);
  } catch (...) {
    s.LeaguePath = oldPath;
    throw;
  }
  if (lock) s.leagueLock = std::move(*lock);
  s.LeagueShort = ExtractLast(s.LeaguePath);
  WriteKvlDef(s);  // the league left open is the one the next start opens
  return true;
}

void loadteam(LeagueState& s, int team, int side) {
  RecordFile r(s.swap(swp::Roster), Player::kSize);
  const Bytes roster = r.getRun(static_cast<std::size_t>(team * kRosterSlots + 1), kRosterSlots);
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    Player p = DecodeRecord<Player>(std::span(roster).subspan(static_cast<std::size_t>(slot) * Player::kSize));
    if (p.Name.empty()) p = Player{};
    else if (p.Condition == 0) p.Condition = 100;
    s.player(side, slot) = p;
  }
  RecordFile pr(s.swap(swp::Prospects), ProspectList::kSize);
  s.Prospects[static_cast<std::size_t>(side)] = pr.getRecord<ProspectList>(static_cast<std::size_t>(team) + 1);
}

void SaveTeam(LeagueState& s, int team, int side) {
  {
    Bytes roster;
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      Bytes rec = EncodeRecord(s.player(side, slot));
      roster.insert(roster.end(), rec.begin(), rec.end());
    }
    RecordFile(s.swap(swp::Roster), Player::kSize).putRun(static_cast<std::size_t>(team * kRosterSlots + 1), roster);
  }
  RecordFile(s.swap(swp::Teams), Team::kSize).putRecord(static_cast<std::size_t>(team) + 1, s.team(team));
  RecordFile(s.swap(swp::Prospects), ProspectList::kSize)
      .putRecord(static_cast<std::size_t>(team) + 1, s.Prospects[static_cast<std::size_t>(side)]);
}

}  // namespace kvl
