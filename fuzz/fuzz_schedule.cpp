// A schedule file in each of its forms: the current records read and cut into
// game days, and the older file converted as a league is opened.
#include "fuzz_home.h"
#include "league/league_files.h"
#include "league/schedule_convert.h"
#include "season/schedule_file.h"

using namespace kvl;
using namespace kvl::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzHome& h = Home();
  h.Reset();
  const std::string_view input = AsText(data, size);
  RefusedBy([&] {
    const auto games = ReadSchedule(h.Scratch("fz.scx", input));
    GameDays(games, h.state.numTeams());
    FirstUnplayed(games);
  });
  // The older form stands beside an empty current schedule, as in an old league.
  h.Scratch("swp.sc", input);
  std::filesystem::copy_file(h.scratch / "swp.sc", h.state.swap(swp::OldSchedule),
                             std::filesystem::copy_options::overwrite_existing);
  std::filesystem::remove(h.state.swap(swp::Schedule));
  RefusedBy([&] { ConvertSchedCheck(h.state); });
  h.ui.forget();
  return 0;
}
