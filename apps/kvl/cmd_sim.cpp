// Games: game days, the exhibition and the calibration report.
#include <fmt/format.h>

#include "console/league_view.h"
#include "session.h"
#include "util/error.h"
#include "sim/exhibition.h"
#include "sim/game_day.h"
#include "sim/season_profile.h"
#include "sim/sim_profile.h"

namespace kvl {

namespace {

void RegisterExhibition(CLI::App& app, Session& s) {
  auto away = std::make_shared<std::string>();
  auto home = std::make_shared<std::string>();
  CLI::App* cmd = AddCommand(
      app, s, "exhibition",
      "Play one game between two teams; its box score goes to Transfer/ and nothing of the league changes", true,
      [&s, away, home] {
        int a = ResolveTeam(s.state, *away), h = ResolveTeam(s.state, *home);
        ExhibitionResult r = PlayExhibition(s.state, a, h);
        std::string ot = r.overtimes == 1 ? " (OT)" : r.overtimes > 1 ? fmt::format(" ({}OT)", r.overtimes) : "";
        s.ui.print(fmt::format("{} {} {} {}{}\nBox score: {}\n", s.state.team(a).Name.str(), r.awayGoals,
                               s.state.team(h).Name.str(), r.homeGoals, ot, r.page.string()));
      });
  cmd->add_option("AWAY", *away, "the visitors: team number or name")->required();
  cmd->add_option("HOME", *home, "the home team: team number or name")->required();
}

struct PlayArgs {
  std::optional<int> days;
  bool season = false, restDay = false;
  std::string saveAs;
};

void PlayGames(Session& s, const PlayArgs& a) {
  Games games(s.state);
  if (!a.saveAs.empty()) games.playoffEnd.saveAs = NewLeagueFile(s, a.saveAs);
  if (a.restDay) return games.cmdHelp();
  const bool playoffs = s.state.league.InPlayoffs;
  bool ran = a.season ? games.Command5() : a.days ? games.BulkGameButton(*a.days) : games.MultipleGames();
  if (!ran) throw Refused("no games");
  const League& l = s.state.league;
  std::string text = fmt::format("Played {} games in {} game days", games.gamesPlayed, games.daysPlayed);
  if (!playoffs)
    text += fmt::format("; {} of {} games of the schedule are played.\n", l.GamesPlayed, l.LeagueGames);
  else if (l.InPlayoffs)
    text += fmt::format(" of the playoffs; round {} is under way.\n", s.state.Playoff.PlayoffRound);
  else
    text += " of the playoffs.\n";
  if (games.StopRequested) text += "Stopped by the interrupt between game days.\n";
  if (games.champion >= 0) text += s.state.team(games.champion).Name.str() + " win the playoffs.\n";
  else if (games.IsSeasonOver) text += "The season is over.\n";
  text += fmt::format("Box scores and the daily page: {}\n", games.dailyPage.string());
  if (games.champion >= 0 && !s.state.LeaguePath.empty())
    text += "The league is saved as " + s.state.LeaguePath + ".lge; the next command opens it.\n";
  s.ui.print(text);
}

void RegisterPlayGames(CLI::App& app, Session& s) {
  auto args = std::make_shared<PlayArgs>();
  CLI::App* cmd = AddCommand(app, s, "play-games",
                             "Play the next game day of the schedule (or N days, or the rest of the season or "
                             "the playoffs); box scores and the daily page go to Transfer/",
                             true, [&s, args] { PlayGames(s, *args); });
  auto* days = cmd->add_option("--days", args->days, "play N game days (a positive whole number)")
                   ->check(kPositiveWhole);
  auto* season = cmd->add_flag("--season", args->season, "play to the end of the schedule")->excludes(days);
  cmd->add_flag("--rest-day", args->restDay, "rest every team one day instead of playing")
      ->excludes(days)
      ->excludes(season);
  cmd->add_option("--save-as", args->saveAs,
                  "where the league is saved after the re-rate that follows the playoffs' final (else asked)");
}

void RegisterSimProfile(CLI::App& app, Session& s) {
  struct Args {
    int games = 1000;
    int jobs = 1;
    bool season = false;
    std::vector<std::string> pair;
    std::optional<int> shots, goals, penalties, injuries;
  };
  auto args = std::make_shared<Args>();
  CLI::App* cmd = AddCommand(
      app, s, "sim-profile",
      "Play many exhibition games in memory and print the means per team and game (nothing is saved)", true,
      [&s, args] {
        if (args->season) return s.ui.print(SeasonProfileText(RunSeasonProfile(s.state, args->jobs)));
        ProfileOptions o;
        o.games = args->games;
        if (!args->pair.empty()) o.pair = {ResolveTeam(s.state, args->pair[0]), ResolveTeam(s.state, args->pair[1])};
        o.shotsLevel = args->shots;
        o.goalsLevel = args->goals;
        o.penaltiesLevel = args->penalties;
        o.injuriesLevel = args->injuries;
        o.jobs = args->jobs;
        s.ui.print(ProfileText(RunProfile(s.state, o)));
      });
  auto* games = cmd->add_option("--games", args->games, "how many games (default 1000)")->check(kPositiveWhole);
  auto* pair = cmd->add_option("--pair", args->pair, "play only AWAY at HOME")->expected(2);
  auto* season = cmd->add_flag("--season", args->season,
                               "play the league's regular season on a copy, in one run and day by day, and print "
                               "its figures by sixth of the season (a schedule is made when it has none)");
  season->excludes(games)->excludes(pair);
  cmd->add_option("--jobs", args->jobs, "threads to play on; the figures are the same for any number (default 1)")
      ->check(CLI::Range(1, 64));
  auto level = CLI::Range(1, 9);
  cmd->add_option("--shots-level", args->shots, "ShotsLevel for this run (1-9)")->check(level)->excludes(season);
  cmd->add_option("--goals-level", args->goals, "GoalsLevel for this run (1-9)")->check(level)->excludes(season);
  cmd->add_option("--penalties-level", args->penalties, "PenaltiesLevel for this run (1-9)")->check(level)->excludes(season);
  cmd->add_option("--injuries-level", args->injuries, "InjuriesLevel for this run (1-9)")->check(level)->excludes(season);
}

}  // namespace

void RegisterSimCommands(CLI::App& app, Session& s) {
  RegisterPlayGames(app, s);
  RegisterExhibition(app, s);
  RegisterSimProfile(app, s);
}

}  // namespace kvl
