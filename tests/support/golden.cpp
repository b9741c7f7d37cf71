#include "support/golden.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace kvl::test {

std::string ReadAll(const std::filesystem::path& p) {
  std::ifstream in(p, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

void WriteText(const std::filesystem::path& p, const std::string& text) {
  std::filesystem::create_directories(p.parent_path());
  std::ofstream(p, std::ios::binary) << text;
}

void ExpectGolden(const std::string& testFile, const std::string& name, const std::string& text) {
  std::filesystem::path golden = std::filesystem::path(testFile).parent_path() / "golden" / name;
  if (std::getenv("KVL_UPDATE_GOLDEN")) WriteText(golden, text);
  const std::string kept = ReadAll(golden);
  if (text == kept) return;
  // Whole pages printed side by side are unreadable: name the first line that differs.
  std::istringstream now(text), was(kept);
  std::string a, b;
  for (int line = 1;; ++line) {
    bool more = static_cast<bool>(std::getline(now, a)), had = static_cast<bool>(std::getline(was, b));
    if (more && had && a == b) continue;
    ADD_FAILURE() << golden << " differs from line " << line << ":\n  kept: " << (had ? b : "(end)")
                  << "\n  now:  " << (more ? a : "(end)")
                  << "\nKVL_UPDATE_GOLDEN=1 rewrites the kept text; review it with git diff.";
    return;
  }
}

}  // namespace kvl::test
