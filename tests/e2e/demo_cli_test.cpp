// The demo league from the command line: made the same twice from one seed, then
// traded on, drafted on and expanded as a commissioner would, every run kept in a
// golden transcript.
#include <sstream>

#include "support/found_file_set.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/league_cli.h"
#include "support/page_markup.h"
#include "transactions/draft_list.h"
#include "transactions/draft_picks.h"

namespace kvl::test {
namespace {

// One eight-team demo for the whole file, made once; each test works on a copy.
const fs::path& DemoHome() {
  static CliLeague demo;
  static const bool made = demo.kvl({"--seed", "7", "demo", "--teams", "8"}).status == 0;
  EXPECT_TRUE(made) << demo.transcript;
  return demo.home;
}

// A copy of the demo home with `league` (DemoNext, DemoRerated, ...) opened by every run.
struct DemoCopy : CliLeague {
  explicit DemoCopy(const std::string& league) {
    fs::copy(DemoHome(), home, fs::copy_options::recursive);
    path = (home / league).string();
  }
  Snapshot files() const { return SnapshotDir(home, fs::path(path).filename().string() + "."); }
  template <class R, class F>
  void edit(const std::string& ext, std::size_t n, F change) {
    EditRecord<R>(path + ext, n, change);
  }
};

// The first pick a team's offer lists, as listed.
std::string FirstPick(const std::string& offer) {
  std::istringstream in(offer.substr(offer.find("Picks\n") + 6));
  std::string number, label;
  in >> number >> std::ws;
  std::getline(in, label);
  return label;
}

TEST(DemoCli, TheSameSeedMakesTheSameLeague) {
  CliLeague again;
  ASSERT_EQ(again.kvl({"demo", "--teams", "8", "--seed", "7"}).status, 0);
  EXPECT_EQ(SnapshotDir(again.home, "Demo"), SnapshotDir(DemoHome(), "Demo"));
  again.kvlEach({{"info"}, {"view-all-coaches"}, {"view-team", "0"}, {"view-team", "7"}});
  // The season played, at a glance.
  const std::string season = (again.home / "Demo").string();
  again.kvlEach({{"--league", season, "standings"},
                 {"--league", season, "standings", "--by", "league", "--csv"},
                 {"--league", season, "leaders", "--top", "3"},
                 {"--league", season, "leaders", "--category", "save", "--top", "3"},
                 {"find-player", "SJOBERG"},
                 {"free-agents", "--pos", "d", "--sort", "age", "--top", "3"},
                 {"free-agents", "--sort", "salary", "--top", "2", "--csv"}});
  again.kvl({"demo", "--teams", "51"});
  again.kvl({"demo", "--help"});
  again.expectTranscript(__FILE__, "demo.txt");
}

// Team 0 gives two players, a prospect, a pick and cash for one player; the trade
// shows on both rosters, the prospects, the picks, the money and the logs, and
// the saved league loads back the same.
TEST(DemoCli, ATradeShowsEverywhereAndSavesAsItLoads) {
  DemoCopy lg("DemoNext");
  lg.edit<ProspectList>(".pct", 1, [](ProspectList& l) {
    l.Name[0].set("Young Hopeful");
    l.Age[0] = 18;
  });
  lg.edit<Team>(".tms", 1, [](Team& t) { t.CurFin = 500000; });
  lg.edit<Player>(".ros", 1, [](Player& p) { p.GP = 10, p.G = 4; });
  const std::string pick = FirstPick(lg.kvl({"trade", "0"}).out);
  lg.kvl({"--yes", "trade", "0", "1", "--a-player", "0", "--a-player", "1", "--a-prospect", "Young Hopeful", "--a-pick",
          pick, "--a-cash", "200000", "--b-player", "2"});
  lg.kvlEach({{"set-roster", "0"},
              {"set-roster", "1"},
              {"view-prospects", "1"},
              {"view-team", "0"},
              {"view-team", "1"},
              {"edit-draft-picks", "1"}});
  const std::string log = ReadAll(lg.path + ".tra");
  lg.note("the log ends: " + log.substr(log.rfind("<BR><BR>\r\n") + 10));
  RecordFile csr(lg.path + ".csr", CareerRecord::kSize);
  ASSERT_GE(csr.count(), 1u);
  const CareerRecord line = csr.getRecord<CareerRecord>(csr.count());
  lg.note(fmt::format("career: {} of team {}, {} GP", line.P.Name.str(), line.Team, line.P.GP));
  const Snapshot saved = lg.files();
  lg.kvl({"--yes", "save"});
  EXPECT_EQ(Differences(saved, lg.files()), std::vector<std::string>{});
  // On the team scoring page his season is split: the line of the team he left, then his new team's.
  lg.kvl({"output-html", "--pages", "teamscoring"});
  std::istringstream scoring(ReadAll(lg.home / "Transfer" / "DemoNextTeamScoring.html"));
  std::string rows;
  for (std::string row; std::getline(scoring, row);)
    if (row.find(line.P.Name.str()) != std::string::npos) rows += row + "\n";
  EXPECT_EQ(std::count(rows.begin(), rows.end(), '\n'), 2) << rows;
  lg.note("his rows on the team scoring page:\n" + rows);
  lg.expectTranscript(__FILE__, "trade.txt");
}

TEST(DemoCli, EditedPicksAndTheDeadline) {
  DemoCopy lg("DemoNext");
  const std::string pick = FirstPick(lg.kvl({"trade", "0"}).out);
  const std::string other =
      pick.substr(0, pick.rfind(' ')) + " " + RecordFile(lg.path + ".tms", Team::kSize).getRecord<Team>(2).Abbrev.str();
  lg.kvl({"--yes", "edit-draft-picks", "0", "--remove", pick, "--add", other});
  lg.kvl({"--yes", "edit-draft-picks", "0", "--add", "2 Rnd 10 " + other.substr(other.rfind(' ') + 1)});
  lg.kvl({"trade", "0"});
  lg.edit<League>(".lge", 1, [](League& header) { header.ScheduleMade = header.SeasonOver = kTrue; });
  const Snapshot files = lg.files();
  lg.kvl({"--yes", "trade", "0", "1", "--a-player", "0"});
  EXPECT_EQ(Differences(files, lg.files()), std::vector<std::string>{});
  lg.kvl({"trade-workshop", "0", "1", "--a-player", "0"});  // the workshop judges at any time
  lg.expectTranscript(__FILE__, "picks_and_deadline.txt");
}

// A whole entry draft from a list file after the playoffs, then an expansion team
// added with the alignment, stocked by the expansion draft, and the schedule made.
TEST(DemoCli, AnEntryDraftThenAnExpansionTeamStockedAndScheduled) {
  DemoCopy lg("DemoRerated");
  Harness before;
  LoadLg(before.state, lg.path);
  before.state.leagueLock.release();
  const int teams = before.state.numTeams(), rounds = before.state.league.DraftRounds;
  // The first 100 names of the database that no team holds; left out: a blank line, a name twice (the
  // second on a line of two), a player a team holds, a name too long and one not in the database.
  std::vector<std::string> free;
  std::string held;
  RecordFile db(lg.path + ".drs", DbRecord::kSize);
  for (std::size_t n = 1; n <= db.count() && free.size() < 100; ++n)
    if (const DbRecord r = db.getRecord<DbRecord>(n); !r.P.empty())
      (r.DbFlag ? held : free.emplace_back()) = r.P.Name.str();
  std::string list = free[0] + "\r\n\n\"" + free[1] + "\", " + free[0] + "\n" + held + "\n" + free[2] + "xxxxxxxxxx\n";
  for (std::size_t i = 2; i < free.size(); ++i) list += free[i] + "\n";
  WriteText(lg.dir.path() / "list.txt", list + "Nobody Atall\n");
  // Four teams out of the playoffs draw the lottery; teams 0 and 1 swap their first picks.
  lg.edit<League>(".lge", 1, [](League& l) { l.PlayoffSize = 2; });
  const std::string a = FirstPick(lg.kvl({"trade", "0"}).out), b = FirstPick(lg.kvl({"trade", "1"}).out);
  lg.transcript.clear();  // the two offers are drafts.txt's no business
  lg.kvl({"--yes", "trade", "0", "1", "--a-pick", a, "--b-pick", b});
  lg.kvlEach({{"--seed", "3", "--yes", "entry-draft", "--list", (lg.dir.path() / "list.txt").string()},
              {"--yes", "entry-draft", "--auto", "3"},
              {"draft-tool", "--output"}});
  const std::string during = ReadAll(lg.home / "Transfer" / "DemoReratedEntryDraft.html");
  lg.note("the page, while the draft is on: " + during.substr(0, during.find("<H3>Round 1")));
  lg.kvl({"--yes", "continue-entry-draft", "--auto", "1000"});

  Harness after;
  LoadLg(after.state, lg.path);
  after.state.leagueLock.release();
  EXPECT_FALSE(after.state.league.EntryDraftOn);
  std::size_t made = 0;
  for (const DraftListRecord& r : ReadDraftList(after.state)) made += r.FieldA != 0;
  EXPECT_EQ(made, static_cast<std::size_t>(teams * rounds));
  // Every pick of a later year came a year nearer; a new year was added.
  auto count = [](const DraftPickRecord& r, int y) {
    return std::count_if(r.Pick.begin(), r.Pick.end(),
                         [&](const DraftPick& p) { return p.Active && p.CurrentYear == y; });
  };
  for (int t = 0; t < teams; ++t)
    for (int year = 0; year < kPickYears; ++year)
      EXPECT_EQ(count(ReadDraftPicks(after.state, t), year),
                year + 1 < kPickYears ? count(ReadDraftPicks(before.state, t), year + 1) : kPickRounds)
          << "team " << t;
  const std::string page = ReadAll(lg.home / "Transfer" / "DemoReratedEntryDraft.html");
  EXPECT_NE(page.find("<H3>Round " + std::to_string(rounds) + "</H3>"), std::string::npos) << page.substr(0, 200);

  lg.kvlEach({{"--yes", "align", "add", "1", "1", "Newport"},
              {"--yes", "align", "expansion", "Newport"},
              {"--yes", "make-schedule"},  // an empty expansion team
              {"--yes", "expansion-draft", "--auto", "--output"},
              {"--yes", "make-schedule"},
              {"free-agents", "--output"},
              {"output-html"}});
  EXPECT_TRUE(fs::exists(lg.home / "Transfer" / "DemoReratedExpansionDraft.html"));
  const std::string index = ReadAll(lg.home / "Transfer" / "DemoReratedindex.html");
  for (const char* page : {"EntryDraft.html", "ExpansionDraft.html", "FreeAgents.html"})
    EXPECT_NE(index.find(std::string("\"DemoRerated") + page + "\""), std::string::npos) << page;
  EXPECT_EQ(DeadLinks(lg.home / "Transfer"), std::vector<std::string>{});
  lg.expectTranscript(__FILE__, "drafts.txt");
}

// The season and its playoffs as published: a schedule page for each round
// and none past the final, a tree of the rounds played, every page linked from
// its league's index, and every link leading to a page written.
TEST(DemoCli, ThePublishedSeasonAndPlayoffsLinkUp) {
  const fs::path transfer = DemoHome() / "Transfer";
  EXPECT_EQ(DeadLinks(transfer), std::vector<std::string>{});
  // Eight teams send four a conference: three rounds.
  for (int r = 1; r <= 4; ++r)
    EXPECT_EQ(fs::exists(transfer / fmt::format("DemoPLF-Round{}-Schedule.html", r)), r <= 3) << "round " << r;
  const std::string tree = ReadAll(transfer / "DemoPLFStandingsTree.html");
  EXPECT_NE(tree.find("Round 3"), std::string::npos);
  EXPECT_EQ(tree.find("Round 4"), std::string::npos);
  EXPECT_EQ(ReadAll(transfer / "DemoStandingsTree.html").find("Round"), std::string::npos);  // before the playoffs
  for (const char* league : {"DemoPLF", "Demo"}) {
    const std::vector<std::string> linked = AttributeValues(ReadAll(transfer / (league + std::string("index.html"))), "HREF");
    for (const auto& e : fs::directory_iterator(transfer)) {
      const std::string name = e.path().filename().string();
      const bool ofLeague = name.starts_with(league) && (league != std::string("Demo") || !name.starts_with("DemoPLF"));
      if (!ofLeague || !name.ends_with(".html") || name == league + std::string("index.html")) continue;
      EXPECT_NE(std::find(linked.begin(), linked.end(), name), linked.end()) << name << " is not in the index";
    }
  }
  EXPECT_EQ(AttributeValues(ReadAll(transfer / "index.html"), "HREF"), std::vector<std::string>{"DemoPLFindex.html"});
}

}  // namespace
}  // namespace kvl::test
