#include "session.h"

#include <fmt/format.h>

#include <charconv>
#include <iostream>

#include "console/league_view.h"
#include "league/league_files.h"
#include "util/error.h"

namespace kvl {

Session::Session(fs::path homeDir)
    : home(std::move(homeDir)), ui(std::cin, std::cout, std::cerr), state(ui, clock, home) {}

const CLI::Validator kPositiveWhole(
    [](std::string& text) {
      long n = 0;
      auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), n);
      if (ec == std::errc{} && end == text.data() + text.size() && n > 0) return std::string();
      return "\"" + text + "\" is not a positive whole number";
    },
    "POSITIVE");

CLI::App* AddCommand(CLI::App& app, Session& s, const std::string& name, const std::string& description,
                     bool needsLeague, std::function<void()> run) {
  CLI::App* cmd = app.add_subcommand(name, description);
  cmd->callback([&s, needsLeague, run = std::move(run)] {
    s.pending = [&s, needsLeague, run] {
      if (needsLeague && !s.state.hasLeague()) {
        s.ui.tell("No league is open. Load one with: kvl load PATH", "KVL");
        throw Refused("no league");
      }
      run();
    };
  });
  return cmd;
}

void StartSession(Session& s, HomeLock& lock) {
    fs::create_directories(s.home);
    if (!lock.acquire(s.home)) {
      s.ui.tell("There's already a copy of KVL running. To ensure no files will be corrupted, you cannot start a new "
                "instance.",
                "Cannot start a new copy of KVL");
      throw Refused("second copy");
    }
    StartUp(s.state, s.leagueArg);
    // On a terminal the first line names the league the command works on.
    if (s.ui.interactive() && s.state.hasLeague())
      s.ui.print(fmt::format("League {}.lge ({})\n", ShowText(s.state.LeaguePath), LeagueStateName(s.state.league)));
}

fs::path NewLeagueFile(Session& s, const std::string& arg) {
  fs::path p = StripLeagueExtension(arg) + ".lge";
  p = p.has_parent_path() ? fs::absolute(p) : s.home / p;
  if (fs::exists(p) && s.ui.refusesOverwrite()) {
    s.ui.tell(p.string() + " exists: a league is written over only with --overwrite (--yes does not answer "
              "\"" + kOverwriteQuestion + "\"). Nothing was written.",
              "Save League");
    throw Refused("overwrite");
  }
  return p;
}

namespace {

std::string CommandList(CLI::App& app) {
  std::string out = "Commands:\n";
  for (const CLI::App* c : app.get_subcommands([](const CLI::App*) { return true; }))
    out += fmt::format("  {:<22}{}\n", c->get_name(), c->get_description());
  return out;
}

}  // namespace

std::set<std::string> CommandNames(CLI::App& app) {
  std::set<std::string> names;
  for (const CLI::App* c : app.get_subcommands([](const CLI::App*) { return true; })) names.insert(c->get_name());
  return names;
}

int ReportParseError(CLI::App& app, const CLI::ParseError& e) {
  if (e.get_exit_code() == 0 || !app.get_subcommands().empty()) return app.exit(e) == 0 ? kExitOk : kExitUsage;
  std::string word;
  for (const std::string& arg : app.remaining())
    if (!arg.empty() && arg[0] != '-') {
      word = arg;
      break;
    }
  std::cerr << (word.empty() ? std::string("kvl: no command given") : "kvl: unknown command \"" + word + "\"") << "\n"
            << CommandList(app);
  return kExitUsage;
}

int RunGuarded(Session& s, const std::function<void()>& work) {
  try {
    work();
    return kExitOk;
  } catch (const Refused&) {
    return kExitRefused;
  } catch (const FatalStop& e) {
    std::cerr << "kvl: " << ShowText(e.what()) << "\n";
    return kExitFailure;
  } catch (const KvlError& e) {
    s.ui.progressDone();
    std::cerr << "kvl: " << ShowText(e.what()) << "\n";
    return kExitFailure;
  } catch (const std::exception& e) {
    s.ui.progressDone();
    std::cerr << "kvl: unexpected failure: " << e.what() << "\n";
    return kExitFailure;
  }
}

}  // namespace kvl
