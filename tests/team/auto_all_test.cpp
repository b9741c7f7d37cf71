// The league pass that sets every roster and line table.
#include <gtest/gtest.h>

#include <algorithm>

#include "league/league_files.h"
#include "league/roster_check.h"
#include "support/league_fixture.h"
#include "team/auto_all.h"
#include "team/line_table.h"

namespace kvl::test {
namespace {

// Every entry of rows 0..11 a dressed skater, the starter a dressed goalie.
void ExpectPlayableLines(LeagueState& s, int t) {
  const Team& team = s.team(t);
  ASSERT_TRUE(LinesComplete(team.Lines)) << team.Name.str();
  EXPECT_EQ(team.LinesOK, kTrue);
  for (int row = 0; row < kLineRows; ++row)
    for (int slot = 0; slot < SlotsInRow(row); ++slot) {
      const Player& p = s.player(0, team.Lines.at(row, slot));
      EXPECT_EQ(p.list(), 2) << team.Name.str() << " row " << row << " slot " << slot;
      EXPECT_EQ(p.Pos == kGoalie, row == kGoalieRow && slot == 0) << team.Name.str() << " row " << row;
    }
}

TEST(AutoAllTest, EveryTeamOfAFullLeagueIsSetAndPassesTheRosterCheck) {
  Harness h;
  h.load(StandardLeague(24, 7));
  AutoAllResult r = AutoAll(h.state);
  EXPECT_EQ(r.teamsSet, 24);
  EXPECT_TRUE(r.skipped.empty());
  EXPECT_TRUE(h.state.Dirty);
  EXPECT_TRUE(CheckRosters(h.state).allValid);
  for (int t = 0; t < 24; ++t) {
    loadteam(h.state, t, 0);
    int dressed = 0;
    for (int i = 0; i < kRosterSlots; ++i) dressed += h.state.player(0, i).list() == 2;
    EXPECT_EQ(dressed, 20);
    ExpectPlayableLines(h.state, t);
  }
  EXPECT_EQ(h.ui.callsOf("progress").front().title, "Configuring Rosters/Lines");
}

TEST(AutoAllTest, ShortTeamsAreLeftAsTheyAreWithTheirShortagesAndGapsAreClosed) {
  LeaguePlan plan = StandardLeague(2);
  auto& shortRoster = plan.rosters[1];
  // Keep one centre of four and the minor-league D; drop the minor centre.
  std::erase_if(shortRoster, [](const Player& p) {
    std::string n = p.Name.str();
    return n == "T1 C 2" || n == "T1 C 3" || n == "T1 C 4" || n == "T1 Minor 1" || n == "T1 D 7";
  });
  plan.rosters[0][5] = Player{};  // a gap that AutoAll closes
  Harness h;
  h.load(plan);
  loadteam(h.state, 1, 0);
  auto before = h.state.Player[0];
  AutoAllResult r = AutoAll(h.state);
  EXPECT_EQ(r.teamsSet, 1);
  ASSERT_EQ(r.skipped.size(), 1u);
  EXPECT_EQ(r.skipped[0], (std::vector<std::string>{"Team1", "- only 19 of 20 available", "- only 1 of 3+ C"}));
  EXPECT_EQ(h.ui.callsOf("print").back().text, "Team1 - only 19 of 20 available - only 1 of 3+ C");
  loadteam(h.state, 1, 0);
  for (int i = 0; i < kRosterSlots; ++i)
    EXPECT_EQ(h.state.player(0, i).Status, before[static_cast<std::size_t>(i)].Status);
  loadteam(h.state, 0, 0);
  EXPECT_FALSE(h.state.player(0, 5).empty());
  EXPECT_TRUE(h.state.player(0, 23).empty()) << "24 players less the one blanked fill slots 0..22";
  ExpectPlayableLines(h.state, 0);
}

}  // namespace
}  // namespace kvl::test
