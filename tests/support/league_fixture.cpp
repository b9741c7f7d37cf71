#include "support/league_fixture.h"

#include <fmt/format.h>
#include <stdlib.h>

#include "admin/alignment.h"
#include "admin/league_creation.h"
#include "console/startup.h"
#include "league/league_files.h"
#include "util/record_file.h"

namespace kvl::test {

TempDir::TempDir() {
  std::string tmpl = (fs::temp_directory_path() / "kvltest.XXXXXX").string();
  if (!::mkdtemp(tmpl.data())) throw KvlError("cannot make a temporary folder");
  path_ = tmpl;
}

TempDir::~TempDir() {
  std::error_code ec;
  fs::remove_all(path_, ec);
}

Player MakePlayer(const std::string& name, int pos, int level, int status) {
  Player p;
  p.Name.set(name);
  p.Pos = static_cast<u8>(pos);
  p.Status = static_cast<u8>(status);
  p.Condition = 100;
  p.Age = 25;
  p.Height = 72;
  p.Weight = 190;
  p.Hand = 'L';
  p.Birthplace.set("CAN");
  for (int i = 0; i < 13; ++i) p.rating(i) = static_cast<u8>(level);
  p.Salary = 500000;
  p.Contract = 2;
  return p;
}

namespace {

// Two divisions a conference, or four when more than 40 teams would overfill them.
int DivsPerConf(int teams) { return teams > 40 ? 4 : 2; }

struct Place {
  std::size_t conf, div;
};
Place PlaceOf(int t, int teams) {
  int divs = DivsPerConf(teams);
  int group = t % (2 * divs);
  return {static_cast<std::size_t>(group / divs), static_cast<std::size_t>(group % divs)};
}

void Align(League& lg, int teams) {
  for (int c = 0; c < 2; ++c) {
    auto& conf = lg.Conf[static_cast<std::size_t>(c)];
    conf.Name.set(fmt::format("CONF {}", c + 1));
    conf.NumDivs = static_cast<u8>(DivsPerConf(teams));
    for (int d = 0; d < 4; ++d) conf.Div[static_cast<std::size_t>(d)].Name.set(fmt::format("DIV {}", d + 1));
  }
  for (int t = 0; t < teams; ++t) {
    Place at = PlaceOf(t, teams);
    auto& div = lg.Conf[at.conf].Div[at.div];
    div.Team[div.NumTeams++] = static_cast<u8>(t);
  }
}

std::vector<Player> StandardRoster(int t, unsigned seed) {
  static constexpr int kCounts[5] = {4, 4, 4, 7, 3};
  std::vector<Player> roster;
  int dressed = 0;
  for (int pos = 0; pos < 5; ++pos) {
    for (int i = 0; i < kCounts[pos]; ++i) {
      int level = 50 + static_cast<int>((seed * 31u + static_cast<unsigned>(t) * 17u + static_cast<unsigned>(roster.size()) * 7u) % 40u);
      bool dress = dressed < 20 && !(pos == kGoalie && i == 2) ;
      if (dress) ++dressed;
      Player p = MakePlayer(fmt::format("T{} {} {}", t, "CLRDG"[pos], i + 1), pos, level, dress ? 200 : 100);
      p.Num = static_cast<u8>(roster.size() + 2);
      roster.push_back(p);
    }
  }
  for (int i = 0; i < 2; ++i) {
    Player p = MakePlayer(fmt::format("T{} Minor {}", t, i + 1), i == 0 ? kCentre : kDefence, 45, 0);
    p.Num = static_cast<u8>(roster.size() + 2);
    roster.push_back(p);
  }
  return roster;
}

}  // namespace

LeaguePlan StandardLeague(int teams, unsigned seed) {
  LeaguePlan plan;
  plan.header = DefaultLeagueHeader();
  plan.header.LeagueName.set("Test League");
  plan.header.NumTeams = static_cast<u8>(teams);
  Align(plan.header, teams);
  for (int t = 0; t < teams; ++t) {
    Team team;
    team.Name.set(fmt::format("Team{}", t));
    team.Abbrev.set(fmt::format("T{:02}", t));
    team.Arena.set(fmt::format("Arena {}", t));
    team.Seats = 15000;
    team.Ticket = 40;
    Place at = PlaceOf(t, teams);
    team.Conf = static_cast<u8>(at.conf);
    team.Div = static_cast<u8>(at.div);
    team.Lines.cells.fill(kNoPlayer);
    plan.teams.push_back(team);
    plan.rosters.push_back(StandardRoster(t, seed));
    Coach c;
    c.Name.set(fmt::format("Coach {}", t));
    c.OF = c.DF = c.EX = c.LD = 50;
    c.Salary = 300000;
    plan.coaches.push_back(c);
  }
  return plan;
}

void HireStandardCoaches(LeaguePlan& plan) {
  for (std::size_t t = 0; t < plan.teams.size(); ++t) {
    plan.teams[t].CoachRec = static_cast<u8>(t + 1);
    plan.teams[t].Coach.Name = plan.coaches[t].Name;
    plan.teams[t].Coach.Salary = plan.coaches[t].Salary;
    plan.coaches[t].Team = static_cast<u8>(t + 1);
  }
}

void WriteLeague(const LeaguePlan& plan, const std::string& path) {
  auto write = [&](const std::string& ext, const Bytes& bytes) { WriteFileAtomic(path + ext, bytes); };
  League stored = plan.header;
  stored.NumTeams = static_cast<u8>(stored.NumTeams - 1);
  write(".lge", EncodeRecord(stored));
  Bytes tms, ros, pct, dpk, coa, frm, drs;
  auto append = [](Bytes& to, const Bytes& rec) { to.insert(to.end(), rec.begin(), rec.end()); };
  for (std::size_t t = 0; t < plan.teams.size(); ++t) {
    append(tms, EncodeRecord(plan.teams[t]));
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      const auto& r = plan.rosters[t];
      append(ros, EncodeRecord(static_cast<std::size_t>(slot) < r.size() ? r[static_cast<std::size_t>(slot)] : Player{}));
    }
    append(pct, EncodeRecord(ProspectList{}));
    append(dpk, EncodeRecord(DraftPickRecord{}));
    append(frm, EncodeRecord(FarmTeam{}));
  }
  for (const auto& c : plan.coaches) append(coa, EncodeRecord(c));
  append(drs, EncodeRecord(DbRecord{}));
  write(".tms", tms);
  write(".ros", ros);
  write(".pct", pct);
  write(".dpk", dpk);
  write(".coa", coa);
  write(".frm", frm);
  write(".drs", drs);
}

Harness::Harness() : home(dir.path() / "home"), state(ui, clock, home) {
  PrepareHomeFolder(home);
}

std::string Harness::load(const LeaguePlan& plan, const std::string& name) {
  fs::create_directories(dir.path() / "league");
  std::string path = (dir.path() / "league" / name).string();
  WriteLeague(plan, path);
  LoadLg(state, path);
  return path;
}

void NewBundledLeague(Harness& h, int teams) {
  MakeNewLeague(h.state, h.home / "default.drs", "Bundled");
  AlignLeague align(h.state);
  for (int c = 0; c < 2; ++c) align.ChangeDivisions(c, 4);
  for (int t = 0; t < teams; ++t) align.cmdAdd(t % 2, (t / 2) % 4, "Club" + std::to_string(t));
}

}  // namespace kvl::test
