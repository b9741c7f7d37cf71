// The kvl program run as a user runs it: exit statuses, one-shot commands with
// the exit protocol, answers given in advance, the shell, and bad input.
#include <gtest/gtest.h>

#include <fmt/format.h>

#include <fstream>
#include <functional>
#include <sstream>

#include "console/startup.h"
#include "support/found_cli.h"
#include "support/found_file_set.h"
#include "support/league_fixture.h"
#include "util/record_file.h"

namespace kvl {
namespace {

using test::ProgramRun;
using test::Snapshot;
using test::SnapshotDir;

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

// The words of a line of info, such as "Enabled commands:"; none when it is absent.
std::vector<std::string> InfoWords(const std::string& out, const std::string& head) {
  auto at = out.find(head);
  if (at == std::string::npos) return {};
  std::istringstream line(out.substr(at + head.size(), out.find('\n', at) - at - head.size()));
  std::vector<std::string> words;
  for (std::string w; line >> w;) words.push_back(w);
  return words;
}

// Enabled in the menu, whether built as a command or listed as not available.
bool Enabled(const std::string& out, const std::string& cmd) {
  for (const char* head : {"Enabled commands:", "Menu entries not available here:"}) {
    auto words = InfoWords(out, head);
    if (std::find(words.begin(), words.end(), cmd) != words.end()) return true;
  }
  return false;
}

class Cli : public ::testing::Test {
 protected:
  void SetUp() override {
    fs::create_directories(leagueDir());
    league = (leagueDir() / "metro").string();
    auto plan = test::StandardLeague(10, 3);
    test::Enrich(plan, 9);
    test::WriteLeague(plan, league);
    test::WriteOptionalFiles(league, 10, 4);
  }
  fs::path leagueDir() const { return dir.path() / "league"; }
  ProgramRun Run(std::vector<std::string> args, const std::string& input = "") {
    args.insert(args.begin(), {"--home", home.string()});
    return test::RunKvl(args, dir.path() / "io", input);
  }
  Snapshot Files() const { return SnapshotDir(leagueDir()); }
  std::string StoredName() const {
    Bytes lge = ReadFileBytes(league + ".lge");
    return Condense(std::string(lge.begin(), lge.begin() + 25));
  }
  void SetHeaderBytes(const std::vector<std::pair<std::size_t, std::uint8_t>>& bytes) {
    Bytes lge = ReadFileBytes(league + ".lge");
    for (auto [at, v] : bytes) lge[at] = v;
    WriteFileAtomic(league + ".lge", lge);
  }

  test::TempDir dir;
  fs::path home = dir.path() / "home";
  std::string league;
};

// ---- exit statuses -------------------------------------------------------------

TEST_F(Cli, UsageErrorsExitTwo) {
  struct Case {
    std::vector<std::string> args;
    std::string said;  // on stderr; a command error also lists the commands
  };
  std::vector<Case> cases{{{"frobnicate"}, "kvl: unknown command \"frobnicate\""},
                          {{"--seed", "3", "frobnicate", "x"}, "kvl: unknown command \"frobnicate\""},
                          {{}, "kvl: no command given"},
                          {{"info", "--bogus"}, "--bogus"},
                          {{"--seed", "many", "info"}, "many"},
                          {{"--answers", (dir.path() / "nowhere").string(), "info"}, "nowhere"},
                          {{"rename-league"}, "NAME"},
                          {{"--yes", "--no", "info"}, "--no"}};
  for (const auto& c : cases) {
    ProgramRun r = Run(c.args);
    std::string run = fmt::format("{}", fmt::join(c.args, " "));
    EXPECT_EQ(r.status, 2) << run << "\n" << r.out << r.err;
    EXPECT_TRUE(Has(r.err, c.said)) << run << "\n" << r.err;
    if (Has(c.said, "command")) {
      EXPECT_TRUE(Has(r.err, "Commands:\n") && Has(r.err, "  save-as")) << r.err;
    }
  }
}

TEST_F(Cli, InfoListsOnlyCommandsThatExist) {
  ProgramRun info = Run({"--league", league, "info"});
  auto listed = InfoWords(info.out, "Enabled commands:");
  ASSERT_GE(listed.size(), 6u) << info.out;
  for (const auto& cmd : listed)
    EXPECT_TRUE(Has(Run({cmd, "--help"}).out, " " + cmd + " [OPTIONS]")) << cmd << " is listed but not a command";
  for (const auto& cmd : InfoWords(info.out, "Menu entries not available here:"))
    EXPECT_TRUE(Has(Run({cmd}).err, "unknown command")) << cmd << " is a command but listed as not available";
}

TEST_F(Cli, EveryCommandHasHelp) {
  ProgramRun top = Run({"--help"});
  ASSERT_EQ(top.status, 0);
  auto at = top.out.find("Subcommands:");
  ASSERT_NE(at, std::string::npos);
  std::istringstream lines(top.out.substr(at));
  std::string line;
  std::getline(lines, line);
  int seen = 0;
  while (std::getline(lines, line) && !line.empty()) {
    if (line.size() < 3 || line[2] == ' ') continue;  // a wrapped description
    std::string cmd = line.substr(2, line.find(' ', 2) - 2);
    ProgramRun r = Run({cmd, "--help"});
    EXPECT_EQ(r.status, 0) << cmd;
    EXPECT_TRUE(Has(r.out, "Usage:")) << cmd;
    ++seen;
  }
  EXPECT_GE(seen, 6);  // shell info load save save-as rename-league, at least
  EXPECT_FALSE(fs::exists(home)) << "help starts nothing";
}

TEST_F(Cli, ACommandThatNeedsALeagueIsRefusedWithoutOne) {
  ProgramRun r = Run({"save"});
  EXPECT_EQ(r.status, 1);
  EXPECT_TRUE(Has(r.out, "No league is open")) << r.out;
  EXPECT_TRUE(Has(r.out, "[Load Local League Files]"));
}

TEST_F(Cli, InfoOnAnEmptyHomeSaysThereIsNoLeague) {
  ProgramRun r = Run({"info"});
  EXPECT_EQ(r.status, 0);
  EXPECT_TRUE(Has(r.out, "No league is open. Home folder: " + home.string()));
  EXPECT_TRUE(Enabled(r.out, "load"));
  EXPECT_FALSE(Enabled(r.out, "make-schedule"));
  EXPECT_TRUE(fs::exists(home / "default.lge"));
}

TEST_F(Cli, ASecondCopyIsRefused) {
  fs::create_directories(home);
  HomeLock held;
  ASSERT_TRUE(held.acquire(home));
  ProgramRun r = Run({"--league", league, "info"});
  EXPECT_EQ(r.status, 1);
  EXPECT_TRUE(Has(r.out, "[Cannot start a new copy of KVL] There's already a copy of KVL running. To ensure no files "
                         "will be corrupted, you cannot start a new instance."))
      << r.out;
  EXPECT_FALSE(Has(r.out, "League:"));
}

// ---- a league written to the documented layouts ----------------------------

TEST_F(Cli, InfoShowsTheTeamsAndTouchesNothing) {
  Snapshot before = Files();
  ProgramRun r = Run({"--league", league + ".lge", "info"});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(Has(r.out, "League: Test League"));
  EXPECT_TRUE(Has(r.out, "Conference 1: CONF 1"));
  EXPECT_TRUE(Has(r.out, "Conference 2: CONF 2"));
  for (int t = 0; t < 10; ++t)
    EXPECT_TRUE(Has(r.out, fmt::format("{:>2}  Team{:<6} T{:02}", t, t, t))) << t << "\n" << r.out;
  EXPECT_TRUE(Has(r.out, "State:  Pre-season: no schedule"));
  EXPECT_FALSE(Has(r.out, "Save League Changes?"));
  EXPECT_EQ(test::Differences(before, Files()), std::vector<std::string>{});
  Bytes def = ReadFileBytes(home / "kvl.def");
  EXPECT_EQ(std::string(def.begin(), def.end()), league + "\r\n");
}

struct StateCase {
  const char* name;
  std::vector<std::pair<std::size_t, std::uint8_t>> header;  // offset, byte
  const char* state;
  std::vector<const char*> on, off;
};

void PrintTo(const StateCase& c, std::ostream* os) { *os << c.name; }

class CliStates : public Cli, public ::testing::WithParamInterface<StateCase> {};

TEST_P(CliStates, InfoTellsTheStateAndTheMenu) {
  const auto& c = GetParam();
  SetHeaderBytes(c.header);
  if (Has(c.name, "Playoffs")) WriteFileAtomic(league + ".plf", EncodeRecord(PlayoffState{}));
  ProgramRun r = Run({"--league", league, "info"});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(Has(r.out, std::string("State:  ") + c.state + "\n")) << r.out;
  for (const char* cmd : c.on) EXPECT_TRUE(Enabled(r.out, cmd)) << cmd;
  for (const char* cmd : c.off) EXPECT_FALSE(Enabled(r.out, cmd)) << cmd;
}

// Header offsets: ScheduleMade 220, SeasonOver 222, GamesPlayed 272, LeagueGames
// 274, ExpansionDraftOn 417, InPlayoffs 419, OffSeason 421, EntryDraftOn 423.
INSTANTIATE_TEST_SUITE_P(
    States, CliStates,
    ::testing::Values(
        StateCase{"PreSeason", {}, "Pre-season: no schedule", {"align", "entry-draft"}, {"start-playoffs", "new-season", "rerate"}},
        StateCase{"Regular",
                  {{220, 0xFF}, {221, 0xFF}, {272, 40}, {274, 90}},
                  "Regular season, 40 of 90 games played",
                  {"play-games"},
                  {"new-season", "continue-entry-draft"}},
        StateCase{"SeasonOver",
                  {{220, 0xFF}, {221, 0xFF}, {222, 0xFF}, {223, 0xFF}, {272, 90}, {274, 90}},
                  "Season over, playoffs not begun",
                  {"start-playoffs", "review-schedule"},
                  {"entry-draft", "align"}},
        StateCase{"Playoffs",
                  {{220, 0xFF}, {221, 0xFF}, {222, 0xFF}, {223, 0xFF}, {419, 0xFF}, {420, 0xFF}},
                  "Playoffs",
                  {"play-games"},
                  {"start-playoffs", "entry-draft", "align", "review-schedule"}},
        StateCase{"OffSeasonDraft",
                  {{421, 0xFF}, {422, 0xFF}, {423, 0xFF}, {424, 0xFF}},
                  "Off-season; entry draft under way",
                  {"new-season", "rerate", "continue-entry-draft"},
                  {"start-playoffs"}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Cli, SaveLeavesEveryFileByteIdentical) {
  Snapshot before = Files();
  ProgramRun r = Run({"--league", league, "--yes", "save"});
  ASSERT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(Has(r.out, "[Save League] " + league + " saved"));
  EXPECT_EQ(test::Differences(before, Files()), std::vector<std::string>{});
}

TEST_F(Cli, TheLastLeagueOpensWithoutLeagueOption) {
  ASSERT_EQ(Run({"--league", league, "info"}).status, 0);
  ProgramRun r = Run({"info"});
  EXPECT_EQ(r.status, 0);
  EXPECT_TRUE(Has(r.out, "File:   " + league));
}

TEST_F(Cli, AnswersComeFromTheFile) {
  struct Case {
    const char* answers;
    const char* stored;
  };
  for (Case c : {Case{"no\n", "Test League"}, Case{"yes\r\n", "Answered League"}}) {
    fs::path answers = dir.path() / "answers.txt";
    std::ofstream(answers, std::ios::binary) << c.answers;
    ProgramRun r = Run({"--league", league, "--answers", answers.string(), "rename-league", "Answered League"});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(Has(r.out, "[Keep Changes] Save League Changes?")) << r.out;
    EXPECT_EQ(StoredName(), c.stored);
  }
}

TEST_F(Cli, SaveAsAsksBeforeOverwriting) {
  std::string copy = (leagueDir() / "copy").string();
  WriteFileAtomic(copy + ".lge", Bytes{1, 2, 3});
  fs::path answers = dir.path() / "answers.txt";
  for (const char* answer : {"no", "yes"}) {
    std::ofstream(answers, std::ios::binary) << answer << "\n";
    ProgramRun r = Run({"--league", league, "--answers", answers.string(), "save-as", copy});
    EXPECT_EQ(r.status, 0) << r.err;
    EXPECT_TRUE(Has(r.out, "[Save League] File Exists! Overwrite?")) << r.out;
    EXPECT_EQ(ReadFileBytes(copy + ".lge").size(), std::string(answer) == "yes" ? 459u : 3u);
  }
  EXPECT_EQ(ReadFileBytes(copy + ".tms"), ReadFileBytes(league + ".tms"));
}

TEST_F(Cli, RenameTakesTheTerminalsTextAndCutsIt) {
  ProgramRun r = Run({"--league", league, "--yes", "rename-league", "Ligue Québécoise de Hockey Junior"});
  ASSERT_EQ(r.status, 0) << r.err;
  Bytes lge = ReadFileBytes(league + ".lge");
  EXPECT_EQ(std::string(lge.begin(), lge.begin() + 25), "Ligue Qu\xE9" "b\xE9" "coise de Hocke");
  ProgramRun info = Run({"info"});
  EXPECT_TRUE(Has(info.out, "League: Ligue Québécoise de Hocke\n")) << info.out;
}

// ---- the shell ---------------------------------------------------------------------

TEST_F(Cli, ShellKeepsTheLeagueOpenAcrossCommands) {
  ProgramRun r = Run({"--league", league, "shell"}, "info\nrename-league \"Shell League\"\nsave\nexit\n");
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(Has(r.out, "kvl> "));
  EXPECT_TRUE(Has(r.out, "League: Test League"));
  EXPECT_TRUE(Has(r.out, league + " saved"));
  EXPECT_FALSE(Has(r.out, "Save League Changes?")) << "saved before the exit";
  EXPECT_EQ(StoredName(), "Shell League");
}

TEST_F(Cli, ShellGoesOnAfterAWrongCommandAndEndsAtEndOfInput) {
  ProgramRun r = Run({"--league", league, "shell"}, "frobnicate\nrename-league Unsaved\ninfo\n");
  EXPECT_EQ(r.status, 0) << r.err;
  EXPECT_TRUE(Has(r.out, "League: Unsaved"));
  // The end of input answers the exit question: no.
  EXPECT_TRUE(Has(r.out, "Save League Changes?"));
  EXPECT_EQ(StoredName(), "Test League");
}

// ---- bad input -------------------------------------------------------------------------

TEST_F(Cli, ADamagedFileFailsWithTheMessageOnStderr) {
  fs::resize_file(league + ".tms", 254 * 9);
  Snapshot before = Files();
  for (auto args : {std::vector<std::string>{"--league", league, "--yes", "info"},
                    std::vector<std::string>{"--yes", "load", league + ".lge"}}) {
    ProgramRun r = Run(args);
    EXPECT_EQ(r.status, 3);
    EXPECT_TRUE(Has(r.err, league + ".tms")) << r.err;
    EXPECT_TRUE(Has(r.err, "holds 9 teams but the league has 10")) << r.err;
    EXPECT_EQ(test::Differences(before, Files()), std::vector<std::string>{});
  }
}

// Values a record can hold but a game or a form cannot use: the load tells them
// once, and the command that meets them stops naming the file, record and field.
struct StopCase {
  const char* name;
  std::function<void(const std::string& league)> damage;
  std::vector<std::string> args;
  int status;
  std::vector<std::string> said;  // in what the run printed, with {} for the league path
};

void PrintTo(const StopCase& c, std::ostream* os) { *os << c.name; }

class CliStops : public Cli, public ::testing::WithParamInterface<StopCase> {};

TEST_P(CliStops, NameTheFileTheRecordAndTheField) {
  const auto& c = GetParam();
  c.damage(league);
  Snapshot before = Files();
  std::vector<std::string> args{"--league", league, "--no"};
  args.insert(args.end(), c.args.begin(), c.args.end());
  ProgramRun r = Run(args);
  EXPECT_EQ(r.status, c.status) << r.out << r.err;
  for (const auto& said : c.said) EXPECT_TRUE(Has(r.out + r.err, fmt::format(fmt::runtime(said), league))) << said << "\n" << r.out << r.err;
  EXPECT_FALSE(Has(r.err, "Overflow") || Has(r.err, "filesystem")) << r.err;
  EXPECT_EQ(test::Differences(before, Files()), std::vector<std::string>{});
}

void SetSpeed(const std::string& league) {
  RecordFile ros(league + ".ros", Player::kSize);
  Player p = ros.getRecord<Player>(2 * kRosterSlots + 12 + 1);
  p.Ratings[kSpd] = 255;
  ros.putRecord(2 * kRosterSlots + 12 + 1, p);
}

void SetDivisionMember(const std::string& league) {
  League lg = DecodeRecord<League>(ReadFileBytes(league + ".lge"));
  lg.Conf[0].Div[1].Team[2] = 187;
  WriteFileAtomic(league + ".lge", EncodeRecord(lg));
}

INSTANTIATE_TEST_SUITE_P(
    Values, CliStops,
    ::testing::Values(
        StopCase{"RatingAbove99", SetSpeed, {"exhibition", "2", "3"}, 3,
                 {"[Validate League] {}.ros: ratings above 99 cannot be played",
                  "kvl: {}.ros: a game cannot be played with these ratings\nTeam2, slot 12, record 113 (",
                  "): rating Spd is 255, above 99"}},
        StopCase{"DivisionMember", SetDivisionMember, {"align", "show"}, 1,
                 {"[Validate League] {}.lge: the alignment names teams the league lacks",
                  "Unexpected error in AlignLeague.\n{}.lge: ",
                  "conference 1 (CONF 1), division 2 (DIV 2), place 3: team 187, the league has teams 0 to 9"}},
        StopCase{"FolderForAFile",
                 [](const std::string& league) {
                   fs::remove(league + ".ros");
                   fs::create_directory(league + ".ros");
                 },
                 {"info"}, 3,
                 {"kvl: {}.ros: is not a file: a folder or a device stands where the league's file should be"}}),
    [](const auto& info) { return std::string(info.param.name); });

TEST_F(Cli, AMissingFileIsToldAndEndsTheRun) {
  fs::remove(league + ".coa");
  ASSERT_EQ(Run({"info"}).status, 0);
  std::ofstream(home / "kvl.def") << league << "\n";
  Snapshot before = Files();
  ProgramRun r = Run({"--yes", "info"});
  EXPECT_EQ(r.status, 3);
  EXPECT_TRUE(Has(r.out, "[File not found] KVL was unable to find the following file \n" + league +
                             ".coa\nPlease ensure that you have a complete set of league files."))
      << r.out;
  EXPECT_FALSE(Has(r.out, "League:")) << "the command does not run";
  EXPECT_FALSE(fs::exists(home / "kvl.def"));
  EXPECT_EQ(test::Differences(before, Files()), std::vector<std::string>{});
}

}  // namespace
}  // namespace kvl
