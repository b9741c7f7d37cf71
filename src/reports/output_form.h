#pragma once
// The Output form: the commissioner picks page groups and writes them at once.
#include <array>

#include "league/league_state.h"

namespace kvl {

// Picks by group number, 1..16; element 0 unused.
using PagePicks = std::array<bool, 17>;

// The groups picked in the stored flags. The page flags are CheckFlags 1 to
// 16 of the league header (0 is the daily page's). A flag counts when it is
// not zero: a new league stores 255, and every other flag of the records is
// tested for non-zero too.
PagePicks StoredPagePicks(const League& lg);

// Every group picked, as output-html and the demo write them.
PagePicks AllPageGroups();

// Writes the picked groups in the fixed order with the progress stepped after
// each; returns how many pages were written.
int WritePageGroups(LeagueState& s, const PagePicks& picks, bool treeAlways);

class Output {
 public:
  // Ticks the boxes from the stored flags; picking here does not change them.
  explicit Output(LeagueState& s);

  PagePicks Check{};

  // Writes the ticked groups and tells "Output complete"; the count of pages.
  int cmdOutput();

 private:
  LeagueState& s_;
};

}  // namespace kvl
