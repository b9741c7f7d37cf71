// Each area's commands run over a written league as a user runs them, every
// run kept in a golden transcript (golden/*.txt): refusals tell the system's
// words and exit 1, usage errors exit 2, and what is done is saved.
#include <set>

#include "season/schedule_file.h"
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
  ExpectGolden(__FILE__, "team.txt", lg.transcript + refused.transcript);
}

TEST(Commands, LinesFilesProspectsAndTheDatabase) {
  LeaguePlan plan = StandardLeague(2);
  plan.teams[0].Password.set("pw");
  CliLeague lg(plan);
  const std::string dir = fs::path(lg.path).parent_path().string();
  WriteText(dir + "/bad.txt", "99,2,3\r\n");
  lg.kvlEach({{"--yes", "set-lines", "0", "--auto"},
              {"save-lines", "0", dir + "/Team0", "--password", "pw"},
              {"--yes", "load-lines", "Team0", dir + "/Team0.lns"},
              {"--yes", "load-lines", "Team1", dir + "/Team0.lns"},
              {"--yes", "load-lines", "0", dir + "/bad.txt"},
              {"--yes", "auto-load-lines"},
              {"--yes", "set-roster", "0", "--add", "New Guy", "--add-pos", "D", "--name", "22=Renamed"},
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
