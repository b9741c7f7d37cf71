#include "team/coach_file.h"

#include "league/league_files.h"
#include "util/record_file.h"

namespace kvl {

namespace {
RecordFile Open(const LeagueState& s) { return RecordFile(s.swap(swp::Coaches), Coach::kSize); }
}  // namespace

std::vector<Coach> ReadCoaches(const LeagueState& s) {
  RecordFile f = Open(s);
  std::vector<Coach> out(f.count() + 1);
  out[0].Team = Coach::kNoTeam;
  for (std::size_t i = 1; i < out.size(); ++i) out[i] = f.getRecord<Coach>(i);
  return out;
}

void WriteCoach(const LeagueState& s, std::size_t rec, const Coach& c) { Open(s).putRecord(rec, c); }

std::size_t AppendCoach(const LeagueState& s, const Coach& c) {
  RecordFile f = Open(s);
  std::size_t rec = f.count() + 1;
  f.putRecord(rec, c);
  return rec;
}

}  // namespace kvl
