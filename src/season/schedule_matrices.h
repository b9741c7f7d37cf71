#pragma once
// The Schedule form's working matrices for one schedule making: what the
// allotment decides and what placement then uses up.
#include <array>
#include <cstddef>

#include "league/records.h"

namespace kvl {

// A team-by-team square of the league's largest size; (a, b) is row a.
template <class T>
struct TeamGrid {
  std::array<std::array<T, kMaxTeams>, kMaxTeams> cells{};
  T& operator()(int a, int b) { return cells[static_cast<std::size_t>(a)][static_cast<std::size_t>(b)]; }
  T operator()(int a, int b) const { return cells[static_cast<std::size_t>(a)][static_cast<std::size_t>(b)]; }
  void fill(T v) {
    for (auto& row : cells) row.fill(v);
  }
};

template <class T>
struct TeamList {
  std::array<T, kMaxTeams> cells{};
  T& operator[](int t) { return cells[static_cast<std::size_t>(t)]; }
  T operator[](int t) const { return cells[static_cast<std::size_t>(t)]; }
  void fill(T v) { cells.fill(v); }
};

struct ScheduleMatrices {
  TeamGrid<u8> Matchups;       // games between a and b still to place
  TeamGrid<i16> HomeMatchups;  // of those, hosted by a (the first subscript)
  TeamList<i16> TotalGP;       // games allotted to, later placed for, a team
  TeamList<i16> HomeGP;
  TeamGrid<bool> ExtraGame;    // a top-up game joins a and b
  TeamList<u8> AllotOrder;     // team at place i
};

}  // namespace kvl
