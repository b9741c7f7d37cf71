// Each area's commands run over a written league as a user runs them, every
// run kept in a golden transcript (golden/*.txt): refusals tell the system's
// words and exit 1, usage errors exit 2, and what is done is saved.
#include <functional>
#include <set>

#include "season/schedule_file.h"
#include "support/found_file_set.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/league_cli.h"
#include "support/schedule_leagues.h"
#include "support/sim_league.h"

namespace kvl::test {
namespace {

const std::vector<std::string> kSeed{"--seed", "5"};

// The files of a folder, one name a line, for a transcript.
std::string Listing(const fs::path& dir) {
  std::set<std::string> names;
  for (const auto& e : fs::directory_iterator(dir)) names.insert(e.path().filename().string());
  return fmt::format("{}", fmt::join(names, " "));
}

std::size_t CountUsed(const std::string& database) {
  const auto records = ReadRecords<DbRecord>(database);
  return std::count_if(records.begin(), records.end(), [](const DbRecord& r) { return r.DbFlag != 0; });
}

// The forms' own rules are the forms_* transcripts'; here a deleted team's renumbering
// is saved with the league, and the cards name what they cannot find.
TEST(Commands, ADeletedTeamAndTheCardsRefusals) {
  CliLeague lg(StandardLeague(8), "lg");
  lg.kvlEach({{"player", "0", "30"},
              {"view-team", "0", "--set", "Colour=red"},
              {"align", "move", "Nowhere", "1", "1"},
              {"--yes", "align", "delete", "Team2"},
              {"--yes", "view-team", "T03", "--set", "Ticket=55"},
              {"info"},
              {"player", "2", "0"},  // old team 3 is team 2 now
              {"view-team", "2"}});
  lg.expectTranscript(__FILE__, "admin.txt");
}

// A new league from a database whose 12 players are all marked used: refused or declined, the open
// league stays; made, it is unnamed until saved, has no teams and frees every player, too few to fill
// the two teams added.
TEST(Commands, ANewLeague) {
  CliLeague lg(StandardLeague(8));
  const fs::path dir = lg.dir.path();
  std::vector<DbRecord> records;
  for (int i = 0; i < 12; ++i) records.push_back({-1, MakePlayer("Db Player " + std::to_string(i), i % 5, 60)});
  WriteFileAtomic(dir / "marked.drs", EncodeRecords(records));
  WriteFileAtomic(dir / "empty.drs", Bytes{});
  WriteFileAtomic(dir / "cut.drs", Bytes(DbRecord::kSize * 3 + 5, 7));
  const std::string fresh = (dir / "fresh").string();
  lg.kvl({"--no", "new"});
  lg.answered("yes\n" + (dir / "nowhere.drs").string() + "\nno\n", {"new"});
  lg.kvlEach({{"--yes", "new", "--database", (dir / "empty.drs").string(), "--name", "Broken"},
              {"--yes", "new", "--database", (dir / "cut.drs").string(), "--name", "Broken"},
              {"info"},
              {"--yes", "new", "--database", (dir / "marked.drs").string(), "--name",
               "The Very Long Name Of A New League", "--save-as", fresh}});
  lg.path = fresh;
  lg.kvlEach({{"info"},
              {"edit-players", "--list"},
              {"--yes", "align", "add", "1", "1", "Club0"},
              {"--yes", "align", "add", "2", "2", "Club1"},
              {"info"},
              {"edit-draft-picks", "1"}});
  lg.note(fmt::format("players used in the database: {}, roster bytes: {}", CountUsed(fresh + ".drs"),
                      fs::file_size(fresh + ".ros")));
  lg.kvlEach({{"--yes", "assign-unused", "0", "5"},
              {"--yes", "assign-unused", "0", "0"},
              {"--yes", "assign-unused", "0", "13"},
              {"--yes", "assign-unused", "1", "5"},
              {"--yes", "assign-unused", "--auto"},
              {"set-roster", "0"}});
  lg.note(fmt::format("coaches as the home folder's: {}",
                      ReadFileBytes(fresh + ".coa") == ReadFileBytes(lg.home / "default.coa")));
  lg.expectTranscript(__FILE__, "new.txt");
}

TEST(Commands, RostersLinesAndCoaches) {
  CliLeague lg(StandardLeague(24, 5), "test", kSeed);
  lg.kvl({"--yes", "auto-all"});
  lg.kvl({"set-lines", "Team23"});
  CliLeague refused([] {
    LeaguePlan plan = StandardLeague(4);
    plan.rosters[0][0].Status = 102;  // an injured scratch
    return plan;
  }());
  refused.kvlEach({{"--yes", "set-roster", "0", "--dress", "0"},
                   {"--yes", "set-roster", "0", "--farm", "0"},
                   {"--yes", "set-lines", "1", "--place", "E1:0=0"},
                   {"--yes", "set-lines", "1", "--place", "E1:0=19"},
                   {"--yes", "set-lines", "1", "--place", "X9:0=1"},
                   {"--yes", "set-roster", "9"},
                   {"set-roster", "0"},
                   {"--yes", "hire-coach", "Team2", "Coach 1"},
                   {"--yes", "hire-coach", "3", "2"},
                   {"view-coach", "2"},
                   {"--yes", "fire-coach", "2"},
                   {"--yes", "fire-coach", "2"}});
  refused.note("log: " + ReadAll(refused.path + ".tra"));
  // Auto-all leaves a short team as it is, with its shortages, and closes a gap before it makes lines.
  LeaguePlan gaps = StandardLeague(2);
  std::erase_if(gaps.rosters[1], [](const Player& p) {
    return std::set<std::string>{"T1 C 2", "T1 C 3", "T1 C 4", "T1 Minor 1", "T1 D 7"}.count(p.Name.str()) > 0;
  });
  gaps.rosters[0][5] = Player{};
  CliLeague gapped(gaps);
  gapped.kvlEach({{"--yes", "auto-all"}, {"set-roster", "0"}, {"set-roster", "1"}, {"set-lines", "0"}});
  ExpectGolden(__FILE__, "team.txt", lg.transcript + refused.transcript + gapped.transcript);
}

// Team0's good file damaged one way a row, binary under its password and text:
// each is refused, naming the file, the entry, the player and what is wrong, and
// the league's files stay byte for byte as they were.
void RefuseDamagedLinesFiles(CliLeague& lg, const std::vector<Player>& roster, const std::string& dir) {
  const LinesFileRecord good = DecodeRecord<LinesFileRecord>(ReadFileBytes(dir + "/Team0.lns"));
  const std::pair<const char*, std::function<void(LinesFileRecord&)>> damages[] = {
      {"past-roster", [](LinesFileRecord& r) { r.Lines.at(3, 4) = 77; }},
      {"no-goalie", [](LinesFileRecord& r) { r.Lines.at(kGoalieRow, 0) = kNoPlayer; }},
      {"skater-in-goal", [](LinesFileRecord& r) { r.Lines.at(kGoalieRow, 0) = 0; }},
      {"goalie-on-line", [](LinesFileRecord& r) { r.Lines.at(8, 1) = 19; }},
      {"five-seats", [](LinesFileRecord& r) { for (int k = 0; k < 5; ++k) r.Lines.at(0, k) = 1; }},
      {"empty-slot", [](LinesFileRecord& r) { r.Lines.at(12, 2) = 30; }},
      {"sent-down", [](LinesFileRecord& r) { r.Status[0] = 0; }},
      {"21-dressed", [](LinesFileRecord& r) { r.Status[20] = 200; }},
  };
  const Snapshot before = SnapshotDir(dir, "test.");
  fs::create_directories(dir + "/damaged");
  for (const auto& [name, damage] : damages) {
    LinesFileRecord r = good;
    damage(r);
    WriteFileAtomic(dir + "/damaged/" + name + ".lns", EncodeRecord(r));
    lg.kvl({"--yes", "load-lines", "0", dir + "/damaged/" + name + ".lns"});
  }
  // The text of the good file: the dressed, one ignored entry, the rows, the spares, the goalie.
  std::vector<int> nums;
  for (int slot = 0; slot < 20; ++slot) nums.push_back(roster[static_cast<std::size_t>(slot)].Num);
  nums.push_back(0);
  const int seats[kLineRows] = {5, 5, 5, 5, 5, 5, 4, 4, 4, 4, 3, 3, 3};
  for (int row = 0; row < kLineRows; ++row)
    for (int k = 0; k < seats[row]; ++k)  // the goalie row: the spares, then the starter
      nums.push_back(roster[good.Lines.at(row, row == kGoalieRow ? (k + 1) % 3 : k)].Num);
  const std::pair<const char*, std::function<void(std::vector<int>&)>> texts[] = {
      {"dressed-twice.txt", [](std::vector<int>& t) { t[1] = t[0]; }},
      {"five-seats.txt", [](std::vector<int>& t) { std::fill_n(t.begin() + 21, 5, t[21]); }},
  };
  for (const auto& [name, damage] : texts) {
    std::vector<int> t = nums;
    damage(t);
    WriteText(dir + "/damaged/" + name, fmt::format("{}\r\n", fmt::join(t, ",")));
    lg.kvl({"--yes", "load-lines", "0", dir + "/damaged/" + name});
  }
  fs::create_directories(dir + "/auto");
  fs::copy_file(dir + "/damaged/no-goalie.lns", dir + "/auto/Team0.lns");
  WriteText(lg.home / "LinesDirectory.txt", dir + "/auto\r\n");
  lg.kvl({"--yes", "auto-load-lines"});
  EXPECT_EQ(Differences(before, SnapshotDir(dir, "test.")), std::vector<std::string>{});
}

// A lines file keeps ten characters of the password and loads only with the team's, matched
// case and all (a team without one takes an empty one); Auto Load Lines does not ask for it.
TEST(Commands, LinesFilesProspectsAndTheDatabase) {
  LeaguePlan plan = StandardLeague(4);
  plan.teams[0].Password.set("pw");
  plan.teams[1].Password.set("secret1234");
  plan.teams[1].Lines = plan.teams[2].Lines = StandardLines();
  CliLeague lg(plan);
  const std::string dir = fs::path(lg.path).parent_path().string();
  WriteText(dir + "/bad.txt", "99,2,3\r\n");
  lg.kvlEach({{"--yes", "set-lines", "0", "--auto"},
              {"save-lines", "0", dir + "/Team0", "--password", "pw"},
              {"--yes", "load-lines", "Team0", dir + "/Team0.lns"},
              {"--yes", "load-lines", "Team1", dir + "/Team0.lns"},
              {"--yes", "load-lines", "0", dir + "/bad.txt"},
              {"--yes", "auto-load-lines"},
              {"save-lines", "0", dir + "/Case", "--password", "PW"},
              {"--yes", "load-lines", "0", dir + "/Case.lns"},
              {"save-lines", "1", dir + "/Team1", "--password", "secret12345678"},
              {"save-lines", "2", dir + "/Team2", "--password", ""},
              {"save-lines", "3", dir + "/Team3", "--password", "not the password"},
              {"--yes", "load-lines", "1", dir + "/Team1.lns"},
              {"--yes", "load-lines", "2", dir + "/Team2.lns"}});
  Bytes cut = ReadFileBytes(dir + "/Team1.lns");
  cut.resize(100);
  WriteFileAtomic(dir + "/Team1.lns", cut);
  WriteText(lg.home / "LinesDirectory.txt", dir + "/\r\n");
  lg.kvlEach({{"--yes", "load-lines", "1", dir + "/Team1.lns"}, {"--yes", "auto-load-lines"}});
  RefuseDamagedLinesFiles(lg, plan.rosters[0], dir);
  lg.kvlEach({{"--yes", "set-roster", "0", "--add", "New Guy", "--add-pos", "D", "--name", "22=Renamed"},
              {"--yes", "view-prospects", "1", "--add", "Kid Prospect", "--activate", "1", "--manual", ""},
              {"--yes", "player-database", "--output"},
              {"player-database", dir + "/bad.txt", "--list"},
              {"set-roster", "0"}});
  lg.expectTranscript(__FILE__, "lines.txt");
}

TEST(Commands, ScheduleMadeReviewedAndRefused) {
  CliLeague lg(AlignedLeague({{6, 6}, {6, 6}}), "test", kSeed);
  lg.kvl({"--yes", "make-schedule", "--tries", "20"});
  EXPECT_EQ(ReadSchedule(lg.path + ".scx").size(), 792u) << "saved over the league's files";
  lg.kvlEach({{"review-schedule", "--day", "1"}, {"review-schedule", "--day", "5000"}, {"make-schedule", "--help"}});
  std::string transcript = lg.transcript;
  struct Case {
    LeaguePlan plan;
    std::vector<std::string> args;
  } cases[] = {
      {StandardLeague(7), {}},
      {AlignedLeague({{6, 6}, {6, 6}}), {"--gp", "60"}},
      {AlignedLeague({{6, 6}, {6, 6}}), {"--div", "17"}},
      {AlignedLeague({{6, 6}, {6, 6}}), {"--tries", "0"}},
      {AlignedLeague({{7, 7}, {6, 6}}), {}},
      // 9 teams at 29 games can never be placed whole: every press fails, and the command gives up.
      {AlignedLeague({{3, 2}, {2, 2}}), {"--gp", "29", "--tries", "3"}},
  };
  for (auto& c : cases) {
    CliLeague refused(c.plan, "test", kSeed);
    c.args.insert(c.args.begin(), {"--no", "make-schedule"});
    refused.kvl(c.args);
    EXPECT_FALSE(fs::exists(refused.path + ".scx"));
    transcript += refused.transcript;
  }
  ExpectGolden(__FILE__, "schedule.txt", transcript);
}

TEST(Commands, ExhibitionAndProfileChangeNothing) {
  CliLeague lg(SimLeague(4), "test", kSeed);
  Bytes roster = ReadFileBytes(lg.path + ".ros");
  lg.kvlEach({{"exhibition", "0", "Team1"},
              {"exhibition", "T00", "1"},
              {"exhibition", "0", "Nobody"},
              {"sim-profile", "--games", "20", "--pair", "0", "1", "--shots-level", "7", "--goals-level", "3"},
              {"sim-profile", "--shots-level", "10"}});
  const fs::path transfer = lg.home / "Transfer";
  EXPECT_EQ(ReadFileBytes(transfer / "testex1.html"), ReadFileBytes(transfer / "testex2.html"));
  EXPECT_EQ(ReadFileBytes(lg.path + ".ros"), roster);
  lg.expectTranscript(__FILE__, "sim.txt");
}

TEST(Commands, PagesHeadersAndFooters) {
  CliLeague lg(SimLeague(4));
  WriteText(lg.dir.path() / "head.html", "<P>Our league</P>\n<HR>\n");
  lg.kvlEach({{"--no", "output-html", "--pages", "standings,14"},
              {"output-html", "--pages", "standings,nope"},
              {"output-html", "--pages", "17"},
              {"edit-header", "17"},
              {"edit-footer", "-1"},
              {"edit-footer", "2x"},
              {"edit-header", "20", "--from", (lg.dir.path() / "head.html").string()},
              {"edit-header", "20", "--show"}});
  lg.note("Transfer: " + Listing(lg.home / "Transfer"));
  EXPECT_EQ(ReadAll(lg.home / "Headers" / "test.hd20"), "<P>Our league</P>\r\n<HR>\r\n");
  lg.expectTranscript(__FILE__, "pages.txt");
}

}  // namespace
}  // namespace kvl::test
