#include "reports/payroll.h"

#include <cmath>

namespace kvl {

namespace {

constexpr double kGameCosts = 8700000;

// Slot 0 is left out of both payrolls, as the walk has always begun at 1.
template <class Pay>
i32 SumSlots(const LeagueState& s, int side, Pay pay) {
  double sum = 0;
  for (int slot = 1; slot < kRosterSlots; ++slot) {
    const Player& p = s.player(side, slot);
    if (!p.empty()) sum += pay(p);
  }
  return static_cast<i32>(std::floor(sum + 0.5));
}

}  // namespace

i32 ProPayroll(const LeagueState& s, int side) {
  return SumSlots(s, side, [](const Player& p) { return p.list() != 0 && p.Suspended == 0 ? p.Salary : 0.0; });
}

i32 FarmPayroll(const LeagueState& s, int side) {
  const int twoWay = s.league.TwoWayAfter;
  return SumSlots(s, side, [twoWay](const Player& p) {
    if (p.list() != 0) return 0.0;
    return p.GP < twoWay ? p.Salary / 10.0 : static_cast<double>(p.Salary);
  });
}

i32 ProspectFees(const LeagueState& s, int side) {
  const ProspectList& list = s.Prospects[static_cast<std::size_t>(side)];
  i32 sum = 0;
  for (int i = 0; i < kMaxProspects; ++i)
    if (!list.Name[static_cast<std::size_t>(i)].empty() && list.Salary[static_cast<std::size_t>(i)] > 0)
      sum += list.Salary[static_cast<std::size_t>(i)] * 100;
  return sum;
}

double SeasonGames(const LeagueState& s) { return s.numTeams() == 0 ? 0 : 2.0 * s.league.LeagueGames / s.numTeams(); }

double Revenue(const LeagueState& s) {
  double games = SeasonGames(s);
  return games == 0 ? 0 : kGameCosts / games;
}

}  // namespace kvl
