#include "transactions/roster_fill.h"

#include <algorithm>

#include "league/league_files.h"
#include "league/ratings.h"
#include "transactions/database_players.h"

namespace kvl {

namespace {

constexpr std::array<int, 5> kDressed{4, 4, 4, 6, 2};
constexpr int kProStatus = 100, kDressedStatus = 200, kFarmStatus = 0;

// The unused players of one position, best first, taken from the front.
struct Pool {
  std::vector<int> records;  // numbered from 1
  std::size_t next = 0;
  bool empty() const { return next >= records.size(); }
};

struct TeamPlan {
  std::array<int, 5> proNeed{}, farmNeed{};
  int freeSlots = 0;
  bool anyDressed = false;
  std::vector<std::pair<int, bool>> picks;  // record, for the pro roster
};

std::array<Pool, 5> MakePools(const std::vector<DbRecord>& db) {
  std::array<Pool, 5> pools;
  for (std::size_t i = 0; i < db.size(); ++i)
    if (db[i].DbFlag == 0 && !db[i].P.empty() && db[i].P.Pos < 5)
      pools[db[i].P.Pos].records.push_back(static_cast<int>(i) + 1);
  for (Pool& p : pools)
    std::stable_sort(p.records.begin(), p.records.end(), [&](int a, int b) {
      return Overall(db[static_cast<std::size_t>(a - 1)].P) > Overall(db[static_cast<std::size_t>(b - 1)].P);
    });
  return pools;
}

TeamPlan PlanTeam(LeagueState& s, int t, const ClubShape& shape) {
  loadteam(s, t, 0);
  std::array<int, 5> pro{}, farm{};
  TeamPlan plan;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(0, slot);
    if (p.empty()) {
      ++plan.freeSlots;
      continue;
    }
    if (p.Pos >= 5) continue;
    ++(p.list() > 0 ? pro : farm)[p.Pos];
    plan.anyDressed = plan.anyDressed || p.list() == 2;
  }
  for (std::size_t pos = 0; pos < 5; ++pos) {
    plan.proNeed[pos] = std::max(0, shape.pro[pos] - pro[pos]);
    plan.farmNeed[pos] = std::max(0, shape.farm[pos] - farm[pos]);
  }
  return plan;
}

// One position a round, cycling C LW RW D D G while any is wanted.
std::vector<int> RoundOrder(std::array<int, 5> left) {
  static constexpr std::array<int, 6> kCycle{kCentre, kLeftWing, kRightWing, kDefence, kDefence, kGoalie};
  std::vector<int> rounds;
  while (std::any_of(left.begin(), left.end(), [](int n) { return n > 0; }))
    for (int pos : kCycle)
      if (left[static_cast<std::size_t>(pos)] > 0) {
        rounds.push_back(pos);
        --left[static_cast<std::size_t>(pos)];
      }
  return rounds;
}

// The farm makes do with the best skater left when a skating position runs dry.
int Take(std::array<Pool, 5>& pools, int pos, bool farm, const std::vector<DbRecord>& db) {
  Pool* from = &pools[static_cast<std::size_t>(pos)];
  if (from->empty() && farm && pos != kGoalie) {
    from = nullptr;
    for (int p = kCentre; p <= kDefence; ++p) {
      Pool& cand = pools[static_cast<std::size_t>(p)];
      if (cand.empty()) continue;
      auto head = [&](Pool& q) { return Overall(db[static_cast<std::size_t>(q.records[q.next] - 1)].P); };
      if (!from || head(cand) > head(*from)) from = &cand;
    }
  }
  if (!from || from->empty()) return 0;
  return from->records[from->next++];
}

void DraftRounds(std::vector<TeamPlan>& plans, std::array<Pool, 5>& pools, const std::vector<DbRecord>& db,
                 const ClubShape& shape, bool farm) {
  std::vector<int> rounds = RoundOrder(farm ? shape.farm : shape.pro);
  int n = static_cast<int>(plans.size());
  for (std::size_t r = 0; r < rounds.size(); ++r) {
    auto pos = static_cast<std::size_t>(rounds[r]);
    for (int i = 0; i < n; ++i) {
      TeamPlan& plan = plans[static_cast<std::size_t>(r % 2 == 0 ? i : n - 1 - i)];
      int& need = (farm ? plan.farmNeed : plan.proNeed)[pos];
      if (need == 0 || static_cast<int>(plan.picks.size()) >= plan.freeSlots) continue;
      int record = Take(pools, rounds[r], farm, db);
      if (record == 0) continue;
      plan.picks.emplace_back(record, !farm);
      --need;
    }
  }
}

// Dresses the best pro players by the dressed make-up, when they fill it exactly.
void DressClub(LeagueState& s, int side) {
  std::array<std::vector<int>, 5> byPos;
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(side, slot);
    if (!p.empty() && p.Pos < 5 && p.Status == kProStatus) byPos[p.Pos].push_back(slot);
  }
  int total = 0;
  for (std::size_t pos = 0; pos < 5; ++pos) {
    auto& slots = byPos[pos];
    std::stable_sort(slots.begin(), slots.end(), [&](int a, int b) { return Overall(s, a, side) > Overall(s, b, side); });
    slots.resize(std::min<std::size_t>(slots.size(), static_cast<std::size_t>(kDressed[pos])));
    total += static_cast<int>(slots.size());
  }
  if (total != 20) return;
  for (const auto& slots : byPos)
    for (int slot : slots) s.player(side, slot).Status = kDressedStatus;
}

bool ShortOfShape(const LeagueState& s, int side, const ClubShape& shape) {
  std::array<int, 5> pro{};
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(side, slot);
    if (!p.empty() && p.Pos < 5 && p.list() > 0) ++pro[p.Pos];
  }
  for (std::size_t pos = 0; pos < 5; ++pos)
    if (pro[pos] < shape.pro[pos]) return true;
  return false;
}

}  // namespace

FillResult FillRosters(LeagueState& s, const ClubShape& shape) {
  std::vector<DbRecord> db = ReadDatabase(s);
  std::array<Pool, 5> pools = MakePools(db);
  std::vector<TeamPlan> plans;
  for (int t = 0; t < s.numTeams(); ++t) plans.push_back(PlanTeam(s, t, shape));
  DraftRounds(plans, pools, db, shape, false);
  DraftRounds(plans, pools, db, shape, true);

  FillResult result;
  std::vector<int> used;
  for (int t = 0; t < s.numTeams(); ++t) {
    const TeamPlan& plan = plans[static_cast<std::size_t>(t)];
    loadteam(s, t, 0);
    for (auto [record, pro] : plan.picks) {
      PlaceOnRoster(s, 0, FirstFreeSlot(s, 0), db[static_cast<std::size_t>(record - 1)].P, pro ? kProStatus : kFarmStatus);
      used.push_back(record);
    }
    if (!plan.anyDressed) DressClub(s, 0);
    if (ShortOfShape(s, 0, shape)) result.shortTeams.push_back(t);
    SaveTeam(s, t, 0);
  }
  MarkUsed(s, used);
  result.assigned = static_cast<int>(used.size());
  if (result.assigned > 0) s.Dirty = true;
  return result;
}

}  // namespace kvl
