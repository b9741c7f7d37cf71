#include "support/found_cli.h"

#include <sys/wait.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

namespace kvl::test {

namespace {

std::string Quote(const std::string& s) {
  std::string q = "'";
  for (char c : s) q += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return q + "'";
}

std::string Slurp(const std::filesystem::path& p) {
  std::ifstream in(p, std::ios::binary);
  std::ostringstream s;
  s << in.rdbuf();
  return s.str();
}

}  // namespace

ProgramRun RunKvl(const std::vector<std::string>& args, const std::filesystem::path& scratch, const std::string& input) {
  std::filesystem::create_directories(scratch);
  auto in = scratch / "stdin", out = scratch / "stdout", err = scratch / "stderr";
  std::ofstream(in, std::ios::binary) << input;
  std::string cmd = Quote(KVL_BINARY);
  for (const auto& a : args) cmd += " " + Quote(a);
  cmd += " <" + Quote(in.string()) + " >" + Quote(out.string()) + " 2>" + Quote(err.string());
  int raw = std::system(cmd.c_str());
  ProgramRun r;
  r.status = WIFEXITED(raw) ? WEXITSTATUS(raw) : -1;
  r.out = Slurp(out);
  r.err = Slurp(err);
  return r;
}

}  // namespace kvl::test
