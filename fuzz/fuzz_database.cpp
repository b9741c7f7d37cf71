// A player database: its records read, and the league's players updated from it.
#include "admin/player_database.h"
#include "admin/update_stats.h"
#include "fuzz_home.h"

using namespace kvl;
using namespace kvl::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzHome& h = Home();
  h.Reset({"swp.r", "swp.p", "swp.dr"});
  const auto file = h.Scratch("fz.drs", AsText(data, size));
  RefusedBy([&] { ReadPlayerDatabase(file); });
  RefusedBy([&] { UpdateStats(h.state, file); });
  h.ui.forget();
  return 0;
}
