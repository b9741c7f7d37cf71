#include "team/lines_import.h"

#include <vector>

#include "league/league_files.h"
#include "league/transaction_log.h"
#include "reports/html.h"
#include "team/line_editor.h"
#include "team/line_table.h"
#include "team/lines_file.h"
#include "team/roster_rules.h"
#include "transactions/check_waivers.h"
#include "ui/ui.h"
#include "util/error.h"

namespace kvl {

namespace {

struct Moves {
  std::vector<std::string> down, up;
};

std::string JoinNames(const std::vector<std::string>& names) {
  std::string out;
  for (const auto& n : names) out += (out.empty() ? "" : ", ") + n;
  return out;
}

std::string MovesText(const LeagueState& s, int team, const Moves& m) {
  const std::string tag = HtmlText(Condense(s.team(team).Name.str()));
  std::string text;
  if (!m.down.empty()) text = tag + " assign " + JoinNames(m.down) + " to minors" + "<BR><BR>";
  if (!m.down.empty() && !m.up.empty()) text += "\r\n";
  if (!m.up.empty()) text += tag + " promote " + JoinNames(m.up) + " to pro roster" + "<BR><BR> ";
  return text;
}

// The system's words for a dressed player who cannot play; nullopt for the others.
std::optional<std::string> StatusFault(const Player& p, u8 wanted) {
  if (wanted / 100 != 2) return std::nullopt;
  if (p.Suspended > 0) return "Trying to use a suspended player";
  if (p.injury() != 0) return Condense(p.Name.str()) + " is being dressed";
  return std::nullopt;
}

// What is wrong with one seat of the file's table, once its statuses passed.
std::optional<std::string> SeatFaultText(const LeagueState& s, int side, const LinesFileRecord& r, int row,
                                         int slot) {
  const u8 e = r.Lines.at(row, slot);
  if (e == kNoPlayer) return "the seat is empty";
  if (e >= kRosterSlots) return "roster slot " + std::to_string(e) + " is past the roster's 50";
  const Player& p = s.player(side, e);
  if (p.empty()) return "roster slot " + std::to_string(e) + " holds no player";
  const std::string name = Condense(p.Name.str());
  if (r.Status[e] / 100 != 2) return name + " is not dressed";
  switch (PlacementFault(r.Lines, row, slot, p, e)) {
    case SeatFault::GoalieOnLine: return name + " is a goalie";
    case SeatFault::SkaterInGoal: return name + " is not a goalie";
    case SeatFault::TwiceOnRow: return name + " sits twice on " + RowLabel(row);
    case SeatFault::None: break;
  }
  return std::nullopt;
}

std::optional<LinesFault> SeatsFault(const LeagueState& s, int side, const LinesFileRecord& r) {
  for (int row = 0; row < kLineRows; ++row)
    for (int slot = 0; slot < SlotsInRow(row); ++slot)
      if (auto why = SeatFaultText(s, side, r, row, slot)) return LinesFault{SeatName(row, slot), *why};
  return std::nullopt;
}

// A healthy player takes the list of the file; one going down passes the waiver gate.
void MoveSlot(LeagueState& s, int side, int i, u8 wanted, Moves& moves) {
  Player& p = s.player(side, i);
  if (p.injury() != 0) return;
  const int list = wanted / 100;
  const std::string name = HtmlText(Condense(p.Name.str()));
  if (p.list() > 0 && list == 0) {
    if (CheckWaivers(s, side, i, kEditorActor)) {
      p.Status = 0;
      moves.down.push_back(name);
    }
    return;
  }
  if (p.list() == 0 && list != 0) moves.up.push_back(name);
  p.Status = static_cast<u8>(list * 100);
}

}  // namespace

std::optional<LinesFault> LinesRecordFault(const LeagueState& s, int side, const LinesFileRecord& r) {
  int dressed = 0;
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = s.player(side, i);
    const u8 wanted = r.Status[static_cast<std::size_t>(i)];
    if (p.empty()) continue;
    if (auto why = StatusFault(p, wanted))
      return LinesFault{"roster slot " + std::to_string(i) + ", " + Condense(p.Name.str()), *why};
    dressed += wanted / 100 == 2;
  }
  if (auto seat = SeatsFault(s, side, r)) return seat;
  if (dressed != kDressedPlayers)
    return LinesFault{"statuses", std::to_string(dressed) + " players are dressed; a team dresses " +
                                      std::to_string(kDressedPlayers)};
  return std::nullopt;
}

std::optional<LinesFault> TakeLinesRecord(LeagueState& s, int team, int side, const LinesFileRecord& r,
                                          LineEditor* editor) {
  if (auto fault = LinesRecordFault(s, side, r)) return fault;
  Moves moves;
  for (int i = 0; i < kRosterSlots; ++i) {
    if (s.player(side, i).empty()) continue;  // an empty slot loads as all zero whatever it holds
    MoveSlot(s, side, i, r.Status[static_cast<std::size_t>(i)], moves);
    s.player(side, i).Protected = r.Protected[static_cast<std::size_t>(i)];
  }
  LineTable lines = r.Lines;
  ForceUnusedSlots(lines);  // the engine seats every slot of a row, used or not
  if (editor) {
    editor->LineBuf = lines;
    editor->AddPlayers();
    editor->ReadLineAssgts();
    editor->Changed = true;
  } else {
    s.team(team).Lines = lines;
  }
  s.team(team).LinesOK = kTrue;
  const std::string text = MovesText(s, team, moves);
  if (!text.empty()) AppendTransaction(s, text);
  return std::nullopt;
}

LinesImport ImportLinesSub(LeagueState& s, int side, LineEditor* editor, std::optional<std::filesystem::path> chosen) {
  if (!chosen) chosen = s.ui.chooseFile("Import Text Lines", kLinesFileFilter, s.AppPath, false);
  if (!chosen || chosen->empty()) return {false, "no file chosen"};
  LinesFileRecord r;
  try {
    r = ReadLinesFile(*chosen);
  } catch (const KvlError& e) {
    s.ui.tell("Errors in File", "Invalid File");
    return {false, e.what()};
  }
  const int team = s.CurTeam;
  // Compared as text: a team never given a password holds zeros, the file blanks.
  if (r.Password.str() != s.team(team).Password.str()) {
    s.ui.tell("Password Incorrect", "Import Lines");
    return {false, chosen->string() + ": the password is not the one of the " + s.team(team).Name.str()};
  }
  if (auto fault = TakeLinesRecord(s, team, side, r, editor)) {
    s.ui.tell(fault->message, s.team(team).Name.str() + " lines are not valid");
    return {false, chosen->string() + ", " + fault->entry + ": " + fault->message};
  }
  if (!editor) {
    s.Dirty = true;
    SaveTeam(s, team, side);
  }
  return {true, ""};
}

}  // namespace kvl
