#include "file_set.h"

#include <fstream>
#include <iterator>

#include "league/league_files.h"

namespace kvl::fuzz {

namespace fs = std::filesystem;

namespace {

constexpr std::uint32_t kAbsent = 0xFFFFFFFF;

std::uint32_t ReadLength(std::string_view& in) {
  std::uint32_t n = 0;
  for (int i = 0; i < 4; ++i) {
    const std::uint32_t byte = in.empty() ? 0xFF : static_cast<unsigned char>(in.front());
    if (!in.empty()) in.remove_prefix(1);
    n |= byte << (8 * i);
  }
  return n;
}

}  // namespace

bool UnpackFileSet(std::string_view input, const std::string& base) {
  std::string_view lengths = input.substr(0, 4 * LeagueFileKinds().size());
  std::string_view bytes = input.substr(lengths.size());
  bool lge = false;
  for (const LeagueFileKind& kind : LeagueFileKinds()) {
    const std::uint32_t n = ReadLength(lengths);
    if (n == kAbsent) continue;
    const std::string_view file = bytes.substr(0, n);
    bytes.remove_prefix(file.size());
    std::ofstream(base + kind.ext, std::ios::binary).write(file.data(), static_cast<std::streamsize>(file.size()));
    lge = lge || std::string(kind.ext) == ".lge";
  }
  return lge;
}

std::string PackFileSet(const std::string& base) {
  std::string lengths, bytes;
  for (const LeagueFileKind& kind : LeagueFileKinds()) {
    const fs::path f = base + kind.ext;
    std::uint32_t n = kAbsent;
    if (fs::exists(f)) {
      std::ifstream in(f, std::ios::binary);
      const std::string data(std::istreambuf_iterator<char>(in), {});
      bytes += data;
      n = static_cast<std::uint32_t>(data.size());
    }
    for (int i = 0; i < 4; ++i) lengths += static_cast<char>((n >> (8 * i)) & 0xFF);
  }
  return lengths + bytes;
}

}  // namespace kvl::fuzz
