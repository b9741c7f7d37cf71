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

// Draws fill [0, 1) evenly; whole numbers run from 1 to n, every one drawn.
TEST(Rnd, UniformStaysInTheHalfOpenUnitAndWholeNumbersRunFromOneToN) {
  Rnd r(1);
  const std::vector<double> d = Draws(r, 100000);
  const auto [lo, hi] = std::minmax_element(d.begin(), d.end());
  EXPECT_TRUE(*lo >= 0.0 && *lo < 0.001 && *hi > 0.999 && *hi < 1.0) << *lo << " " << *hi;
  EXPECT_NEAR(std::accumulate(d.begin(), d.end(), 0.0) / 100000, 0.5, 0.01);
  for (int n : {1, 2, 6, 50}) {
    std::set<int> seen;
    for (int i = 0; i < 2000; ++i) seen.insert(r(n));
    EXPECT_EQ(std::tuple(seen.size(), *seen.begin(), *seen.rbegin()), std::tuple(std::size_t(n), 1, n)) << n;
  }
}

TEST(Rnd, AMasterSeedRepeatsEveryRandomizeAndWithoutOneRandomizeDiffers) {
  auto run = [](Rnd& r) {  // three streams of five draws, each after a Randomize
    std::vector<std::vector<double>> out;
    for (int round = 0; round < 3; ++round) {
      r.Randomize();
      out.push_back(Draws(r, 5));
    }
    return out;
  };
  Rnd a, b, c, d(5), e(5);
  a.setMasterSeed(42), b.setMasterSeed(42), c.setMasterSeed(43);
  const auto runA = run(a);
  EXPECT_EQ(runA, run(b));
  EXPECT_NE(runA, run(c));
  EXPECT_NE(runA[0], runA[1]) << "each Randomize starts a new stream";
  EXPECT_EQ(Draws(d, 3), Draws(e, 3));
  EXPECT_NE(run(d), run(e));
}

}  // namespace
}  // namespace kvl
