// kvl: the commissioner's console on the command line.
#include <CLI/CLI.hpp>

#include <cstdlib>
#include <fstream>
#include <iostream>

#include "console/main_console.h"
#include "console/startup.h"
#include "session.h"
#include "shell.h"
#include "util/error.h"

namespace kvl {
namespace {

struct GlobalOptions {
  std::string home;
  std::string league;
  std::optional<std::uint64_t> seed;
  bool yes = false, no = false, overwrite = false;
  std::string answers;
};

fs::path HomeFolder(const std::string& given) {
  if (!given.empty()) return fs::absolute(given);
  if (const char* env = std::getenv("KVL_HOME"); env && *env) return fs::absolute(env);
  if (const char* xdg = std::getenv("XDG_DATA_HOME"); xdg && *xdg) return fs::path(xdg) / "kvl";
  const char* user = std::getenv("HOME");
  return fs::path(user ? user : ".") / ".local/share/kvl";
}

void AddGlobalOptions(CLI::App& app, GlobalOptions& g) {
  app.add_option("--home", g.home, "home folder (default $KVL_HOME, else $XDG_DATA_HOME/kvl)");
  app.add_option("--league", g.league, "league to open instead of the last one (.lge file or path without extension)");
  app.add_option("--seed", g.seed, "make every random draw of the run repeatable");
  auto* yes = app.add_flag("--yes", g.yes, "answer yes to every question");
  app.add_flag("--no", g.no, "answer no to every question")->excludes(yes);
  app.add_flag("--overwrite", g.overwrite,
               "answer yes to \"File Exists! Overwrite?\", which --yes does not answer");
  app.add_option("--answers", g.answers, "a file of answers, one a line, to questions, prompts and file choices")
      ->check(CLI::ExistingFile);
}

void ApplyAnswers(Session& s, const GlobalOptions& g) {
  if (g.yes) s.ui.answerAll(Answer::Yes);
  if (g.overwrite) s.ui.allowOverwrite();
  if (g.no) s.ui.answerAll(Answer::No);
  if (!g.answers.empty()) {
    std::ifstream in(g.answers);
    for (std::string line; std::getline(in, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      s.ui.addAnswer(line);
    }
  }
}

// Start-up, the command, then the exit protocol, as one run of the console.
int RunOnce(Session& s, HomeLock& lock) {
  int rc = RunGuarded(s, [&] {
    StartSession(s, lock);
  });
  if (rc != kExitOk) return rc;
  rc = RunGuarded(s, s.pending);
  if (rc == kExitFailure) return rc;  // a failed command saves nothing
  int exitRc = RunGuarded(s, [&] { MainConsole(s.state).Exit(); });
  return rc != kExitOk ? rc : exitRc;
}

int Main(int argc, char** argv) {
  GlobalOptions g;
  CLI::App app{"KVL: a hockey league simulator and commissioner's console"};
  app.require_subcommand(1);
  AddGlobalOptions(app, g);
  Session s(fs::path{});
  bool shell = false;
  ShellOptions shellOpt;
  CLI::App* shellCmd =
      app.add_subcommand("shell", "An interactive console that keeps the league open across commands; fed from a "
                                  "file or a pipe, a script");
  shellCmd->add_option("--script", shellOpt.script, "read the commands from this file")->check(CLI::ExistingFile);
  shellCmd->add_flag("--keep-going", shellOpt.keepGoing,
                     "run a script on past failed commands, ending with the worst status");
  shellCmd->callback([&] { shell = true; });
  RegisterAllCommands(app, s);
  s.commands = CommandNames(app);
  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    return ReportParseError(app, e);
  }
  s.home = HomeFolder(g.home);
  s.state.AppPath = s.home;
  if (!g.league.empty()) s.leagueArg = g.league;
  s.state.rnd.setMasterSeed(g.seed);
  ApplyAnswers(s, g);
  TerminalUi::InstallStopHandler();
  HomeLock lock;
  if (shell) return RunShell(s, lock, shellOpt);
  return RunOnce(s, lock);
}

}  // namespace
}  // namespace kvl

int main(int argc, char** argv) { return kvl::Main(argc, argv); }
