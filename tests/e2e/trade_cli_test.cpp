// A trade entered from the command line on the demo league: it shows on both
// rosters, in the picks, the money, the career file and the log, and the
// saved league loads back the same. After the deadline nothing is traded.
#include <gtest/gtest.h>

#include <sstream>

#include "league/league_files.h"
#include "support/found_cli.h"
#include "support/found_file_set.h"
#include "support/league_fixture.h"
#include "transactions/draft_picks.h"
#include "util/record_file.h"

namespace kvl {
namespace {

bool Has(const std::string& text, const std::string& part) { return text.find(part) != std::string::npos; }

template <class R, class F>
void Edit(const std::string& path, std::size_t n, F change) {
  RecordFile f(path, R::kSize);
  R r = f.getRecord<R>(n);
  change(r);
  f.putRecord(n, r);
}

class TradeCli : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_EQ(Run({"--yes", "demo", "--teams", "8"}).status, 0);
    // The demo's new season has no prospects, money or games: give team 0 some.
    Edit<ProspectList>(league + ".pct", 1, [](ProspectList& l) {
      l.Name[0].set("Young Hopeful");
      l.Age[0] = 18;
    });
    Edit<Team>(league + ".tms", 1, [](Team& t) { t.CurFin = 500000; });
    Edit<Player>(league + ".ros", 1, [](Player& p) {
      p.GP = 10;
      p.G = 4;
    });
  }
  test::ProgramRun Run(std::vector<std::string> args) {
    args.insert(args.begin(), {"--home", home.string()});
    return test::RunKvl(args, dir.path() / "io");
  }
  test::Snapshot LeagueFiles() const {
    test::Snapshot all = test::SnapshotDir(home), mine;
    for (auto& [name, bytes] : all)
      if (Has(name, "DemoNext.")) mine[name] = bytes;
    return mine;
  }
  test::TempDir dir;
  fs::path home = dir.path() / "home";
  std::string league = (home / "DemoNext").string();
};

// The first listed first-round pick of the team's offer.
std::string FirstRoundPick(const std::string& listing) {
  std::istringstream in(listing.substr(listing.find("Picks\n")));
  for (std::string line; std::getline(in, line);)
    if (Has(line, " Rnd 1 ")) {
      std::istringstream words(line);
      std::string number, rest;
      words >> number >> std::ws;
      std::getline(words, rest);
      return rest;
    }
  return "";
}

TEST_F(TradeCli, ATradeShowsEverywhereAndSavesAsItLoads) {
  const test::ProgramRun offer = Run({"trade", "0"});
  ASSERT_EQ(offer.status, 0) << offer.err;
  ASSERT_TRUE(Has(offer.out, "Young Hopeful"));
  const std::string pick = FirstRoundPick(offer.out);
  ASSERT_FALSE(pick.empty()) << offer.out;

  std::string a0, a1, b2;
  i32 cashB = 0;
  {
    test::Harness before;  // holds the league's lock until it goes
    LoadLg(before.state, league);
    loadteam(before.state, 0, 0);
    loadteam(before.state, 1, 1);
    a0 = before.state.player(0, 0).Name.str();
    a1 = before.state.player(0, 1).Name.str();
    b2 = before.state.player(1, 2).Name.str();
    cashB = before.state.team(1).CurFin;
  }

  const test::ProgramRun trade = Run({"--yes", "trade", "0", "1", "--a-player", "0", "--a-player", a1, "--a-prospect",
                                      "Young Hopeful", "--a-pick", pick, "--a-cash", "200000", "--b-player", "2"});
  ASSERT_EQ(trade.status, 0) << trade.out << trade.err;

  {
    test::Harness after;
    LoadLg(after.state, league);
    loadteam(after.state, 0, 0);
    loadteam(after.state, 1, 1);
    auto holds = [&](int side, const std::string& name) {
      for (int slot = 0; slot < kRosterSlots; ++slot)
        if (after.state.player(side, slot).Name.str() == name) return true;
      return false;
    };
    EXPECT_TRUE(holds(1, a0) && holds(1, a1) && holds(0, b2));
    EXPECT_FALSE(holds(0, a0) || holds(0, a1) || holds(1, b2));
    EXPECT_EQ(after.state.Prospects[1].Name[0].str(), "Young Hopeful");
    EXPECT_EQ(after.state.team(0).CurFin, 300000);
    EXPECT_EQ(after.state.team(1).CurFin, cashB + 200000);
    int fromA = 0;
    for (const DraftPick& p : ReadDraftPicks(after.state, 1).Pick) fromA += p.Active && p.OrigTeam == 0 ? 1 : 0;
    EXPECT_EQ(fromA, 1);
    RecordFile csr(league + ".csr", CareerRecord::kSize);
    ASSERT_GE(csr.count(), 1u);
    const CareerRecord line = csr.getRecord<CareerRecord>(csr.count());
    EXPECT_EQ(line.P.Name.str(), a0);
    EXPECT_EQ(line.Team, 0);
    EXPECT_EQ(line.P.GP, 10);
    const Bytes tra = ReadFileBytes(league + ".tra");
    const std::string log(tra.begin(), tra.end());
    EXPECT_TRUE(Has(log, "To " + after.state.team(1).Name.str() + ": " + a0 + ", " + a1 + ", Young Hopeful, " + pick +
                             ", $200,000<BR>\r\nTo " + after.state.team(0).Name.str() + ": " + b2 + "<BR>\r\n<BR>\r\n"))
        << log;
  }

  const test::Snapshot saved = LeagueFiles();
  ASSERT_EQ(Run({"--yes", "save"}).status, 0);
  EXPECT_EQ(test::Differences(saved, LeagueFiles()), std::vector<std::string>{});
}

TEST_F(TradeCli, AfterTheDeadlineNothingIsTraded) {
  Edit<League>(league + ".lge", 1, [](League& lg) {
    lg.ScheduleMade = kTrue;
    lg.SeasonOver = kTrue;
  });
  const test::Snapshot files = LeagueFiles();
  const test::ProgramRun run = Run({"--yes", "trade", "0", "1", "--a-player", "0"});
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(Has(run.out + run.err, "Trade Deadline Has Expired"));
  EXPECT_EQ(test::Differences(files, LeagueFiles()), std::vector<std::string>{});
  EXPECT_EQ(Run({"trade-workshop", "0", "1", "--a-player", "0"}).status, 0) << "the workshop judges at any time";
}

TEST_F(TradeCli, EditedPicksAreKeptInOrderAndListedByTheOffice) {
  const std::string pick = FirstRoundPick(Run({"trade", "0"}).out);
  const std::string other =
      pick.substr(0, pick.rfind(' ')) + " " + FirstRoundPick(Run({"trade", "1"}).out).substr(pick.rfind(' ') + 1);
  ASSERT_NE(pick, other);
  const test::ProgramRun edit = Run({"--yes", "edit-draft-picks", "0", "--remove", pick, "--add", other});
  ASSERT_EQ(edit.status, 0) << edit.out << edit.err;
  EXPECT_TRUE(Has(edit.out, "   1  " + other + "\n")) << edit.out;
  EXPECT_FALSE(Has(Run({"trade", "0"}).out, pick));
  EXPECT_EQ(Run({"--yes", "edit-draft-picks", "0", "--add", "2 Rnd 10 " + other.substr(other.rfind(' ') + 1)}).status,
            1);
}

}  // namespace
}  // namespace kvl
