#include "session.h"

#include <iostream>

#include "util/error.h"

namespace kvl {

Session::Session(fs::path homeDir)
    : home(std::move(homeDir)), ui(std::cin, std::cout, std::cerr), state(ui, clock, home) {}

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
}

int RunGuarded(Session& s, const std::function<void()>& work) {
  try {
    work();
    return kExitOk;
  } catch (const Refused&) {
    return kExitRefused;
  } catch (const FatalStop& e) {
    std::cerr << "kvl: " << e.what() << "\n";
    return kExitFailure;
  } catch (const KvlError& e) {
    s.ui.progressDone();
    std::cerr << "kvl: " << e.what() << "\n";
    return kExitFailure;
  } catch (const std::exception& e) {
    s.ui.progressDone();
    std::cerr << "kvl: unexpected failure: " << e.what() << "\n";
    return kExitFailure;
  }
}

}  // namespace kvl
