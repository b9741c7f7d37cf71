#include "support/league_cli.h"

#include <sys/wait.h>

#include <cstdlib>

#include "support/golden.h"

namespace kvl::test {

namespace {

std::string Quote(const std::string& s) {
  std::string q = "'";
  for (char c : s) q += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return q + "'";
}

// Runs the program with `args` and `input` on standard input; `scratch` holds the streams.
ProgramRun RunKvl(const std::vector<std::string>& args, const fs::path& scratch, const std::string& input) {
  fs::create_directories(scratch);
  auto in = scratch / "stdin", out = scratch / "stdout", err = scratch / "stderr";
  WriteText(in, input);
  std::string cmd = Quote(KVL_BINARY);
  for (const auto& a : args) cmd += " " + Quote(a);
  cmd += " <" + Quote(in.string()) + " >" + Quote(out.string()) + " 2>" + Quote(err.string());
  int raw = std::system(cmd.c_str());
  return {WIFEXITED(raw) ? WEXITSTATUS(raw) : -1, ReadAll(out), ReadAll(err)};
}

}  // namespace

CliLeague::CliLeague() : home(dir.path() / "home") {}

CliLeague::CliLeague(const LeaguePlan& plan, const std::string& name, std::vector<std::string> lead)
    : home(dir.path() / "home"), path((dir.path() / "league" / name).string()), lead(std::move(lead)) {
  fs::create_directories(dir.path() / "league");
  WriteLeague(plan, path);
}

ProgramRun CliLeague::kvl(std::vector<std::string> args, const std::string& input) {
  std::vector<std::string> all{"--home", home.string()};
  if (pinLeague && !path.empty()) all.insert(all.end(), {"--league", path + ".lge"});
  all.insert(all.end(), lead.begin(), lead.end());
  all.insert(all.end(), args.begin(), args.end());
  ProgramRun r = RunKvl(all, dir.path() / "io", input);
  std::string line = "$ kvl";
  for (const auto& a : args) line += " " + (a.empty() || a.find(' ') != std::string::npos ? "\"" + a + "\"" : a);
  auto lines = [](const std::string& text) { return text.empty() || text.ends_with('\n') ? text : text + "\n"; };
  transcript += plain(line) + "\n" + lines(plain(r.out));
  if (!r.err.empty()) transcript += "--- stderr\n" + lines(plain(r.err));
  if (r.status != 0) transcript += "--- exit " + std::to_string(r.status) + "\n";
  return r;
}

void CliLeague::kvlEach(const std::vector<std::vector<std::string>>& runs) {
  for (const auto& args : runs) kvl(args);
}

ProgramRun CliLeague::answered(const std::string& answers, std::vector<std::string> args) {
  const fs::path file = dir.path() / "answers.txt";
  WriteText(file, answers);
  args.insert(args.begin(), {"--answers", file.string()});
  return kvl(args);
}

void CliLeague::note(const std::string& fact) { transcript += "# " + plain(fact) + "\n"; }

void CliLeague::expectTranscript(const std::string& testFile, const std::string& name) const {
  ExpectGolden(testFile, name, transcript);
}

std::string CliLeague::plain(const std::string& text) const {
  std::string out = text;
  // The program's own path shows in its help.
  for (const std::string& from : {dir.path().string(), std::string(KVL_BINARY)})
    for (std::size_t at; (at = out.find(from)) != std::string::npos;)
      out.replace(at, from.size(), from == KVL_BINARY ? "kvl" : "$TMP");
  return out;
}

}  // namespace kvl::test
