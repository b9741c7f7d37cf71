#pragma once
// Whole-number draws for the data generator, on the league's generator with a
// fixed seed. Only integer arithmetic follows the draws, so the bytes made are
// the same on every machine.
#include <span>
#include <utility>
#include <vector>

#include "util/rnd.h"

namespace kvl {

class Draws {
 public:
  explicit Draws(std::uint64_t seed) : rnd_(seed) {}

  // A whole number from lo to hi, both included.
  int between(int lo, int hi) { return lo + rnd_(hi - lo + 1) - 1; }
  bool chance(int percent) { return rnd_(100) <= percent; }

  template <class T>
  const T& pick(std::span<const T> items) {
    return items[static_cast<std::size_t>(between(0, static_cast<int>(items.size()) - 1))];
  }

  // An index drawn in proportion to the weights.
  std::size_t weightedIndex(std::span<const int> weights) {
    int total = 0;
    for (int w : weights) total += w;
    int at = between(1, total);
    for (std::size_t i = 0; i < weights.size(); ++i) {
      at -= weights[i];
      if (at <= 0) return i;
    }
    return weights.size() - 1;
  }

  template <class T, class WeightOf>
  const T& weighted(std::span<const T> items, WeightOf weightOf) {
    std::vector<int> weights;
    for (const T& item : items) weights.push_back(weightOf(item));
    return items[weightedIndex(weights)];
  }

  template <class T>
  void shuffle(std::vector<T>& items) {
    for (std::size_t i = items.size(); i > 1; --i)
      std::swap(items[i - 1], items[static_cast<std::size_t>(between(0, static_cast<int>(i) - 1))]);
  }

 private:
  Rnd rnd_;
};

}  // namespace kvl
