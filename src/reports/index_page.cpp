// The league's index: a link to every page of the league found in Transfer/,
// the groups, the playoff rounds, the other pages, and the box scores by day.
// Only files that are there are linked, so a visitor meets no dead link.
#include "league/league_files.h"
#include "reports/html.h"
#include "reports/page_files.h"
#include "reports/page_groups.h"
#include "season/playoff_series.h"
#include "season/schedule_file.h"
#include "util/numbers.h"

namespace kvl {

namespace {

const PageInfo kIndex{"index.html", " Index", -1, -1, nullptr};

constexpr int kRounds = 4, kSeriesGames = 7;
constexpr const char* kPlayoffMark = "PLF";

// " <link>" to the league's page `file` shown as `shown`, or nothing when it
// is not in Transfer/.
std::string LinkIfThere(const LeagueState& s, const std::string& file, const std::string& shown) {
  if (!fs::exists(TransferFile(s, file))) return "";
  return " " + Link(s.LeagueShort + file, shown);
}

std::string Shown(std::string_view file) { return std::string(file.substr(0, file.find('.'))); }

void Groups(const LeagueState& s, Page& page) {
  page.add("<H3>League Pages</H3>");
  for (const PageGroup& g : PageGroups()) {
    std::string line;
    for (const char* file : g.files)
      if (file) line += LinkIfThere(s, file, Shown(file));
    if (g.flag == 8)
      for (int r = 1; r <= kRounds; ++r)
        line += LinkIfThere(s, "-Round" + NumText(r) + "-Schedule.html", "Round " + NumText(r));
    if (!line.empty()) page.add(line.substr(1) + "<BR>");
  }
  std::string others;
  for (const char* file : {"TodayGames.html", "FreeAgents.html", "EntryDraft.html", "ExpansionDraft.html", "Players.html"})
    others += LinkIfThere(s, file, Shown(file));
  if (!others.empty()) page.add(others.substr(1) + "<BR>");
}

// A day's line of box scores, when any of them is there.
void Day(const LeagueState& s, const std::string& caption, const std::vector<std::string>& files,
         const std::vector<int>& numbers, Page& page) {
  std::string line;
  for (std::size_t i = 0; i < files.size(); ++i) line += LinkIfThere(s, files[i], NumText(numbers[i]));
  if (!line.empty()) page.add(caption + line + "<BR>");
}

// The season's box scores by the days of its schedule.
void SeasonDays(const LeagueState& s, Page& page) {
  if (s.league.InPlayoffs || !fs::exists(s.swap(swp::Schedule))) return;
  int day = 0;
  for (const std::vector<std::size_t>& today : GameDays(ReadSchedule(s.swap(swp::Schedule)), s.numTeams())) {
    std::vector<std::string> files;
    std::vector<int> numbers;
    for (std::size_t i : today) {
      numbers.push_back(static_cast<int>(i) + 1);
      files.push_back(NumText(numbers.back()) + ".html");
    }
    Day(s, "Day " + NumText(++day) + ":", files, numbers, page);
  }
}

// A round's schedule holds game g of every series before game g + 1 of any,
// so its day d is the d-th run of as many games as the round has series.
void PlayoffDays(const LeagueState& s, Page& page) {
  for (int r = 1; r <= kRounds; ++r) {
    const int stage = s.league.PlayoffSize + r - 1;
    if (stage >= kRounds) break;
    const int series = SeriesInStage(stage);
    for (int d = 1; d <= kSeriesGames; ++d) {
      std::vector<std::string> files;
      std::vector<int> numbers;
      for (int n = (d - 1) * series + 1; n <= d * series; ++n) {
        numbers.push_back(n);
        files.push_back("-R" + NumText(r) + "-" + NumText(n) + ".html");
      }
      Day(s, "Round " + NumText(r) + ", Day " + NumText(d) + ":", files, numbers, page);
    }
  }
}

// Transfer/index.html: the league written last, for a visitor who comes to the folder.
void PointToLeague(const LeagueState& s) {
  const std::string index = s.LeagueShort + kIndex.file;
  WritePage(s.AppPath / "Transfer" / "index.html",
            {"<HTML><TITLE>" + HtmlText(s.LeagueShort) + " Index</TITLE>",
             "<META HTTP-EQUIV=\"refresh\" CONTENT=" + Quoted("0; URL=" + index) + ">",
             Link(index, HtmlText(s.league.LeagueName.str())), "</HTML>"});
}

}  // namespace

void WriteLeagueIndex(PageRun& run) {
  const LeagueState& s = run.s;
  Page page(run, kIndex);
  page.add("<H2>" + HtmlText(s.league.LeagueName.str()) + "</H2>");
  // The playoffs are a league of their own; their index leads back to the season's.
  const std::string& prefix = s.LeagueShort;
  if (prefix.ends_with(kPlayoffMark)) {
    const std::string season = prefix.substr(0, prefix.size() - 3) + kIndex.file;
    if (fs::exists(s.AppPath / "Transfer" / season)) page.add(Link(season, "The regular season") + "<BR>");
  }
  Groups(s, page);
  page.add("<H3>Box Scores</H3>");
  SeasonDays(s, page);
  PlayoffDays(s, page);
  page.write();
  PointToLeague(s);
}

}  // namespace kvl
