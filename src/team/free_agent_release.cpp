#include "team/free_agent_release.h"

#include "league/league_files.h"
#include "util/record_file.h"

namespace kvl {

void ReleaseToFreeAgents(LeagueState& s, const Player& p) {
  RecordFile db(s.swap(swp::Database), DbRecord::kSize);
  std::size_t n = db.count();
  std::size_t at = 1;
  while (at <= n && !(db.getRecord<DbRecord>(at).P.Name == p.Name)) ++at;
  DbRecord rec;
  rec.DbFlag = 0;
  rec.P = p;
  rec.P.Release = 0;
  db.putRecord(at, rec);
}

}  // namespace kvl
