#include "team/auto_load_lines.h"

#include "admin/options_lines_directory.h"
#include "league/league_files.h"
#include "team/lines_file.h"
#include "team/lines_import.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/fixed_text.h"

namespace kvl {

namespace {

constexpr const char* kLoaded = "Loading Successful";

std::string LoadTeamLines(LeagueState& s, int team) {
  const auto file = AutoLinesFile(s, team);
  if (!std::filesystem::exists(file)) return "No Lines file found";
  LinesFileRecord r;
  try {
    r = ReadLinesFile(file);
  } catch (const KvlError& e) {
    return std::string("Errors in File (") + e.what() + ")";
  }
  s.CurTeam = static_cast<u8>(team);
  loadteam(s, team, 0);
  if (auto fault = TakeLinesRecord(s, team, 0, r, nullptr))
    return fault->message + " (" + file.string() + ", " + fault->entry + ")";
  s.Dirty = true;
  SaveTeam(s, team, 0);
  return kLoaded;
}

}  // namespace

std::filesystem::path AutoLinesFile(const LeagueState& s, int team) {
  std::string dir = ReadLinesDirectory(s.AppPath);
  while (!dir.empty() && (dir.back() == '/' || dir.back() == '\\')) dir.pop_back();
  return std::filesystem::path(dir.empty() ? "/" : dir) / (Trim(s.team(team).Name.str()) + ".lns");
}

std::filesystem::path LinesLoadingReportFile(const LeagueState& s) {
  if (s.LeaguePath.empty()) return s.AppPath / "LinesLoadingReport.txt";
  return std::filesystem::path(s.LeaguePath + "-LinesLoadingReport.txt");
}

std::string LoadAutoLines(LeagueState& s) {
  std::string report;
  for (int team = 0; team < s.numTeams(); ++team) {
    const std::string result = LoadTeamLines(s, team);
    if (result != kLoaded) report += Trim(s.team(team).Name.str()) + " -- " + result + "\r\n";
  }
  if (report.empty()) report = "No Error to Report";
  s.files().writeFile(LinesLoadingReportFile(s), std::span(reinterpret_cast<const u8*>(report.data()), report.size()));
  s.ui.tell(report, "Lines Loading Report");
  return report;
}

}  // namespace kvl
