// The published site of a small league after two game days: one kept page
// per page, names that hold markup, and what the flags and the header files
// change.
#include <set>

#include "reports/output_form.h"
#include "sim/game_day.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/sim_league.h"

namespace kvl::test {
namespace {

// Four teams, three days of two games each, `days` of them played.
struct Published : ScheduledLeague {
  explicit Published(const LeaguePlan& plan = SimLeague(4), int days = 2)
      : ScheduledLeague({{0, 1}, {2, 3}, {1, 2}, {3, 0}, {2, 0}, {1, 3}}, plan) {
    Games play(h.state);
    for (int d = 0; d < days; ++d) play.MultipleGames();
  }
  int publish() { return WritePageGroups(h.state, AllPageGroups(), true); }
  fs::path transfer() const { return h.home / "Transfer"; }
  std::set<std::string> files() const {
    std::set<std::string> out;
    for (const auto& e : fs::directory_iterator(transfer())) out.insert(e.path().filename().string());
    return out;
  }
};

// One kept page per group; header files replace the heading, and the waivers
// page takes footer 20.
TEST(Pages, TheSiteAfterTwoDays) {
  Published lg;
  EXPECT_EQ(lg.publish(), 23);
  for (const char* name : {"TeamStats.html", "Standings.html", "Rosters.html", "Leaders.html", "TeamScoring.html",
                           "Injury.html", "Finance.html", "Futures.html", "Schedule.html", "Lines.html",
                           "Individual.html", "Waivers.html", "PlayerVitals.html", "Coaches.html", "Transact.html",
                           "GMs.html", "FarmStandings.html", "FarmLeaders.html", "TransactSeason.html"})
    ExpectGolden(__FILE__, name, lg.page(name));
  WriteText(lg.h.home / "Headers" / "test.hd1", "<P>OUR HEADER</P>\r\n");
  WriteText(lg.h.home / "Headers" / "test.ft11", "<P>NOT THIS</P>\r\n");
  WriteText(lg.h.home / "Headers" / "test.ft20", "<P>WAIVER FOOTER</P>\r\n");
  lg.publish();
  EXPECT_NE(lg.page("Standings.html").find("<P>OUR HEADER</P>\r\n<P>(As of"), std::string::npos);
  EXPECT_EQ(lg.page("Standings.html").find("<H2>Standings</H2>"), std::string::npos);
  EXPECT_NE(lg.page("Waivers.html").find("<P>WAIVER FOOTER</P>\r\n</HTML>"), std::string::npos);
  EXPECT_EQ(lg.page("Waivers.html").find("NOT THIS"), std::string::npos);
}

TEST(Pages, NamesWithMarkupStayText) {
  LeaguePlan plan = SimLeague(4);
  plan.teams[0].Name.set("<b>T&");
  plan.teams[1].Owner.set("<i>owner");
  plan.teams[1].Arena.set("<u>arena");
  plan.header.Conf[0].Name.set("<s>conf");
  plan.rosters[0][0].Name.set("<script>x\"");
  plan.rosters[1][kFirstG].Name.set("<em>goalie");
  plan.coaches[0].Name.set("<tt>coach");
  Published lg(plan);
  lg.publish();
  std::string site;
  for (const std::string& f : lg.files())
    if (f.ends_with(".html")) site += ReadAll(lg.transfer() / f);
  site += ReadAll(lg.h.state.swap(swp::Transactions));
  for (const char* tag : {"<b>T", "<i>owner", "<u>arena", "<s>conf", "<script", "<em>goalie", "<tt>coach"})
    EXPECT_EQ(site.find(tag), std::string::npos) << tag;
  EXPECT_NE(site.find("&lt;b&gt;T&amp;"), std::string::npos);
  EXPECT_NE(site.find("&lt;script&gt;x&quot;"), std::string::npos);
}

TEST(Pages, NoGamesPlayedGivesEmptyTables) {
  Harness h;
  h.load(SimLeague(4));
  EXPECT_EQ(WritePageGroups(h.state, AllPageGroups(), true), 22);  // no schedule, no schedule page
  std::string standings = ReadAll(h.home / "Transfer" / "testStandings.html");
  EXPECT_NE(standings.find(" <A HREF=testRosters.html#Team3>Team3</A>         0   0   0   0   0    0   0   N/A"),
            std::string::npos);
  EXPECT_NE(ReadAll(h.home / "Transfer" / "testTeamStats.html").find("N/A"), std::string::npos);
}

// After game days the stored flags pick the groups: any non-zero flag counts,
// and the tree page waits for the playoffs.
TEST(Pages, AutoOutputWritesTheFlaggedGroups) {
  Published lg(SimLeague(4), 0);
  League& l = lg.h.state.league;
  l.CheckFlags.fill(0);
  l.CheckFlags[1] = 255;
  l.CheckFlags[14] = 1;
  l.OptAutoOutput = kTrue;
  Games(lg.h.state).MultipleGames();
  std::set<std::string> pages;
  for (const std::string& f : lg.files())
    if (f.ends_with(".html") && !std::isdigit(static_cast<unsigned char>(f[4]))) pages.insert(f);
  EXPECT_EQ(pages, (std::set<std::string>{"testCoaches.html", "testFarmStandings.html", "testStandings.html",
                                          "testTodayGames.html"}));
  EXPECT_NE(lg.page("Standings.html").find(" 1   1   0   0   2"), std::string::npos);
}

}  // namespace
}  // namespace kvl::test
