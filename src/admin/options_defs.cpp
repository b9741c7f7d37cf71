// The options of the form, tab by tab, each tied to the control that shows it.
#include <fmt/format.h>

#include "admin/options.h"

namespace kvl {

namespace {

// The page groups of the Output tab, by flag number.
constexpr std::array<const char*, 16> kPages{
    "Standings", "Rosters",       "Leaderboard", "Team Scoring",     "Injury Report", "Financial",
    "Prospects", "Schedule",      "Lines",       "Indiv. Leaders",   "Waivers",       "Team Stats",
    "Player Vitals", "Coach Ratings", "Transactions", "GM Page"};

OptionDef Base(const char* name, const char* tab, const char* caption, OptionKind kind) {
  OptionDef d;
  d.name = name;
  d.tab = tab;
  d.caption = caption;
  d.kind = kind;
  return d;
}

OptionDef Text(const char* name, const char* tab, const char* caption, std::string OptionControls::*field) {
  OptionDef d = Base(name, tab, caption, OptionKind::Text);
  d.text = [field](OptionControls& c) -> std::string& { return c.*field; };
  return d;
}

// A number typed in a box, held to the range its field stores.
OptionDef Number(const char* name, const char* tab, const char* caption, std::string OptionControls::*field,
                 int low, int high) {
  OptionDef d = Text(name, tab, caption, field);
  d.low = low;
  d.high = high;
  return d;
}

OptionDef Path(const char* name, const char* caption, std::size_t i) {
  OptionDef d = Base(name, "Files", caption, OptionKind::Text);
  d.text = [i](OptionControls& c) -> std::string& { return c.Text1[i]; };
  return d;
}

OptionDef Tick(const char* name, const char* tab, const char* caption, std::function<bool&(OptionControls&)> f) {
  OptionDef d = Base(name, tab, caption, OptionKind::Tick);
  d.tick = std::move(f);
  return d;
}

OptionDef Choice(const char* name, const char* tab, const char* caption, int low, int high,
                 std::function<int&(OptionControls&)> f) {
  OptionDef d = Base(name, tab, caption, OptionKind::Choice);
  d.low = low;
  d.high = high;
  d.choice = std::move(f);
  return d;
}

OptionDef Sim(const char* name, const char* caption, std::size_t i) {
  return Tick(name, "Simulator", caption, [i](OptionControls& c) -> bool& { return c.chkSim[i]; });
}

OptionDef Slider(const char* name, const char* caption, std::size_t i) {
  return Choice(name, "Simulator", caption, 1, 9, [i](OptionControls& c) -> int& { return c.Slider[i]; });
}

std::vector<OptionDef> MakeDefs() {
  using C = OptionControls;
  std::vector<OptionDef> d{Number("CurrentYear", "General", "Current Year", &C::txtYear, 0, 32767)};
  for (std::size_t i = 1; i <= kPages.size(); ++i) {
    auto page = Tick("", "Output", kPages[i - 1], [i](C& c) -> bool& { return c.Check[i]; });
    page.name = fmt::format("OutputPage{}", i);
    d.push_back(page);
  }
  d.push_back(Tick("OptAutoOutput", "Output", "Write pages after each run of game days",
                   [](C& c) -> bool& { return c.checkAuto; }));
  d.push_back(Choice("PlayoffSize", "Playoffs", "Top 16 Teams / Top 8 Teams / Top 4 Teams", 0, 2,
                     [](C& c) -> int& { return c.Option4; }));
  d.push_back(Tick("SeedDivLeaders", "Playoffs", "Seed Division Leaders", [](C& c) -> bool& { return c.Check3; }));
  d.push_back(Choice("PlayoffTree", "Playoffs", "Playoff Tree Determined by Division / by Conference", 0, 1,
                     [](C& c) -> int& { return c.Option3; }));
  for (auto [name, caption, i] : {std::tuple{"RootDir", "Root Directory", 0}, {"LeagueDir", "League Files", 1},
                                  {"OutputDir", "HTML Output", 2}, {"BoxscoreDir", "Boxscores", 3},
                                  {"CommandDir", "Command Files", 4}, {"LinesDirectory", "Lines Directory", 5}})
    d.push_back(Path(name, caption, static_cast<std::size_t>(i)));
  for (auto [name, caption, i] :
       {std::tuple{"OptWaivers", "Waivers", 0}, {"OptMoney", "Money", 1}, {"OptInjuries", "Injuries", 2},
        {"OptFarm", "Active Farm League", 3}, {"OptSuspensions", "Suspensions", 4}, {"OptStreaks", "Streak/Slump", 5},
        {"OptExpLdr", "Experience/Leadership", 6}, {"OptCoach", "Coach Affects Play", 7},
        {"OptFarmStreaks", "Farm Streak/Slump", 8}})
    d.push_back(Sim(name, caption, static_cast<std::size_t>(i)));
  for (auto [name, caption, i] : {std::tuple{"ShotsLevel", "Shots", 0}, {"GoalsLevel", "Goals", 1},
                                  {"PenaltiesLevel", "Penalties/Suspensions", 2}, {"FinancesLevel", "Finances", 3},
                                  {"InjuriesLevel", "Injuries", 4}})
    d.push_back(Slider(name, caption, static_cast<std::size_t>(i)));
  d.push_back(Choice("PointSystem", "Simulator", "Point System", 0, 3, [](C& c) -> int& { return c.optPointSystem; }));
  d.push_back(Number("TradeDeadline", "Transactions", "Trade Deadline", &C::txtDeadline, 0, 255));
  d.push_back(Number("UnresAge", "Transactions", "Unrestricted Age", &C::txtUnresAge, 0, 255));
  d.push_back(Number("TwoWayAfter", "Transactions", "2-way Con After", &C::txt2Way, 0, 255));
  d.push_back(Number("AgeExempt", "Transactions", "Age Exemption", &C::txtAgeExempt, 0, 255));
  d.push_back(Number("MinGP", "Transactions", "Minimum GP", &C::txtMinGP, 0, 255));
  d.push_back(Number("DraftRounds", "Transactions", "Draft Rounds", &C::txtDraftRounds, 1, 9));
  d.push_back(Tick("OptLottery", "Transactions", "Lottery", [](C& c) -> bool& { return c.chkLottery; }));
  return d;
}

}  // namespace

const std::vector<OptionDef>& OptionDefs() {
  static const std::vector<OptionDef> defs = MakeDefs();
  return defs;
}

}  // namespace kvl
