#pragma once
// One run of the command line: the home folder, the terminal, the open league.
#include <CLI/CLI.hpp>

#include <functional>
#include <optional>
#include <string>

#include "console/startup.h"
#include "league/league_state.h"
#include "ui/terminal_ui.h"
#include "util/clock.h"

namespace kvl {

struct Session {
  explicit Session(fs::path home);

  fs::path home;
  TerminalUi ui;
  SystemClock clock;
  LeagueState state;
  std::optional<std::string> leagueArg;  // --league
  // The command chosen by the parse, run after start-up.
  std::function<void()> pending;
};

// Adds a command whose handler runs with the league open (or refuses when none
// is, if `needsLeague`). The handler is run after start-up, not during the parse.
CLI::App* AddCommand(CLI::App& app, Session& s, const std::string& name, const std::string& description,
                     bool needsLeague, std::function<void()> run);

// Registration of each area's commands; each lives in its own file.
void RegisterLeagueCommands(CLI::App& app, Session& s);
void RegisterTeamCommands(CLI::App& app, Session& s);
void RegisterAdminCommands(CLI::App& app, Session& s);
void RegisterSimCommands(CLI::App& app, Session& s);
void RegisterScheduleCommands(CLI::App& app, Session& s);
void RegisterAlignmentCommands(CLI::App& app, Session& s);
void RegisterReportCommands(CLI::App& app, Session& s);

inline void RegisterAllCommands(CLI::App& app, Session& s) {
  RegisterLeagueCommands(app, s);
  RegisterTeamCommands(app, s);
  RegisterAdminCommands(app, s);
  RegisterSimCommands(app, s);
  RegisterScheduleCommands(app, s);
  RegisterAlignmentCommands(app, s);
  RegisterReportCommands(app, s);
}

// Takes the home folder's lock (refusing a second copy) and starts up.
void StartSession(Session& s, HomeLock& lock);

// Exit statuses.
constexpr int kExitOk = 0, kExitRefused = 1, kExitUsage = 2, kExitFailure = 3;

// Runs `pending` and maps what it throws to an exit status, printing failures.
int RunGuarded(Session& s, const std::function<void()>& work);

}  // namespace kvl
