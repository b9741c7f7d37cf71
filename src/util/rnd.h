#pragma once
// The league's one random generator. Randomize reseeds from the clock unless the
// run was given a master seed; then every Randomize draws its seed from a master
// generator, so a whole run can be repeated.
#include <array>
#include <cstdint>
#include <optional>

namespace kvl {

class Rnd {
 public:
  explicit Rnd(std::uint64_t seed = 0x4b564c) { seed_state(seed); }
  // A uniform number in [0, 1). Numbers are made a batch at a time, which
  // keeps the generator's state in registers; the sequence is the same.
  double operator()() {
    if (ahead_ == kBatch) Refill();
    return batch_[ahead_++];
  }
  // 1 + Int(Rnd x n): a whole number from 1 to n.
  int operator()(int n) { return 1 + static_cast<int>((*this)() * n); }
  void seed_state(std::uint64_t seed);
  void setMasterSeed(std::optional<std::uint64_t> seed);
  void Randomize();

 private:
  // xoshiro256**: fast, and good enough for a game's draws. Inline, for a game
  // draws some ten thousand numbers.
  std::uint64_t next() {
    std::uint64_t result = Rotl(s_[1] * 5, 7) * 9;
    std::uint64_t t = s_[1] << 17;
    s_[2] ^= s_[0];
    s_[3] ^= s_[1];
    s_[1] ^= s_[2];
    s_[0] ^= s_[3];
    s_[2] ^= t;
    s_[3] = Rotl(s_[3], 45);
    return result;
  }
  static std::uint64_t Rotl(std::uint64_t x, int k) { return (x << k) | (x >> (64 - k)); }
  void Refill() {
    for (double& u : batch_) u = static_cast<double>(next() >> 11) * 0x1.0p-53;
    ahead_ = 0;
  }
  static constexpr std::size_t kBatch = 64;
  std::uint64_t s_[4]{};
  std::array<double, kBatch> batch_{};
  std::size_t ahead_ = kBatch;  // the next unused number of the batch
  std::optional<std::uint64_t> master_;
};

}  // namespace kvl
