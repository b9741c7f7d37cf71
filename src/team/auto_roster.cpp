#include "team/auto_roster.h"

#include "league/league_files.h"
#include "league/ratings.h"
#include "team/auto_lines.h"
#include "transactions/check_waivers.h"
#include "team/free_agent_release.h"
#include "team/roster_rules.h"
#include "util/error.h"

namespace kvl {

RosterMaker::RosterMaker(LeagueState& s, int team, int side) : s_(s), actor_(team), team_(team), side_(side) {}

void RosterMaker::ResetFlags() {
  for (int i = 0; i < kRosterSlots; ++i) {
    Player& p = at(i);
    int n = p.injury();
    if (n > 0) {
      temp(i) = static_cast<u8>(n + 100);
      if (p.Status < 100) p.Status = static_cast<u8>(n + 100);
      if (p.Condition < 10) p.Condition = 100;
    } else {
      temp(i) = p.Status;
    }
    PrevStatus[static_cast<std::size_t>(i)] = p.Status;
  }
}

int RosterMaker::BestAvailable(int pos, int mode) {
  int best = kNoPlayer, bestRating = 0, rating = 0;
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = at(i);
    if (p.Suspended != 0 || temp(i) != kScratch || !PosMatches(p.Pos, pos)) continue;
    rating = RateBy(p, mode);
    if (rating > bestRating) best = i, bestRating = rating;
  }
  // The fallback does not rate anew: it weighs the rating last left by the
  // first pass, so it only ever answers when that one was positive.
  if (best == kNoPlayer) {
    for (int i = 0; i < kRosterSlots; ++i) {
      const Player& p = at(i);
      if (p.empty() || p.Pos == kGoalie || p.Suspended != 0 || temp(i) != kScratch) continue;
      if (rating > bestRating) best = i, bestRating = rating;
    }
  }
  if (best == kNoPlayer) best = PromoteMinor(pos);
  if (best == kNoPlayer) throw KvlError("no player left to dress for " + s_.team(team_).Name.str());
  return best;
}

int RosterMaker::PromoteMinor(int pos) {
  int best = kNoPlayer, bestRating = 0;
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = at(i);
    if ((temp(i) != kScratch && temp(i) != 0) || p.empty() || !PosMatches(p.Pos, pos)) continue;
    if (p.Suspended != 0 || p.injury() != 0) continue;
    if (Overall(p) > bestRating) best = i, bestRating = Overall(p);
  }
  if (best != kNoPlayer) return best;
  for (int i = 0; i < kRosterSlots; ++i) {
    const Player& p = at(i);
    if (temp(i) != 0 || p.empty() || p.Pos == kGoalie) continue;
    if (Overall(p) > bestRating) best = i, bestRating = Overall(p);
  }
  if (best != kNoPlayer) return best;
  for (int i = 0; i < kRosterSlots; ++i)
    if (temp(i) == kDressedHealthy) return i;
  return kNoPlayer;
}

void RosterMaker::Dress(int pos, int mode) { temp(BestAvailable(pos, mode)) = kDressedHealthy; }

void RosterMaker::AutoRoster(bool write) {
  ResetFlags();
  for (auto& t : TempStatus)
    if (t >= 200) t = static_cast<u8>(t - 100);
  for (int pos : {kCentre, kLeftWing, kRightWing}) {
    Dress(pos, kByOffense);
    Dress(pos, kByOffense);
    Dress(pos, kByDefense);
  }
  for (int k = 0; k < 3; ++k) {
    Dress(kDefence, kByOffense);
    Dress(kDefence, kByDefense);
  }
  for (int k = 0; k < 3; ++k) Dress(kAnySkater, kByOverall);
  for (int k = 0; k < 2; ++k) Dress(kGoalie, kByOverall);
  if (!write) return;
  TransferBuffer();
  LineMaker(s_, team_, side_).AutoLines(true);
}

void RosterMaker::TransferBuffer() {
  for (int i = 0; i < kRosterSlots; ++i) {
    Player& p = at(i);
    if (p.Release == 1) {
      ReleaseToFreeAgents(s_, p);
      p = Player{};
      continue;
    }
    p.Status = temp(i);
    if (p.Status == 0 && PrevStatus[static_cast<std::size_t>(i)] >= 100) CheckWaivers(s_, side_, i, actor_);
  }
  s_.Dirty = true;
  SaveTeam(s_, team_, side_);
}

void AutoRoster(LeagueState& s, int team, int side) { RosterMaker(s, team, side).AutoRoster(true); }

}  // namespace kvl
