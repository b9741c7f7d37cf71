#include "sim/roster_cache.h"

#include <algorithm>

#include "league/league_files.h"
#include "util/record_file.h"

namespace kvl {

RosterCache::RosterCache(LeagueState& s) {
  auto saved = s.Player[0];
  auto savedProspects = s.Prospects[0];
  for (int t = 0; t < s.numTeams(); ++t) {
    loadteam(s, t, 0);
    Roster r;
    std::copy_n(s.Player[0].begin(), kRosterSlots, r.begin());
    rosters_.push_back(r);
  }
  s.Player[0] = saved;
  s.Prospects[0] = savedProspects;
  RecordFile f(s.swap(swp::Coaches), Coach::kSize);
  for (std::size_t n = 1; n <= f.count(); ++n) coaches_.push_back(f.getRecord<Coach>(n));
}

std::optional<Coach> RosterCache::coach(int record) const {
  if (record < 1 || static_cast<std::size_t>(record) > coaches_.size()) return std::nullopt;
  return coaches_[static_cast<std::size_t>(record - 1)];
}

std::optional<Coach> ReadCoach(LeagueState& s, const RosterCache* cache, int record) {
  if (cache) return cache->coach(record);
  RecordFile f(s.swap(swp::Coaches), Coach::kSize);
  if (record < 1 || static_cast<std::size_t>(record) > f.count()) return std::nullopt;
  return f.getRecord<Coach>(static_cast<std::size_t>(record));
}

}  // namespace kvl
