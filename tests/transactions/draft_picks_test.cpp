// Draft picks: sorting. A new team's fifty-four, entry 1 + year x 9 + round, are the new league
// transcript's (e2e/golden/new.txt); the form that edits a team's picks is the forms transcript's
// (e2e/golden/forms_trade.txt) and the demo's.
#include "transactions/draft_picks.h"

#include <algorithm>

#include "support/kvl_test.h"

namespace kvl::test {
namespace {

int ActiveCount(const DraftPickRecord& r) {
  return static_cast<int>(
      std::count_if(r.Pick.begin(), r.Pick.end(), [](const DraftPick& p) { return p.Active != 0; }));
}

DraftPick Pick(int year, int round, int orig, int owner) {
  return {static_cast<u8>(year), static_cast<u8>(round), static_cast<u8>(orig), static_cast<u8>(owner), kTrue};
}

TEST(DraftPicks, SortDropsTradedYearsAndKeepsTheOldOrderWithinARound) {
  test::Harness h;
  h.load(test::StandardLeague(8));
  DraftPickRecord r = NewDraftPicks(2);
  for (auto& p : r.Pick)
    if (p.CurrentYear == 3) p.Active = kFalse;  // every pick of that year traded away
  r.Pick[200] = Pick(0, 1, 6, 2);               // acquired late, lands after the own pick of the round
  r.Pick[100] = Pick(0, 1, 5, 2);
  r.Pick[150] = Pick(5, 8, 7, 2);
  WriteDraftPicks(h.state, 2, r);

  WriteDraftPicks(h.state, 0, DraftPickRecord{});
  SortDraftPicks(h.state, 0);
  EXPECT_EQ(ActiveCount(ReadDraftPicks(h.state, 0)), 0) << "an empty record sorts empty";
  SortDraftPicks(h.state, 2);
  DraftPickRecord sorted = ReadDraftPicks(h.state, 2);
  ASSERT_EQ(ActiveCount(sorted), 54 - 9 + 3);
  int last = 0;
  for (int i = 1; i < DraftPickRecord::kEntries; ++i) {
    const DraftPick& p = sorted.Pick[static_cast<std::size_t>(i)];
    if (!p.Active) {
      EXPECT_EQ(p.CurrentYear + p.Round + p.OrigTeam + p.Owner, 0) << "entry " << i << " past the last is blank";
      continue;
    }
    EXPECT_EQ(last + 1, i) << "active entries are packed from 1";
    last = i;
    EXPECT_NE(p.CurrentYear, 3);
  }
  // Year 0, round 1: own pick first, then the one held at entry 100, then 200.
  const DraftPick& tail = sorted.Pick[static_cast<std::size_t>(last)];
  EXPECT_EQ((std::array{int(sorted.Pick[2].OrigTeam), int(sorted.Pick[3].OrigTeam), int(sorted.Pick[4].OrigTeam),
                        int(sorted.Pick[5].Round), int(tail.CurrentYear), int(tail.Round), int(tail.OrigTeam)}),
            (std::array{2, 5, 6, 2, 5, 8, 7}));
}

}  // namespace
}  // namespace kvl::test
