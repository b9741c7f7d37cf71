#pragma once
// Where pages go and what frames them: Transfer/ for the pages, Headers/ for
// the commissioner's header and footer files, both under the home folder and
// named with the league's short name.
#include <string>
#include <vector>

#include "league/league_state.h"
#include "util/record_file.h"

namespace kvl {

// Transfer/<league><name>.
fs::path TransferFile(const LeagueState& s, const std::string& name);
// Headers/<league>.hdN and .ftN.
fs::path HeaderFile(const LeagueState& s, int n);
fs::path FooterFile(const LeagueState& s, int n);
// Every record of a swap file the pages read; none when it is missing.
template <class R>
std::vector<R> ReadSwapRecords(const LeagueState& s, const char* swap) {
  std::vector<R> out;
  if (!fs::exists(s.swap(swap))) return out;
  RecordFile f(s.swap(swap), R::kSize);
  for (std::size_t n = 1; n <= f.count(); ++n) out.push_back(f.template getRecord<R>(n));
  return out;
}

// Appends the lines of a header or footer file; false when there is none.
bool ReadPageLines(const fs::path& path, std::vector<std::string>& out);
// Writes the lines with CR LF ends, making the folder when it is missing.
void WriteLines(const fs::path& path, const std::vector<std::string>& lines);
// The first line of every page: its character set, the records'
// Windows-1252, and a viewport, so a web server and a phone show names right.
inline constexpr const char* kPageHead =
    "<META HTTP-EQUIV=\"Content-Type\" CONTENT=\"text/html; charset=windows-1252\">"
    "<META NAME=\"viewport\" CONTENT=\"width=device-width, initial-scale=1\">";
// A page: kPageHead, then its lines.
void WritePage(const fs::path& path, const std::vector<std::string>& lines);

}  // namespace kvl
