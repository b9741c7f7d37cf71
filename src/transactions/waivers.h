#pragma once
// The waiver wire: veterans sent down stand on waivers (.wvr, swap swp.wv)
// for other teams to claim in the order of the priority list (.pri). A claim
// is open for 5 days by the calendar, and the record goes after 7.
#include <string>
#include <vector>

#include "league/league_state.h"

namespace kvl {

constexpr double kClaimDays = 5, kWaiverDays = 7;
constexpr i32 kWaiverFee = 75000;

struct WaiverEntry {
  std::size_t record = 0;  // in .wvr, from 1
  std::string name;
};

// Every record of the swap file, blank ones included (record n at n - 1).
std::vector<WaiverRecord> ReadWaivers(const LeagueState& s);
// Removes the records 7 days old: the holder's Waived mark is cleared and it
// drops to the bottom of the priority list.
void UpdateWaivers(LeagueState& s);
// Moves a team to the bottom of the priority list; a damaged list is rebuilt.
void UpdatePriority(LeagueState& s, int team);
// The players `team` may claim now: under 5 days, open to it, and the team
// has not claimed since its mark was cleared.
std::vector<WaiverEntry> ListWaivers(const LeagueState& s, int team);

// The Waivers form on one team: claims and recalls.
class Waivers {
 public:
  Waivers(LeagueState& s, int team);
  // The team claims the player of waiver record `record`. False when refused.
  bool cmdClaim(std::size_t record);
  // The owner takes his player back. False when refused.
  bool cmdRecall(std::size_t record);
  // Whether the recall button is offered for this record.
  bool MayRecall(std::size_t record) const;

 private:
  // Moves the player of `w` from its holder to the first free slot of the
  // team, scratched on the pro roster, with the fee; false when no room.
  bool TakePlayer(WaiverRecord& w);
  void Write(std::size_t record, const WaiverRecord& w);

  LeagueState& s_;
  int team_;
};

}  // namespace kvl
