// Writes the seed corpus of every fuzz target into DIR/<target>/, from the
// league the targets stand on: whole files, and a few damaged ones.
#include <fstream>
#include <iostream>
#include <iterator>

#include "file_set.h"
#include "fuzz_home.h"
#include "league/league_files.h"
#include "season/schedule_form.h"
#include "team/lines_file.h"
#include "transactions/database_players.h"

using namespace kvl;
using namespace kvl::fuzz;
namespace fs = std::filesystem;

namespace {

constexpr std::size_t kSeedPlayers = 20;  // a database cut short keeps the seeds small

std::string ReadAll(const fs::path& p) {
  std::ifstream in(p, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void Seed(const fs::path& dir, const std::string& target, const std::string& name, const std::string& bytes) {
  fs::create_directories(dir / target);
  std::ofstream(dir / target / name, std::ios::binary) << bytes;
}

// The league with its database cut short, whole and with one file damaged.
void LeagueSeeds(FuzzHome& h, const fs::path& dir) {
  const std::string seed = (h.scratch / "seed").string();
  for (const LeagueFileKind& kind : LeagueFileKinds())
    if (fs::exists(h.leaguePath + kind.ext)) fs::copy_file(h.leaguePath + kind.ext, seed + kind.ext);
  fs::resize_file(seed + ".drs", kSeedPlayers * DbRecord::kSize);
  Seed(dir, "fuzz_league_files", "whole", PackFileSet(seed));
  fs::resize_file(seed + ".tms", Team::kSize * 3 - 1);
  Seed(dir, "fuzz_league_files", "short_teams", PackFileSet(seed));
  fs::remove(seed + ".tms");
  Seed(dir, "fuzz_league_files", "no_teams", PackFileSet(seed));
}

// Team 0's lines as a binary file (after the form byte 0) and as jersey
// numbers (after the form byte 1): dressed players, a token, rows E1 to K4,
// the spares and the goalie.
void LinesSeeds(FuzzHome& h, const fs::path& dir) {
  LeagueState& s = h.state;
  loadteam(s, 0, 0);
  const LineTable& t = s.team(0).Lines;
  WriteLinesFile(s, h.scratch / "seed.lns", MakeLinesFileRecord(s, 0, 0, t, s.team(0).Password));
  Seed(dir, "fuzz_lines_files", "binary", std::string(1, '\0') + ReadAll(h.scratch / "seed.lns"));
  auto num = [&](int slot) { return slot < kRosterSlots ? std::to_string(s.player(0, slot).Num) : std::string("***"); };
  std::string text = "\x01";
  for (int slot = 0; slot < kRosterSlots; ++slot)
    if (s.player(0, slot).list() == 2) text += num(slot) + ",";
  text += "\nlines\n";
  constexpr int kSeats[] = {5, 5, 5, 5, 5, 5, 4, 4, 4, 4, 3, 3};
  for (int row = 0; row < 12; ++row) {
    for (int seat = 0; seat < kSeats[row]; ++seat) text += num(t.at(row, seat)) + (seat + 1 < kSeats[row] ? "," : "");
    text += "\n";
  }
  text += num(t.at(12, 1)) + "," + num(t.at(12, 2)) + "\n" + num(t.at(12, 0)) + "\n";
  Seed(dir, "fuzz_lines_files", "text", text);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_corpus DIR\n";
    return 2;
  }
  const fs::path dir = argv[1];
  FuzzHome& h = Home();
  LeagueSeeds(h, dir);
  LinesSeeds(h, dir);
  if (!MakeSuggestedSchedule(h.state)) return 1;
  Seed(dir, "fuzz_schedule", "eight_teams", ReadAll(h.state.swap(swp::Schedule)).substr(0, 40 * ScheduleRecord::kSize));
  const std::vector<DbRecord> db = ReadDatabase(h.state);
  std::string names = "\"" + db[0].P.Name.str() + "\", " + db[1].P.Name.str() + "\r\n\n";
  for (std::size_t i = 2; i < 12; ++i) names += db[i].P.Name.str() + "\n";
  Seed(dir, "fuzz_draft_list", "names", names + "Nobody Atall\n");
  Seed(dir, "fuzz_database", "players", ReadAll(h.state.swap(swp::Database)).substr(0, kSeedPlayers * DbRecord::kSize));
  Seed(dir, "fuzz_injury_texts", "bundled", ReadAll(h.home / "inj.dtf"));
  Seed(dir, "fuzz_page_headers", "html", "<HTML><BODY><H1>Our League</H1>\r\n<P>Updated daily</P></BODY></HTML>\r\n");
  return 0;
}
