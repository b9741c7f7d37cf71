// The year's turn: start-playoffs, rerate and new-season.
#include <fmt/format.h>

#include "season/new_season.h"
#include "season/playoffs.h"
#include "season/rerate.h"
#include "session.h"
#include "ui/ui.h"
#include "util/error.h"

namespace kvl {

namespace {

void RequireOffSeason(Session& s, const std::string& title, const std::string& what) {
  if (s.state.league.OffSeason) return;
  s.ui.tell(what + " between seasons: after the playoffs, before the new season starts.", title);
  throw Refused("not the off-season");
}

void RegisterStartPlayoffs(CLI::App& app, Session& s) {
  AddCommand(
      app, s, "start-playoffs",
      "Seed the playoffs from the final standings and write the first round's series; the playoffs are kept "
      "as the league's name with PLF behind it, the regular season's files stay as they were",
      true, [&s] {
        if (!Playoffs(s.state)) throw Refused("playoffs");
        s.ui.print(fmt::format("Playoffs begun: {} teams; play them with play-games.\n", s.state.league.PlayoffTeams));
      });
}

void RegisterRerate(CLI::App& app, Session& s) {
  AddCommand(app, s, "rerate", "Re-rate every player for the coming season: the young grow, veterans fade", true, [&s] {
    RequireOffSeason(s, "Rerate Players", "Players are re-rated");
    if (!ReRate(s.state)) throw Refused("rerate");
  });
}

void RegisterNewSeason(CLI::App& app, Session& s) {
  auto saveAs = std::make_shared<std::string>();
  CLI::App* cmd = AddCommand(
      app, s, "new-season",
      "Start a new season: statistics cleared, everyone a year older, contracts run down; saved under a new name", true,
      [&s, saveAs] {
        RequireOffSeason(s, "New Season", "A new season starts");
        std::optional<fs::path> to;
        if (!saveAs->empty()) to = NewLeagueFile(s, *saveAs);
        if (!NewSeason(s.state, to)) throw Refused("new season");
        if (!s.state.LeaguePath.empty()) s.ui.print("New season saved as " + s.state.LeaguePath + ".lge\n");
      });
  cmd->add_option("--save-as", *saveAs,
                  "the new season's league file (else asked; a name without a folder goes to the home folder)");
}

}  // namespace

void RegisterSeasonCommands(CLI::App& app, Session& s) {
  RegisterStartPlayoffs(app, s);
  RegisterRerate(app, s);
  RegisterNewSeason(app, s);
}

}  // namespace kvl
