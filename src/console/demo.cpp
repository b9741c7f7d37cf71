#include "console/demo.h"

#include <fmt/format.h>

#include <array>

#include "admin/alignment.h"
#include "admin/league_creation.h"
#include "console/demo_clubs.h"
#include "league/league_files.h"
#include "league/ratings.h"
#include "season/new_season.h"
#include "season/playoff_bracket.h"
#include "season/playoffs.h"
#include "reports/output_form.h"
#include "reports/page_files.h"
#include "season/schedule_form.h"
#include "sim/game_day.h"
#include "team/auto_all.h"
#include "team/coach_hire.h"
#include "transactions/roster_fill.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr const char* kLeagueName = "Demo";
constexpr std::array<std::string_view, 2> kConferences{"Aurora", "Borealis"};
constexpr std::array<std::array<std::string_view, 3>, 2> kDivisions{
    {{"Summit", "Valley", "Harbour"}, {"Prairie", "Coast", "Forest"}}};

template <class T>
void Shuffle(Rnd& rnd, std::vector<T>& items) {
  for (std::size_t i = items.size(); i > 1; --i) std::swap(items[i - 1], items[static_cast<std::size_t>(rnd(static_cast<int>(i)) - 1)]);
}

std::vector<const DemoClub*> ChooseClubs(Rnd& rnd, int n) {
  std::vector<const DemoClub*> clubs;
  for (const DemoClub& c : DemoClubs()) clubs.push_back(&c);
  Shuffle(rnd, clubs);
  clubs.resize(static_cast<std::size_t>(n));
  return clubs;
}

void SetClub(LeagueState& s, int t, const DemoClub& c) {
  Team& team = s.team(t);
  team.Abbrev.set(c.abbrev);
  team.Arena.set(c.arena);
  team.Seats = static_cast<i16>(c.seats);
  team.Ticket = static_cast<u8>(c.ticket);
  s.Farm[static_cast<std::size_t>(t)].Name.set(c.farmName);
}

// One coach a team, drawn from the pool in an order the seed decides.
void HireCoaches(LeagueState& s) {
  std::size_t pool = RecordFile(s.swap(swp::Coaches), Coach::kSize).count();
  std::vector<std::size_t> order;
  for (std::size_t rec = 1; rec <= pool; ++rec) order.push_back(rec);
  Shuffle(s.rnd, order);
  for (int t = 0; t < s.numTeams() && static_cast<std::size_t>(t) < order.size(); ++t)
    HireCoach(s, t, order[static_cast<std::size_t>(t)]);
}

// A rerun writes over the last demo: every file of it goes first, so that no
// file of an earlier, different run is left beside the new ones.
void SaveDemo(LeagueState& s) {
  for (const char* name : {"", "PLF", "Rerated", "Next"}) {
    std::string base = (s.AppPath / kLeagueName).string() + name;
    for (const auto& kind : LeagueFileKinds()) RemoveIfExists(FindLeagueFile(base, kind.ext));
  }
  std::string base = (s.AppPath / kLeagueName).string();
  SaveLeagueAs(s, "", fs::path(base + ".lge"));
  LoadLg(s, base);
}

void MakeDemoSchedule(LeagueState& s) {
  if (!MakeSuggestedSchedule(s)) throw KvlError("the demo league's schedule could not be made");
}

void PlayDemoSeason(LeagueState& s, DemoSummary& d) {
  MakeDemoSchedule(s);
  Games games(s);
  games.PlayToEnd();
  WritePageGroups(s, AllPageGroups(), true);
  d.gamesPlayed = games.gamesPlayed;
  d.gameDays = games.daysPlayed;
  SaveLg(s);
}

// Playoffs to a champion, the re-rate saved as DemoRerated, and the next
// season begun and saved as DemoNext.
void PlayDemoYearEnd(LeagueState& s, DemoSummary& d) {
  // A small demo league sends fewer teams from each conference.
  while (!QuotaShortfall(s).empty() && s.league.PlayoffSize < 2) ++s.league.PlayoffSize;
  BeginPlayoffs(s);
  SaveLg(s);
  d.playoffPath = s.LeaguePath;
  Games playoffs(s);
  playoffs.playoffEnd = {s.AppPath / "DemoRerated.lge", false};
  playoffs.PlayToEnd();
  d.playoffGames = playoffs.gamesPlayed;
  d.champion = playoffs.champion;
  RollOverSeason(s);
  SaveLeagueAs(s, "", s.AppPath / "DemoNext.lge");
  d.nextPath = s.LeaguePath;
  LoadLg(s, d.nextPath);  // opened as a user would, so the next start finds it
}

DemoSummary Summarize(LeagueState& s) {
  DemoSummary d;
  d.teams = s.numTeams();
  d.path = s.LeaguePath;
  for (int t = 0; t < s.numTeams(); ++t) {
    loadteam(s, t, 0);
    int dressed = 0, sum = 0;
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const Player& p = s.player(0, slot);
      if (p.empty()) continue;
      ++d.players;
      if (p.list() == 2) ++dressed, sum += Overall(p);
    }
    DemoTeam team{t, dressed ? static_cast<double>(sum) / dressed : 0};
    if (t == 0 || team.dressedMean > d.best.dressedMean) d.best = team;
    if (t == 0 || team.dressedMean < d.worst.dressedMean) d.worst = team;
  }
  return d;
}

}  // namespace

void AlignTeams(LeagueState& s, const std::vector<std::string>& names, int divisions) {
  AlignLeague align(s);
  int divs = divisions > 0 ? divisions : names.size() > 40 ? 3 : 2;
  for (int c = 0; c < 2; ++c) {
    align.ChangeDivisions(c, divs);
    align.cmdRenameConf(c, std::string(kConferences[static_cast<std::size_t>(c)]));
    for (int d = 0; d < divs; ++d)
      align.cmdRenameDiv(c, d, std::string(kDivisions[static_cast<std::size_t>(c)][static_cast<std::size_t>(d)]));
  }
  for (std::size_t t = 0; t < names.size(); ++t) {
    int group = static_cast<int>(t) % (2 * divs);
    align.cmdAdd(group % 2, group / 2, names[t]);
  }
}

DemoSummary BuildDemo(LeagueState& s, const DemoOptions& o) {
  if (o.teams < kDemoMinTeams || o.teams > kDemoMaxTeams) {
    s.ui.tell(fmt::format("The demo league has {} to {} teams.", kDemoMinTeams, kDemoMaxTeams), "Demo");
    throw Refused("demo size");
  }
  OfferToSave(s);
  s.rnd.setMasterSeed(o.seed);
  MakeNewLeague(s, s.AppPath / "default.drs", kLeagueName);
  std::vector<const DemoClub*> clubs = ChooseClubs(s.rnd, o.teams);
  std::vector<std::string> names;
  for (const DemoClub* c : clubs) names.emplace_back(c->city);
  AlignTeams(s, names, o.divisions);
  for (int t = 0; t < o.teams; ++t) SetClub(s, t, *clubs[static_cast<std::size_t>(t)]);
  FillRosters(s);
  HireCoaches(s);
  AutoAll(s);
  SaveDemo(s);
  return Summarize(s);
}

DemoSummary RunDemo(LeagueState& s, const DemoOptions& o) {
  DemoSummary d = BuildDemo(s, o);
  PlayDemoSeason(s, d);
  PlayDemoYearEnd(s, d);
  return d;
}

std::string DemoSummaryText(const LeagueState& s, const DemoSummary& d) {
  auto line = [&](const char* what, const DemoTeam& t) {
    return fmt::format("{:<12}{} ({}), mean Overall of the dressed players {:.1f}\n", what, s.team(t.team).Name.str(),
                       s.team(t.team).Abbrev.str(), t.dressedMean);
  };
  const std::string season = ExtractLast(d.path), playoffs = ExtractLast(d.playoffPath);
  return fmt::format("Demo league: {} teams, {} players\n", d.teams, d.players) + line("Best team:", d.best) +
         line("Worst team:", d.worst) +
         fmt::format("Season:     {} games in {} game days: {}.lge\n", d.gamesPlayed, d.gameDays, d.path) +
         fmt::format("Playoffs:   {} games, champion {}: {}.lge\n", d.playoffGames,
                     d.champion >= 0 ? s.team(d.champion).Name.str() : "none", d.playoffPath) +
         fmt::format("Re-rated:   {}\n", (s.AppPath / "DemoRerated.lge").string()) +
         fmt::format("Next year:  {}.lge (the league open now)\n", d.nextPath) +
         fmt::format("Pages:      {} (box scores {}1.html and on, playoffs {}-R1-1.html and on, daily page "
                     "{}TodayGames.html)\n",
                     (s.AppPath / "Transfer").string(), season, playoffs, playoffs) +
         fmt::format("Index:      {}\n", (s.AppPath / "Transfer" / "index.html").string());
}

}  // namespace kvl
