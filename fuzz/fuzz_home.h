#pragma once
// What every fuzz target stands on: a home folder with the bundled defaults and
// an eight-team league built once per process, opened in a state whose user
// answers no and cancels every prompt. An input that a reader refuses must be
// refused with the program's own error (KvlError and its kinds); anything else
// (a crash, a sanitizer report, an uncaught exception) is a finding.
#include <cstddef>
#include <cstdint>
#include <array>
#include <filesystem>
#include <string>
#include <string_view>

#include "league/league_state.h"
#include "ui/scripted_ui.h"
#include "util/bytes.h"
#include "util/clock.h"
#include "util/error.h"

namespace kvl::fuzz {

struct FuzzHome {
  FuzzHome();
  ~FuzzHome();
  FuzzHome(const FuzzHome&) = delete;
  FuzzHome& operator=(const FuzzHome&) = delete;

  // Empties the scratch folder and puts back these files of the home folder
  // as they were built (a whole copy each input would be most of the time),
  // and the teams' records held in memory.
  void Reset(std::initializer_list<const char*> files = {});
  // Writes `data` to a file of the scratch folder and returns its path.
  std::filesystem::path Scratch(const std::string& name, std::string_view data) const;

  std::filesystem::path root, home, scratch;
  ScriptedUi ui;
  FixedClock clock{46000.5};
  LeagueState state{ui, clock, ""};
  std::string leaguePath;

 private:
  std::filesystem::path pristine_;
  std::array<Team, kMaxTeams> teams_{};
};

// The one home of the process, built on first use.
FuzzHome& Home();

// Runs `work`, taking the program's own errors as the refusals they are.
template <class Work>
bool RefusedBy(Work work) {
  try {
    work();
    return false;
  } catch (const KvlError&) {
  } catch (const kvl::Refused&) {
  } catch (const FatalStop&) {
  }
  return true;
}

inline std::string_view AsText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

// Every file of `dir` (lock files aside) with its bytes, to show that a
// refusal changed none.
std::string FolderDigest(const std::filesystem::path& dir);

}  // namespace kvl::fuzz
