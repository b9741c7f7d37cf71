// A manager's lines file, binary or text, loaded into a team as load-lines
// loads it. A file that is taken must play: a game of the team may not stop.
#include <cstdlib>

#include "fuzz_home.h"
#include "league/league_files.h"
#include "sim/exhibition.h"
#include "team/lines_file.h"
#include "team/lines_import.h"
#include "team/lines_text_import.h"

using namespace kvl;
using namespace kvl::fuzz;

namespace {

// The first input byte picks the form: odd reads the rest as a text file,
// even as a binary file checked and taken without its password.
bool Take(FuzzHome& h, std::string_view input) {
  const bool text = !input.empty() && (input.front() & 1);
  const auto file = h.Scratch("fz.lns", input.substr(input.empty() ? 0 : 1));
  if (text) return LoadLinesFile(h.state, 0, file).ok;
  loadteam(h.state, 0, 0);
  return !TakeLinesRecord(h.state, 0, 0, ReadLinesFile(file), nullptr);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzHome& h = Home();
  h.Reset({"swp.r", "swp.t", "swp.p", "swp.tr", "swp.th"});
  bool taken = false;
  RefusedBy([&] { taken = Take(h, AsText(data, size)); });
  if (taken && RefusedBy([&] { PlayExhibition(h.state, 0, 1); })) std::abort();  // taken, yet the game stops
  h.ui.forget();
  return 0;
}
