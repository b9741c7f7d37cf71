// The drafts from the command line on the demo league after its playoffs: a
// whole entry draft from a list file, then an expansion team added with the
// alignment, stocked by the expansion draft, and the schedule made.
#include <gtest/gtest.h>

#include <fstream>

#include "league/league_files.h"
#include "support/found_cli.h"
#include "support/league_fixture.h"
#include "transactions/draft_list.h"
#include "transactions/draft_picks.h"
#include "util/record_file.h"

namespace kvl {
namespace {

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

struct DraftCli {
  test::ProgramRun Run(std::vector<std::string> args) {
    args.insert(args.begin(), {"--home", home.string(), "--league", league + ".lge", "--yes"});
    return test::RunKvl(args, dir.path() / "io");
  }
  // The first `count` names of the database that no team holds, and one name
  // that is not in it.
  fs::path ListFile(std::size_t count) {
    RecordFile db(league + ".drs", DbRecord::kSize);
    std::string text;
    for (std::size_t n = 1; n <= db.count() && count > 0; ++n) {
      const DbRecord r = db.getRecord<DbRecord>(n);
      if (r.DbFlag != 0 || r.P.empty()) continue;
      text += r.P.Name.str() + "\n";
      --count;
    }
    const fs::path path = dir.path() / "list.txt";
    std::ofstream(path) << text << "Nobody Atall\n";
    return path;
  }
  test::TempDir dir;
  fs::path home = dir.path() / "home";
  std::string league = (home / "DemoRerated").string();
};

TEST(DraftCommands, AWholeEntryDraftThenAnExpansionTeamStockedAndScheduled) {
  DraftCli d;
  ASSERT_EQ(test::RunKvl({"--home", d.home.string(), "demo"}, d.dir.path() / "io").status, 0);
  test::Harness before;
  LoadLg(before.state, d.league);
  before.state.leagueLock.release();
  const int teams = before.state.numTeams(), rounds = before.state.league.DraftRounds;

  test::ProgramRun begin = d.Run({"entry-draft", "--list", d.ListFile(300).string()});
  ASSERT_EQ(begin.status, 0) << begin.out << begin.err;
  EXPECT_TRUE(Has(begin.out, "Line 301: \"Nobody Atall\" is not in the league's player database")) << begin.out;
  EXPECT_TRUE(Has(begin.out, "Pick 1 (overall 1)")) << begin.out;
  ASSERT_EQ(d.Run({"entry-draft", "--auto", "3"}).status, 0);
  test::ProgramRun rest = d.Run({"continue-entry-draft", "--auto", "1000"});
  ASSERT_EQ(rest.status, 0) << rest.out << rest.err;
  EXPECT_TRUE(Has(rest.out, "Draft Complete")) << rest.out;
  EXPECT_TRUE(Has(rest.out, "No entry draft is under way.")) << rest.out;

  test::Harness after;
  LoadLg(after.state, d.league);
  after.state.leagueLock.release();
  EXPECT_FALSE(after.state.league.EntryDraftOn);
  std::size_t made = 0;
  for (const DraftListRecord& r : ReadDraftList(after.state)) made += r.FieldA != 0;
  EXPECT_EQ(made, static_cast<std::size_t>(teams * rounds));
  for (int t = 0; t < teams; ++t) {
    const DraftPickRecord was = ReadDraftPicks(before.state, t), now = ReadDraftPicks(after.state, t);
    // Every pick of a later year came a year nearer; a new year was added.
    for (int year = 0; year < kPickYears; ++year) {
      auto count = [](const DraftPickRecord& r, int y) {
        return std::count_if(r.Pick.begin(), r.Pick.end(),
                             [&](const DraftPick& p) { return p.Active && p.CurrentYear == y; });
      };
      EXPECT_EQ(count(now, year), year + 1 < kPickYears ? count(was, year + 1) : kPickRounds) << "team " << t;
    }
  }
  std::ifstream page(d.home / "Transfer" / "DemoReratedEntryDraft.html");
  const std::string html((std::istreambuf_iterator<char>(page)), {});
  EXPECT_TRUE(Has(html, "<H3>Round " + std::to_string(rounds) + "</H3>")) << html.substr(0, 200);
  EXPECT_TRUE(Has(html, "<H2>Available Players</H3>"));

  ASSERT_EQ(d.Run({"align", "add", "1", "1", "Newport"}).status, 0);
  ASSERT_EQ(d.Run({"align", "expansion", "Newport"}).status, 0);
  EXPECT_EQ(d.Run({"make-schedule"}).status, 1) << "an empty expansion team";
  test::ProgramRun exp = d.Run({"expansion-draft", "--auto", "--output"});
  ASSERT_EQ(exp.status, 0) << exp.out << exp.err;
  EXPECT_TRUE(Has(exp.out, "Expansion Draft Complete")) << exp.out;
  EXPECT_TRUE(fs::exists(d.home / "Transfer" / "DemoReratedExpansionDraft.html"));
  test::ProgramRun sched = d.Run({"make-schedule"});
  EXPECT_EQ(sched.status, 0) << sched.out << sched.err;
  EXPECT_FALSE(Has(sched.out, "invalid rosters")) << sched.out;
}

}  // namespace
}  // namespace kvl
