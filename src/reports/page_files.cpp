#include "reports/page_files.h"

#include <fstream>

#include "util/numbers.h"
#include "util/error.h"

namespace kvl {

fs::path TransferFile(const LeagueState& s, const std::string& name) {
  return s.AppPath / "Transfer" / (s.LeagueShort + name);
}

fs::path HeaderFile(const LeagueState& s, int n) {
  return s.AppPath / "Headers" / (s.LeagueShort + ".hd" + NumText(n));
}
fs::path FooterFile(const LeagueState& s, int n) {
  return s.AppPath / "Headers" / (s.LeagueShort + ".ft" + NumText(n));
}

bool ReadPageLines(const fs::path& path, std::vector<std::string>& out) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  for (std::string line; std::getline(in, line);) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    out.push_back(line);
  }
  return true;
}

// A page is written over in place: it holds nothing of the league that the
// next publishing would not write again, and a season writes a thousand.
void WriteLines(const fs::path& path, const std::vector<std::string>& lines) {
  std::string page;
  for (const std::string& line : lines) page += line + "\r\n";
  fs::create_directories(path.parent_path());
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  out << page;
  if (!out.flush()) throw KvlError("cannot write " + path.string());
}

void WritePage(const fs::path& path, const std::vector<std::string>& lines) {
  std::vector<std::string> page{kPageHead};
  page.insert(page.end(), lines.begin(), lines.end());
  WriteLines(path, page);
}

}  // namespace kvl
