#include "season/schedule_place.h"

#include "season/schedule_file.h"
#include "season/schedule_form.h"
#include "season/schedule_review.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/schedule_leagues.h"

namespace kvl {
namespace {

TEST(PickDayGames, DrawsAroundTheTargetWithItsQuirks) {
  struct Case {
    int gpDay, variance, n;
    double r;
    int target;
    const char* why;
  };
  std::vector<Case> cases{
      {4, 6, 24, 0.0, 1, "a draw below 1 is raised to 1"},
      {4, 6, 24, 0.5, 4, "the middle of the spread is the target"},
      {4, 6, 24, 0.999, 9, "the top of the spread"},
      {11, 6, 24, 0.99, 12, "more than half the league is cut to half"},
      {-1, 0, 8, 0.3, 1, "a target set below 1 still gives 1"},
      {20, 0, 44, 0.0, 0, "20 becomes 0"},
      {21, 0, 44, 0.0, 1, "21 becomes 1"},
      {24, 0, 50, 0.0, 4, "above 20 wraps round"},
  };
  for (const Case& c : cases) EXPECT_EQ(PickDayGames(c.gpDay, c.variance, c.n, c.r), c.target) << c.why;
}

// Placement on hand-made matrices, the records kept in memory.
struct Placement {
  explicit Placement(int n, int gpDay = 2, int variance = 0) : n(n) {
    p.GPDay = gpDay;
    p.Variance = variance;
    p.GPTeam = 100;
  }
  // Every pair meets twice, once at each end.
  void allPairs() {
    for (int a = 0; a < n; ++a)
      for (int b = 0; b < n; ++b)
        if (a != b) m.Matchups(a, b) = 2, m.HomeMatchups(a, b) = 1;
  }
  void game(int home, int away) {
    ++m.Matchups(home, away);
    ++m.Matchups(away, home);
    ++m.HomeMatchups(home, away);
  }
  GameDayMaker& maker() {
    if (!made) {
      made.emplace(m, p, n, rnd, gamesPlayed, [this](int number, const ScheduleRecord& r) {
        EXPECT_EQ(static_cast<std::size_t>(number), records.size() + 1);
        records.push_back(r);
      });
      made->Start();
    }
    return *made;
  }
  int n;
  ScheduleParams p;
  ScheduleMatrices m;
  Rnd rnd{7};
  i16 gamesPlayed = 0;
  std::vector<ScheduleRecord> records;
  std::optional<GameDayMaker> made;
};

TEST(MakeGameDay, EndsWhenTheCountMeetsTheDrawAndNeverOffersTheLastPlaceOfEitherOrder) {
  struct Case {
    int n, gpDay, home, away;  // one game home v away, or every pair twice when home is -1
    int games;
    const char* why;
  };
  // 44 teams, all free: pairs go 0-1, 2-3, ...; teams 42 and 43 hold the last
  // places of both orders and never meet, so at most 21 games fit. With nothing
  // played the orders are by team number: in four teams 3 is last in both.
  for (Case c : {Case{44, 19, -1, -1, 19, "the draw is met"},
                 Case{44, 20, -1, -1, 21, "a draw of 20 is 0: the day runs until nothing fits"},
                 Case{44, 21, -1, -1, 1, "a draw of 21 is 1"}, Case{4, 2, 1, 2, 1, "an ordinary game"},
                 Case{4, 2, 3, 2, 0, "the last home place never hosts"},
                 Case{4, 2, 2, 3, 0, "the last total place is never the opponent"}}) {
    Placement pl(c.n, c.gpDay);
    if (c.home < 0)
      pl.allPairs();
    else
      pl.game(c.home, c.away);
    EXPECT_EQ(pl.maker().MakeGameDay(), c.games) << c.why;
  }
}

// A seeded eight-team schedule as the review prints it, kept whole: which game
// is placed where follows the orders by games played and at home, their ties by
// team number, and the games each pair has left at each host.
TEST(GameDayMaker, PlacesASeededScheduleAsKept) {
  test::Harness h;
  h.load(test::AlignedLeague({{2, 2}, {2, 2}}));
  h.state.rnd.setMasterSeed(3);
  ScheduleForm form(h.state);
  ASSERT_EQ(form.cmdNewSchedule(), ScheduleOutcome::Made);
  ASSERT_TRUE(RevSched(h.state));
  test::ExpectGolden(__FILE__, "schedule_8_teams_seed3.txt", h.ui.callsOf("print").back().text);
}

// The last host of each pair is what the earlier way of scheduling reads.
TEST(PlaceGame, NeedsAGameLeftAtThatHostAndTwoFreeTeamsAndBooksItsRecord) {
  Placement pl(4);
  pl.game(2, 0);
  pl.game(2, 0);
  pl.m.Matchups(1, 2) = 1;  // a game without a host
  GameDayMaker& mk = pl.maker();
  EXPECT_TRUE(mk.GamePlaceable(0, 2));
  EXPECT_FALSE(mk.GamePlaceable(2, 0)) << "0 hosts nothing against 2";
  EXPECT_FALSE(mk.GamePlaceable(2, 1));
  EXPECT_FALSE(mk.GamePlaceable(1, 1));
  EXPECT_FALSE(mk.GamePlaceable(-2, 1));
  mk.PlaceGame(0, 2);
  EXPECT_EQ(std::tuple(pl.m.Matchups(0, 2), pl.m.Matchups(2, 0), pl.m.HomeMatchups(2, 0)), std::tuple(1, 1, 1));
  EXPECT_EQ(std::tuple(pl.m.TotalGP[0], pl.m.TotalGP[2], pl.m.HomeGP[2], pl.m.HomeGP[0]), std::tuple(1, 1, 1, 0));
  EXPECT_EQ(std::tuple(mk.LastHost()(0, 2), mk.LastHost()(2, 0), mk.LastHost()(0, 1)), std::tuple(2, 2, kNoHost));
  EXPECT_TRUE(mk.PlacedToday(0) && mk.PlacedToday(2));
  EXPECT_FALSE(mk.GamePlaceable(0, 2)) << "a game is left, but both have played today";
  ASSERT_EQ(pl.records.size(), 1u);
  EXPECT_EQ(std::tuple(pl.records[0].HomeTeam, pl.records[0].AwayTeam, pl.records[0].GameNumber), std::tuple(2, 0, 1));
  EXPECT_EQ(pl.gamesPlayed, 1);
}

TEST(GameDays, RunUntilATeamComesRoundAgain) {
  auto game = [](int home, int away) {
    ScheduleRecord r;
    r.HomeTeam = static_cast<u8>(home);
    r.AwayTeam = static_cast<u8>(away);
    return r;
  };
  std::vector<ScheduleRecord> games{game(0, 1), game(2, 3),  game(3, 4), game(5, 6),
                                    game(6, 0), game(49, 1), game(1, 2)};
  auto days = GameDays(games, 8);
  ASSERT_EQ(days.size(), 3u);
  EXPECT_EQ(days[0], (std::vector<std::size_t>{0, 1}));
  EXPECT_EQ(days[1], (std::vector<std::size_t>{2, 3}));
  EXPECT_EQ(days[2], (std::vector<std::size_t>{4})) << "team 49 ends the reading";
  EXPECT_EQ(GameDays(games, 50).size(), 4u) << "a 50-team league's team 49 plays";
}

}  // namespace
}  // namespace kvl
