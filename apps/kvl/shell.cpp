#include "shell.h"

#include <iostream>

#include "console/main_console.h"
#include "util/error.h"

namespace kvl {

std::vector<std::string> SplitWords(const std::string& line) {
  std::vector<std::string> words;
  std::string cur;
  bool quoted = false, any = false;
  for (char c : line) {
    if (c == '"') {
      quoted = !quoted;
      any = true;
    } else if (!quoted && (c == ' ' || c == '\t')) {
      if (any) words.push_back(cur);
      cur.clear();
      any = false;
    } else {
      cur += c;
      any = true;
    }
  }
  if (any) words.push_back(cur);
  return words;
}

namespace {

// Parses and runs one line; false when the shell should end.
bool RunLine(Session& s, const std::vector<std::string>& words, int& lastRc) {
  if (words[0] == "exit" || words[0] == "quit") return false;
  CLI::App app{"KVL shell"};
  app.require_subcommand(1);
  RegisterAllCommands(app, s);
  std::vector<std::string> args(words.rbegin(), words.rend());
  s.pending = nullptr;
  TerminalUi::ClearStop();
  try {
    app.parse(args);
  } catch (const CLI::ParseError& e) {
    lastRc = ReportParseError(app, e);
    return true;
  }
  bool fatal = false;
  lastRc = RunGuarded(s, [&] {
    try {
      s.pending();
    } catch (const FatalStop&) {
      fatal = true;
      throw;
    }
  });
  return !fatal;
}

}  // namespace

int RunShell(Session& s, HomeLock& lock) {
  int rc = RunGuarded(s, [&] {
    StartSession(s, lock);
  });
  if (rc != kExitOk) return rc;
  s.commands.erase("shell");  // not inside itself
  s.commands.insert("exit");
  std::cout << "KVL shell. Type a command (help for the list), or exit.\n";
  for (std::string line;;) {
    std::cout << "kvl> " << std::flush;
    if (!std::getline(std::cin, line)) break;
    auto words = SplitWords(line);
    if (words.empty()) continue;
    if (words[0] == "help") words = {"--help"};
    if (!RunLine(s, words, rc)) {
      if (rc == kExitFailure) return rc;
      break;
    }
  }
  return RunGuarded(s, [&] { MainConsole(s.state).Exit(); });
}

}  // namespace kvl
