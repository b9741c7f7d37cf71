#pragma once
// A manager's binary lines file (.lns): one record of 236 bytes.
//   0    u8        team number at saving (not tested on loading)
//   1    10 bytes  password, blank padded
//   11   10 bytes  zero
//   21   65 x u8   line table, row + 13 x slot, as in the Team record
//   86   50 x u8   Status of roster slots 0..49
//   136  50 x i16  Protected of roster slots 0..49
// A file of any other length is refused whole.
#include <filesystem>
#include <optional>
#include <string>

#include "league/league_state.h"

namespace kvl {

class LineEditor;

constexpr const char* kLinesFileFilter = "All Files|*.*|Lines Files|*.lns";

// The TeamPassword prompt: the text typed (as stored, Windows-1252), nullopt on cancel.
std::optional<std::string> TeamPassword(LeagueState& s);
// The typed password as the file and the Team record hold it: + 12 blanks, cut to 10.
FixedText<10> LinesPassword(const std::string& typed);

// The record of `team`, loaded in `side`, with `lines` as its table.
LinesFileRecord MakeLinesFileRecord(const LeagueState& s, int team, int side, const LineTable& lines,
                                    const FixedText<10>& password);
// The record of a lines file; KvlError naming the file when it cannot be read
// or is not 236 bytes long.
LinesFileRecord ReadLinesFile(const std::filesystem::path& path);
void WriteLinesFile(LeagueState& s, const std::filesystem::path& path, const LinesFileRecord& r);

// The line editor's cmdSaveLines: asks the password and (unless `chosen`) the
// file, and writes the editor's table. The path written, nullopt when cancelled.
std::optional<std::filesystem::path> cmdSaveLines(LeagueState& s, const LineEditor& e,
                                                  std::optional<std::filesystem::path> chosen = std::nullopt);

}  // namespace kvl
