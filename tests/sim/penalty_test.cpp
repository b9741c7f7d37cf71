// Penalties: weights, texts, serving time, release on a power-play goal,
// goalie changes, fights and ejections.
#include <set>

#include "sim/penalty_tables.h"
#include "support/kvl_test.h"
#include "support/sim_league.h"

namespace kvl::test {
namespace {

using PenaltyTest = SeatedGame;

// (A minor served and ended by the clock, and box time stopping at the end of a
// period, happen in every game: the golden box score pins them.)
TEST(PenaltyOver, ReleasesByKindAndSeats) {
  struct Row {
    int kind, serveTicks;
    bool seat3Empty, seat4Empty;
    int status, seat;  // seat -1: not seated
  } rows[] = {{kMinor, 0, true, true, kOnIce, 3},       {kMinor, 0, false, true, kOnIce, 4},
              {kDoubleMinor, 0, false, false, kOnBench, -1}, {kMajor, 0, true, true, kOnBench, -1},
              {kMinor, 5, true, true, kInBox, -1}};
  for (const Row& r : rows) {
    GameFixture f(SimLeague(4));
    GameSide& s = f.side(0);
    f.Seat(0, {0, 4, r.seat3Empty ? kNoPlayer : 12, 8, r.seat4Empty ? kNoPlayer : 13});
    std::swap(s.OnIce[2], s.OnIce[3]);  // seat 3 is the one tested first
    s.Status[5] = kInBox;
    s.PenaltyKind[5] = static_cast<u8>(r.kind);
    s.ServeTicks[5] = r.serveTicks;
    f.game.PenaltyOver(0, 5);
    EXPECT_EQ(s.Status[5], r.status) << r.kind;
    auto seat = std::find(s.OnIce.begin(), s.OnIce.end(), 5);
    EXPECT_EQ(seat == s.OnIce.end() ? -1 : seat - s.OnIce.begin(), r.seat) << r.kind;
    EXPECT_EQ(s.PenaltyKind[5], r.serveTicks > 0 ? r.kind : 0);
  }
}

TEST_F(PenaltyTest, ReleaseMinorTakesTheShortestMinorAndOnlyASecondHalfOfADouble) {
  GameSide& s = f.side(1);
  auto box = [&](int slot, int kind, int ticks) {
    s.Status[static_cast<std::size_t>(slot)] = kInBox;
    s.PenaltyKind[static_cast<std::size_t>(slot)] = static_cast<u8>(kind);
    s.BoxTicks[static_cast<std::size_t>(slot)] = ticks;
  };
  box(5, kMinor, 20);
  box(6, kMinor, 10);
  box(7, kMajor, 5);
  box(9, kDoubleMinor, 40);
  g.ReleaseMinor(1);
  EXPECT_EQ(s.Status[6], kOnBench);  // seats full: to the bench
  EXPECT_EQ(s.PenaltyKind[6], 0);
  EXPECT_EQ(s.Status[5], kInBox);
  EXPECT_EQ(s.Status[7], kInBox);
  for (int slot : {5, 6}) box(slot, kMajor, 10);  // only the double minor is left
  g.ReleaseMinor(1);
  EXPECT_EQ(s.BoxTicks[9], 40) << "the first half of a double minor stays";
  EXPECT_EQ(s.Status[9], kInBox);
  s.BoxTicks[9] = 24;  // in its second half it ends like a minor
  g.ReleaseMinor(1);
  EXPECT_EQ(s.Status[9], kOnBench);
}

// Dis 7.5: (12.5 - 7.5)^2 = 25 before the line factor.
TEST(PenaltyWeight, ByLineAndLevel) {
  const double rows[][3] = {{0, 5, 17.5}, {1, 5, 25},    {2, 5, 32.5}, {3, 5, 32.5},
                            {4, 5, 17.5}, {11, 5, 17.5}, {1, 9, 65},   {1, 1, -15}};  // line, level, weight
  GameFixture f(SimLeague(4));
  f.side(0).Scaled[kDis][3] = 7.5f;
  for (const auto& r : rows) {
    f.h.state.league.PenaltiesLevel() = static_cast<u8>(r[1]);
    f.side(0).CurrentLine = static_cast<u8>(r[0]);
    EXPECT_DOUBLE_EQ(f.game.PenaltyWeight(0, 3), r[2]) << "line " << r[0] << " level " << r[1];
  }
}

TEST_F(PenaltyTest, TextsByFlagsAndPosition) {
  EXPECT_EQ(g.PenaltyText(0, {.offender = 0, .kind = kMajor, .extra = 5}, false, true), "(FIGHTING)");
  EXPECT_EQ(g.PenaltyText(0, {.offender = 0, .kind = kMajor, .extra = 15}, false, true), "(FIGHTING, Misconduct)");
  EXPECT_EQ(g.PenaltyText(0, {.offender = 0, .kind = kMajor, .extra = 15, .ejected = true}, false, true),
            "(FIGHTING, Game Misconduct)");
  std::set<std::string> goalie, defence, forward;
  PenaltyCall c{.kind = kMinor};
  for (int i = 0; i < 300; ++i) {
    c.offender = kFirstG;
    goalie.insert(g.PenaltyText(0, c, false, false));
    c.offender = 12;
    defence.insert(g.PenaltyText(0, c, false, false));
    c.offender = 0;
    forward.insert(g.PenaltyText(0, c, false, false));
  }
  // A goalie draws rows 7..10 only; a defenceman never interferes with a goalie.
  EXPECT_EQ(goalie,
            (std::set<std::string>{"(ROUGHING, Minor)", "(UNSPORTSMANLIKE-CONDUCT, Minor)", "(DELAY-OF-GAME, Minor)"}));
  EXPECT_EQ(std::tuple(defence.count("(GOALIE INTERERENCE, Minor)"), forward.count("(GOALIE INTERERENCE, Minor)"),
                       forward.count("(DELAY-OF-GAME, Minor)")),
            std::tuple(0u, 1u, 0u));
}

TEST_F(PenaltyTest, GoaliePenaltyIsServedBySomebodyElse) {
  std::array<PenaltyCall, 2> calls{PenaltyCall{}, {.offender = kFirstG, .minutes = 2, .kind = kMinor}};
  g.BookPenalty(1, calls[1], calls, false);
  const GameSide& s = f.side(1);
  EXPECT_EQ(std::tuple(s.Goalie, s.BoxTicks[kFirstG]), std::tuple(kFirstG, 0));
  EXPECT_NE(g.PeriodPenalties.find("T. G 1 T01 ("), std::string::npos);
  EXPECT_NE(g.PeriodPenalties.find(") (Served by T. "), std::string::npos);
  int servers = 0;
  for (int slot = 0; slot < kGameSlots; ++slot)
    if (s.BoxTicks[static_cast<std::size_t>(slot)] == 24) {
      ++servers;
      EXPECT_NE(f.h.state.player(1, slot).Pos, kGoalie);  // the backup would jump into a skater's seat
      EXPECT_EQ(std::tuple(s.Status[slot], s.ServeTicks[slot]), std::tuple(kInBox, 0));
    }
  EXPECT_EQ(std::tuple(servers, s.MenInBox, s.TeamPIM, s.PIM[kFirstG]), std::tuple(1, 1, 2, 2));
}

TEST_F(PenaltyTest, EjectedSkaterIsNotedAndServedFor) {
  std::array<PenaltyCall, 2> calls{
      PenaltyCall{.offender = 4, .minutes = 5, .kind = kMajor, .extra = 10, .ejected = true, .toBeSuspended = true}};
  g.BookPenalty(0, calls[0], calls, false);
  const GameSide& s = f.side(0);
  EXPECT_EQ(std::tuple(s.Status[4], s.PIM[4], s.BoxTicks[4]), std::tuple(kEjectedSuspend, 15, 0));
  EXPECT_EQ(g.Notes.size(), 1u) << "the ejection is noted (its text is in the golden box score)";
}

TEST_F(PenaltyTest, ChangeGoalieTakesTheNextDressedGoalie) {
  GameSide& s = f.side(0);
  s.Status[kFirstG] = kInjured;
  g.Clock = 5;  // no note this early
  g.ChangeGoalie(0);
  EXPECT_EQ(std::tuple(s.Goalie, s.Status[kFirstG]), std::tuple(kFirstG + 1, kInjured));
  EXPECT_TRUE(g.Notes.empty());
  g.ChangeGoalie(0);  // nobody left on the bench
  EXPECT_EQ(s.Goalie, kFirstG + 1);
}

TEST_F(PenaltyTest, FirstTwoFightsAlwaysAllowedAndThrownOutAlways) {
  EXPECT_TRUE(g.AllowFight());
  EXPECT_TRUE(g.AllowFight());
  EXPECT_EQ(g.FightAllowance, 3);
  int allowed = 0;
  for (int i = 0; i < 200; ++i) allowed += g.AllowFight();
  EXPECT_LT(allowed, 200);
  for (int i = 0; i < 20; ++i) EXPECT_TRUE(g.ThrownOut(1));
}

}  // namespace
}  // namespace kvl::test
