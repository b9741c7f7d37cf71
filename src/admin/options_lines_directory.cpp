#include "admin/options_lines_directory.h"

#include <fstream>

#include "util/error.h"
#include "util/fixed_text.h"
#include "util/record_file.h"

namespace kvl {

namespace {

void WriteLine(const std::filesystem::path& file, const std::string& line) {
  std::string text = line + "\r\n";
  WriteFileAtomic(file, std::span(reinterpret_cast<const std::uint8_t*>(text.data()), text.size()));
}

}  // namespace

std::filesystem::path LinesDirectoryFile(const std::filesystem::path& home) { return home / "LinesDirectory.txt"; }

std::string ReadLinesDirectory(const std::filesystem::path& home) {
  auto file = LinesDirectoryFile(home);
  if (!std::filesystem::exists(file)) WriteLine(file, home.string());
  std::ifstream in(file);
  std::string line;
  std::getline(in, line);
  if (!line.empty() && line.back() == '\r') line.pop_back();
  return line;
}

void WriteLinesDirectory(const std::filesystem::path& home, const std::string& dir) {
  std::string line = Trim(dir);
  if (line.empty() || (line.back() != '/' && line.back() != '\\')) line += '/';
  WriteLine(LinesDirectoryFile(home), line);
}

}  // namespace kvl
