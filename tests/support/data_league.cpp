#include "support/data_league.h"

#include "admin/alignment.h"
#include "admin/league_creation.h"

namespace kvl::test {

void NewBundledLeague(Harness& h, int teams) {
  MakeNewLeague(h.state, h.home / "default.drs", "Bundled");
  AlignLeague align(h.state);
  for (int c = 0; c < 2; ++c) align.ChangeDivisions(c, 4);
  for (int t = 0; t < teams; ++t) align.cmdAdd(t % 2, (t / 2) % 4, "Club" + std::to_string(t));
}

}  // namespace kvl::test
