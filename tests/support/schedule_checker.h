#pragma once
// An independent reading of a made schedule file, by the documented byte
// offsets rather than the program's record code.
#include <filesystem>
#include <string>
#include <vector>

#include "league/records.h"
#include "season/schedule_matrices.h"

namespace kvl::test {

struct ScheduleFileFacts {
  std::size_t records = 0;
  bool wholeRecords = true;
  bool numberedFromOne = true;      // record k holds GameNumber k
  bool freshRecords = true;         // scores, played, days and reserved bytes all zero
  bool freshButDays = true;         // the same but for the days
  std::vector<std::vector<int>> games;  // [a][b] games between a and b, either host
  std::vector<std::vector<int>> hosted; // [a][b] games a hosts against b
};

ScheduleFileFacts ReadScheduleFacts(const std::filesystem::path& scx, int n);

// Every difference between the file and what was allotted (Matchups and
// HomeMatchups as the allotment left them) and the header's LeagueGames;
// empty when they agree. `withDays`: the records carry their game days.
std::vector<std::string> CheckMadeSchedule(const std::filesystem::path& scx, int n, const League& header,
                                           const ScheduleMatrices& allotted, bool withDays = false);

}  // namespace kvl::test
