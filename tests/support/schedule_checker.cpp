#include "support/schedule_checker.h"

#include <fmt/format.h>

#include "season/schedule_file.h"
#include "util/record_file.h"

namespace kvl::test {

std::vector<std::string> CheckMadeSchedule(const std::filesystem::path& scx, int n, const League& header,
                                           const ScheduleMatrices& allotted, bool withDays) {
  std::vector<std::string> faults;
  const std::vector<ScheduleRecord> games = ReadSchedule(scx);
  if (ReadFileBytes(scx).size() != games.size() * ScheduleRecord::kSize)
    faults.push_back("the file is not a whole number of records");
  if (static_cast<std::size_t>(header.LeagueGames) != games.size())
    faults.push_back(fmt::format("LeagueGames is {} but the file holds {} games", header.LeagueGames, games.size()));
  ScheduleMatrices found;
  for (std::size_t k = 0; k < games.size(); ++k) {
    const ScheduleRecord& r = games[k];
    // A fresh record holds its teams, its number and (when asked) its days, nothing else.
    const ScheduleRecord fresh{.HomeTeam = r.HomeTeam,
                               .AwayTeam = r.AwayTeam,
                               .GameNumber = static_cast<i16>(k + 1),
                               .DayA = withDays ? r.DayA : i16{0},
                               .GameDay = withDays ? r.GameDay : i16{0}};
    if (EncodeRecord(r) != EncodeRecord(fresh)) faults.push_back(fmt::format("record {} is not a fresh game", k + 1));
    if (r.HomeTeam >= n || r.AwayTeam >= n) continue;
    ++found.Matchups(r.HomeTeam, r.AwayTeam);
    ++found.Matchups(r.AwayTeam, r.HomeTeam);
    ++found.HomeMatchups(r.HomeTeam, r.AwayTeam);
  }
  for (int a = 0; a < n; ++a)
    for (int b = 0; b < n; ++b) {
      if (found.Matchups(a, b) != allotted.Matchups(a, b))
        faults.push_back(fmt::format("{} and {} meet {} times, allotted {}", a, b, found.Matchups(a, b),
                                     allotted.Matchups(a, b)));
      if (found.HomeMatchups(a, b) != allotted.HomeMatchups(a, b))
        faults.push_back(fmt::format("{} hosts {} {} times, allotted {}", a, b, found.HomeMatchups(a, b),
                                     allotted.HomeMatchups(a, b)));
    }
  return faults;
}

}  // namespace kvl::test
