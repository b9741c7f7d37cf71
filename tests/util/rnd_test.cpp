// The league's random generator: its ranges, and runs repeated by a master seed.
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <set>
#include <vector>

#include "util/rnd.h"

namespace kvl {
namespace {

std::vector<double> Draws(Rnd& r, int n) {
  std::vector<double> out;
  for (int i = 0; i < n; ++i) out.push_back(r());
  return out;
}

TEST(Rnd, UniformStaysInTheHalfOpenUnitAndSpreads) {
  Rnd r(1);
  const std::vector<double> d = Draws(r, 100000);
  const auto [lo, hi] = std::minmax_element(d.begin(), d.end());
  EXPECT_GE(*lo, 0.0);
  EXPECT_LT(*lo, 0.001);
  EXPECT_GT(*hi, 0.999);
  EXPECT_LT(*hi, 1.0);
  EXPECT_NEAR(std::accumulate(d.begin(), d.end(), 0.0) / 100000, 0.5, 0.01);
}

TEST(Rnd, WholeNumbersRunFromOneToN) {
  Rnd r(2);
  for (int n : {1, 2, 6, 50}) {
    std::set<int> seen;
    for (int i = 0; i < 2000; ++i) seen.insert(r(n));
    EXPECT_EQ(std::tuple(seen.size(), *seen.begin(), *seen.rbegin()), std::tuple(static_cast<std::size_t>(n), 1, n)) << n;
  }
}

TEST(Rnd, AMasterSeedRepeatsEveryRandomizeAndWithoutOneRandomizeDiffers) {
  Rnd a, b, c;
  a.setMasterSeed(42);
  b.setMasterSeed(42);
  c.setMasterSeed(43);
  std::vector<std::vector<double>> runA, runB, runC;
  for (int round = 0; round < 3; ++round) {
    for (Rnd* r : {&a, &b, &c}) r->Randomize();
    runA.push_back(Draws(a, 5));
    runB.push_back(Draws(b, 5));
    runC.push_back(Draws(c, 5));
  }
  EXPECT_EQ(runA, runB);
  EXPECT_NE(runA, runC);
  EXPECT_NE(runA[0], runA[1]) << "each Randomize starts a new stream";
  Rnd d(5), e(5);
  EXPECT_EQ(Draws(d, 3), Draws(e, 3));
  d.Randomize();
  e.Randomize();
  EXPECT_NE(Draws(d, 3), Draws(e, 3));
}

}  // namespace
}  // namespace kvl
