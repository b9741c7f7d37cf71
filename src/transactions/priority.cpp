#include "transactions/priority.h"

#include <algorithm>
#include <vector>

#include "league/league_files.h"
#include "util/record_file.h"

namespace kvl {

namespace {

void WritePriority(LeagueState& s, const std::vector<std::uint8_t>& places) {
  RemoveIfExists(s.swap(swp::Priority));
  RecordFile(s.swap(swp::Priority), 1).putRun(1, places);
}

}  // namespace

void MakePriority(LeagueState& s) {
  std::vector<std::uint8_t> places;
  for (int t = 0; t < s.numTeams(); ++t) {
    places.push_back(static_cast<std::uint8_t>(t));
    s.team(t).Priority = static_cast<u8>(t);
  }
  WritePriority(s, places);
}

void MakeNewPriority(LeagueState& s) {
  std::vector<std::uint8_t> places(static_cast<std::size_t>(s.numTeams()), 0);
  for (int t = 0; t < s.numTeams(); ++t)
    if (s.team(t).Priority < places.size()) places[s.team(t).Priority] = static_cast<std::uint8_t>(t);
  WritePriority(s, places);
}

void UpdatePriority(LeagueState& s, int team) {
  const std::size_t n = static_cast<std::size_t>(s.numTeams());
  auto read = [&] { return RecordFile(s.swap(swp::Priority), 1).getRun(1, n); };
  Bytes places = read();
  if (std::count(places.begin(), places.end(), 0) > 1) {
    MakePriority(s);
    places = read();
  }
  auto at = std::find(places.begin(), places.end(), static_cast<std::uint8_t>(team));
  if (at != places.end()) std::rotate(at, at + 1, places.end());
  WritePriority(s, std::vector<std::uint8_t>(places.begin(), places.end()));
  for (std::size_t place = 0; place < n; ++place)
    if (places[place] < n) s.team(places[place]).Priority = static_cast<u8>(place);
}

}  // namespace kvl
