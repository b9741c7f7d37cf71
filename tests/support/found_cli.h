#pragma once
// Runs the kvl program as a user would, for the end-to-end tests.
#include <filesystem>
#include <string>
#include <vector>

namespace kvl::test {

struct ProgramRun {
  int status = -1;  // the exit status
  std::string out, err;
};

// Runs kvl with `args`, feeding `input` on standard input; `scratch` holds the
// files that carry input and output.
ProgramRun RunKvl(const std::vector<std::string>& args, const std::filesystem::path& scratch,
              const std::string& input = "");

}  // namespace kvl::test
