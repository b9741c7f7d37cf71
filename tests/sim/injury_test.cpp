// Hits, injuries in play, what an injury costs after the game, and healing.
#include <gtest/gtest.h>

#include <fstream>

#include "league/league_files.h"
#include "sim/injuries.h"
#include "support/sim_league.h"
#include "util/record_file.h"

namespace kvl::test {
namespace {

std::string TransactionLog(const LeagueState& s) {
  std::ifstream in(s.swap(swp::Transactions), std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

class InjuryTest : public testing::Test {
 protected:
  InjuryTest() : f(SimLeague(4)) { RemoveIfExists(f.h.state.swap(swp::Transactions)); }
  Player& P(int slot) { return f.h.state.player(0, slot); }
  GameFixture f;
};

TEST_F(InjuryTest, RecoverDayWalksDownTheClassesAsConditionRises) {
  Player& p = P(5);
  p.Status = 203;  // 2-4 weeks: floor 60, up to 4 a day
  p.Condition = 60;
  f.h.state.team(0).LinesOK = kTrue;
  int last = 3, days = 0;
  while (p.Status % 100 != 0) {
    RecoverDay(f.h.state, 0, 0, 5);
    ++days;
    int c = p.Status % 100;
    EXPECT_LE(c, last);
    EXPECT_EQ(p.Status - c, 200);
    if (c != 0) {
      EXPECT_EQ(c, p.Condition > 85 ? 1 : p.Condition > 75 ? 2 : 3);
    }
    last = c;
  }
  EXPECT_GT(p.Condition, 95);
  EXPECT_GE(days, 9);  // 36 points at 4 a day at best
  EXPECT_FALSE(f.h.state.team(0).LinesOK);
  EXPECT_EQ(TransactionLog(f.h.state), "T0 L 2 (T00) returns from injury<BR><BR>\r\n");
}

TEST_F(InjuryTest, RecoverDayCanDropSeveralClassesAtOnce) {
  Player& p = P(5);
  p.Status = 206;  // indefinitely: one point a day
  p.Condition = 85;
  RecoverDay(f.h.state, 0, 0, 5);
  EXPECT_EQ(std::tuple(p.Condition, p.Status), std::tuple(86, 201));
  p.Status = 109;  // counts above 7 heal as class 6
  p.Condition = 20;
  RecoverDay(f.h.state, 0, 0, 5);
  EXPECT_EQ(std::tuple(p.Condition, p.Status), std::tuple(21, 106));
}

TEST_F(InjuryTest, DurablePlayerShrugsItOff) {
  Player& p = P(5);
  p.rating(kDur) = 255;  // every draw of 200 falls below
  DecideInjury(f.h.state, 0, 0, 5);
  EXPECT_EQ(std::tuple(p.Condition, p.Status), std::tuple(100, 200));
  EXPECT_EQ(TransactionLog(f.h.state), "");
}

TEST_F(InjuryTest, FragilePlayerFallsBackToDayToDay) {
  RemoveIfExists(f.h.state.AppPath / "inj.dtf");  // no texts: the plain one
  Player& p = P(5);
  p.rating(kDur) = 0;  // walks all the way up, then falls back
  f.h.state.team(0).LinesOK = kTrue;
  DecideInjury(f.h.state, 0, 0, 5);
  EXPECT_EQ(std::tuple(p.Condition, p.Status, p.InjuryType), std::tuple(85, 201, 0));
  EXPECT_FALSE(f.h.state.team(0).LinesOK);
  EXPECT_EQ(TransactionLog(f.h.state), "T0 L 2 (T00) suffers injury , sidelined day-to-day<BR><BR>\r\n");
}

TEST_F(InjuryTest, TextComesFromTheInjuryFileByClass) {
  RemoveIfExists(f.h.state.AppPath / "inj.dtf");
  RecordFile file(f.h.state.AppPath / "inj.dtf", InjuryText::kSize);
  auto put = [&](std::size_t n, const char* text, int c) {
    InjuryText t;
    t.Text.set(text);
    t.Class = static_cast<u8>(c);
    file.putRecord(n, t);
  };
  put(1, "Broken Leg", 5);
  put(2, "Bruised Knee", 1);
  put(3, "Sore Back", 1);
  P(5).rating(kDur) = 0;
  DecideInjury(f.h.state, 0, 0, 5);
  int type = P(5).InjuryType;
  ASSERT_TRUE(type == 2 || type == 3);
  EXPECT_EQ(TransactionLog(f.h.state), std::string("T0 L 2 (T00) suffers ") +
                                           (type == 2 ? "Bruised Knee" : "Sore Back") +
                                           ", sidelined day-to-day<BR><BR>\r\n");
}

TEST_F(InjuryTest, NoInjuriesWhenTheOptionIsOff) {
  f.h.state.league.OptInjuries = kFalse;
  f.game.Period = 1;
  P(4).rating(kDur) = 0;
  for (int i = 0; i < 100; ++i) EXPECT_FALSE(f.game.TryInjury(0, 4, 60));
  EXPECT_EQ(f.side(0).Status[4], kOnIce);
}

TEST_F(InjuryTest, HurtGoalieIsReplacedAndNoted) {
  GameSide& s = f.side(0);
  f.game.Period = 2;
  P(kFirstG).rating(kDur) = 0;
  ASSERT_TRUE(f.game.TryInjury(0, kFirstG, 245));
  EXPECT_EQ(std::tuple(s.Status[kFirstG], s.Goalie, s.goalieHurt, s.lastHurt),
            std::tuple(kInjured, kFirstG + 1, true, kFirstG));
  EXPECT_EQ(f.game.Notes.size(), 1u) << "noted (the note's text is in the golden box score)";
}

}  // namespace
}  // namespace kvl::test
