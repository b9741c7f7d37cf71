#include "sim/sim_profile.h"

#include <fmt/format.h>

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

}  // namespace

ProfileTotals RunProfile(LeagueState& s, const ProfileOptions& o) {
  if (s.numTeams() < 2) throw KvlError("the league needs two teams to play");
  if (o.pair && (o.pair->first == o.pair->second)) throw KvlError("a team cannot play itself");
  SliderOverride sliders(s.league, o);
  bool dirty = s.Dirty;
  // Teams without lines get them now, as before their next game, so that the
  // rosters read once match the lines.
  for (int t = 0; t < s.numTeams(); ++t)
    if (!s.team(t).LinesOK) {
      loadteam(s, t, 0);
      AutoRoster(s, t, 0);
    }
  RosterCache cache(s);
  GameOptions opt;
  opt.isExhibition = true;
  opt.rosters = &cache;
  ProfileTotals totals;
  totals.sliders = s.league.Slider;
  for (int i = 0; i < o.games; ++i) {
    auto [away, home] = Pairing(o, s.numTeams(), i);
    Game game(s, opt);
    game.PlayGame(away, home);
    Add(totals, game);
  }
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
  auto row = [&](const char* name, double sum) { out += fmt::format("  {:<18}{:>8.2f}\n", name, sum / teamGames); };
  row("Goals", t.goals);
  row("Shots", t.shots);
  row("Power plays", t.powerPlays);
  row("Power-play goals", t.ppGoals);
  row("Penalty minutes", t.pim);
  row("Fights", t.fights);
  row("Injuries", t.injuries);
  row("Hits", t.hits);
  out += fmt::format("  {:<18}{:>8.3f}\n", "Save percentage", t.saves / shotsAgainst);
  out += fmt::format("  {:<18}{:>7.1f}%\n", "Overtime games", 100.0 * t.overtimeGames / std::max(t.games, 1));
  return out;
}

}  // namespace kvl
