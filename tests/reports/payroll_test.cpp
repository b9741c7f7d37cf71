// What a team's roster costs.
#include "reports/payroll.h"

#include <gtest/gtest.h>

#include "support/league_fixture.h"

namespace kvl::test {
namespace {

TEST(Payroll, WhoIsPaidAndHowMuch) {
  struct Case {
    const char* who;
    int slot, status, suspended, gp;
    i32 salary, pro, farm;
  };
  // TwoWayAfter is 50: a minor leaguer below 50 games draws a tenth, rounded.
  const std::vector<Case> cases{
      {"dressed", 1, 200, 0, 0, 1000001, 1000001, 0},
      {"scratched", 2, 100, 0, 0, 500000, 500000, 0},
      {"suspended", 3, 200, 3, 0, 500000, 0, 0},
      {"holding out", 4, 200, 99, 0, 500000, 0, 0},
      {"away for personal reasons", 5, 200, 88, 0, 500000, 0, 0},
      {"minor leaguer on a two-way deal", 6, 0, 0, 10, 500005, 0, 50001},
      {"minor leaguer past the two-way games", 7, 0, 0, 50, 400000, 0, 400000},
      {"slot 0 is never counted", 0, 200, 0, 0, 700000, 0, 0},
  };
  for (const Case& c : cases) {
    Harness h;
    h.state.league.TwoWayAfter = 50;
    Player& p = h.state.player(0, c.slot);
    p = MakePlayer("Some One", kCentre, 50, c.status);
    p.Suspended = static_cast<u8>(c.suspended);
    p.GP = static_cast<u8>(c.gp);
    p.Salary = c.salary;
    EXPECT_EQ(ProPayroll(h.state, 0), c.pro) << c.who;
    EXPECT_EQ(FarmPayroll(h.state, 0), c.farm) << c.who;
  }
}

TEST(Payroll, ProspectFeesAreInHundreds) {
  Harness h;
  ProspectList& list = h.state.Prospects[0];
  list.Name[0].set("A");
  list.Salary[0] = 250;
  list.Name[1].set("B");
  list.Salary[1] = -5;  // a negative fee is no fee
  list.Salary[2] = 900;  // no name, no fee
  EXPECT_EQ(ProspectFees(h.state, 0), 25000);
}

}  // namespace
}  // namespace kvl::test
