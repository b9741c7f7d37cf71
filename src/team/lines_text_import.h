#pragma once
// The text lines import (cmdTextLines): a list of jersey numbers, "***" for a
// missing entry, separated by commas, line ends (LF or CR LF) or blanks:
//   20 numbers, the dressed players; one token, ignored;
//   rows E1..P2 of 5, P3..K2 of 4, K3 and K4 of 3; the two spares; the starting goalie.
// Nobody is dressed twice, and every seat takes a dressed player as the line
// editor would place him (nobody twice on a row).
// The file may be UTF-8 (with or without a byte-order mark) or Windows-1252:
// only digits and "***" carry meaning. The import works on copies, so a refused
// file changes nothing.
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "team/lines_import.h"

namespace kvl {

class LineEditor;

struct TextLinesToken {
  std::string text;  // trimmed, as in the file
  int line = 0;      // from 1
};
// The tokens of a text lines file, empty ones dropped.
std::vector<TextLinesToken> TextLinesTokens(const std::string& bytes);

// True when the bytes hold no control character but tab, CR, LF and end-of-file:
// a text lines file. A binary lines file always holds zero bytes.
bool IsTextLinesFile(const std::string& bytes);

// Reads `chosen` (or asks for the file) into the editor's LineBuf and the
// team's statuses. A refusal is told with its text under "Invalid File";
// `why` then names the file, the line and the token.
LinesImport cmdTextLines(LeagueState& s, LineEditor& e, std::optional<std::filesystem::path> chosen = std::nullopt);

// The load-lines command: `file` into `team`, a binary lines file (password
// checked) or a text lines file told apart by its bytes. A taken text file is
// kept through the editor's exit question.
LinesImport LoadLinesFile(LeagueState& s, int team, const std::filesystem::path& file);

}  // namespace kvl
