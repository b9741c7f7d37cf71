#include "util/rnd.h"

#include <chrono>

namespace kvl {

namespace {
std::uint64_t SplitMix(std::uint64_t& x) {
  std::uint64_t z = (x += 0x9e3779b97f4a7c15ULL);
  z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
  z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
  return z ^ (z >> 31);
}
}  // namespace

void Rnd::seed_state(std::uint64_t seed) {
  for (auto& s : s_) s = SplitMix(seed);
  ahead_ = kBatch;
}

void Rnd::setMasterSeed(std::optional<std::uint64_t> seed) {
  master_ = seed;
  if (seed) seed_state(*seed);
}

void Rnd::Randomize() {
  if (master_) {
    *master_ = SplitMix(*master_);
    seed_state(*master_);
  } else {
    // The generator's own address tells apart two leagues that reseed in the
    // same clock tick.
    std::uint64_t self = reinterpret_cast<std::uintptr_t>(this);
    seed_state(static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()) ^
               static_cast<std::uint64_t>(std::chrono::system_clock::now().time_since_epoch().count()) ^
               SplitMix(self));
  }
}

}  // namespace kvl
