// The league file set, opened and checked whole as the program opens a league.
#include <cstdlib>

#include "file_set.h"
#include "fuzz_home.h"
#include "league/league_files.h"

using namespace kvl;
using namespace kvl::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzHome& h = Home();
  h.Reset();
  const std::string base = (h.scratch / "fz").string();
  if (!UnpackFileSet(AsText(data, size), base)) return 0;
  const std::string before = FolderDigest(h.scratch);
  // A refused league leaves its files as they were.
  if (RefusedBy([&] { LoadLg(h.state, base); }) && FolderDigest(h.scratch) != before) std::abort();
  h.state.leagueLock.release();
  h.ui.forget();
  return 0;
}
