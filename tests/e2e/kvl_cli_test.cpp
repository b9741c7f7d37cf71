// The kvl program run as a user runs it: exit statuses, help, one-shot commands
// with the exit protocol, answers given in advance, the shell, and bad input.
// Whole runs are kept in golden transcripts (golden/*.txt).
#include <fstream>
#include <sstream>

#include "console/startup.h"
#include "support/found_file_set.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/league_cli.h"

namespace kvl::test {
namespace {

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

// The league every test runs over: ten teams, stored-only fields filled, every optional file.
struct Metro : CliLeague {
  Metro() : CliLeague(Plan(), "metro") { WriteOptionalFiles(path, 10, 4); }
  static LeaguePlan Plan() {
    auto plan = StandardLeague(10, 3);
    Enrich(plan, 9);
    return plan;
  }
  Snapshot files() const { return SnapshotDir(dir.path() / "league"); }
  std::string storedName() const {
    Bytes lge = ReadFileBytes(path + ".lge");
    return Condense(std::string(lge.begin(), lge.begin() + 25));
  }
  void setHeaderBytes(const std::vector<std::pair<std::size_t, std::uint8_t>>& bytes) {
    Bytes lge = ReadFileBytes(path + ".lge");
    for (auto [at, v] : bytes) lge[at] = v;
    WriteFileAtomic(path + ".lge", lge);
  }
};

const std::vector<std::string> kNone;

// An unknown command is named, with the list of commands.
TEST(Cli, UsageErrorsExitTwo) {
  Metro lg;
  lg.kvlEach({{"frobnicate"},
              {"--seed", "3", "frobnicate", "x"},
              {},
              {"info", "--bogus"},
              {"--seed", "many", "info"},
              {"--answers", (lg.dir.path() / "nowhere").string(), "info"},
              {"rename-league"},
              {"--yes", "--no", "info"}});
  lg.expectTranscript(__FILE__, "usage_errors.txt");
}

TEST(Cli, EveryCommandHasHelpAndInfoListsOnlyCommandsThatExist) {
  Metro lg;
  lg.pinLeague = false;
  ProgramRun top = lg.kvl({"--help"});
  ASSERT_EQ(top.status, 0);
  std::istringstream lines(top.out.substr(top.out.find("Subcommands:")));
  std::string line;
  std::getline(lines, line);
  int seen = 0;
  while (std::getline(lines, line) && !line.empty()) {
    if (line.size() < 3 || line[2] == ' ') continue;  // a wrapped description
    std::string cmd = line.substr(2, line.find(' ', 2) - 2);
    ProgramRun r = lg.kvl({cmd, "--help"});
    EXPECT_TRUE(r.status == 0 && Has(r.out, "Usage:") && Has(r.out, " " + cmd + " [OPTIONS]")) << cmd;
    ++seen;
  }
  EXPECT_GE(seen, 50);
  EXPECT_FALSE(fs::exists(lg.home)) << "help starts nothing";
  ProgramRun info = lg.kvl({"--league", lg.path, "info"});
  auto listed = InfoWords(info.out, "Enabled commands:");
  EXPECT_GE(listed.size(), 6u) << info.out;
  for (const auto& cmd : listed) EXPECT_TRUE(Has(top.out, "\n  " + cmd + " ")) << cmd << " is listed but not a command";
  for (const auto& cmd : InfoWords(info.out, "Menu entries not available here:"))
    EXPECT_FALSE(Has(top.out, "\n  " + cmd + " ")) << cmd << " is a command but listed as not available";
}

TEST(Cli, WithoutALeagueOrWithASecondCopy) {
  CliLeague lg;
  lg.kvl({"save"});
  lg.kvl({"info"});
  EXPECT_TRUE(fs::exists(lg.home / "default.lge"));
  HomeLock held;
  ASSERT_TRUE(held.acquire(lg.home));
  lg.kvl({"info"});
  lg.expectTranscript(__FILE__, "no_league.txt");
}

// Header offsets: ScheduleMade 220, SeasonOver 222, GamesPlayed 272, LeagueGames
// 274, InPlayoffs 419, OffSeason 421, EntryDraftOn 423.
TEST(Cli, InfoTellsTheStateAndTheMenuAndTouchesNothing) {
  Metro lg;
  const Snapshot before = lg.files();
  lg.pinLeague = false;
  lg.kvl({"--league", lg.path + ".LGE", "info"});  // the extension in any case
  EXPECT_EQ(ReadAll(lg.home / "kvl.def"), lg.path + "\r\n");
  lg.kvl({"info"});  // the last league opens without --league
  lg.pinLeague = true;
  const Bytes lge = ReadFileBytes(lg.path + ".lge");
  const std::vector<std::pair<std::size_t, std::uint8_t>> states[] = {
      {{220, 0xFF}, {221, 0xFF}, {272, 40}, {274, 90}},
      {{220, 0xFF}, {221, 0xFF}, {222, 0xFF}, {223, 0xFF}, {272, 90}, {274, 90}},
      {{220, 0xFF}, {221, 0xFF}, {222, 0xFF}, {223, 0xFF}, {419, 0xFF}, {420, 0xFF}},
      {{421, 0xFF}, {422, 0xFF}, {423, 0xFF}, {424, 0xFF}}};
  for (const auto& bytes : states) {
    lg.setHeaderBytes(bytes);
    if (bytes.size() == 6 && bytes[4].first == 419) WriteFileAtomic(lg.path + ".plf", EncodeRecord(PlayoffState{}));
    lg.kvl({"info"});
    WriteFileAtomic(lg.path + ".lge", lge);
    RemoveIfExists(lg.path + ".plf");
  }
  lg.kvl({"--yes", "save"});
  EXPECT_EQ(Differences(before, lg.files()), kNone);
  lg.expectTranscript(__FILE__, "info_states.txt");
}

TEST(Cli, AnswersSaveAsRenameAndTheShell) {
  Metro lg;
  for (const char* answer : {"no\n", "yes\r\n"}) {
    lg.answered(answer, {"rename-league", "Answered League"});
    lg.note("stored: " + lg.storedName());
  }
  std::string copy = (lg.dir.path() / "league" / "copy").string();
  WriteFileAtomic(copy + ".lge", Bytes{1, 2, 3});
  for (const char* answer : {"no\n", "yes\n"}) {
    lg.answered(answer, {"save-as", copy});
    lg.note("copy.lge: " + std::to_string(ReadFileBytes(copy + ".lge").size()) + " bytes");
  }
  EXPECT_EQ(ReadFileBytes(copy + ".tms"), ReadFileBytes(lg.path + ".tms"));
  lg.kvl({"--yes", "rename-league", "Ligue Québécoise de Hockey Junior"});
  Bytes lge = ReadFileBytes(lg.path + ".lge");
  EXPECT_EQ(std::string(lge.begin(), lge.begin() + 25),
            "Ligue Qu\xE9"
            "b\xE9"
            "coise de Hocke");
  lg.kvl({"shell"}, "info\nrename-league \"Shell League\"\nsave\nexit\n");
  lg.note("stored: " + lg.storedName());
  // A script stops at its first failing command and saves nothing it did not save
  // itself; a question is never answered by its next line; --keep-going runs on.
  const std::string script = (lg.dir.path() / "season.kvl").string();
  const std::string scriptText = "rename-league 'Tampa Bay'  # quoted\n\nplay-games --dayz 5\ninfo\n";
  WriteText(script, scriptText);
  const struct {
    std::vector<std::string> args;
    std::string input;
  } scripts[] = {
      {{"shell", "--script", script}, ""},
      {{"shell"}, "rename-league 'Tampa Bay'\nload " + lg.path + "\nyes\n"},
      {{"shell"}, "rename-league Unsaved\n"},
      {{"--yes", "shell", "--keep-going"},
       "rename-league \"Tampa\nrename-league\nrename-league 'Tampa'\\ Bay\\ \"\\\"Q\\\"\"\n"},
  };
  for (const auto& run : scripts) {
    std::istringstream lines(run.input.empty() ? scriptText : run.input);
    for (std::string line; std::getline(lines, line);) lg.note("< " + line);
    lg.kvl(run.args, run.input);
    lg.note("stored: " + lg.storedName());
  }
  lg.expectTranscript(__FILE__, "answers_and_shell.txt");
}

// The README's "Your first league", its lines as one script from an empty home
// folder, so that the README cannot drift from the program.
TEST(Cli, TheReadmeWalkthroughRuns) {
  std::ifstream readme(fs::path(KVL_DATA_DIR).parent_path() / "README.md");
  std::string script;
  bool inside = false;
  for (std::string line; std::getline(readme, line);) {
    if (line.starts_with("<!-- walkthrough")) inside = line != "<!-- walkthrough end -->";
    if (!inside || !line.starts_with("    kvl ")) continue;
    std::string command = line.substr(8);
    script += (command.starts_with("--yes ") ? command.substr(6) : command) + "\n";
  }
  ASSERT_NE(script, "");
  CliLeague lg;
  const fs::path file = lg.dir.path() / "first.kvl";
  WriteText(file, script);
  std::istringstream lines(script);
  for (std::string line; std::getline(lines, line);) lg.note("< " + line);
  EXPECT_EQ(lg.kvl({"--seed", "1", "--yes", "shell", "--script", file.string()}).status, 0);
  lg.expectTranscript(__FILE__, "walkthrough.txt");
}

// A damaged league fails at once; values a record can hold but a game or a form
// cannot use are told at load, and the command that meets them stops naming the
// file, record and field. Nothing is written.
TEST(Cli, BadInputIsNamedAndChangesNothing) {
  std::string transcript;
  auto run = [&](const std::function<void(Metro&)>& damage, const std::function<void(Metro&)>& steps) {
    Metro lg;
    damage(lg);
    const Snapshot before = lg.files();
    steps(lg);
    EXPECT_EQ(Differences(before, lg.files()), kNone) << lg.transcript;
    transcript += lg.transcript;
  };
  run([](Metro& lg) { fs::resize_file(lg.path + ".tms", 254 * 9); },
      [](Metro& lg) {
        lg.kvl({"--yes", "info"});
        lg.pinLeague = false;
        lg.kvl({"--yes", "load", lg.path + ".lge"});
      });
  // A name in the records' Windows-1252 reaches standard error as UTF-8, as standard output shows it.
  const auto slowest = [](Player& p) { p.Ratings[kSpd] = 255, p.Name.set("Ren\xe9 Dub\xe9"); };
  run([&](Metro& lg) { EditRecord<Player>(lg.path + ".ros", 2 * kRosterSlots + 13, slowest); },
      [](Metro& lg) { lg.kvl({"--no", "exhibition", "2", "3"}); });
  const auto strayTeam = [](League& l) { l.Conf[0].Div[1].Team[2] = 187; };
  run([&](Metro& lg) { EditRecord<League>(lg.path + ".lge", 1, strayTeam); },
      [](Metro& lg) { lg.kvl({"--no", "align", "show"}); });
  run([](Metro& lg) { fs::remove(lg.path + ".ros"), fs::create_directory(lg.path + ".ros"); },
      [](Metro& lg) { lg.kvl({"--no", "info"}); });
  // A file missing from the last league: the run ends, and the next start searches.
  run([](Metro& lg) {
        fs::remove(lg.path + ".coa");
        lg.pinLeague = false;
        WriteText(lg.home / "kvl.def", lg.path);
      },
      [](Metro& lg) { lg.kvlEach({{"--yes", "info"}, {"info"}}); });
  ExpectGolden(__FILE__, "bad_input.txt", transcript);
}

}  // namespace
}  // namespace kvl::test
