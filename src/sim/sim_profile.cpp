#include "sim/sim_profile.h"

#include <fmt/format.h>

#include <exception>
#include <thread>
#include <vector>

#include "sim/game.h"
#include "league/league_files.h"
#include "sim/roster_cache.h"
#include "team/auto_roster.h"
#include "util/error.h"

namespace kvl {

namespace {

// Sets the sliders for the run and puts them back after it.
class SliderOverride {
 public:
  SliderOverride(League& lg, const ProfileOptions& o) : lg_(lg), saved_(lg.Slider) {
    for (const auto& v : {o.shotsLevel, o.goalsLevel, o.penaltiesLevel, o.injuriesLevel})
      if (v && (*v < 1 || *v > 9)) throw KvlError("a slider level must be from 1 to 9");
    auto set = [](u8& slider, const std::optional<int>& v) {
      if (v) slider = static_cast<u8>(*v);
    };
    set(lg.ShotsLevel(), o.shotsLevel);
    set(lg.GoalsLevel(), o.goalsLevel);
    set(lg.PenaltiesLevel(), o.penaltiesLevel);
    set(lg.InjuriesLevel(), o.injuriesLevel);
  }
  ~SliderOverride() { lg_.Slider = saved_; }
  SliderOverride(const SliderOverride&) = delete;
  SliderOverride& operator=(const SliderOverride&) = delete;

 private:
  League& lg_;
  std::array<u8, 5> saved_;
};

// Seeds of successive games lie this far apart (the golden ratio's step).
constexpr std::uint64_t kGameSeedStep = 0x9e3779b97f4a7c15ULL;

// Game i of the run: the given pair, or every ordered pairing in turn.
std::pair<int, int> Pairing(const ProfileOptions& o, int teams, int i) {
  if (o.pair) return *o.pair;
  int idx = i % (teams * (teams - 1));
  int away = idx / (teams - 1), home = idx % (teams - 1);
  return {away, home >= away ? home + 1 : home};
}

void Add(ProfileTotals& t, const Game& g) {
  ++t.games;
  if (g.InOvertime) ++t.overtimeGames;
  for (int sd = 0; sd < 2; ++sd) {
    const GameSide& own = g.sideOf(sd);
    const GameSide& opp = g.sideOf(Game::other(sd));
    t.goals += own.Goals;
    t.shots += own.Shots;
    t.powerPlays += own.PowerPlays;
    t.ppGoals += own.PowerPlayGoals;
    t.pim += own.TeamPIM;
    t.fights += g.fights;  // a fight counts for both teams
    t.injuries += own.injuries;
    for (i16 h : own.Hits) t.hits += h;
    t.saves += opp.Shots - opp.Goals;
  }
}

// Plays games first, first + step, ... of the run on its own copy of the league.
ProfileTotals PlayShare(const LeagueState& s, const ProfileOptions& o, const GameOptions& opt,
                        std::uint64_t runSeed, int first, int step) {
  LeagueState own = s;
  ProfileTotals totals;
  for (int i = first; i < o.games; i += step) {
    own.rnd.setMasterSeed(runSeed + static_cast<std::uint64_t>(i) * kGameSeedStep);
    auto [away, home] = Pairing(o, own.numTeams(), i);
    Game game(own, opt);
    game.PlayGame(away, home);
    Add(totals, game);
  }
  return totals;
}

void Merge(ProfileTotals& into, const ProfileTotals& t) {
  into.games += t.games;
  into.overtimeGames += t.overtimeGames;
  for (auto [a, b] : {std::pair{&into.goals, t.goals}, {&into.shots, t.shots}, {&into.powerPlays, t.powerPlays},
                      {&into.ppGoals, t.ppGoals}, {&into.pim, t.pim}, {&into.fights, t.fights},
                      {&into.injuries, t.injuries}, {&into.hits, t.hits}, {&into.saves, t.saves}})
    *a += b;
}

}  // namespace

ProfileTotals RunProfile(LeagueState& s, const ProfileOptions& o) {
  if (s.numTeams() < 2) throw KvlError("the league needs two teams to play");
  if (o.pair && (o.pair->first == o.pair->second)) throw KvlError("a team cannot play itself");
  if (o.jobs < 1) throw KvlError("the run needs at least one thread");
  SliderOverride sliders(s.league, o);
  bool dirty = s.Dirty;
  // Teams without lines get them now, as before their next game, so that the
  // rosters read once match the lines.
  for (int t = 0; t < s.numTeams(); ++t)
    if (!s.team(t).LinesOK) {
      loadteam(s, t, 0);
      AutoRoster(s, t, 0);
    }
  const RosterCache cache(s);  // read by every thread, changed by none
  GameOptions opt;
  opt.isExhibition = true;
  opt.rosters = &cache;
  s.rnd.Randomize();
  const std::uint64_t runSeed = static_cast<std::uint64_t>(s.rnd() * 0x1.0p53);
  std::vector<ProfileTotals> shares(static_cast<std::size_t>(o.jobs));
  std::vector<std::exception_ptr> failures(shares.size());
  auto play = [&](int j) {
    try {
      shares[static_cast<std::size_t>(j)] = PlayShare(s, o, opt, runSeed, j, o.jobs);
    } catch (...) {
      failures[static_cast<std::size_t>(j)] = std::current_exception();
    }
  };
  std::vector<std::thread> threads;
  for (int j = 1; j < o.jobs; ++j) threads.emplace_back(play, j);
  play(0);
  for (std::thread& t : threads) t.join();
  for (const std::exception_ptr& e : failures)
    if (e) std::rethrow_exception(e);
  ProfileTotals totals;
  totals.sliders = s.league.Slider;
  for (const ProfileTotals& t : shares) Merge(totals, t);
  s.Dirty = dirty;
  return totals;
}

std::string ProfileText(const ProfileTotals& t) {
  League lg;
  lg.Slider = t.sliders;
  double teamGames = 2.0 * std::max(t.games, 1);
  double shotsAgainst = t.shots > 0 ? t.shots : 1;
  std::string out = fmt::format(
      "{} games; ShotsLevel {}, GoalsLevel {}, PenaltiesLevel {}, InjuriesLevel {}\n"
      "Means per team and game:\n",
      t.games, lg.ShotsLevel(), lg.GoalsLevel(), lg.PenaltiesLevel(), lg.InjuriesLevel());
  // What a professional league plays to, per team and game, at default sliders.
  const bool defaults = lg.ShotsLevel() == 5 && lg.GoalsLevel() == 5 && lg.PenaltiesLevel() == 5 && lg.InjuriesLevel() == 5;
  auto target = [&](const char* range) { return defaults && *range ? fmt::format("   {}", range) : std::string(); };
  auto row = [&](const char* name, double sum, const char* range) {
    out += fmt::format("  {:<18}{:>8.2f}{}\n", name, sum / teamGames, target(range));
  };
  row("Goals", t.goals, "2.90-3.10");
  row("Shots", t.shots, "29.00-31.00");
  row("Power plays", t.powerPlays, "2.50-3.50");
  row("Power-play goals", t.ppGoals, "");
  row("Penalty minutes", t.pim, "8.00-10.00");
  row("Fights", t.fights, "0.05-0.50");
  row("Injuries", t.injuries, "");
  row("Hits", t.hits, "");
  out += fmt::format("  {:<18}{:>8.3f}{}\n", "Save percentage", t.saves / shotsAgainst, target(".900-.910"));
  out += fmt::format("  {:<18}{:>7.1f}%\n", "Overtime games", 100.0 * t.overtimeGames / std::max(t.games, 1));
  return out;
}

}  // namespace kvl
