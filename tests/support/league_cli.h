#pragma once
// The kvl program run over a league in a temporary folder, as a user runs it,
// each run kept in a transcript that a test compares whole with a golden file:
// "$ kvl ARGS", what the run printed, its standard error after "--- stderr" and
// its status after "--- exit" when not 0. The folder's path reads $TMP and the
// program's kvl, so the text is the same on every machine.
#include <string>
#include <vector>

#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl::test {

struct ProgramRun {
  int status = -1;  // the exit status
  std::string out, err;
};

struct CliLeague {
  // An empty home: runs open the last league the program loaded.
  CliLeague();
  // The plan is written as <dir>/league/<name>; every run takes --league and then
  // `lead` (such as a seed) before its own arguments.
  explicit CliLeague(const LeaguePlan& plan, const std::string& name = "test", std::vector<std::string> lead = {});
  // Runs kvl --home <dir>/home [--league <path>.lge] [lead] args, and keeps the run.
  ProgramRun kvl(std::vector<std::string> args, const std::string& input = "");
  // Each of these runs in turn.
  void kvlEach(const std::vector<std::vector<std::string>>& runs);
  // A run whose questions and prompts take `answers`, one a line, from an answers file.
  ProgramRun answered(const std::string& answers, std::vector<std::string> args);
  // A fact the test adds to the transcript, on a line of its own after "# ".
  void note(const std::string& fact);
  // Compares the transcript with golden/<name> beside `testFile` (pass __FILE__).
  void expectTranscript(const std::string& testFile, const std::string& name) const;
  // The text with this folder's path as $TMP and the program's as kvl.
  std::string plain(const std::string& text) const;

  TempDir dir;
  fs::path home;
  std::string path;  // without extension; empty for an empty home
  std::vector<std::string> lead;
  bool pinLeague = true;  // false: runs open the last league loaded, as a user's next start does
  std::string transcript;
};

}  // namespace kvl::test
