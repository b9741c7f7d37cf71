#pragma once
// The league's one random generator. Randomize reseeds from the clock unless the
// run was given a master seed; then every Randomize draws its seed from a master
// generator, so a whole run can be repeated.
#include <cstdint>
#include <optional>

namespace kvl {

class Rnd {
 public:
  explicit Rnd(std::uint64_t seed = 0x4b564c) { seed_state(seed); }
  // A uniform number in [0, 1).
  double operator()() { return static_cast<double>(next() >> 11) * 0x1.0p-53; }
  // 1 + Int(Rnd x n): a whole number from 1 to n.
  int operator()(int n) { return 1 + static_cast<int>((*this)() * n); }
  void seed_state(std::uint64_t seed);
  void setMasterSeed(std::optional<std::uint64_t> seed);
  void Randomize();

 private:
  std::uint64_t next();
  std::uint64_t s_[4]{};
  std::optional<std::uint64_t> master_;
};

}  // namespace kvl
