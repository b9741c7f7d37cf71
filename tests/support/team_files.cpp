#include "support/team_files.h"

#include "support/league_fixture.h"

namespace kvl::test {

void HireStandardCoaches(LeaguePlan& plan) {
  for (std::size_t t = 0; t < plan.teams.size(); ++t) {
    plan.teams[t].CoachRec = static_cast<u8>(t + 1);
    plan.teams[t].Coach.Name = plan.coaches[t].Name;
    plan.teams[t].Coach.Salary = plan.coaches[t].Salary;
    plan.coaches[t].Team = static_cast<u8>(t + 1);
  }
}

}  // namespace kvl::test
