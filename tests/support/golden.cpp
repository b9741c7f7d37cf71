#include "support/golden.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>

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
  EXPECT_EQ(text, ReadAll(golden)) << "golden page " << golden;
}

}  // namespace kvl::test
