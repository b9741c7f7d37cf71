#pragma once
// A league held in memory, aligned as asked, in a temporary home folder: enough
// for the schedule maker (allotment, placement, the league reset).
#include <stdlib.h>

#include <filesystem>
#include <string>
#include <vector>

#include "league/league_state.h"
#include "ui/scripted_ui.h"
#include "util/clock.h"

namespace kvl::bench {

namespace fs = std::filesystem;

// Division sizes per conference.
using Alignment = std::vector<std::vector<int>>;

inline fs::path MakeTempHome() {
  std::string tmpl = (fs::temp_directory_path() / "kvlbench.XXXXXX").string();
  if (!::mkdtemp(tmpl.data())) throw std::runtime_error("cannot make a temporary folder");
  return tmpl;
}

struct BenchLeague {
  explicit BenchLeague(const Alignment& a) : home(MakeTempHome()), state(ui, clock, home) {
    ui.setFallback(Answer::Yes);
    int t = 0;
    for (std::size_t c = 0; c < a.size(); ++c) {
      Conference& conf = state.league.Conf[c];
      conf.Name.set("CONF " + std::to_string(c + 1));
      conf.NumDivs = static_cast<u8>(a[c].size());
      for (std::size_t d = 0; d < a[c].size(); ++d) {
        conf.Div[d].Name.set("DIV " + std::to_string(d + 1));
        for (int i = 0; i < a[c][d]; ++i, ++t) {
          Team& team = state.team(t);
          team.Name.set("Team" + std::to_string(t));
          team.Conf = static_cast<u8>(c);
          team.Div = static_cast<u8>(d);
        }
      }
    }
    state.league.NumTeams = static_cast<u8>(t);
    state.loaded = true;
  }
  ~BenchLeague() {
    std::error_code ec;
    fs::remove_all(home, ec);
  }
  BenchLeague(const BenchLeague&) = delete;
  BenchLeague& operator=(const BenchLeague&) = delete;

  fs::path home;
  ScriptedUi ui;
  FixedClock clock{46000.5};
  LeagueState state;
};

// The alignments measured: the demo league's, uneven leagues of 25 and 26,
// a 30-team league of six divisions of five, and the largest league of eight
// divisions.
inline Alignment AlignmentOf(int teams) {
  if (teams == 24) return {{6, 6}, {6, 6}};
  if (teams == 25) return {{7, 6}, {6, 6}};
  if (teams == 26) return {{7, 6}, {7, 6}};
  if (teams == 30) return {{5, 5, 5}, {5, 5, 5}};
  return {{7, 6, 6, 6}, {7, 6, 6, 6}};
}

}  // namespace kvl::bench
