#include "sim/season_profile.h"

#include <fmt/format.h>

#include <cstdlib>
#include <exception>
#include <thread>

#include "league/league_files.h"
#include "league/tables.h"
#include "season/schedule_form.h"
#include "sim/game.h"
#include "sim/game_day.h"
#include "sim/game_side.h"
#include "ui/scripted_ui.h"
#include "util/error.h"

namespace kvl {

namespace {

constexpr int kSixths = 6;
constexpr int kTiredBelow = 70;
constexpr std::uint64_t kRunSeedStep = 0x9e3779b97f4a7c15ULL;

// A folder of its own under the system's temporary folder, removed with it.
class TempHome {
 public:
  TempHome() {
    std::string pattern = (fs::temp_directory_path() / "kvl-season-XXXXXX").string();
    if (!mkdtemp(pattern.data())) throw KvlError("cannot make a temporary folder for the season's copy");
    dir_ = pattern;
    fs::create_directories(dir_ / "Transfer");
  }
  ~TempHome() {
    std::error_code ec;
    fs::remove_all(dir_, ec);
  }
  TempHome(const TempHome&) = delete;
  TempHome& operator=(const TempHome&) = delete;
  const fs::path& dir() const { return dir_; }

 private:
  fs::path dir_;
};

// The swap files and injury texts the games read, copied from `from`.
void CopyPlayFiles(const fs::path& from, const fs::path& to) {
  for (const auto& entry : fs::directory_iterator(from)) {
    const std::string name = entry.path().filename().string();
    if (entry.is_regular_file() && (name.rfind("swp.", 0) == 0 || name == "inj.dtf"))
      fs::copy_file(entry.path(), to / name, fs::copy_options::overwrite_existing);
  }
}

// A copy of the league that answers every question yes, as a `--yes` run
// would, writes no page groups, and plays on its own swap files.
struct SeasonCopy {
  SeasonCopy(const LeagueState& s, const fs::path& from) : state(s, ui, home.dir()) {
    ui.setFallback(Answer::Yes);
    CopyPlayFiles(from, home.dir());
    state.league.OptAutoOutput = 0;
  }
  TempHome home;
  ScriptedUi ui;
  LeagueState state;
};

int SixthOf(int game, int seasonGames) { return std::min(kSixths - 1, (game - 1) * kSixths / seasonGames); }

void CountGame(SeasonSixth& x, Game& g) {
  ++x.games;
  x.fights += 2 * g.fights;  // a fight counts for both teams
  for (int sd = 0; sd < 2; ++sd) {
    const GameSide& own = g.sideOf(sd);
    const GameSide& opp = g.sideOf(Game::other(sd));
    x.goals += own.Goals;
    x.shots += own.Shots;
    x.saves += opp.Shots - opp.Goals;
    x.powerPlays += own.PowerPlays;
    x.ppGoals += own.PowerPlayGoals;
    x.pim += own.TeamPIM;
    for (int i = 0; i < own.dressedCount; ++i)
      if (g.player(sd, own.dressed[static_cast<std::size_t>(i)]).Pos != kGoalie) ++x.skatersDressed;
  }
}

// The starters' condition and the tired players, read from every team.
void CloseSixth(LeagueState& s, SeasonSixth& x) {
  for (int t = 0; t < s.numTeams(); ++t) {
    loadteam(s, t, 0);
    const Team& team = s.team(t);
    const u8 starter = team.Lines.at(kGoalieRow, 0);
    if (starter < kRosterSlots && !s.player(0, starter).empty()) {
      x.starterCondition += s.player(0, starter).Condition;
      ++x.starters;
    }
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = s.player(0, slot);
      if (p.empty() || p.list() != 2 || p.injury() != 0 || p.Condition >= kTiredBelow) continue;
      x.tired.push_back(fmt::format("{} ({}), {}, condition {}, {} games, endurance {}", p.Name.str(),
                                    team.Abbrev.str(), PosName[p.Pos], p.Condition, p.GP, p.rating(kEnd)));
    }
  }
}

SeasonRun PlaySeason(const LeagueState& base, const fs::path& from, bool oneRun, std::uint64_t seed) {
  SeasonCopy copy(base, from);
  LeagueState& s = copy.state;
  s.rnd.setMasterSeed(seed);
  SeasonRun run;
  run.mode = oneRun ? "In one run" : "Day by day";
  const int seasonGames = std::max<int>(1, s.league.LeagueGames);
  Games games(s);
  games.onGame = [&](Game& g, int number) {
    SeasonSixth& x = run.sixths[static_cast<std::size_t>(SixthOf(number, seasonGames))];
    CountGame(x, g);
    if (number == seasonGames || SixthOf(number + 1, seasonGames) != SixthOf(number, seasonGames)) CloseSixth(s, x);
  };
  bool played = true;
  try {
    if (oneRun)
      played = games.PlayToEnd();
    else
      while (played && !games.IsSeasonOver) played = games.MultipleGames();
  } catch (const KvlError& e) {
    run.stoppedBy = e.what();
  }
  // A refused day was told why: the roster check names the teams. Its file
  // went with the copy.
  const auto told = copy.ui.callsOf("tell");
  if (!played && !told.empty()) run.stoppedBy = told.back().title + "\n" + told.back().text;
  run.stoppedBy = run.stoppedBy.substr(0, run.stoppedBy.find("Details saved in "));
  return run;
}

}  // namespace

SeasonProfile RunSeasonProfile(LeagueState& s, int jobs) {
  const League& l = s.league;
  if (l.InPlayoffs || l.OffSeason || (l.ScheduleMade && l.SeasonOver))
    throw KvlError("the regular season is over; the profile plays a regular season from its schedule or "
                   "from the start");
  if (jobs < 1) throw KvlError("the run needs at least one thread");
  SeasonProfile profile;
  // Both runs play the same schedule: made once, on a copy, when the league has none.
  SeasonCopy base(s, s.AppPath);
  if (!base.state.league.ScheduleMade) {
    if (!MakeSuggestedSchedule(base.state)) throw KvlError("a schedule could not be made for the league");
    profile.scheduleMade = true;
  }
  s.rnd.Randomize();
  const std::uint64_t runSeed = static_cast<std::uint64_t>(s.rnd() * 0x1.0p53);
  profile.runs.resize(2);
  std::array<std::exception_ptr, 2> failures;
  auto play = [&](int i) {
    try {
      profile.runs[static_cast<std::size_t>(i)] =
          PlaySeason(base.state, base.home.dir(), i == 0, runSeed + static_cast<std::uint64_t>(i) * kRunSeedStep);
    } catch (...) {
      failures[static_cast<std::size_t>(i)] = std::current_exception();
    }
  };
  if (jobs > 1) {
    std::thread second(play, 1);
    play(0);
    second.join();
  } else {
    play(0);
    play(1);
  }
  for (const std::exception_ptr& e : failures)
    if (e) std::rethrow_exception(e);
  return profile;
}

namespace {

struct Figure {
  const char* name;
  const char* range;
  std::string (*value)(const SeasonSixth&);
};

double PerTeamGame(double sum, const SeasonSixth& x) { return sum / (2.0 * std::max(x.games, 1)); }

std::string Fixed2(double v) { return fmt::format("{:.2f}", v); }

const std::array<Figure, 9> kFigures{{
    {"Goals", "2.60-3.40", [](const SeasonSixth& x) { return Fixed2(PerTeamGame(x.goals, x)); }},
    {"Shots", "29.00-31.00", [](const SeasonSixth& x) { return Fixed2(PerTeamGame(x.shots, x)); }},
    {"Save percentage", ".895-.915",
     [](const SeasonSixth& x) { return fmt::format("{:.3f}", x.saves / std::max(x.shots, 1.0)).substr(1); }},
    {"Power plays", "2.50-3.50", [](const SeasonSixth& x) { return Fixed2(PerTeamGame(x.powerPlays, x)); }},
    {"PP conversion", "15-25%",
     [](const SeasonSixth& x) { return fmt::format("{:.1f}%", 100 * x.ppGoals / std::max(x.powerPlays, 1.0)); }},
    {"Penalty minutes", "8.00-10.00", [](const SeasonSixth& x) { return Fixed2(PerTeamGame(x.pim, x)); }},
    {"Fights", "0.05-0.50", [](const SeasonSixth& x) { return Fixed2(PerTeamGame(x.fights, x)); }},
    {"Skaters dressed", "17.90-18.00", [](const SeasonSixth& x) { return Fixed2(PerTeamGame(x.skatersDressed, x)); }},
    {"Starters' condition", "",
     [](const SeasonSixth& x) { return fmt::format("{:.1f}", x.starterCondition / std::max(x.starters, 1)); }},
}};

// The whole season's sums, for the last column.
SeasonSixth Whole(const SeasonRun& run) {
  SeasonSixth w;
  for (const SeasonSixth& x : run.sixths) {
    w.games += x.games;
    for (auto [a, b] : {std::pair{&w.goals, x.goals}, {&w.shots, x.shots}, {&w.saves, x.saves},
                        {&w.powerPlays, x.powerPlays}, {&w.ppGoals, x.ppGoals}, {&w.pim, x.pim},
                        {&w.fights, x.fights}, {&w.skatersDressed, x.skatersDressed}})
      *a += b;
  }
  w.starterCondition = run.sixths.back().starterCondition;
  w.starters = run.sixths.back().starters;
  return w;
}

// Each line of `text` indented under the run, CR LF read as a line break.
std::string Indented(std::string text) {
  std::erase(text, '\r');
  while (!text.empty() && text.back() == '\n') text.pop_back();
  std::string out = "  ";
  for (char c : text) out += c == '\n' ? std::string("\n    ") : std::string(1, c);
  return out + "\n";
}

std::string RunText(const SeasonRun& run) {
  const SeasonSixth whole = Whole(run);
  if (whole.games == 0) return run.mode + ": no game played\n" + Indented("Stopped: " + run.stoppedBy);
  std::string out = fmt::format("{}:\n  {:<20}", run.mode, "Sixth of the season");
  for (int i = 1; i <= kSixths; ++i) out += fmt::format("{:>8}", i);
  out += fmt::format("{:>9}   Target\n  {:<20}", "Season", "Games");
  for (const SeasonSixth& x : run.sixths) out += fmt::format("{:>8}", x.games);
  out += fmt::format("{:>9}\n", whole.games);
  for (const Figure& f : kFigures) {
    std::string line = fmt::format("  {:<20}", f.name);
    for (const SeasonSixth& x : run.sixths) line += fmt::format("{:>8}", x.games ? f.value(x) : "-");
    line += fmt::format("{:>9}   {}", f.value(whole), f.range);
    out += line.substr(0, line.find_last_not_of(' ') + 1) + "\n";
  }
  for (int i = 0; i < kSixths; ++i)
    for (const std::string& t : run.sixths[static_cast<std::size_t>(i)].tired)
      out += fmt::format("  Tired at the end of sixth {}: {}\n", i + 1, t);
  if (!run.stoppedBy.empty()) out += Indented("Stopped: " + run.stoppedBy);
  return out;
}

}  // namespace

std::string SeasonProfileText(const SeasonProfile& p) {
  std::string out = "Means per team and game; the starters' condition at the sixth's end.\n";
  if (p.scheduleMade) out += "The league has no schedule: the copy played the suggested one.\n";
  for (const SeasonRun& run : p.runs) out += RunText(run);
  return out;
}

}  // namespace kvl
