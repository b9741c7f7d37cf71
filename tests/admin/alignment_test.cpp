// Adding, renaming and moving teams, and the division count of a conference.
#include <gtest/gtest.h>

#include "admin/alignment.h"
#include "league/league_files.h"
#include "support/league_fixture.h"
#include "transactions/draft_picks.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl {
namespace {

using test::Harness;

std::vector<u8> TeamsIn(const LeagueState& s, int conf, int div) {
  const Division& d = s.league.Conf[std::size_t(conf)].Div[std::size_t(div)];
  return std::vector<u8>(d.Team.begin(), d.Team.begin() + d.NumTeams);
}

class Align : public ::testing::Test {
 protected:
  void SetUp() override { h.load(test::StandardLeague(4)); }
  Harness h;
};

TEST_F(Align, AddPromptsAndPlacesANewBlankTeamLast) {
  h.ui.push("Saskatoon Blades");
  ASSERT_TRUE(AlignLeague(h.state).cmdAdd(1, 0));
  ASSERT_EQ(h.ui.callsOf("prompt").size(), 1u);
  EXPECT_EQ(h.ui.callsOf("prompt")[0].text, "New Team Name");
  EXPECT_EQ(h.ui.callsOf("prompt")[0].title, "Add Team");
  ASSERT_EQ(h.state.numTeams(), 5);
  const Team& t = h.state.team(4);
  EXPECT_EQ(t.Name.raw(), "Saskatoon ");  // first ten characters
  EXPECT_EQ(t.Conf, 1);
  EXPECT_EQ(t.Div, 0);
  EXPECT_EQ(t.CurFin, 0);
  EXPECT_EQ(t.Seats, 0);
  EXPECT_EQ(t.W[0] + t.L[0] + t.T[0], 0);
  EXPECT_EQ(t.CoachRec, 0);
  EXPECT_EQ(t.Priority, 4);  // bottom of the waiver order
  EXPECT_EQ(TeamsIn(h.state, 1, 0), (std::vector<u8>{2, 4}));
  loadteam(h.state, 4, 0);
  for (int slot = 0; slot < kRosterSlots; ++slot) EXPECT_TRUE(h.state.player(0, slot).empty());
  DraftPickRecord picks = ReadDraftPicks(h.state, 4);
  int own = 0;
  for (const auto& p : picks.Pick) own += p.Active && p.OrigTeam == 4 && p.Owner == 4;
  EXPECT_EQ(own, 54);
  EXPECT_TRUE(h.state.Dirty);
}

TEST_F(Align, AddedTeamSurvivesSaveAndLoad) {
  std::string path = h.state.LeaguePath;
  AlignLeague(h.state).cmdAdd(0, 1, std::string("Expo"));
  SaveLg(h.state);
  LoadLg(h.state, path);
  ASSERT_EQ(h.state.numTeams(), 5);
  EXPECT_EQ(h.state.team(4).Name.str(), "Expo");
  EXPECT_EQ(TeamsIn(h.state, 0, 1), (std::vector<u8>{1, 4}));
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

struct AddRefusal {
  const char* name;
  int conf, div, teams;
  const char* text;
};

class AddRefused : public ::testing::TestWithParam<AddRefusal> {};

TEST_P(AddRefused, IsToldAndChangesNothing) {
  const auto& p = GetParam();
  Harness h;
  h.load(test::StandardLeague(p.teams));
  h.ui.push("Never");
  League before = h.state.league;
  EXPECT_THROW(AlignLeague(h.state).cmdAdd(p.conf, p.div), Refused);
  EXPECT_TRUE(h.ui.told(p.text, "Align League")) << h.ui.calls().back().text;
  EXPECT_EQ(EncodeRecord(h.state.league), EncodeRecord(before));
  EXPECT_EQ(h.ui.pending(), 1u);  // refused before asking for a name
}

// StandardLeague deals teams round the four divisions, so 40 teams fill all of them.
INSTANTIATE_TEST_SUITE_P(Align, AddRefused,
                         ::testing::Values(AddRefusal{"FullDivision", 0, 0, 40, "DIV 1 already holds 10 teams, the most a division can."},
                                           AddRefusal{"NoSuchDivision", 1, 2, 4, "CONF 2 has 2 divisions: there is no division 3."},
                                           AddRefusal{"NoSuchConference", 2, 0, 4, "There is no conference 3: a league has conferences 1 and 2."}),
                         [](const auto& i) { return std::string(i.param.name); });

TEST(AlignLimits, FiftyTeamsIsTheMost) {
  Harness h;
  auto plan = test::StandardLeague(40);
  h.load(plan);
  for (int conf = 0; conf < 2; ++conf) AlignLeague(h.state).ChangeDivisions(conf, 3);
  for (int i = 0; i < 10; ++i) ASSERT_TRUE(AlignLeague(h.state).cmdAdd(i % 2, 2, "X" + std::to_string(i)));
  EXPECT_THROW(AlignLeague(h.state).cmdAdd(0, 2, std::string("Y")), Refused);
  EXPECT_TRUE(h.ui.told("A league holds at most 50 teams.", "Align League"));
  EXPECT_EQ(h.state.numTeams(), 50);
}

TEST_F(Align, RenamesPromptAndCutToTheFieldWidth) {
  h.ui.push("Western Conference");
  h.ui.push("Pacific Northwest");
  AlignLeague a(h.state);
  ASSERT_TRUE(a.cmdRenameConf(1));
  ASSERT_TRUE(a.cmdRenameDiv(1, 1));
  auto prompts = h.ui.callsOf("prompt");
  ASSERT_EQ(prompts.size(), 2u);
  EXPECT_EQ(prompts[0].text, "New Conference Name?");
  EXPECT_EQ(prompts[0].title, "Rename Conference");
  EXPECT_EQ(prompts[1].text, "New Division Name?");
  EXPECT_EQ(prompts[1].title, "Rename Division");
  EXPECT_EQ(h.state.league.Conf[1].Name.raw(), "Western Conf");
  EXPECT_EQ(h.state.league.Conf[1].Div[1].Name.raw(), "Pacific No");
  EXPECT_FALSE(a.cmdRenameConf(0));  // cancelled
  EXPECT_EQ(h.state.league.Conf[0].Name.str(), "CONF 1");
}

TEST_F(Align, MoveAsksThenUpdatesListsAndCounts) {
  h.ui.push("yes");
  ASSERT_TRUE(AlignLeague(h.state).MoveTeam(0, 1, 1));
  EXPECT_TRUE(h.ui.callsOf("ask").size() == 1);
  EXPECT_EQ(h.ui.callsOf("ask")[0].text, "This will disrupt current schedule! Continue?");
  EXPECT_EQ(TeamsIn(h.state, 0, 0), std::vector<u8>{});
  EXPECT_EQ(TeamsIn(h.state, 1, 1), (std::vector<u8>{3, 0}));
  EXPECT_EQ(h.state.team(0).Conf, 1);
  EXPECT_EQ(h.state.team(0).Div, 1);
}

TEST_F(Align, MoveAnsweredNoLeavesTheTeam) {
  h.ui.push("no");
  EXPECT_FALSE(AlignLeague(h.state).MoveTeam(0, 1, 1));
  EXPECT_EQ(TeamsIn(h.state, 0, 0), std::vector<u8>{0});
  EXPECT_EQ(h.state.team(0).Conf, 0);
}

TEST_F(Align, LoweringDivisionsWithEmptyHighDivisionsSucceedsAtOnce) {
  AlignLeague a(h.state);
  a.ChangeDivisions(0, 4);
  EXPECT_EQ(h.state.league.Conf[0].NumDivs, 4);
  EXPECT_EQ(h.state.league.Conf[0].Div[2].Name.raw(), "NewDiv    ");
  EXPECT_EQ(h.state.league.Conf[0].Div[3].NumTeams, 0);
  a.ChangeDivisions(0, 1 + 1);
  EXPECT_EQ(h.state.league.Conf[0].NumDivs, 2);
  EXPECT_TRUE(h.ui.callsOf("tell").empty());
}

TEST_F(Align, LoweringDivisionsThatHoldTeamsIsRefusedWithTheirNames) {
  AlignLeague a(h.state);
  EXPECT_THROW(a.ChangeDivisions(1, 1), Refused);
  EXPECT_TRUE(h.ui.told("You cannot reduce the number of divisions per conference until\n"
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
  EXPECT_EQ(told[0].text.rfind("Unexpected error in AlignLeague.\n" + h.state.LeaguePath + ".lge: ", 0), 0u) << told[0].text;
  EXPECT_NE(told[0].text.find("conference 1 (CONF 1), division 1 (DIV 1), place 1: team 187, the league has teams 0 to"),
            std::string::npos)
      << told[0].text;
}

}  // namespace
}  // namespace kvl
