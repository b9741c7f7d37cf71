// Hits, injuries in play, what an injury costs after the game, and healing.
#include <fmt/format.h>
#include <gtest/gtest.h>

#include <fstream>

#include "league/league_files.h"
#include "sim/injuries.h"
#include "support/golden.h"
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

// The golden holds what each injury decided left: a durable player shrugs it
// off; a fragile one walks all the way up the classes, then falls back to
// day-to-day, named by the injury file's texts of that class (or the plain
// text without the file), and his team's lines must be set again.
TEST(DecideInjury, ByDurabilityAndTheInjuryFile) {
  const std::vector<std::pair<const char*, std::vector<std::pair<const char*, int>>>> cases{
      {"durable", {}}, {"fragile, no injury file", {}},
      {"fragile, texts", {{"Broken Leg", 5}, {"Bruised Knee", 1}, {"Sore Back", 1}}}};
  std::string text;
  for (const auto& [name, texts] : cases) {
    GameFixture f(SimLeague(4));
    LeagueState& s = f.h.state;
    RemoveIfExists(s.swap(swp::Transactions));
    if (name != std::string("durable")) RemoveIfExists(s.AppPath / "inj.dtf");
    for (std::size_t n = 0; n < texts.size(); ++n) {
      InjuryText t;
      t.Text.set(texts[n].first);
      t.Class = static_cast<u8>(texts[n].second);
      RecordFile(s.AppPath / "inj.dtf", InjuryText::kSize).putRecord(n + 1, t);
    }
    Player& p = s.player(0, 5);
    p.rating(kDur) = name == std::string("durable") ? 255 : 0;  // every draw of 200 below, or none
    s.team(0).LinesOK = kTrue;
    DecideInjury(s, 0, 0, 5);
    text += fmt::format("--- {}\ncondition {} status {} type {} lines set {}\n{}", name, p.Condition, p.Status,
                        p.InjuryType, s.team(0).LinesOK != 0, TransactionLog(s));
  }
  ExpectGolden(__FILE__, "decide_injury.txt", text);
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
