#include "console/league_view.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>

#include "console/menu.h"
#include "ui/ui.h"
#include "util/error.h"

namespace kvl {

std::string LeagueStateName(const League& lg) {
  std::string state;
  if (lg.OffSeason) state = "Off-season";
  else if (lg.InPlayoffs) state = "Playoffs";
  else if (lg.SeasonOver) state = "Season over, playoffs not begun";
  else if (lg.ScheduleMade && lg.GamesPlayed > 0) state = fmt::format("Regular season, {} of {} games played", lg.GamesPlayed, lg.LeagueGames);
  else if (lg.ScheduleMade) state = "Pre-season: schedule made";
  else state = "Pre-season: no schedule";
  if (lg.EntryDraftOn) state += "; entry draft under way";
  if (lg.ExpansionDraftOn) state += "; expansion draft under way";
  return state;
}

namespace {

std::string TeamLine(const LeagueState& s, int t) {
  const Team& team = s.team(t);
  return fmt::format("      {:>2}  {:<10} {:<3}  {}", t, team.Name.str(), team.Abbrev.str(), team.Arena.str());
}

void AppendAlignment(const LeagueState& s, std::string& out) {
  const League& lg = s.league;
  for (int c = 0; c < 2; ++c) {
    const Conference& conf = lg.Conf[static_cast<std::size_t>(c)];
    out += fmt::format("Conference {}: {}\n", c + 1, conf.Name.str());
    for (int d = 0; d < std::min<int>(conf.NumDivs, 4); ++d) {
      const Division& div = conf.Div[static_cast<std::size_t>(d)];
      out += fmt::format("  Division {}: {} ({} teams)\n", d + 1, div.Name.str(), div.NumTeams);
      for (int i = 0; i < std::min<int>(div.NumTeams, 10); ++i) {
        int t = div.Team[static_cast<std::size_t>(i)];
        out += t < s.numTeams() ? TeamLine(s, t) + "\n" : fmt::format("      {:>2}  (no such team)\n", t);
      }
    }
  }
}

}  // namespace

std::string InfoText(const LeagueState& s, const std::set<std::string>& commands) {
  std::string out;
  if (!s.hasLeague()) {
    out += "No league is open. Home folder: " + s.AppPath.string() + "\n";
  } else {
    const League& lg = s.league;
    out += fmt::format("League: {}\n", lg.LeagueName.str());
    out += fmt::format("File:   {}\n", s.LeaguePath.empty() ? std::string("(unnamed)") : s.LeaguePath);
    out += fmt::format("Year:   {}    Teams: {}\n", lg.CurrentYear, lg.NumTeams);
    out += fmt::format("State:  {}\n", LeagueStateName(lg));
    AppendAlignment(s, out);
  }
  std::string offered, missing;
  for (const auto& e : ComputeMenu(s.league, {s.hasLeague(), s.Dirty}))
    if (e.enabled && e.visible) (commands.count(e.cli) ? offered : missing) += " " + e.cli;
  out += "Enabled commands:" + offered + "\n";
  if (!missing.empty()) out += "Menu entries not available here:" + missing + "\n";
  return out;
}

int ResolveTeam(LeagueState& s, const std::string& arg) {
  auto lower = [](std::string x) {
    for (auto& c : x) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return x;
  };
  bool numeric = !arg.empty() && std::all_of(arg.begin(), arg.end(), [](char c) { return std::isdigit(static_cast<unsigned char>(c)); });
  if (numeric && arg.size() < 4 && std::stoi(arg) < s.numTeams()) return std::stoi(arg);
  for (int t = 0; t < s.numTeams(); ++t)
    if (lower(s.team(t).Name.str()) == lower(arg) || lower(s.team(t).Abbrev.str()) == lower(arg)) return t;
  s.ui.tell(fmt::format("There is no team \"{}\" in this league (teams are numbered 0 to {}).", arg, s.numTeams() - 1),
            "Unknown Team");
  throw Refused("unknown team " + arg);
}

}  // namespace kvl
