#pragma once
#include "console/startup.h"
#include "session.h"

namespace kvl {

// Reads commands from standard input until "exit" or the end of input, keeping
// the league open between them.
int RunShell(Session& s, HomeLock& lock);
// Splits a line into words; double quotes group words with blanks.
std::vector<std::string> SplitWords(const std::string& line);

}  // namespace kvl
