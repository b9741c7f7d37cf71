#include "team/lines_import.h"

#include <vector>

#include "league/league_files.h"
#include "league/transaction_log.h"
#include "reports/html.h"
#include "team/auto_roster.h"
#include "team/line_editor.h"
#include "team/lines_file.h"
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

// One slot of the scan; sets `error` on the first refusal. Statuses change
// before a later refusal is known, as managers' files always did.
void MoveSlot(LeagueState& s, int side, int i, u8 wanted, Moves& moves, std::optional<std::string>& error) {
  Player& p = s.player(side, i);
  if (p.Suspended > 0 && wanted == 200) error = "Trying to use a suspended player";
  if (p.injury() != 0) {
    if (wanted == 200 && !error) error = Condense(p.Name.str()) + " is being dressed";
    return;
  }
  if (error) return;
  const std::string name = HtmlText(Condense(p.Name.str()));
  if (p.Status >= 100 && wanted == 0) {
    if (CheckWaivers(s, side, i, kEditorActor)) {
      p.Status = 0;
      moves.down.push_back(name);
    }
    return;
  }
  if (p.Status == 0 && wanted != 0) moves.up.push_back(name);
  p.Status = static_cast<u8>(wanted / 100 * 100 + p.Status % 100);
}

}  // namespace

std::optional<std::string> TakeLinesRecord(LeagueState& s, int team, int side, const LinesFileRecord& r,
                                           LineEditor* editor) {
  std::optional<std::string> error;
  Moves moves;
  for (int i = 0; i < kRosterSlots; ++i)
    if (!s.player(side, i).empty()) MoveSlot(s, side, i, r.Status[static_cast<std::size_t>(i)], moves, error);
  const std::string text = MovesText(s, team, moves);
  for (int i = 0; i < kRosterSlots; ++i) s.player(side, i).Protected = r.Protected[static_cast<std::size_t>(i)];
  if (error) {
    if (!editor && !s.team(team).LinesOK) AutoRoster(s, team, side);
    return error;
  }
  if (editor) {
    editor->LineBuf = r.Lines;
    editor->ReadLineAssgts();
    editor->Changed = true;
  } else {
    s.team(team).Lines = r.Lines;
  }
  s.team(team).LinesOK = kTrue;
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
  auto error = TakeLinesRecord(s, team, side, r, editor);
  if (!editor) {
    s.Dirty = true;
    SaveTeam(s, team, side);
  }
  if (!error) return {true, ""};
  s.ui.tell(*error, s.team(team).Name.str() + " lines are not valid");
  return {false, chosen->string() + ": " + *error};
}

}  // namespace kvl
