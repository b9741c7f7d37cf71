#pragma once
#include "console/startup.h"
#include "session.h"

namespace kvl {

struct ShellOptions {
  std::string script;      // --script FILE: read commands from it
  bool keepGoing = false;  // --keep-going: a script runs on past a failed command
};

// Reads commands until "exit" or the end of input, keeping the league open
// between them. Fed from a file or a pipe it runs them as a script: the first
// command that fails stops it, named by its line, and its status is the run's.
int RunShell(Session& s, HomeLock& lock, const ShellOptions& opt);
// Splits a line into words as the POSIX shell does: single quotes keep every
// character, double quotes keep blanks and let a backslash escape $ ` " \,
// a backslash elsewhere escapes the next character, and # at a word's start
// begins a comment. An unterminated quote throws KvlError.
std::vector<std::string> SplitWords(const std::string& line);

}  // namespace kvl
