#pragma once
// Loading a manager's binary lines file into a team. The file is checked whole
// first: its statuses (no injured or suspended player dressed, 20 dressed) and
// every seat of its table (a player of the roster the file dresses, placed as
// the line editor would place him). A refused file changes nothing; a taken one
// moves statuses (going down through the waiver gate), takes the protection
// marks and stores the table.
#include <filesystem>
#include <optional>
#include <string>

#include "league/league_state.h"

namespace kvl {

class LineEditor;

// How a lines file fared: `ok`, or `why` names the file and what was wrong.
struct LinesImport {
  bool ok = false;
  std::string why;
};

// Why a lines file is refused: the entry ("E4 D", "spare 1", "roster slot 18,
// T0 D 7", "statuses") and the message told, which names the player.
struct LinesFault {
  std::string entry, message;
};

// The first fault of `r` for the team loaded in `side`; nullopt when it can be taken.
std::optional<LinesFault> LinesRecordFault(const LeagueState& s, int side, const LinesFileRecord& r);

// Takes `r` for `team`, loaded in `side`, when it has no fault: statuses and
// protection marks, then the table (into the editor's LineBuf when `editor` is
// given), LinesOK and the moves' transaction text. A fault changes nothing.
std::optional<LinesFault> TakeLinesRecord(LeagueState& s, int team, int side, const LinesFileRecord& r,
                                          LineEditor* editor);

// The file chosen (or `chosen`) loaded into CurTeam in `side`, after the
// password check; refusals are told. Without an editor a taken file is saved
// with the team.
LinesImport ImportLinesSub(LeagueState& s, int side, LineEditor* editor,
                           std::optional<std::filesystem::path> chosen = std::nullopt);

// The line editor's cmdLoadLines: the file goes into the editor's LineBuf.
inline LinesImport cmdLoadLines(LeagueState& s, LineEditor& e,
                                std::optional<std::filesystem::path> chosen = std::nullopt) {
  return ImportLinesSub(s, 0, &e, std::move(chosen));
}

}  // namespace kvl
