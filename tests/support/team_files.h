#pragma once
// League plans with the team files filled in.
namespace kvl::test {

// StandardLeague's coach t hired by team t, for every team.
struct LeaguePlan;
void HireStandardCoaches(LeaguePlan& plan);

}  // namespace kvl::test
