#include "team/lines_text_import.h"

#include <array>

#include "league/league_files.h"
#include "team/line_editor.h"
#include "team/line_table.h"
#include "ui/ui.h"
#include "util/cp1252.h"
#include "util/error.h"
#include "util/fixed_text.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr const char* kErrorsInFile = "Errors in File";

struct TextLinesRefusal {
  std::string message, detail;
};

bool ValidUtf8(const std::string& t) {
  for (std::size_t i = 0; i < t.size();) {
    const auto c = static_cast<unsigned char>(t[i]);
    const std::size_t n = c < 0x80 ? 1 : (c >> 5) == 6 ? 2 : (c >> 4) == 14 ? 3 : (c >> 3) == 30 ? 4 : 0;
    if (n == 0 || i + n > t.size()) return false;
    for (std::size_t k = 1; k < n; ++k)
      if ((static_cast<unsigned char>(t[i + k]) >> 6) != 2) return false;
    i += n;
  }
  return true;
}

// A token shown in a message: UTF-8 as it is, else read as Windows-1252.
std::string Shown(const std::string& text) { return ValidUtf8(text) ? text : Cp1252ToUtf8(text); }

bool IsNumber(const std::string& text) {
  return !text.empty() && text.size() <= 3 && text.find_first_not_of("0123456789") == std::string::npos;
}

class TextLinesReader {
 public:
  TextLinesReader(LeagueState& s, int side, std::vector<TextLinesToken> tokens)
      : s_(s), side_(side), tokens_(std::move(tokens)) {
    for (int i = 0; i < kRosterSlots; ++i) {
      const u8 st = s.player(side, i).Status;
      copy_[static_cast<std::size_t>(i)] = st == 200 ? 100 : st;
    }
    buf_.cells.fill(kNoPlayer);
  }

  void Read() {
    for (int k = 0; k < kDressed; ++k) Dress(Next());
    Next();
    for (int row = 0; row < kSkaterRows; ++row)
      for (int slot = 0; slot < SlotsInRow(row); ++slot) Skater(Next(), row, slot, row < 6 || row > 9);
    Skater(Next(), kGoalieRow, 1, false);
    Skater(Next(), kGoalieRow, 2, false);
    Seat(Next(), kGoalieRow, 0);
  }

  const std::array<u8, kRosterSlots>& status() const { return copy_; }
  const LineTable& lines() const { return buf_; }

 private:
  static constexpr int kDressed = 20;

  [[noreturn]] void Fail(const std::string& message, const TextLinesToken& t) const {
    throw TextLinesRefusal{message, "line " + std::to_string(t.line) + ", \"" + Shown(t.text) + "\""};
  }

  const TextLinesToken& Next() {
    if (at_ >= tokens_.size())
      throw TextLinesRefusal{kErrorsInFile, "the file ends after " + std::to_string(tokens_.size()) + " entries"};
    return tokens_[at_++];
  }

  static bool Star(const TextLinesToken& t) { return t.text == "***"; }

  // The roster slot wearing the token's number; -1 for none.
  int Find(const TextLinesToken& t) const {
    if (!IsNumber(t.text)) return -1;
    const int num = std::stoi(t.text);
    for (int i = 0; i < kRosterSlots; ++i)
      if (!s_.player(side_, i).empty() && s_.player(side_, i).Num == num) return i;
    return -1;
  }

  void CheckNumber(const TextLinesToken& t) const {
    if (!Star(t) && !IsNumber(t.text)) Fail(kErrorsInFile, t);
  }

  void Dress(const TextLinesToken& t) {
    if (Star(t)) Fail("Not Enough Players in Roster", t);
    CheckNumber(t);
    const int i = Find(t);
    if (i < 0) Fail("Wrong Player Number Used", t);
    const Player& p = s_.player(side_, i);
    if (p.injury() > 0 || p.Suspended != 0) Fail("Player with no. " + t.text + " can't be in Roster", t);
    auto& status = copy_[static_cast<std::size_t>(i)];
    if (status == 200) Fail("Player with no. " + t.text + " is dressed twice", t);
    status = 200;
  }

  int Dressed(const TextLinesToken& t) const {
    CheckNumber(t);
    const int i = Find(t);
    if (i < 0) Fail(kErrorsInFile, t);
    if (copy_[static_cast<std::size_t>(i)] != 200) Fail("Player with no. " + t.text + " can't be in Roster", t);
    return i;
  }

  void Skater(const TextLinesToken& t, int row, int slot, bool starCounts) {
    if (Star(t) && starCounts) Fail("Not Enough Players", t);
    Seat(t, row, slot);
  }

  // The line editor's placement rules, in the file's words.
  void Seat(const TextLinesToken& t, int row, int slot) {
    const int i = Dressed(t);
    switch (PlacementFault(buf_, row, slot, s_.player(side_, i), i)) {
      case SeatFault::GoalieOnLine: Fail("Playing Goalie as Forward", t);
      case SeatFault::SkaterInGoal: Fail("Playing Forward as Goalie", t);
      case SeatFault::TwiceOnRow: Fail("Player with no. " + t.text + " sits twice on " + RowLabel(row), t);
      case SeatFault::None: break;
    }
    buf_.at(row, slot) = static_cast<u8>(i);
  }

  LeagueState& s_;
  int side_;
  std::vector<TextLinesToken> tokens_;
  std::size_t at_ = 0;
  std::array<u8, kRosterSlots> copy_{};
  LineTable buf_;
};

}  // namespace

std::vector<TextLinesToken> TextLinesTokens(const std::string& bytes) {
  std::string_view text(bytes);
  if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
  std::vector<TextLinesToken> out;
  int line = 1;
  std::string cur;
  auto flush = [&] {
    std::string t = Trim(cur);
    if (!t.empty()) out.push_back({t, line});
    cur.clear();
  };
  for (char c : text) {
    if (c == ',' || c == '\n' || c == ' ' || c == '\t') {
      flush();
      if (c == '\n') ++line;
    } else if (c != '\r') {
      cur += c;
    }
  }
  flush();
  return out;
}

bool IsTextLinesFile(const std::string& bytes) {
  for (unsigned char c : bytes)
    if (c < 0x20 && c != '\t' && c != '\r' && c != '\n' && c != 0x1A) return false;
  return true;
}

LinesImport cmdTextLines(LeagueState& s, LineEditor& e, std::optional<std::filesystem::path> chosen) {
  if (!chosen) chosen = s.ui.chooseFile("Import Text Lines", "All Files|*.*|Text Files|*.txt", s.AppPath, false);
  if (!chosen || chosen->empty()) return {false, "no file chosen"};
  const Bytes bytes = ReadFileBytes(*chosen);
  TextLinesReader reader(s, e.side(), TextLinesTokens(std::string(bytes.begin(), bytes.end())));
  try {
    reader.Read();
  } catch (const TextLinesRefusal& r) {
    s.ui.tell(r.message, "Invalid File");
    return {false, chosen->string() + ", " + r.detail + ": " + r.message};
  }
  for (int i = 0; i < kRosterSlots; ++i) s.player(e.side(), i).Status = reader.status()[static_cast<std::size_t>(i)];
  e.LineBuf = reader.lines();
  e.Changed = true;
  e.ShowPos.fill(true);
  e.AddPlayers();
  e.ReadLineAssgts();
  return {true, ""};
}

LinesImport LoadLinesFile(LeagueState& s, int team, const std::filesystem::path& file) {
  s.CurTeam = static_cast<u8>(team);
  const Bytes bytes = ReadFileBytes(file);
  if (!IsTextLinesFile(std::string(bytes.begin(), bytes.end()))) {
    loadteam(s, team, 0);
    return ImportLinesSub(s, 0, nullptr, file);
  }
  LineEditor e(s, team);
  LinesImport r = cmdTextLines(s, e, file);
  if (r.ok && !e.cmdExit()) return {false, file.string() + ": Lines are not complete"};
  return r;
}

}  // namespace kvl
