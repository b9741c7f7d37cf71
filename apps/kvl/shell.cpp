#include "shell.h"

#include <fmt/format.h>
#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string_view>

#include "console/main_console.h"
#include "util/error.h"

namespace kvl {

namespace {

// Appends the double-quoted text that begins at `i` to `word`; returns the
// position of the closing quote.
std::size_t DoubleQuoted(const std::string& line, std::size_t i, std::string& word) {
  for (; i < line.size(); ++i) {
    char c = line[i];
    if (c == '"') return i;
    if (c == '\\' && i + 1 < line.size() && std::string_view("$`\"\\").find(line[i + 1]) != std::string_view::npos)
      c = line[++i];
    word += c;
  }
  throw KvlError("a double quote is not closed");
}

}  // namespace

std::vector<std::string> SplitWords(const std::string& line) {
  std::vector<std::string> words;
  std::string word;
  bool inWord = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (c == ' ' || c == '\t') {
      if (inWord) words.push_back(std::exchange(word, {}));
      inWord = false;
      continue;
    }
    if (c == '#' && !inWord) break;
    inWord = true;
    if (c == '\\') {
      if (++i == line.size()) throw KvlError("a backslash ends the line");
      word += line[i];
    } else if (c == '\'') {
      const std::size_t end = line.find('\'', i + 1);
      if (end == std::string::npos) throw KvlError("a single quote is not closed");
      word.append(line, i + 1, end - i - 1);
      i = end;
    } else if (c == '"') {
      i = DoubleQuoted(line, i + 1, word);
    } else {
      word += c;
    }
  }
  if (inWord) words.push_back(word);
  return words;
}

namespace {

// Parses and runs one command; false when the shell should end.
bool RunWords(Session& s, const std::vector<std::string>& words, int& lastRc) {
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

// One line of input: blank lines and comments do nothing.
bool RunLine(Session& s, const std::string& line, int& rc) {
  rc = kExitOk;
  std::vector<std::string> words;
  try {
    words = SplitWords(line);
  } catch (const KvlError& e) {
    std::cerr << "kvl: " << e.what() << "\n";
    rc = kExitUsage;
    return true;
  }
  if (words.empty()) return true;
  if (words[0] == "help") words = {"--help"};
  return RunWords(s, words, rc);
}

}  // namespace

namespace {

// A script's failed line: true when the script stops there (and the run ends
// with `rc`), false when --keep-going runs on.
bool ScriptFailed(Session& s, const ShellOptions& opt, int number, const std::string& line, int rc, bool more) {
  if (opt.keepGoing && more) {
    std::cerr << fmt::format("kvl: line {} failed (exit {}), going on: {}\n", number, rc, line);
    return false;
  }
  // A stopped script is abandoned, so that running it again once mended
  // does not repeat what its first lines did.
  std::cerr << fmt::format("kvl: script stopped at line {} (exit {}): {}\n", number, rc, line);
  if (s.state.Dirty) std::cerr << "kvl: the changes since the league was last saved are not saved\n";
  return true;
}

}  // namespace

int RunShell(Session& s, HomeLock& lock, const ShellOptions& opt) {
  std::ifstream file;
  if (!opt.script.empty()) file.open(opt.script);
  std::istream& in = opt.script.empty() ? std::cin : file;
  const bool script = !opt.script.empty() || ::isatty(STDIN_FILENO) == 0;
  if (script) s.ui.refuseTyping();
  int rc = RunGuarded(s, [&] { StartSession(s, lock); });
  if (rc != kExitOk) return rc;
  s.commands.erase("shell");  // not inside itself
  s.commands.insert("exit");
  if (!script) std::cout << "KVL shell. Type a command (help for the list), or exit.\n";
  int worst = kExitOk;
  std::string line;
  for (int number = 1;; ++number) {
    if (!script) std::cout << "kvl> " << std::flush;
    if (!std::getline(in, line)) break;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    const bool more = RunLine(s, line, rc);
    if (script && rc != kExitOk) {
      worst = std::max(worst, rc);
      if (ScriptFailed(s, opt, number, line, rc, more)) return rc;
    } else if (!more) {
      if (rc == kExitFailure) return rc;
      break;
    }
  }
  rc = RunGuarded(s, [&] { MainConsole(s.state).Exit(); });
  return std::max(worst, rc);
}

}  // namespace kvl
