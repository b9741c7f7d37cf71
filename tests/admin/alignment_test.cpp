// Adding, renaming and moving teams, and the division count of a conference.
#include "admin/alignment.h"

#include <gtest/gtest.h>

#include "league/league_files.h"
#include "support/league_fixture.h"
#include "transactions/draft_picks.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl::test {
namespace {

std::vector<u8> TeamsIn(const LeagueState& s, int conf, int div) {
  const Division& d = s.league.Conf[std::size_t(conf)].Div[std::size_t(div)];
  return std::vector<u8>(d.Team.begin(), d.Team.begin() + d.NumTeams);
}

struct Align : ::testing::Test {
  void SetUp() override { h.load(StandardLeague(4)); }
  Harness h;
};

TEST_F(Align, AddPlacesANewBlankTeamLastAndItSurvivesSaveAndLoad) {
  h.ui.push("Saskatoon Blades");
  ASSERT_TRUE(AlignLeague(h.state).cmdAdd(1, 0));
  ASSERT_EQ(h.state.numTeams(), 5);
  const Team& t = h.state.team(4);
  EXPECT_EQ(t.Name.raw(), "Saskatoon ");  // first ten characters
  EXPECT_EQ((std::array{int(t.Conf), int(t.Div), int(t.Priority)}), (std::array{1, 0, 4}));
  EXPECT_EQ((std::array{t.CurFin, int(t.Seats), t.W[0] + t.L[0] + t.T[0], int(t.CoachRec)}), (std::array{0, 0, 0, 0}));
  EXPECT_EQ(TeamsIn(h.state, 1, 0), (std::vector<u8>{2, 4}));
  loadteam(h.state, 4, 0);
  for (int slot = 0; slot < kRosterSlots; ++slot) EXPECT_TRUE(h.state.player(0, slot).empty());
  int own = 0;
  for (const auto& p : ReadDraftPicks(h.state, 4).Pick) own += p.Active && p.OrigTeam == 4 && p.Owner == 4;
  EXPECT_EQ(own, 54);
  EXPECT_TRUE(h.state.Dirty);
  SaveLg(h.state);
  LoadLg(h.state, h.state.LeaguePath);
  ASSERT_EQ(h.state.numTeams(), 5);
  EXPECT_EQ(h.state.team(4).Name.str(), "Saskatoon");
  EXPECT_EQ(TeamsIn(h.state, 1, 0), (std::vector<u8>{2, 4}));
  EXPECT_EQ(ReadFileBytes(h.state.swap(swp::Priority)), (Bytes{0, 1, 2, 3, 4}));
}

TEST_F(Align, AddWithEmptyOrCancelledNameChangesNothing) {
  League before = h.state.league;
  h.ui.push("");
  EXPECT_FALSE(AlignLeague(h.state).cmdAdd(0, 0));
  EXPECT_FALSE(AlignLeague(h.state).cmdAdd(0, 0));  // queue empty: the prompt is cancelled
  EXPECT_EQ(EncodeRecord(h.state.league), EncodeRecord(before));
  EXPECT_FALSE(h.state.Dirty);
}

TEST(AlignLimits, AddsBeyondTheLimitsAreToldBeforeTheNameIsAsked) {
  struct Case {
    int conf, div, teams;
    const char* text;
  } cases[] = {
      // StandardLeague deals teams round the four divisions, so 40 fill all of them.
      {0, 0, 40, "DIV 1 already holds 10 teams, the most a division can."},
      {1, 2, 4, "CONF 2 has 2 divisions: there is no division 3."},
      {2, 0, 4, "There is no conference 3: a league has conferences 1 and 2."},
  };
  for (const auto& c : cases) {
    Harness h;
    h.load(StandardLeague(c.teams));
    h.ui.push("Never");
    League before = h.state.league;
    EXPECT_THROW(AlignLeague(h.state).cmdAdd(c.conf, c.div), Refused);
    EXPECT_TRUE(h.ui.told(c.text, "Align League")) << h.ui.calls().back().text;
    EXPECT_EQ(EncodeRecord(h.state.league), EncodeRecord(before)) << c.text;
    EXPECT_EQ(h.ui.pending(), 1u) << c.text;
  }
  Harness h;
  h.load(StandardLeague(40));
  for (int conf = 0; conf < 2; ++conf) AlignLeague(h.state).ChangeDivisions(conf, 3);
  for (int i = 0; i < 10; ++i) ASSERT_TRUE(AlignLeague(h.state).cmdAdd(i % 2, 2, "X" + std::to_string(i)));
  EXPECT_THROW(AlignLeague(h.state).cmdAdd(0, 2, std::string("Y")), Refused);
  EXPECT_TRUE(h.ui.told("A league holds at most 50 teams.", "Align League"));
  EXPECT_EQ(h.state.numTeams(), 50);
}

TEST_F(Align, RenamesAreCutToTheFieldWidth) {
  h.ui.push("Western Conference");
  h.ui.push("Pacific Northwest");
  AlignLeague a(h.state);
  ASSERT_TRUE(a.cmdRenameConf(1));
  ASSERT_TRUE(a.cmdRenameDiv(1, 1));
  EXPECT_EQ(h.state.league.Conf[1].Name.raw(), "Western Conf");
  EXPECT_EQ(h.state.league.Conf[1].Div[1].Name.raw(), "Pacific No");
  EXPECT_FALSE(a.cmdRenameConf(0));  // cancelled
  EXPECT_EQ(h.state.league.Conf[0].Name.str(), "CONF 1");
}

TEST_F(Align, MoveAsksThenUpdatesListsAndCounts) {
  h.ui.push("no");
  EXPECT_FALSE(AlignLeague(h.state).MoveTeam(0, 1, 1));
  EXPECT_EQ(TeamsIn(h.state, 0, 0), std::vector<u8>{0});
  EXPECT_EQ(h.state.team(0).Conf, 0);
  h.ui.push("yes");
  ASSERT_TRUE(AlignLeague(h.state).MoveTeam(0, 1, 1));
  EXPECT_EQ(TeamsIn(h.state, 0, 0), std::vector<u8>{});
  EXPECT_EQ(TeamsIn(h.state, 1, 1), (std::vector<u8>{3, 0}));
  EXPECT_EQ(h.state.team(0).Conf, 1);
  EXPECT_EQ(h.state.team(0).Div, 1);
}

TEST_F(Align, DivisionsAreLoweredOnlyWhenTheDroppedOnesAreEmpty) {
  AlignLeague a(h.state);
  a.ChangeDivisions(0, 4);
  EXPECT_EQ(h.state.league.Conf[0].NumDivs, 4);
  EXPECT_EQ(h.state.league.Conf[0].Div[2].Name.raw(), "NewDiv    ");
  a.ChangeDivisions(0, 2);
  EXPECT_EQ(h.state.league.Conf[0].NumDivs, 2);
  EXPECT_TRUE(h.ui.callsOf("tell").empty());
  EXPECT_THROW(a.ChangeDivisions(1, 1), Refused);
  EXPECT_TRUE(
      h.ui.told("You cannot reduce the number of divisions per conference until\n"
                "the following teams have been pulled out of thie respective divisions:\n"
                "Team3->DIV 2\n",
                "Unable to reduce division count"));
  EXPECT_EQ(h.state.league.Conf[1].NumDivs, 2);
}

TEST_F(Align, ExpansionMarksAndClears) {
  AlignLeague a(h.state);
  a.Expansion(2);
  EXPECT_EQ(h.state.team(2).Expansion, 1);
  EXPECT_NE(a.Listing().find("Team2  (expansion)"), std::string::npos);
  a.Expansion(2, false);
  EXPECT_EQ(h.state.team(2).Expansion, 0);
}

TEST_F(Align, BrokenListsAreTheFormsUnexpectedErrorNamingThePlace) {
  h.state.league.Conf[0].Div[0].Team[0] = 187;  // no such team
  EXPECT_THROW(AlignLeague{h.state}, Refused);
  auto told = h.ui.callsOf("tell");
  ASSERT_EQ(told.size(), 1u);
  EXPECT_EQ(told[0].title, "Unexpected error");
  EXPECT_EQ(told[0].text.rfind("Unexpected error in AlignLeague.\n" + h.state.LeaguePath + ".lge: ", 0), 0u)
      << told[0].text;
  EXPECT_NE(
      told[0].text.find("conference 1 (CONF 1), division 1 (DIV 1), place 1: team 187, the league has teams 0 to"),
      std::string::npos)
      << told[0].text;
}

}  // namespace
}  // namespace kvl::test
