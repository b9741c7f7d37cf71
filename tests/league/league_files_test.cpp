#include <gtest/gtest.h>

#include "league/league_files.h"
#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl {
namespace {

using test::Harness;
using test::StandardLeague;

TEST(LeagueFiles, LoadThenSaveLeavesFilesByteIdentical) {
  Harness h;
  std::string path = h.load(StandardLeague(8));
  std::map<std::string, Bytes> before;
  for (const auto& e : fs::directory_iterator(fs::path(path).parent_path())) before[e.path().string()] = ReadFileBytes(e.path());
  SaveLg(h.state);
  for (const auto& [file, bytes] : before) EXPECT_EQ(ReadFileBytes(file), bytes) << file;
}

}  // namespace
}  // namespace kvl
