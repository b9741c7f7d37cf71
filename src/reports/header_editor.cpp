#include "reports/header_editor.h"

#include "reports/page_files.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

bool IsPageFileNumber(int n) { return (n >= 0 && n <= 16) || n == 20; }

HeaderEditor::HeaderEditor(const LeagueState& s, bool footer, int n)
    : caption(footer ? FooterFile(s, n) : HeaderFile(s, n)) {
  if (!IsPageFileNumber(n)) throw KvlError("no page has header or footer number " + NumText(n));
  std::vector<std::string> lines;
  ReadPageLines(caption, lines);
  for (std::size_t i = 0; i < lines.size(); ++i) Text1 += (i ? "\r\n" : "") + lines[i];
}

void HeaderEditor::cmdSave() {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < Text1.size()) {
    std::size_t end = Text1.find('\n', start);
    if (end == std::string::npos) end = Text1.size();
    std::string line = Text1.substr(start, end - start);
    if (!line.empty() && line.back() == '\r') line.pop_back();
    lines.push_back(line);
    start = end + 1;
  }
  WriteLines(caption, lines);
}

}  // namespace kvl
