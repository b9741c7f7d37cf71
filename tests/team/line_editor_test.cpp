// The line editor and managers' lines files: placements, averages, leaving, the moves a loaded file makes and
// the text import. The password, a damaged file and Auto Load Lines are the e2e tests' (golden/lines.txt).
#include "team/line_editor.h"

#include <cstdlib>
#include <cstdio>
#include <fstream>
#include <map>
#include <random>

#include "sim/exhibition.h"
#include "support/found_file_set.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/team_rosters.h"
#include "team/line_table.h"
#include "team/lines_file.h"
#include "team/lines_import.h"
#include "team/auto_load_lines.h"
#include "team/lines_text_import.h"

namespace kvl::test {
namespace {

// C 0-3, LW 4-7, RW 8-11, D 12-17, G 18-19; all dressed.
struct LineEditorTest : ::testing::Test {
  Harness h;
  void SetUp() override { open(Squad({4, 4, 4, 6, 2}, 70)); }
  void open(const std::vector<Player>& roster) {
    LeaguePlan plan = StandardLeague(2);
    plan.rosters[0] = roster;
    h.load(plan);
  }
};

TEST_F(LineEditorTest, WrongPlacementsChangeNothing) {
  struct Case {
    const char* what;
    int page, index, player;
    bool placed;
  } cases[] = {
      {"a goalie on a line", kEvenPage, 0, 18, false},
      {"a goalie as a spare", kEvenPage, 21, 19, false},
      {"a skater in goal", kEvenPage, 20, 0, false},
      {"a goalie in goal", kEvenPage, 20, 18, true},
      {"a skater as a spare", kPenaltyKillPage, 22, 12, true},
      {"the fifth slot of a 4 on 3 row", kPowerPlayPage, 14, 12, false},
      {"the third slot of a 3 on 5 row", kPenaltyKillPage, 12, 12, true},
      {"nobody chosen", kEvenPage, 0, -1, false},
      {"an empty roster slot", kEvenPage, 0, 30, false},
      {"a player not dressed", kEvenPage, 0, 3, false},
  };
  for (const auto& c : cases) {
    LineEditor e(h.state, 0);
    h.state.player(0, 3).Status = 100;  // a scratch
    e.ShowPage(c.page);
    LineTable before = e.LineBuf;
    EXPECT_EQ(e.Place(c.index, c.player), c.placed) << c.what;
    EXPECT_EQ(e.LineBuf == before, !c.placed) << c.what;
    EXPECT_EQ(e.Changed, c.placed) << c.what;
  }
}

TEST_F(LineEditorTest, APlayerStandsOnceARowAndPlacementsGoToThePagesRows) {
  LineEditor e(h.state, 0);
  e.ShowPage(kPowerPlayPage);
  ASSERT_TRUE(e.Place(5, 12));  // line 2 of the page, slot 0: P2's centre slot
  EXPECT_EQ(e.LineBuf.at(5, 0), 12);
  EXPECT_EQ(e.focus(), 5);
  e.Changed = false;
  EXPECT_FALSE(e.Place(9, 12)) << "already on that row";
  EXPECT_FALSE(e.Changed);
  EXPECT_TRUE(e.Place(10, 12)) << "another row is fine";
  EXPECT_EQ(e.LineBuf.at(6, 0), 12);
}

TEST_F(LineEditorTest, AssignmentsListEveryRowAPlayerStandsOnAndAveragesDivideByTheRowsSlots) {
  LineEditor e(h.state, 0);
  e.LineBuf.cells.fill(kNoPlayer);
  e.LineBuf.at(0, 0) = 0;
  e.LineBuf.at(4, 0) = 0;
  e.LineBuf.at(10, 0) = 0;   // level 70
  e.LineBuf.at(10, 1) = 13;  // level 69
  e.LineBuf.at(12, 1) = 1;
  e.LineBuf.at(6, 1) = 4;
  e.LineBuf.at(6, 4) = 5;  // unused slot
  e.ReadLineAssgts();
  // The goalie row takes no part, nor does an unused slot.
  EXPECT_EQ(e.assignment(0) + "|" + e.assignment(1) + "|" + e.assignment(4) + "|" + e.assignment(5) + "|" +
                e.assignment(13),
            "E1C P1C K3C|No Assignments|P3W|No Assignments|K3D");
  RatingAverages a = e.LineAverages(10);
  EXPECT_EQ(a[kSpd], 46) << "(70 + 69) / 3 + 0.5 = 46.8";
  EXPECT_EQ(a[kRatingCount], 50) << "Overall (75 + 74) / 3 + 0.5";
  RatingAverages team = e.TeamAverages();
  // Skaters: levels 70..67 for each forward group, 70..65 for D.
  double sum = 3 * (70 + 69 + 68 + 67) + (70 + 69 + 68 + 67 + 66 + 65);
  EXPECT_EQ(team[kSpd], static_cast<int>(sum / 18.001 + 0.5));
}

TEST_F(LineEditorTest, AnIncompleteTableCannotBeKeptNoDropsTheChangesAndAutoNeedsTwentyDressed) {
  LineEditor e(h.state, 0);
  e.cmdAuto();
  h.ui.push("no");
  EXPECT_TRUE(e.cmdExit()) << "no drops the changes";
  EXPECT_EQ(h.state.team(0).LinesOK, kFalse);
  EXPECT_FALSE(LinesComplete(h.state.team(0).Lines));
  e.cmdAuto();
  EXPECT_TRUE(e.Changed);
  EXPECT_TRUE(LinesComplete(e.LineBuf));
  e.LineBuf.at(12, 2) = kNoPlayer;
  h.ui.push("yes");
  EXPECT_FALSE(e.cmdExit());
  EXPECT_TRUE(h.ui.told("Lines are not complete", "Edit Lines"));
  EXPECT_EQ(h.state.team(0).LinesOK, kFalse);
  e.Place(22, 5);
  h.ui.push("yes");
  EXPECT_TRUE(e.cmdExit());
  EXPECT_EQ(h.state.team(0).Lines.at(12, 2), 5);
  EXPECT_EQ(h.state.team(0).LinesOK, kTrue);
  ASSERT_TRUE(e.Place(0, 3));
  e.cmdClose();
  EXPECT_TRUE(h.ui.told("Changes were not saved", "Edit Lines"));
  for (int dressed : {19, 21}) {
    std::vector<Player> r = Squad({4, 4, 4, 6, 2}, 70);
    r[0].Status = dressed < 20 ? 100 : 200;
    if (dressed > 20) r.push_back(Rated(kCentre, 50));
    open(r);
    LineEditor few(h.state, 0);
    few.cmdAuto();
    EXPECT_TRUE(h.ui.told(fmt::format("There are only {} players on the roster.\nSet roster first", dressed),
                          "Auto Lines"));
    EXPECT_FALSE(few.Changed);
  }
  open(Squad({4, 4, 4, 6, 2}, 70, 100));
  LineEditor nobody(h.state, 0);
  EXPECT_TRUE(h.ui.told("There are not enough players. Set roster first", "Roster warning"));
}

// Team0: C 0-3, LW 4-7, RW 8-11, D 12-17 dressed, D 18 scratched, G 19-20
// dressed, G 21 scratched, minors 22-23; jersey = slot + 2. Password "secret".
struct LinesFileTest : ::testing::Test {
  Harness h;
  fs::path dir;
  void SetUp() override {
    LeaguePlan plan = StandardLeague(4);
    for (auto& t : plan.teams) t.Password.set("secret");
    plan.rosters[0][18].Status = 100;
    plan.rosters[0][20].Status = 200;
    h.load(plan);
    dir = h.dir.path() / "managers";
    fs::create_directories(dir);
  }
  // Team0's lines as AutoLines makes them, saved to `file` under `password`.
  LineTable Save(const fs::path& file, const std::string& password) {
    LineEditor e(h.state, 0);
    EXPECT_TRUE(e.cmdAuto());
    h.ui.push(password);
    EXPECT_TRUE(cmdSaveLines(h.state, e, file));
    return e.LineBuf;
  }
  Player& at(int slot) { return h.state.player(0, slot); }
};

TEST_F(LinesFileTest, ALoadMovesPlayersAndLogsTheMovesAndARefusedOneChangesNothing) {
  struct Case {
    const char* what;
    int slot;
    u8 league, file;  // Status in the league and in the file
    u8 suspended;
    u8 after;
    bool linesTaken;
    const char* log;  // in the transaction log, or "" for nothing
    const char* told;
    bool scratchBackup = false;  // the file scratches the dressed goalie on no line, to dress 20
  } cases[] = {
      {"a minor dressed is called up", 22, 0, 200, 0, 200, true, "Team0 promote T0 Minor 1 to pro roster<BR><BR> ",
       nullptr, true},
      {"a scratch sent down", 18, 100, 0, 0, 0, true, "Team0 assign T0 D 7 to minors<BR><BR>", nullptr},
      {"a minor staying down writes nothing", 22, 0, 0, 0, 0, true, "", nullptr},
      {"a status read by its list", 22, 0, 37, 0, 0, true, "", nullptr},
      {"an empty slot's status moves nobody", 30, 0, 100, 0, 0, true, "", nullptr},
      {"an injured player dressed", 18, 103, 200, 0, 103, false, "", "T0 D 7 is being dressed"},
      {"an injured player dressed, injury and all", 18, 103, 203, 0, 103, false, "", "T0 D 7 is being dressed"},
      {"a suspended player dressed", 18, 100, 200, 2, 100, false, "", "Trying to use a suspended player"},
      {"21 dressed", 22, 0, 200, 0, 0, false, "", "21 players are dressed; a team dresses 20"},
  };
  const Bytes roster = ReadFileBytes(h.state.swap("swp.r"));
  const Team team = h.state.team(0);
  const Player scratch = MakePlayer("Buffer Scratch", kCentre, 50, 100);
  for (const auto& c : cases) {
    WriteFileAtomic(h.state.swap("swp.r"), roster);
    h.state.team(0) = team;
    const LineTable saved = Save(dir / "t.lns", "secret");
    RecordFile f(dir / "t.lns", LinesFileRecord::kSize);
    LinesFileRecord r = f.getRecord<LinesFileRecord>(1);
    r.Status[static_cast<std::size_t>(c.slot)] = c.file;
    if (c.scratchBackup) r.Status[saved.at(kGoalieRow, 0) == 19 ? 20 : 19] = 100;
    r.Protected[0] = -1;
    f.putRecord(1, r);
    loadteam(h.state, 0, 0);
    at(c.slot).Status = c.league;
    at(c.slot).Suspended = c.suspended;
    h.state.team(0).LinesOK = kFalse;
    SaveTeam(h.state, 0, 0);
    const Bytes before = ReadFileBytes(h.state.swap("swp.r"));
    const Bytes teams = ReadFileBytes(h.state.swap("swp.t"));
    const LineTable lines = h.state.team(0).Lines;
    const std::string logBefore = ReadAll(h.state.swap(swp::Transactions));
    h.state.CurTeam = 0;
    h.state.Dirty = false;
    h.state.player(0, kRosterSlots) = scratch;
    EXPECT_EQ(ImportLinesSub(h.state, 0, nullptr, dir / "t.lns").ok, c.linesTaken) << c.what;
    EXPECT_EQ(EncodeRecord(h.state.player(0, kRosterSlots)), EncodeRecord(scratch))
        << c.what << ": the buffer's scratch slot is no part of the roster";
    loadteam(h.state, 0, 0);
    EXPECT_EQ(at(c.slot).Status, c.after) << c.what;
    EXPECT_EQ(at(0).Protected, c.linesTaken ? -1 : 0) << c.what;
    LineTable stored = saved;
    ForceUnusedSlots(stored);
    EXPECT_EQ(h.state.team(0).Lines, c.linesTaken ? stored : lines) << c.what;
    EXPECT_EQ(ReadAll(h.state.swap(swp::Transactions)).substr(logBefore.size()),
              *c.log ? std::string(c.log) + "\r\n" : "")
        << c.what;
    EXPECT_EQ(h.state.Dirty, c.linesTaken) << c.what;
    EXPECT_EQ(h.state.team(0).LinesOK, c.linesTaken ? kTrue : kFalse) << c.what;
    if (c.linesTaken) continue;
    EXPECT_TRUE(h.ui.told(c.told, "Team0 lines are not valid")) << c.what;
    EXPECT_TRUE(ReadFileBytes(h.state.swap("swp.r")) == before && ReadFileBytes(h.state.swap("swp.t")) == teams)
        << c.what << ": a refused file changes nothing";
  }
}

TEST_F(LinesFileTest, AFileLoadedIntoTheOpenEditorIsStoredOnLeaving) {
  const LineTable saved = Save(dir / "t.lns", "secret");
  LineEditor e(h.state, 0);
  const LineTable stored = h.state.team(0).Lines;
  h.state.CurTeam = 0;
  h.ui.push((dir / "t.lns").string());
  ASSERT_TRUE(cmdLoadLines(h.state, e).ok);
  EXPECT_EQ(h.ui.callsOf("chooseFile").at(0).title, "Import Text Lines");
  LineTable expected = saved;
  ForceUnusedSlots(expected);
  EXPECT_EQ(e.LineBuf, expected);
  EXPECT_TRUE(e.Changed);
  EXPECT_EQ(e.assignment(saved.at(0, 0)).substr(0, 3), "E1C");
  EXPECT_EQ(h.state.team(0).Lines, stored) << "not before leaving";
  h.ui.push("yes");
  EXPECT_TRUE(e.cmdExit());
  EXPECT_EQ(h.state.team(0).Lines, expected);
}

// The text of a valid file for Team0's auto lines, as tokens.
std::vector<std::string> TextOf(const LeagueState& s, const LineTable& t) {
  std::vector<std::string> tok;
  auto num = [&](int slot) { return std::to_string(s.player(0, slot).Num); };
  for (int i = 0; i < kRosterSlots; ++i)
    if (s.player(0, i).Status == 200) tok.push_back(num(i));
  tok.push_back("0");
  const int slots[] = {5, 5, 5, 5, 5, 5, 4, 4, 4, 4, 3, 3};
  for (int row = 0; row < 12; ++row)
    for (int k = 0; k < slots[row]; ++k) tok.push_back(num(t.at(row, k)));
  for (int k : {1, 2, 0}) tok.push_back(num(t.at(12, k)));
  return tok;
}

TEST_F(LinesFileTest, TheTextImportRefusesEachWrongFileWithItsText) {
  constexpr int kIgnored = 20, kE1C = 21, kGoalie = 20 + 1 + 52 + 2;  // after 52 line entries and the spares
  struct Case {
    const char* what;
    int token;  // replaced, -1 for none
    std::string with;
    const char* told;  // nullptr: accepted
    std::string lineEnd = "\r\n";
    int also = -1;  // a second token replaced the same way
  } cases[] = {
      {"a good file with CR LF ends", -1, "", nullptr},
      {"a good file with LF ends", -1, "", nullptr, "\n"},
      {"the ignored entry may hold anything", kIgnored, "Team0", nullptr},
      {"a missing dressed player", 3, "***", "Not Enough Players in Roster"},
      {"an injured player dressed", 0, "24", "Player with no. 24 can't be in Roster"},
      {"a player dressed twice", 1, "2", "Player with no. 2 is dressed twice"},
      {"a missing line entry", kE1C, "***", "Not Enough Players"},
      {"a player twice on a line", kE1C, "2", "Player with no. 2 sits twice on E1", "\r\n", kE1C + 1},
      {"a goalie at centre", kE1C, "21", "Playing Goalie as Forward"},
      {"an undressed player on a line", kE1C, "20", "Player with no. 20 can't be in Roster"},
      {"a number nobody wears on a line", kE1C, "77", "Errors in File"},
      {"a skater in goal", kGoalie, "2", "Playing Forward as Goalie"},
      {"Windows-1252 text for a number", 5, "1\xE9", "Errors in File"},
      {"a file cut short", kGoalie, "", "Errors in File"},
  };
  LineEditor auto0(h.state, 0);
  ASSERT_TRUE(auto0.cmdAuto());
  const std::vector<std::string> good = TextOf(h.state, auto0.LineBuf);
  for (const auto& c : cases) {
    std::vector<std::string> tok = good;
    for (int k : {c.token, c.also})
      if (k >= 0) tok[static_cast<std::size_t>(k)] = c.with;
    if (c.token >= 0 && c.with.empty()) tok.resize(static_cast<std::size_t>(c.token));
    std::string text = "\xEF\xBB\xBF";
    for (std::size_t i = 0; i < tok.size(); ++i) text += tok[i] + (i % 5 == 4 ? c.lineEnd : ",");
    std::ofstream(dir / "t.txt", std::ios::binary) << text;
    LineEditor e(h.state, 0);
    h.state.player(0, 22).Status = 3;  // no. 24, injured in the minors
    const LineTable before = e.LineBuf;
    LinesImport r = cmdTextLines(h.state, e, dir / "t.txt");
    EXPECT_EQ(r.ok, c.told == nullptr) << c.what << ": " << r.why;
    if (!c.told) {
      EXPECT_EQ(e.LineBuf, auto0.LineBuf) << c.what;
      continue;
    }
    EXPECT_TRUE(h.ui.told(c.told, "Invalid File")) << c.what;
    EXPECT_EQ(e.LineBuf, before) << c.what;
    EXPECT_EQ(h.state.player(0, 19).Status, 200) << c.what << ": statuses stay";
    EXPECT_NE(r.why.find("t.txt"), std::string::npos) << c.what;
  }
  EXPECT_NE(TextLinesTokens("1,\r\n\xE9").back().line, 1) << "lines are counted";
}

// Mutated lines files through the load-lines and auto-load-lines commands'
// functions: binary files under the right password, each through both, and text
// files. None is taken that stops a game, and a refused one leaves every swap
// file and the team's record as they were.
TEST_F(LinesFileTest, MutatedFilesAreTakenOnlyWhenTheTeamCanPlay) {
  constexpr int kFiles = 200;
  const LineTable lines = Save(dir / "Team0.lns", "secret");
  const Bytes good = ReadFileBytes(dir / "Team0.lns");
  const std::vector<std::string> goodText = TextOf(h.state, lines);
  WriteText(h.home / "LinesDirectory.txt", dir.string());
  h.ui.setFallback(Answer::Yes);
  const Snapshot swaps = SnapshotDir(h.home, "swp.");
  const Bytes team = EncodeRecord(h.state.team(0));
  std::mt19937 gen(28);
  auto pick = [&](int n) { return static_cast<int>(gen() % static_cast<unsigned>(n)); };
  std::map<std::string, int> figures;
  auto outcome = [&](const std::string& kind, bool taken, const std::string& what) {
    ++figures[kind + (taken ? " taken" : " refused")];
    if (taken) {
      try {
        PlayExhibition(h.state, 0, 1);
      } catch (const KvlError& e) {
        ADD_FAILURE() << kind << ", " << what << ": taken, and the game stopped: " << e.what();
      }
    } else {
      EXPECT_EQ(Differences(swaps, SnapshotDir(h.home, "swp.")), std::vector<std::string>{}) << kind << ", " << what;
      EXPECT_TRUE(EncodeRecord(h.state.team(0)) == team && !h.state.Dirty) << kind << ", " << what;
    }
    for (const auto& [name, bytes] : SnapshotDir(h.home, "swp."))
      if (!swaps.contains(name)) fs::remove(h.home / name);
    for (const auto& [name, bytes] : swaps) WriteFileAtomic(h.home / name, bytes);
    h.state.team(0) = DecodeRecord<Team>(team);
    h.state.Dirty = false;
  };
  for (int n = 0; n < kFiles; ++n) {
    Bytes bin = good;
    std::string what = "bytes";
    for (int k = 0, changes = 1 + pick(3); k < changes; ++k) {
      const auto at = static_cast<std::size_t>(11 + pick(static_cast<int>(bin.size()) - 11));  // not the password
      bin[at] = static_cast<u8>(pick(2) ? pick(256) : pick(25));  // often a roster slot
      what += fmt::format(" {}={}", at, bin[at]);
    }
    WriteFileAtomic(dir / "Team0.lns", bin);
    const bool single = LoadLinesFile(h.state, 0, dir / "Team0.lns").ok;
    outcome("binary, load-lines", single, what);
    const bool automatic = LoadAutoLines(h.state).find("Team0 --") == std::string::npos;
    outcome("binary, auto-load-lines", automatic, what);
    EXPECT_EQ(single, automatic) << what;

    std::vector<std::string> tok = goodText;
    what = "tokens";
    for (int k = 0, changes = 1 + pick(2); k < changes; ++k) {
      const auto at = static_cast<std::size_t>(pick(static_cast<int>(tok.size())));
      tok[at] = pick(8) == 0 ? "***" : std::to_string(pick(27));
      what += fmt::format(" {}={}", at, tok[at]);
    }
    WriteText(dir / "t.txt", fmt::format("{}\r\n", fmt::join(tok, ",")));
    outcome("text", LoadLinesFile(h.state, 0, dir / "t.txt").ok, what);
  }
  // The figures, with --gtest_filter on this test and KVL_LINES_FIGURES=1.
  if (std::getenv("KVL_LINES_FIGURES"))
    for (const auto& [kind, count] : figures) std::printf("%s: %d\n", kind.c_str(), count);
  for (const char* kind : {"binary, load-lines", "text"})
    EXPECT_TRUE(figures[std::string(kind) + " taken"] > 0 && figures[std::string(kind) + " refused"] > 0)
        << kind << ": the mutations try both ways";
}

}  // namespace
}  // namespace kvl::test
