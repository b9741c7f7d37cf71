#pragma once
// Loading a manager's binary lines file into a team: statuses move (going down
// through the waiver gate), protection marks are taken, and the table is
// stored when no player was refused.
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

// Moves statuses and takes the protection marks of `r` for `team`, loaded in
// `side`; then stores the table (in the editor's LineBuf when `editor` is
// given) unless a player was refused. On a refusal without an editor, a team
// whose lines were not set gets AutoRoster. The refusal's text, if any.
std::optional<std::string> TakeLinesRecord(LeagueState& s, int team, int side, const LinesFileRecord& r,
                                           LineEditor* editor);

// The file chosen (or `chosen`) loaded into CurTeam in `side`, after the
// password check; refusals are told. Without an editor the team is saved.
LinesImport ImportLinesSub(LeagueState& s, int side, LineEditor* editor,
                           std::optional<std::filesystem::path> chosen = std::nullopt);

// The line editor's cmdLoadLines: the file goes into the editor's LineBuf.
inline LinesImport cmdLoadLines(LeagueState& s, LineEditor& e,
                                std::optional<std::filesystem::path> chosen = std::nullopt) {
  return ImportLinesSub(s, 0, &e, std::move(chosen));
}

}  // namespace kvl
