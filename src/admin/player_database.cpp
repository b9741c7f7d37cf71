#include "admin/player_database.h"

#include <fmt/format.h>

#include "league/league_files.h"
#include "league/ratings.h"
#include "league/tables.h"
#include "league/value_check.h"
#include "reports/html.h"
#include "reports/page_files.h"
#include "ui/ui.h"
#include "util/cp1252.h"
#include "util/error.h"
#include "util/numbers.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr const char* kTitle = "Player Database";
constexpr u8 kNoRating = 255;

std::size_t At(int i) { return static_cast<std::size_t>(i); }

std::string PosText(int pos) { return pos < 5 ? Trim(PosName[At(pos)]) : "?"; }
std::string HandText(u8 hand) { return hand == 'L' ? "L" : hand == 'R' ? "R" : "na"; }

std::string PlayersRow(const Player& p) {
  std::string row = HtmlText(Pad(p.Name.str(), 23)) + Fill(p.Age, 2) + "   " + Pad(PosText(p.Pos), 2);
  for (int r = 0; r < 13; ++r) row += p.rating(r) == kNoRating ? " NA" : " " + Fill(p.rating(r), 2);
  return row + " " + Fill(Overall(p), 2);
}

std::optional<u8> ByteValue(const std::string& text) {
  const double v = Val(text);
  if (Trim(text).empty() || v < 0 || v > 255 || v != Int(v)) return std::nullopt;
  return static_cast<u8>(v);
}

}  // namespace

std::vector<DbRecord> ReadPlayerDatabase(const std::filesystem::path& file) {
  const Bytes all = ReadFileBytes(file);
  if (all.size() % DbRecord::kSize != 0)
    throw KvlError(fmt::format("{} is {} bytes long, not a whole number of {}-byte player records", file.string(),
                               all.size(), DbRecord::kSize));
  std::vector<DbRecord> out;
  for (std::size_t at = 0; at < all.size(); at += DbRecord::kSize)
    out.push_back(DecodeRecord<DbRecord>(std::span<const u8>(all).subspan(at, DbRecord::kSize)));
  return out;
}

void TakeDatabaseValues(Player& p, const Player& db, bool newSalaries) {
  p.Ratings = db.Ratings;
  p.Height = db.Height;
  p.Weight = db.Weight;
  p.Pos = db.Pos;
  p.Age = db.Age;
  p.Birthplace = db.Birthplace;
  p.Hand = db.Hand;
  p.Num = db.Num;
  if (!newSalaries) return;
  p.Salary = db.Salary;
  p.Contract = db.Contract;
}

int FindUnusedByName(const std::vector<DbRecord>& db, const std::vector<bool>& used, const FixedText<22>& name) {
  for (std::size_t n = 0; n < db.size(); ++n)
    if (!used[n] && db[n].P.Name == name) return static_cast<int>(n);
  return -1;
}

frmPlayerDB::frmPlayerDB(LeagueState& s, std::optional<std::filesystem::path> file)
    : s_(s), file_(file ? *file : s.swap(swp::Database)), db_(ReadPlayerDatabase(file_)) {}

std::string frmPlayerDB::LineText(int index) const {
  const Player& p = db_[At(index)].P;
  return fmt::format("{:>5}  {:<22}  {:<2}  {:>3}  {:>3}{}", index + 1, Cp1252ToUtf8(p.Name.str()), PosText(p.Pos),
                     p.Age, Overall(p), db_[At(index)].DbFlag != 0 ? "  used" : "");
}

void frmPlayerDB::Select(int index) {
  Selected = index;
  Fields = db_[At(index)].P;
}

std::string frmPlayerDB::FieldsText() const {
  const Player& p = Fields;
  std::string out = fmt::format(
      "Name {}\nPos {}  Number {}  Hand {}  Age {}  Height {}  Weight {}  Birthplace {}\nContract {}  Salary ${}\n",
      Cp1252ToUtf8(p.Name.str()), PosText(p.Pos), p.Num, HandText(p.Hand), p.Age, p.Height, p.Weight,
      Cp1252ToUtf8(p.Birthplace.str()), p.Contract, FormatNumber(p.Salary, "#,##0"));
  for (int r = 0; r < 13; ++r) out += fmt::format("{} {}  ", kRatingNames[At(r)], p.rating(r));
  return out + fmt::format("\nOverall {}", Overall(p));
}

bool frmPlayerDB::SetField(const std::string& field, const std::string& text) {
  Player& p = Fields;
  if (field == "Name") return p.Name.set(text), true;
  if (field == "Birthplace") return p.Birthplace.set(text), true;
  if (field == "Hand") {
    if (text != "L" && text != "R") return false;
    p.Hand = static_cast<u8>(text[0]);
    return true;
  }
  if (field == "Salary") {
    const double v = Val(text[0] == '$' ? text.substr(1) : text);
    if (v < 0 || v > 2147483647.0) return false;
    p.Salary = static_cast<i32>(v);
    return true;
  }
  const std::vector<std::pair<std::string, u8*>> bytes{
      {"Number", &p.Num}, {"Age", &p.Age}, {"Height", &p.Height}, {"Weight", &p.Weight}, {"Contract", &p.Contract}};
  for (int r = 0; r < 13; ++r)
    if (field == kRatingNames[At(r)]) {
      auto v = ByteValue(text);
      return v && (p.rating(r) = *v, true);
    }
  if (field == "Pos") {
    for (int pos = 0; pos < 5; ++pos)
      if (text == PosText(pos)) return p.Pos = static_cast<u8>(pos), true;
    return false;
  }
  for (const auto& [name, at] : bytes)
    if (field == name) {
      auto v = ByteValue(text);
      return v && (*at = *v, true);
    }
  return false;
}

void frmPlayerDB::cmdAdd() {
  DbRecord blank;
  blank.P.Name.set("");
  db_.push_back(blank);
  WriteAll();
}

void frmPlayerDB::cmdUpdate() {
  if (!Selected) return;
  db_[At(*Selected)].P = Fields;
  WriteAll();
}

bool frmPlayerDB::cmdDelete(int index) {
  const std::string name = db_[At(index)].P.Name.str();
  if (s_.ui.ask("Delete " + Cp1252ToUtf8(name) + " ?", kTitle, Buttons::YesNo) != Answer::Yes) return false;
  std::vector<DbRecord> keep = db_;
  keep.erase(keep.begin() + index);
  Replace(keep);
  Selected.reset();
  return true;
}

bool frmPlayerDB::cmdClear() {
  if (s_.ui.ask("Clear all players?", kTitle, Buttons::YesNo) != Answer::Yes) return false;
  Replace({});
  Selected.reset();
  return true;
}

// Through temp.drs, so a failed write leaves the database as it was.
void frmPlayerDB::Replace(const std::vector<DbRecord>& keep) {
  const auto temp = s_.AppPath / "temp.drs";
  s_.files().writeFile(temp, EncodeRecords(keep));
  try {
    s_.files().rename(temp, file_);
  } catch (const KvlError&) {  // a database on another disk than the home folder
    CopyFileAtomic(temp, file_);
    s_.files().remove(temp);
  }
  db_ = keep;
}

void frmPlayerDB::WriteAll() { Replace(db_); }

std::filesystem::path frmPlayerDB::cmdOutput() {
  const std::string prefix = s_.LeagueShort;
  std::vector<std::string> lines{"<HTML>", "<TITLE>" + prefix + " Players</TITLE>", "<BODY>",
                                 "<BODY><H1>" + prefix + " Players</H1>",
                                 "<PRE>Player                 AG   PO IT SP ST EN DU DI SK PA PC DF SC EX LD OV"};
  for (const DbRecord& r : db_) lines.push_back(PlayersRow(r.P));
  lines.insert(lines.end(), {"</PRE>", "</BODY></HTML>"});
  const auto path = TransferFile(s_, "Players.html");
  WritePage(path, lines);
  s_.ui.tell("Output Complete", "Players Outputted");
  return path;
}

int frmPlayerDB::MergeTeam(int team, std::vector<bool>& used, bool newSalaries) {
  loadteam(s_, team, 0);
  int matched = 0;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    Player& p = s_.player(0, slot);
    if (p.empty()) continue;
    const int n = FindUnusedByName(db_, used, p.Name);
    if (n < 0) continue;
    TakeDatabaseValues(p, db_[At(n)].P, newSalaries);
    used[At(n)] = true;
    db_[At(n)].DbFlag = kTrue;
    ++matched;
  }
  if (matched > 0) SaveTeam(s_, team, 0);
  return matched;
}

void frmPlayerDB::cmdMerge() {
  const bool newSalaries = s_.ui.ask("Use New Salaries?", "Merge Database", Buttons::YesNo) == Answer::Yes;
  for (DbRecord& r : db_) r.DbFlag = kFalse;
  std::vector<bool> used(db_.size(), false);
  for (int team = 0; team < s_.numTeams(); ++team) {
    s_.ui.progress("Merging Player Database", s_.team(team).Name.str(), team, s_.numTeams());
    MergeTeam(team, used, newSalaries);
  }
  s_.ui.progressDone();
  WriteAll();
  // Players left over become free agents: records of the league's database with a clear mark.
  if (file_ != s_.swap(swp::Database)) {
    RecordFile league(s_.swap(swp::Database), DbRecord::kSize);
    for (std::size_t n = 0; n < db_.size(); ++n)
      if (!used[n]) league.putRecord(league.count() + 1, db_[n]);
  }
  s_.Dirty = true;
  s_.ui.tell("Done", "Merge Database");
}

}  // namespace kvl
