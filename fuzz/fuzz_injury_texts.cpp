// The injury texts: a player hurt in every class draws his text from inj.dtf.
#include "fuzz_home.h"
#include "league/league_files.h"
#include "sim/injuries.h"

using namespace kvl;
using namespace kvl::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzHome& h = Home();
  h.Reset({"swp.tr"});  // each injury is logged
  h.Scratch("inj.dtf", AsText(data, size));
  std::filesystem::copy_file(h.scratch / "inj.dtf", h.home / "inj.dtf",
                             std::filesystem::copy_options::overwrite_existing);
  loadteam(h.state, 0, 0);
  for (int slot = 0; slot < 12; ++slot) {
    h.state.player(0, slot).Ratings[kDur] = static_cast<u8>(slot * 8);  // from fragile to sturdy
    RefusedBy([&] { DecideInjury(h.state, 0, 0, slot); });
  }
  h.ui.forget();
  return 0;
}
