#pragma once
// One run of the command line: the home folder, the terminal, the open league.
#include <CLI/CLI.hpp>

#include <functional>
#include <optional>
#include <set>
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
  // The names of the commands this front end offers, as registered.
  std::set<std::string> commands;
};

// Adds a command whose handler runs with the league open (or refuses when none
// is, if `needsLeague`). The handler is run after start-up, not during the parse.
CLI::App* AddCommand(CLI::App& app, Session& s, const std::string& name, const std::string& description,
                     bool needsLeague, std::function<void()> run);

// A whole number of at least 1. CLI11's PositiveNumber would answer 0 with a
// range of doubles ("not in range 0.000000 to 1797...").
extern const CLI::Validator kPositiveWhole;

// Registration of each area's commands; each lives in its own file.
void RegisterLeagueCommands(CLI::App& app, Session& s);
void RegisterTeamCommands(CLI::App& app, Session& s);
void RegisterAdminCommands(CLI::App& app, Session& s);
void RegisterSimCommands(CLI::App& app, Session& s);
void RegisterScheduleCommands(CLI::App& app, Session& s);
void RegisterAlignmentCommands(CLI::App& app, Session& s);
void RegisterSeasonCommands(CLI::App& app, Session& s);
void RegisterTransactionCommands(CLI::App& app, Session& s);
void RegisterReportCommands(CLI::App& app, Session& s);
void RegisterTradeCommands(CLI::App& app, Session& s);
void RegisterDraftCommands(CLI::App& app, Session& s);
void RegisterLinesCommands(CLI::App& app, Session& s);
void RegisterPlayerCommands(CLI::App& app, Session& s);
void RegisterGlanceCommands(CLI::App& app, Session& s);

inline void RegisterAllCommands(CLI::App& app, Session& s) {
  RegisterLeagueCommands(app, s);
  RegisterTeamCommands(app, s);
  RegisterAdminCommands(app, s);
  RegisterSimCommands(app, s);
  RegisterScheduleCommands(app, s);
  RegisterAlignmentCommands(app, s);
  RegisterSeasonCommands(app, s);
  RegisterTransactionCommands(app, s);
  RegisterReportCommands(app, s);
  RegisterTradeCommands(app, s);
  RegisterDraftCommands(app, s);
  RegisterLinesCommands(app, s);
  RegisterPlayerCommands(app, s);
  RegisterGlanceCommands(app, s);
}

// A league file named for a save under a new name: ".lge" added when missing,
// and a name without a folder put in the home folder. An existing one that
// --yes or --no alone would be asked about is refused (status 1) before the
// command changes anything.
fs::path NewLeagueFile(Session& s, const std::string& arg);

// Takes the home folder's lock (refusing a second copy) and starts up.
void StartSession(Session& s, HomeLock& lock);

// Exit statuses.
constexpr int kExitOk = 0, kExitRefused = 1, kExitUsage = 2, kExitFailure = 3;

// The names of `app`'s commands, for info to list only what exists.
std::set<std::string> CommandNames(CLI::App& app);

// A failed parse: an unknown or missing command is named and the commands
// listed; anything else as CLI11 reports it. Returns the exit status.
int ReportParseError(CLI::App& app, const CLI::ParseError& e);

// Runs `pending` and maps what it throws to an exit status, printing failures.
int RunGuarded(Session& s, const std::function<void()>& work);

}  // namespace kvl
