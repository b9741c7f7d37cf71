#include "fuzz_home.h"

#include <stdlib.h>

#include <algorithm>
#include <fstream>
#include <vector>

#include "console/demo.h"
#include "console/startup.h"
#include "league/league_files.h"
#include "util/error.h"

namespace kvl::fuzz {

namespace fs = std::filesystem;

namespace {

void CopyFolder(const fs::path& from, const fs::path& to) {
  fs::create_directories(to);
  for (const auto& e : fs::directory_iterator(from))
    if (e.is_regular_file()) fs::copy_file(e.path(), to / e.path().filename(), fs::copy_options::overwrite_existing);
}

}  // namespace

FuzzHome::FuzzHome() {
  std::string pattern = (fs::temp_directory_path() / "kvl-fuzz-XXXXXX").string();
  if (!mkdtemp(pattern.data())) abort();
  root = pattern;
  home = root / "home";
  scratch = root / "scratch";
  pristine_ = root / "pristine";
  fs::create_directories(scratch);
  state.AppPath = home;
  ui.setFallback(Answer::No);
  PrepareHomeFolder(home);
  DemoOptions options;
  options.teams = 8;
  leaguePath = BuildDemo(state, options).path;
  CopyFolder(home, pristine_);
  teams_ = state.Teams;
}

FuzzHome::~FuzzHome() {
  std::error_code ec;
  fs::remove_all(root, ec);
}

void FuzzHome::Reset(std::initializer_list<const char*> files) {
  for (const char* f : files)
    if (fs::exists(pristine_ / f)) fs::copy_file(pristine_ / f, home / f, fs::copy_options::overwrite_existing);
  state.Teams = teams_;
  fs::remove_all(scratch);
  fs::create_directories(scratch);
}

fs::path FuzzHome::Scratch(const std::string& name, std::string_view data) const {
  fs::path p = scratch / name;
  std::ofstream(p, std::ios::binary | std::ios::trunc).write(data.data(), static_cast<std::streamsize>(data.size()));
  return p;
}

// libFuzzer calls in with the bytes alone: the league it works on is the
// process's, built once.
FuzzHome& Home() {
  static FuzzHome home;
  return home;
}

std::string FolderDigest(const fs::path& dir) {
  std::vector<fs::path> files;
  for (const auto& e : fs::directory_iterator(dir))
    if (e.is_regular_file() && e.path().extension() != ".lock") files.push_back(e.path());
  std::sort(files.begin(), files.end());
  std::string out;
  for (const fs::path& f : files) {
    std::ifstream in(f, std::ios::binary);
    out += f.filename().string() + '\0' + std::string(std::istreambuf_iterator<char>(in), {}) + '\0';
  }
  return out;
}

}  // namespace kvl::fuzz
