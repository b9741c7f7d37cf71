#include "reports/page_files.h"

#include <fstream>

#include "util/numbers.h"
#include "util/record_file.h"

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

void WritePage(const fs::path& path, const std::vector<std::string>& lines) {
  std::string page;
  for (const std::string& line : lines) page += line + "\r\n";
  fs::create_directories(path.parent_path());
  WriteFileAtomic(path, std::span(reinterpret_cast<const std::uint8_t*>(page.data()), page.size()));
}

}  // namespace kvl
