#pragma once
// The program's own default data: a database of fictional players, a pool of
// coaches and the injury texts. A fixed seed makes them, so every build writes
// the same bytes and the files under data/ can be checked against the generator.
#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "league/records.h"

namespace kvl {

constexpr int kDefaultPlayers = 1600;
constexpr int kDefaultCoaches = 72;

std::vector<DbRecord> MakeDefaultPlayers();
std::vector<Coach> MakeDefaultCoaches();
std::vector<InjuryText> DefaultInjuryTexts();

constexpr std::array<const char*, 3> kDefaultDataNames{"default.coa", "default.drs", "inj.dtf"};

// One of the files named above, as bytes. All three are made on the first call
// of a run and kept: they never change.
const Bytes& DefaultDataFile(std::string_view name);

}  // namespace kvl
