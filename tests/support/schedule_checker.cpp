#include "support/schedule_checker.h"

#include <fmt/format.h>

#include <fstream>
#include <iterator>

namespace kvl::test {

namespace {

constexpr std::size_t kRecord = 31;

int U16(const std::vector<unsigned char>& b, std::size_t at) { return b[at] | (b[at + 1] << 8); }

struct ScheduleFileFacts {
  std::size_t records = 0;
  bool wholeRecords = true;
  bool numberedFromOne = true;      // record k holds GameNumber k
  bool freshRecords = true;         // scores, played, days and reserved bytes all zero
  bool freshButDays = true;         // the same but for the days
  std::vector<std::vector<int>> games;  // [a][b] games between a and b, either host
  std::vector<std::vector<int>> hosted; // [a][b] games a hosts against b
};

ScheduleFileFacts ReadScheduleFacts(const std::filesystem::path& scx, int n) {
  std::ifstream in(scx, std::ios::binary);
  std::vector<unsigned char> bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  ScheduleFileFacts f;
  f.records = bytes.size() / kRecord;
  f.wholeRecords = bytes.size() % kRecord == 0;
  f.games.assign(static_cast<std::size_t>(n), std::vector<int>(static_cast<std::size_t>(n), 0));
  f.hosted = f.games;
  for (std::size_t k = 0; k < f.records; ++k) {
    std::size_t at = k * kRecord;
    int home = bytes[at], away = bytes[at + 2];
    if (U16(bytes, at + 6) != static_cast<int>(k + 1)) f.numberedFromOne = false;
    // Bytes 0 and 2 hold the teams, 6-7 the game number, 8-11 the days; a fresh record is zero elsewhere.
    for (std::size_t i = 1; i < kRecord; ++i) {
      if (i == 2 || i == 6 || i == 7 || bytes[at + i] == 0) continue;
      f.freshRecords = false;
      if (i < 8 || i > 11) f.freshButDays = false;
    }
    if (home >= n || away >= n) continue;
    ++f.games[static_cast<std::size_t>(home)][static_cast<std::size_t>(away)];
    ++f.games[static_cast<std::size_t>(away)][static_cast<std::size_t>(home)];
    ++f.hosted[static_cast<std::size_t>(home)][static_cast<std::size_t>(away)];
  }
  return f;
}

}  // namespace

std::vector<std::string> CheckMadeSchedule(const std::filesystem::path& scx, int n, const League& header,
                                           const ScheduleMatrices& allotted, bool withDays) {
  std::vector<std::string> faults;
  ScheduleFileFacts f = ReadScheduleFacts(scx, n);
  if (!f.wholeRecords) faults.push_back("the file is not a whole number of 31-byte records");
  if (static_cast<std::size_t>(header.LeagueGames) != f.records)
    faults.push_back(fmt::format("LeagueGames is {} but the file holds {} games", header.LeagueGames, f.records));
  if (!f.numberedFromOne) faults.push_back("records are not numbered 1, 2, 3, ...");
  if (!(withDays ? f.freshButDays : f.freshRecords))
    faults.push_back("a fresh record carries a score, a played mark or a day");
  for (int a = 0; a < n; ++a)
    for (int b = 0; b < n; ++b) {
      int games = f.games[static_cast<std::size_t>(a)][static_cast<std::size_t>(b)];
      int hosted = f.hosted[static_cast<std::size_t>(a)][static_cast<std::size_t>(b)];
      if (games != allotted.Matchups(a, b))
        faults.push_back(fmt::format("{} and {} meet {} times, allotted {}", a, b, games, allotted.Matchups(a, b)));
      if (hosted != allotted.HomeMatchups(a, b))
        faults.push_back(fmt::format("{} hosts {} {} times, allotted {}", a, b, hosted, allotted.HomeMatchups(a, b)));
    }
  return faults;
}

}  // namespace kvl::test
