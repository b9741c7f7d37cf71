// Writes the seed corpus of every fuzz target into DIR/<target>/, from the
// league the targets stand on: whole files, and a few damaged ones.
#include <fstream>
#include <iostream>
#include <iterator>

#include "file_set.h"
#include "fuzz_home.h"
#include "league/league_files.h"
#include "season/schedule_form.h"
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

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: make_corpus DIR\n";
    return 2;
  }
  const fs::path dir = argv[1];
  FuzzHome& h = Home();
  LeagueSeeds(h, dir);
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
