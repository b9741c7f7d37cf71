#include "transactions/priority.h"

#include "league/league_files.h"
#include "util/record_file.h"

namespace kvl {

void MakePriority(LeagueState& s) {
  RemoveIfExists(s.swap(swp::Priority));
  RecordFile f(s.swap(swp::Priority), 1);
  for (int t = 0; t < s.numTeams(); ++t) {
    const std::uint8_t place = static_cast<std::uint8_t>(t);
    f.put(static_cast<std::size_t>(t) + 1, std::span<const std::uint8_t>(&place, 1));
    s.team(t).Priority = place;
  }
}

}  // namespace kvl
