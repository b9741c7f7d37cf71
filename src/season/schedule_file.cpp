#include "season/schedule_file.h"

#include <algorithm>
#include <set>

#include "league/league_files.h"
#include "util/record_file.h"

namespace kvl {

namespace {
constexpr int kDriverTeamLimit = 49;
}

std::vector<ScheduleRecord> ReadSchedule(const fs::path& file) {
  std::vector<ScheduleRecord> games;
  if (!fs::exists(file)) return games;
  Bytes bytes = ReadFileBytes(file);
  std::size_t count = bytes.size() / ScheduleRecord::kSize;
  for (std::size_t k = 0; k < count; ++k)
    games.push_back(DecodeRecord<ScheduleRecord>(std::span(bytes).subspan(k * ScheduleRecord::kSize)));
  return games;
}

std::size_t FirstUnplayed(const std::vector<ScheduleRecord>& games) {
  std::size_t i = 0;
  while (i < games.size() && games[i].Played != 0) ++i;
  return i;
}

bool EndsPass(const ScheduleRecord& r, int numTeams) {
  const int limit = std::max(kDriverTeamLimit, numTeams);
  return r.HomeTeam >= limit || r.AwayTeam >= limit;
}

std::vector<std::vector<std::size_t>> GameDays(const std::vector<ScheduleRecord>& games, int numTeams) {
  std::vector<std::vector<std::size_t>> days;
  std::set<int> playing;
  for (std::size_t k = 0; k < games.size(); ++k) {
    const ScheduleRecord& g = games[k];
    if (EndsPass(g, numTeams)) break;
    if (days.empty() || playing.count(g.HomeTeam) || playing.count(g.AwayTeam)) {
      days.emplace_back();
      playing.clear();
    }
    days.back().push_back(k);
    playing.insert({g.HomeTeam, g.AwayTeam});
  }
  return days;
}

void RetireOldSchedule(LeagueState& s) {
  RemoveIfExists(s.swap(swp::OldSchedule));
  if (s.LeaguePath.empty()) return;
  fs::path scd = FindLeagueFile(s.LeaguePath, ".scd");
  if (!fs::exists(scd)) return;
  CopyFileAtomic(scd, fs::path(s.LeaguePath + ".scdold"));
  fs::remove(scd);
}

}  // namespace kvl
