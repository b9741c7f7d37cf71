// The figures the pages are made of: how teams are ranked, seeded and marked,
// the order of the leaders' tables, and what a roster costs.
#include <gtest/gtest.h>

#include "reports/glance.h"
#include "reports/html.h"
#include "reports/payroll.h"
#include "reports/player_lists.h"
#include "reports/standings_rank.h"
#include "support/league_fixture.h"

namespace kvl::test {
namespace {

// Teams given as (wins, losses, ties, goals for, goals against), conference
// 0 division 0 unless set.
struct Standing {
  int w, l, t = 0, gf = 0, ga = 0, conf = 0, div = 0;
};

struct RankLeague {
  explicit RankLeague(const std::vector<Standing>& teams, int leagueGames = 0) {
    LeagueState& s = h.state;
    s.league.NumTeams = static_cast<u8>(teams.size());
    s.league.LeagueGames = static_cast<i16>(leagueGames);
    s.league.Conf[0].NumDivs = s.league.Conf[1].NumDivs = 2;
    for (std::size_t i = 0; i < teams.size(); ++i) {
      Team& t = s.Teams[i];
      const Standing& d = teams[i];
      t.W[0] = static_cast<u8>(d.w), t.L[0] = static_cast<u8>(d.l), t.T[0] = static_cast<u8>(d.t);
      t.GF = static_cast<i16>(d.gf), t.GA = static_cast<i16>(d.ga);
      t.Conf = static_cast<u8>(d.conf), t.Div = static_cast<u8>(d.div);
    }
  }
  std::vector<int> order() {
    std::vector<int> out;
    for (const StandingRow& r : RankTeams(h.state)) out.push_back(r.team);
    return out;
  }
  Harness h;
};

TEST(Standings, RankingTieRules) {
  struct Case {
    const char* rule;
    std::vector<Standing> teams;
    std::vector<int> order;
  };
  const std::vector<Case> cases{
      {"more points first", {{1, 1, 0, 5, 5}, {2, 0, 0, 5, 5}}, {1, 0}},
      {"equal points: fewer games first", {{2, 1, 0, 5, 5}, {2, 0, 0, 5, 5}}, {1, 0}},
      {"then more wins", {{1, 1, 2, 5, 5}, {2, 2, 0, 5, 5}}, {1, 0}},
      {"then goal difference", {{1, 1, 0, 5, 6}, {1, 1, 0, 5, 4}}, {1, 0}},
      {"then goals for", {{1, 1, 0, 5, 5}, {1, 1, 0, 7, 7}}, {1, 0}},
      {"a full tie keeps team order", {{1, 1, 0, 5, 5}, {1, 1, 0, 5, 5}, {1, 1, 0, 5, 5}}, {0, 1, 2}},
      {"before any game the order is reversed", {{0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}}, {2, 1, 0}},
  };
  for (const Case& c : cases) EXPECT_EQ(RankLeague(c.teams).order(), c.order) << c.rule;
}

TEST(Standings, PointsFollowThePointSystemAndClassicInThePlayoffs) {
  Team t;
  t.W = {10, 2, 0}, t.L = {5, 3, 0}, t.T = {4, 0, 0};
  League lg;
  const std::vector<std::pair<int, int>> expected{{0, 24}, {1, 27}, {2, 20}, {3, 35}};
  for (auto [system, points] : expected) {
    lg.PointSystem = static_cast<u8>(system);
    EXPECT_EQ(TeamPoints(lg, t), points) << "system " << system;
  }
  lg.InPlayoffs = kTrue;
  EXPECT_EQ(TeamPoints(lg, t), 24);
}

// The first team of each division moves to the head; only team and points
// travel, the other columns stay with their place.
TEST(Standings, SeedingMovesTeamAndPointsOnly) {
  RankLeague lg({{5, 0, 0, 20, 5, 0, 0},
                 {4, 1, 0, 15, 8, 0, 0},
                 {3, 2, 0, 12, 10, 0, 1},
                 {2, 3, 0, 9, 9, 1, 0},
                 {1, 4, 0, 6, 12, 1, 1}});
  lg.h.state.league.Conf[0].NumDivs = 2;  // four leaders seeded
  lg.h.state.league.SeedDivLeaders = kTrue;
  std::vector<StandingRow> rows = RankTeams(lg.h.state);
  std::vector<int> teams, points, gf;
  for (const StandingRow& r : rows) teams.push_back(r.team), points.push_back(r.Points), gf.push_back(r.GF);
  EXPECT_EQ(teams, (std::vector<int>{0, 2, 3, 4, 1}));
  EXPECT_EQ(points, (std::vector<int>{10, 6, 4, 2, 8}));
  EXPECT_EQ(gf, (std::vector<int>{20, 15, 12, 9, 6}));  // still in the unseeded order
}

// A team plays 2 x league games / teams; two berths (PlayoffSize 2). Teams
// given as (W, L) in division 0, or by d1 in division 1.
TEST(Standings, ClinchMarks) {
  auto d1 = [](int w, int l) { return Standing{w, l, 0, 0, 0, 0, 1}; };
  struct Case {
    const char* what;
    std::vector<Standing> teams;
    int leagueGames;
    std::vector<std::string> marks;
  } cases[] = {
      // Season over: the leader z, the second of the other division y, then x.
      {"over", {{6, 0}, d1(4, 2), {2, 4}, d1(0, 6)}, 12, {"z", "y", " ", " "}},
      {"all can catch up", {{1, 0}, d1(1, 0), {0, 1}, d1(0, 1)}, 20, {" ", " ", " ", " "}},
      {"division won, conference not", {{9, 0}, {0, 9}, d1(8, 0)}, 20, {"y", "y", " "}},
      // A rival of the division can still pass: x while challengers are fewer
      // than berths; the last is alone in its division.
      {"x", {{5, 0}, {4, 0}, d1(0, 5)}, 9, {"x", "x", "y"}},
  };
  for (const Case& c : cases) {
    RankLeague lg(c.teams, c.leagueGames);
    lg.h.state.league.PlayoffSize = 2;
    EXPECT_EQ(ClinchMarks(lg.h.state, RankTeams(lg.h.state), GameWalk{}), c.marks) << c.what;
  }
}

TEST(Standings, WalkOfPlayedGames) {
  RankLeague lg({{0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 1, 0}, {0, 0, 0, 0, 0}});
  lg.h.state.league.GamesPlayed = 3;
  auto game = [](u8 home, u8 away, u8 hs, u8 as, u8 ot) {
    return ScheduleRecord{
        .HomeTeam = home, .HomeScore = hs, .AwayTeam = away, .AwayScore = as, .Played = kTrue, .Overtime = ot};
  };
  // 0 beats 1 at home; 1 beats 0 in overtime at home; 0 and 2 tie at 2; a 4th
  // game not yet played is left out.
  std::vector<ScheduleRecord> games{game(0, 1, 3, 1, 0), game(1, 0, 2, 1, 1), game(2, 0, 2, 2, 0), game(0, 2, 9, 0, 0)};
  lg.h.state.league.PointSystem = 1;  // Modern: the overtime loser takes 1
  GameWalk w = WalkGames(lg.h.state, games);
  // 0 v 1: a win and an overtime loss; 0 v 2: a tie is 1, and 1 more to the visitor, 2 to the host.
  EXPECT_EQ(std::vector<int>({w.HeadToHead[0][1], w.HeadToHead[1][0], w.HeadToHead[0][2], w.HeadToHead[2][0]}),
            std::vector<int>({4 + 1, 4, 1 + 1, 1 + 2}));
  const TeamSplits& zero = w.splits[0];
  EXPECT_EQ(std::vector<int>({zero.HomeW, zero.HomeL, zero.ConfW, zero.ConfL, zero.ConfT}),
            std::vector<int>({1, 0, 0, 0, 1}));
  EXPECT_EQ(std::vector<int>({zero.L10W, zero.L10L, zero.L10T, zero.seen}), std::vector<int>({1, 1, 1, 3}));
}

RosterEntry Scorer(int gp, int g, int a, const std::string& name) {
  RosterEntry e;
  e.p = MakePlayer(name, kCentre, 50);
  e.p.GP = static_cast<u8>(gp), e.p.G = static_cast<u8>(g), e.p.A = static_cast<u8>(a);
  return e;
}

bool MoreScoring(const RosterEntry& a, const RosterEntry& r) { return OutScores(a.p, r.p); }

std::vector<std::string> Names(const std::vector<RosterEntry>& rows) {
  std::vector<std::string> out;
  for (const RosterEntry& e : rows) out.push_back(e.p.Name.str());
  return out;
}

TEST(Leaders, ScoringOrderAndTableSize) {
  struct Case {
    const char* rule;
    std::vector<RosterEntry> candidates;
    std::size_t size;
    std::vector<std::string> order;
  } cases[] = {
      {"more points", {Scorer(10, 1, 1, "a"), Scorer(10, 2, 1, "b")}, 30, {"b", "a"}},
      {"equal points: fewer games", {Scorer(10, 2, 2, "a"), Scorer(9, 1, 3, "b")}, 30, {"b", "a"}},
      {"then more goals", {Scorer(10, 1, 3, "a"), Scorer(10, 3, 1, "b")}, 30, {"b", "a"}},
      {"equal on all three: the first met stays ahead", {Scorer(10, 2, 2, "a"), Scorer(10, 2, 2, "b")}, 30, {"a", "b"}},
      {"the table keeps its size",
       {Scorer(10, 0, 0, "a"), Scorer(10, 1, 0, "b"), Scorer(10, 2, 0, "c"), Scorer(10, 3, 0, "d")},
       2,
       {"d", "c"}},
  };
  for (const Case& c : cases) EXPECT_EQ(Names(RankPlayers(c.candidates, c.size, MoreScoring)), c.order) << c.rule;
}

TEST(Leaders, MinGoalieGP) {
  struct Case {
    int teams, gamesPlayed;
    bool playoffs;
    int round, minimum;
  };
  // Four tenths of the average team's games, rounded half up; the round in the
  // playoffs, and the final's once it is decided (round 5 of a top 16).
  const std::vector<Case> cases{{4, 0, false, 0, 0},     {4, 2, false, 0, 0},   {4, 4, false, 0, 1},
                                {24, 792, false, 0, 26}, {24, 30, false, 0, 1}, {24, 792, true, 3, 3},
                                {24, 792, true, 5, 4}};
  for (const Case& c : cases) {
    Harness h;
    h.state.league.NumTeams = static_cast<u8>(c.teams);
    h.state.league.GamesPlayed = static_cast<i16>(c.gamesPlayed);
    h.state.league.InPlayoffs = c.playoffs ? kTrue : kFalse;
    h.state.Playoff.PlayoffRound = static_cast<u8>(c.round);
    EXPECT_EQ(MinGoalieGP(h.state), c.minimum) << c.teams << " teams, " << c.gamesPlayed << " games";
  }
}

// A value is right-aligned in its column and keeps its right-hand part when too
// wide; a label is cut to its width, the team of a leader's row kept whole; a
// team's anchor keeps its blanks and quotes from splitting it.
TEST(Columns, ValuesLabelsAndAnchorsKeepTheirShape) {
  Harness h;
  h.state.league.NumTeams = 2;
  h.state.LeagueShort = "test";
  h.state.Teams[0].Name.set("Glaciers");
  h.state.Teams[1].Name.set("New \"York");
  auto leader = [&](const std::string& name, std::size_t width) {
    return LeaderLabel(h.state, " 1.", Scorer(1, 1, 0, name), width);
  };
  struct Case {
    const char* rule;
    std::string got, expected;
  } cases[] = {
      {"right-aligned", Fill("7", 3), "  7"},
      {"too wide: the leading digits go", Fill("1234", 3), "234"},
      {"a label padded, then escaped", CutLabel("Farm&Co(ABC)", 14), "Farm&amp;Co(ABC)  "},
      {"a label cut", CutLabel("Farmington Hills(ABC)", 20), "Farmington Hills(ABC"},
      {"name and team fit", leader("Al Bo", 24), " 1.Al Bo (Glaciers)     "},
      {"a long name gives way to its short form", leader("Maximilian Kowalski", 25), " 1.M. Kowalski (Glaciers)"},
      {"then it is cut", leader("Maximilian Kowalczykowski", 25), " 1.M. Kowalczy (Glaciers)"},
      {"a quoted value", Quoted("a\" b=c"), "\"a&quot; b=c\""},
      {"an anchor without blanks or quotes", TeamAnchorName(h.state, 1), "New%20%22York"},
      {"link and anchor agree", TeamLink(h.state, 1), "<A HREF=\"testRosters.html#New%20%22York\">New &quot;York</A>"},
  };
  for (const Case& c : cases) EXPECT_EQ(c.got, c.expected) << c.rule;
}

TEST(Payroll, WhoIsPaidAndHowMuch) {
  struct Case {
    const char* who;
    int slot, status, suspended, gp;
    i32 salary, pro, farm;
  };
  // TwoWayAfter is 50: a minor leaguer below 50 games draws a tenth, rounded.
  // (Dressed, suspended and slot 0 are in the after-game money's test.)
  const std::vector<Case> cases{
      {"scratched", 2, 100, 0, 0, 500001, 500001, 0},
      {"holding out", 4, 200, 99, 0, 500000, 0, 0},
      {"away for personal reasons", 5, 200, 88, 0, 500000, 0, 0},
      {"minor leaguer on a two-way deal", 6, 0, 0, 10, 500005, 0, 50001},
      {"minor leaguer past the two-way games", 7, 0, 0, 50, 400000, 0, 400000},
  };
  for (const Case& c : cases) {
    Harness h;
    h.state.league.TwoWayAfter = 50;
    Player& p = h.state.player(0, c.slot);
    p = MakePlayer("Some One", kCentre, 50, c.status);
    p.Suspended = static_cast<u8>(c.suspended);
    p.GP = static_cast<u8>(c.gp);
    p.Salary = c.salary;
    EXPECT_EQ(ProPayroll(h.state, 0), c.pro) << c.who;
    EXPECT_EQ(FarmPayroll(h.state, 0), c.farm) << c.who;
  }
}

TEST(Payroll, ProspectFeesAreInHundreds) {
  Harness h;
  ProspectList& list = h.state.Prospects[0];
  list.Name[0].set("A");
  list.Salary[0] = 250;
  list.Name[1].set("B");
  list.Salary[1] = -5;   // a negative fee is no fee
  list.Salary[2] = 900;  // no name, no fee
  EXPECT_EQ(ProspectFees(h.state, 0), 25000);
}

// A name is found by any part of it, in any case, with or without its accents
// (names are Windows-1252, as the records hold them).
TEST(Glance, FindPlayerIgnoresCaseAndAccents) {
  LeaguePlan plan = StandardLeague(2);
  plan.rosters[0][0].Name.set("J\xE9r\xF4me Lef\xE8vre");
  plan.rosters[1][3].Name.set("JEROME Smith");
  Harness h;
  h.load(plan);
  const struct {
    std::string text;
    std::vector<std::string> found;  // "name team/slot"
  } cases[] = {
      {"jerome", {"J\xE9r\xF4me Lef\xE8vre 0/0", "JEROME Smith 1/3"}},
      {"J\xC9R\xD4ME", {"J\xE9r\xF4me Lef\xE8vre 0/0", "JEROME Smith 1/3"}},  // accents typed, upper case
      {"me lefe", {"J\xE9r\xF4me Lef\xE8vre 0/0"}},                              // across the blank
      {"lefevre smith", {}},
  };
  for (const auto& c : cases) {
    std::vector<std::string> found;
    for (const FoundPlayer& p : FindPlayers(h.state, c.text))
      found.push_back(p.name + " " + std::to_string(p.team) + "/" + std::to_string(p.slot));
    EXPECT_EQ(found, c.found) << c.text;
  }
}

TEST(Glance, FreeAgentsChosenAndSorted) {
  const std::vector<FreeAgentEntry> pool{{1, "A", kDefence, 30, 70, 500}, {2, "B", kCentre, 20, 80, 900},
                                         {3, "C", kDefence, 22, 75, 900}, {4, "D", kDefence, 22, 60, 100}};
  const struct {
    const char* rule;
    std::optional<int> pos;
    FreeAgentOrder order;
    std::size_t top;
    std::vector<int> records;
  } cases[] = {
      {"best first, every position", std::nullopt, FreeAgentOrder::Overall, 9, {2, 3, 1, 4}},
      {"defence only, the first two", kDefence, FreeAgentOrder::Overall, 2, {3, 1}},
      {"youngest first, a tie in list order", kDefence, FreeAgentOrder::Age, 9, {3, 4, 1}},
      {"dearest first, a tie in list order", std::nullopt, FreeAgentOrder::Salary, 3, {2, 3, 1}},
  };
  for (const auto& c : cases) {
    std::vector<int> records;
    for (const FreeAgentEntry& e : ChooseFreeAgents(pool, c.pos, c.order, c.top)) records.push_back(e.record);
    EXPECT_EQ(records, c.records) << c.rule;
  }
}

}  // namespace
}  // namespace kvl::test
