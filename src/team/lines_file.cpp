#include "team/lines_file.h"

#include "team/line_editor.h"
#include "ui/ui.h"
#include "util/cp1252.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl {

std::optional<std::string> TeamPassword(LeagueState& s) {
  auto typed = s.ui.prompt("Enter the team password", "Team Password", "");
  if (!typed) return std::nullopt;
  return Utf8ToCp1252(*typed);
}

FixedText<10> LinesPassword(const std::string& typed) {
  FixedText<10> p;
  p.set(typed + std::string(12, ' '));
  return p;
}

LinesFileRecord MakeLinesFileRecord(const LeagueState& s, int team, int side, const LineTable& lines,
                                    const FixedText<10>& password) {
  LinesFileRecord r;
  r.TeamNumber = static_cast<u8>(team);
  r.Password = password;
  r.Lines = lines;
  for (int i = 0; i < kRosterSlots; ++i) {
    r.Status[static_cast<std::size_t>(i)] = s.player(side, i).Status;
    r.Protected[static_cast<std::size_t>(i)] = s.player(side, i).Protected;
  }
  return r;
}

LinesFileRecord ReadLinesFile(const std::filesystem::path& path) {
  const Bytes bytes = ReadFileBytes(path);
  if (bytes.size() != LinesFileRecord::kSize)
    throw KvlError(path.string() + " is " + std::to_string(bytes.size()) + " bytes long; a lines file holds " +
                   std::to_string(LinesFileRecord::kSize));
  return DecodeRecord<LinesFileRecord>(bytes);
}

void WriteLinesFile(LeagueState& s, const std::filesystem::path& path, const LinesFileRecord& r) {
  s.files().writeFile(path, EncodeRecord(r));
}

std::optional<std::filesystem::path> cmdSaveLines(LeagueState& s, const LineEditor& e,
                                                  std::optional<std::filesystem::path> chosen) {
  auto typed = TeamPassword(s);
  if (!typed) return std::nullopt;
  if (!chosen) {
    const auto suggested = s.AppPath / (Condense(s.team(e.team()).Name.str()) + ".lns");
    chosen = s.ui.chooseFile("Save Lines here", kLinesFileFilter, suggested, true);
  }
  if (!chosen || chosen->empty()) return std::nullopt;
  std::filesystem::path path = *chosen;
  if (path.string().find(".lns") == std::string::npos) path += ".lns";
  WriteLinesFile(s, path, MakeLinesFileRecord(s, e.team(), e.side(), e.LineBuf, LinesPassword(*typed)));
  return path;
}

}  // namespace kvl
