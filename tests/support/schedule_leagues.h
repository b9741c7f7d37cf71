#pragma once
// Leagues of any alignment for the schedule tests.
#include <vector>

#include "support/league_fixture.h"

namespace kvl::test {

// Division sizes per conference: {{6, 6}, {6, 6}} is two conferences of two
// divisions of six. Teams are dealt round the divisions in turn, so division
// mates have scattered numbers.
using Alignment = std::vector<std::vector<int>>;

// A StandardLeague of the alignment's size, its header's conferences and
// divisions and each team's Conf and Div set.
LeaguePlan AlignedLeague(const Alignment& a, unsigned seed = 1);

int TeamCount(const Alignment& a);

}  // namespace kvl::test
