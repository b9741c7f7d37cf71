// The box score page: its name, the stars, and the whole page of a seeded game
// against reviewed golden text.
#include "sim/box_score.h"

#include <algorithm>

#include "reports/page_files.h"
#include "sim/exhibition.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/sim_league.h"
#include "util/numbers.h"

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

std::string Page(const std::vector<std::string>& lines) {
  std::string page;
  for (const auto& line : lines) page += line + "\r\n";
  return page;
}

TEST_F(SeededGame, PageMatchesTheGoldenText) {
  ExpectGolden(__FILE__, "exhibition_seed42.html", Page(BoxScoreLines(game, BoxScoreInfo{})));
}

// Header and footer files replace the page's first and last lines, and a season
// game's page carries the gate and the money before the notes; its star points go
// to the season.
TEST_F(SeededGame, SeasonPageCarriesTheMoneyAndStarPointsGoToTheSeason) {
  std::vector<std::string> expected = BoxScoreLines(game, BoxScoreInfo{});
  WriteText(f.h.home / "Headers" / "test.hd20", "<HTML><BODY>\r\n<P>Our league</P>\r\n");
  WriteText(f.h.home / "Headers" / "test.ft20", "<P>The end</P>\n</BODY></HTML>\n");
  BoxScoreInfo info{
      .kind = GameKind::RegularSeason, .gameNumber = 3, .attendance = 15000, .net = 600000, .farmLines = {}};
  EXPECT_EQ(WriteBoxScore(game, info).filename(), "test3.html");
  expected.erase(expected.begin(), expected.begin() + 2);
  expected.insert(expected.begin(), {"<HTML><BODY>", "<P>Our league</P>"});
  const auto notes = std::find(expected.begin(), expected.end(), "<BR><B>Game Notes</B><P>");
  expected.insert(notes, {"<BR><B>Financial</B><P>", "Attendance: 15000<BR>", "Net Profit: $600,000.00<BR>"});
  expected.back() = "<P>The end</P>";
  expected.push_back("</BODY></HTML>");
  EXPECT_EQ(ReadAll(f.h.home / "Transfer" / "test3.html"), std::string(kPageHead) + "\r\n" + Page(expected));
  for (const Star& st : PickStars(game)) EXPECT_EQ(f.h.state.player(st.side, st.slot).StarPoints, CInt(st.points));
}

// (Two exhibitions of one seed write testex1 and testex2 alike: checked by running kvl.)
TEST(BoxScoreName, ExhibitionsTakeTheFirstFreeNumberAndPlayoffGamesTheirRound) {
  GameFixture f(SimLeague(4), false);
  WriteText(f.h.home / "Transfer" / "testex2.html", "");
  EXPECT_EQ(BoxScorePath(f.h.state, BoxScoreInfo{}).filename(), "testex1.html");
  WriteText(f.h.home / "Transfer" / "testex1.html", "");
  EXPECT_EQ(BoxScorePath(f.h.state, BoxScoreInfo{}).filename(), "testex3.html");
  BoxScoreInfo playoff{.kind = GameKind::Playoffs, .gameNumber = 7, .round = 2, .farmLines = {}};
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

using PlayerTable = SeatedGame;

// Values keep their columns and one blank between them, counted in the
// characters shown.
TEST_F(PlayerTable, RowsKeepTheirColumns) {
  struct Case {
    const char* what;
    std::string name;
    int goals, plus, pim;
    std::string row;
  } cases[] = {
      {"plain", "Al Bo", 1, 2, 4, "Al Bo                 1  0  1    +2 4    0  0  0"},
      {"even", "Al Bo", 0, 0, 12, "Al Bo                 0  0  0  Even 12   0  0  0"},
      {"-10 and no minutes", "Al Bo", 0, -10, 0, "Al Bo                 0  0  0    -10 0   0  0  0"},
      {"an escaped name", "A&B <C>", 0, 0, 0, "A&amp;B &lt;C&gt;               0  0  0  Even 0    0  0  0"},
      {"a name filling its column", "Abcdefghij Klmnopqrstu", 0, 0, 0, "Abcdefghij Klmnopqrstu 0 0  0  Even 0    0  0  0"},
  };
  for (const Case& c : cases) {
    f.h.state.player(0, 0).Name.set(c.name);
    GameSide& s = f.side(0);
    s.PlayerGoals[0] = c.goals, s.PlusMinus[0] = static_cast<i16>(c.plus), s.PIM[0] = c.pim;
    s.PlayerAssists[0] = s.PlayerShots[0] = s.Hits[0] = s.IceTime[0] = 0;
    EXPECT_EQ(PlayerStatsRow(g, 0, 0), c.row) << c.what;
  }
}

using Stars = SeatedGame;

// Equals keep the first met, side 0 first. A skater: 3 a goal, 2 an assist, the
// plus/minus and 0.75 a shot; a goalie half a point a save, 3 off a goal, and 10
// more for a shutout on more than 25 shots.
TEST_F(Stars, TheFirstOfEqualsKeptAndPointsBySkaterAndGoalie) {
  GameSide& s = f.side(0);
  f.side(1).PlayerGoals[0] = 1;  // 3 points each
  s.PlayerGoals[8] = 1;
  s.PlayerGoals[4] = 1;
  f.side(1).ShotsOnGoalie[kFirstG] = 26;  // 13 + 10
  s.ShotsOnGoalie[kFirstG] = 25;          // 12.5, no bonus on 25
  auto stars = PickStars(g);
  ASSERT_EQ(stars.size(), 3u);
  EXPECT_DOUBLE_EQ(stars[0].points, 23);
  std::vector<std::pair<int, int>> picked;
  for (const Star& st : stars) picked.emplace_back(st.side, st.slot);
  EXPECT_EQ(picked, (std::vector<std::pair<int, int>>{{1, kFirstG}, {0, kFirstG}, {0, 4}}));
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
