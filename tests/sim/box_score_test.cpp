// The box score page: its name, the stars, and the whole page of a seeded game
// against reviewed golden text.
#include "sim/box_score.h"

#include <gtest/gtest.h>

#include "sim/exhibition.h"
#include "support/golden.h"
#include "support/sim_league.h"
#include "util/numbers.h"
#include "util/record_file.h"

namespace kvl::test {
namespace {

// A game of the standard league played with a fixed seed.
class SeededGame : public testing::Test {
 protected:
  SeededGame() : f(SimLeague(4, 3), false) {
    f.h.state.rnd.setMasterSeed(42);
    game.PlayGame(0, 1);
  }
  GameFixture f;
  Game game{f.h.state, GameOptions{true, false, nullptr, nullptr}};
};

TEST_F(SeededGame, PageMatchesTheGoldenText) {
  std::string page;
  for (const auto& line : BoxScoreLines(game, BoxScoreInfo{})) page += line + "\r\n";
  ExpectGolden(__FILE__, "exhibition_seed42.html", page);
}

TEST_F(SeededGame, SeasonPageCarriesTheMoneyAndStarPointsGoToTheSeason) {
  BoxScoreInfo info;
  info.kind = GameKind::RegularSeason;
  info.gameNumber = 3;
  info.attendance = 15000;
  info.net = 600000;
  auto lines = BoxScoreLines(game, info);
  auto at = std::find(lines.begin(), lines.end(), "<BR><B>Financial</B><P>");
  ASSERT_NE(at, lines.end());
  EXPECT_EQ(
      std::vector<std::string>(at + 1, at + 4),
      (std::vector<std::string>{"Attendance: 15000<BR>", "Net Profit: $600,000.00<BR>", "<BR><B>Game Notes</B><P>"}));
  auto stars = PickStars(game);
  ASSERT_EQ(stars.size(), 3u);
  EXPECT_EQ(WriteBoxScore(game, info).filename(), "test3.html");
  for (const Star& st : stars) EXPECT_EQ(f.h.state.player(st.side, st.slot).StarPoints, CInt(st.points));
}

TEST_F(SeededGame, HeaderAndFooterFilesReplaceTheDefaults) {
  WriteText(f.h.home / "Headers" / "test.hd20", "<HTML><BODY>\r\n<P>Our league</P>\r\n");
  WriteText(f.h.home / "Headers" / "test.ft20", "<P>The end</P>\n</BODY></HTML>\n");
  auto lines = BoxScoreLines(game, BoxScoreInfo{});
  EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.begin() + 3),
            (std::vector<std::string>{"<HTML><BODY>", "<P>Our league</P>", game.PlayByPlay.front()}));
  EXPECT_EQ(std::vector<std::string>(lines.end() - 2, lines.end()),
            (std::vector<std::string>{"<P>The end</P>", "</BODY></HTML>"}));
}

// (Two exhibitions of one seed write testex1 and testex2 alike: checked by running kvl.)
TEST(BoxScoreName, ExhibitionsTakeTheFirstFreeNumberAndPlayoffGamesTheirRound) {
  GameFixture f(SimLeague(4), false);
  WriteText(f.h.home / "Transfer" / "testex2.html", "");
  EXPECT_EQ(BoxScorePath(f.h.state, BoxScoreInfo{}).filename(), "testex1.html");
  WriteText(f.h.home / "Transfer" / "testex1.html", "");
  EXPECT_EQ(BoxScorePath(f.h.state, BoxScoreInfo{}).filename(), "testex3.html");
  BoxScoreInfo playoff;
  playoff.kind = GameKind::Playoffs;
  playoff.round = 2;
  playoff.gameNumber = 7;
  EXPECT_EQ(BoxScorePath(f.h.state, playoff).filename(), "test-R2-7.html");
}

TEST(BoxScoreName, TeamPairedWithItselfWritesEmptyTables) {
  GameFixture f(SimLeague(4), false);
  auto r = PlayExhibition(f.h.state, 2, 2);
  std::string page = ReadAll(r.page);
  EXPECT_NE(page.find("<TR><TD>Team2</TD><TD WIDTH=25 ALIGN=right>0</TD>"), std::string::npos);
  EXPECT_EQ(page.find("saves out of"), std::string::npos);
  EXPECT_EQ(page.find("1- "), std::string::npos);
}

class Stars : public SeatedGame {};

TEST_F(Stars, FirstOfEqualsKeptSideZeroFirst) {
  f.side(1).PlayerGoals[0] = 1;  // 3 points each
  f.side(0).PlayerGoals[8] = 1;
  f.side(0).PlayerGoals[4] = 1;
  f.side(1).ShotsOnGoalie[kFirstG] = 26;  // 13 + 10 for a shutout on more than 25
  f.side(0).ShotsOnGoalie[kFirstG] = 25;  // 12.5, no bonus on 25
  auto stars = PickStars(g);
  ASSERT_EQ(stars.size(), 3u);
  EXPECT_DOUBLE_EQ(stars[0].points, 23);
  std::vector<std::pair<int, int>> picked;
  for (const Star& st : stars) picked.emplace_back(st.side, st.slot);
  EXPECT_EQ(picked, (std::vector<std::pair<int, int>>{{1, kFirstG}, {0, kFirstG}, {0, 4}}));
}

TEST_F(Stars, PointsBySkaterAndGoalie) {
  GameSide& s = f.side(0);
  s.PlayerGoals[4] = 2;
  s.PlayerAssists[4] = 1;
  s.PlusMinus[4] = -1;
  s.PlayerShots[4] = 5;
  EXPECT_DOUBLE_EQ(StarPoints(g, 0, 4), 6 + 2 - 1 + 3.75);
  s.ShotsOnGoalie[kFirstG] = 30;
  s.GoalsOnGoalie[kFirstG] = 2;
  EXPECT_DOUBLE_EQ(StarPoints(g, 0, kFirstG), 15 - 6);
}

}  // namespace
}  // namespace kvl::test
