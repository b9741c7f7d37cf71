// The published site of a small league after two game days: one kept page
// per page, texts that hold markup, and what the flags and the header files
// change.
#include <set>

#include "reports/html.h"
#include "reports/output_form.h"
#include "sim/game_day.h"
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/page_markup.h"
#include "support/sim_league.h"
#include "team/cards_email.h"
#include "transactions/free_agents.h"

namespace kvl::test {
namespace {

// Four teams, three days of two games each, `days` of them played after
// `edit` has changed the loaded league.
struct Published : ScheduledLeague {
  explicit Published(const LeaguePlan& plan = SimLeague(4), int days = 2,
                     const std::function<void(LeagueState&)>& edit = {})
      : ScheduledLeague({{0, 1}, {2, 3}, {1, 2}, {3, 0}, {2, 0}, {1, 3}}, plan) {
    if (edit) edit(h.state);
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
  LeaguePlan plan = SimLeague(4);
  plan.rosters[0][1].Hand = 'R';
  plan.rosters[0][2].Hand = 0;  // none stored
  plan.header.OptFarm = kTrue;  // the farm clubs play beside the games: their standings and leaders
  Published lg(plan);
  EXPECT_EQ(lg.publish(), 24);
  // Free agents by position; a goalie's rating of 0 does not apply to him.
  RecordFile db(lg.h.state.swap(swp::Database), DbRecord::kSize);
  Player goalie = MakePlayer("Free Goalie", kGoalie, 60, 0);
  goalie.rating(kSco) = 0;
  db.putRecord(db.count() + 1, DbRecord{0, MakePlayer("Free Centre", kCentre, 55, 0)});
  db.putRecord(db.count() + 1, DbRecord{0, goalie});
  FreeAgents(lg.h.state).cmdOutput();
  for (const char* name : {"TeamStats.html", "Standings.html", "Rosters.html", "Leaders.html", "TeamScoring.html",
                           "Injury.html", "Finance.html", "Futures.html", "Schedule.html", "Lines.html",
                           "Individual.html", "Waivers.html", "PlayerVitals.html", "Coaches.html", "Transact.html",
                           "GMs.html", "FarmStandings.html", "FarmLeaders.html", "TransactSeason.html", "FreeAgents.html", "index.html"})
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

void SetPlayerName(LeagueState& s, int team, int slot, const std::string& text) {
  loadteam(s, team, 0);
  s.player(0, slot).Name.set(text);
  SaveTeam(s, team, 0);
}

// Texts of the league a manager or the commissioner types, each put where a
// page prints it, with markup or an attribute in it.
struct HostileText {
  const char* where;
  std::string text;
  void (*put)(LeagueState& s, const std::string& text);
};
const std::vector<HostileText> kHostile{
    {"team name", "\"a b=c'<i>", [](LeagueState& s, const std::string& t) { s.team(0).Name.set(t); }},
    {"abbreviation", "<i>", [](LeagueState& s, const std::string& t) { s.team(1).Abbrev.set(t); }},
    {"owner", "\" autofocus onfocus=\"f()", [](LeagueState& s, const std::string& t) { s.team(1).Owner.set(t); }},
    {"arena", "<script>alert(1)</script>", [](LeagueState& s, const std::string& t) { s.team(1).Arena.set(t); }},
    {"messenger id", "<img src=x>", [](LeagueState& s, const std::string& t) { s.team(2).ICQ.set(t); }},
    {"e-mail", "p@q.r autofocus onfocus=f()", [](LeagueState& s, const std::string& t) { SetTeamEmail(s, 2, t); }},
    {"coach", "<u onmouseover=f()>",
     [](LeagueState& s, const std::string& t) {
       EditRecord<Coach>(s.swap(swp::Coaches), 1, [&](Coach& c) { c.Name.set(t); });
     }},
    {"farm team", "<b title=x>farm", [](LeagueState& s, const std::string& t) { s.Farm[1].Name.set(t); }},
    {"conference", "<s>c=d x", [](LeagueState& s, const std::string& t) { s.league.Conf[0].Name.set(t); }},
    {"division", "<s d=x>", [](LeagueState& s, const std::string& t) { s.league.Conf[1].Div[0].Name.set(t); }},
    {"player", "<script>x\" y='z", [](LeagueState& s, const std::string& t) { SetPlayerName(s, 0, 0, t); }},
    {"goalie", "<em>goalie", [](LeagueState& s, const std::string& t) { SetPlayerName(s, 1, kFirstG, t); }},
    {"prospect", "<i>prospect",
     [](LeagueState& s, const std::string& t) {
       EditRecord<ProspectList>(s.swap(swp::Prospects), 1, [&](ProspectList& l) { l.Name[0].set(t); });
     }},
    {"free agent", "<b>agent x=\"",
     [](LeagueState& s, const std::string& t) {
       RecordFile db(s.swap(swp::Database), DbRecord::kSize);
       db.putRecord(db.count() + 1, DbRecord{0, MakePlayer(t, kCentre, 50, 0)});
     }},
    {"league name", "<title>x</title>", [](LeagueState& s, const std::string& t) { s.league.LeagueName.set(t); }},
};

// Every page that prints a text of the league parses to the same tags and
// attributes whether the texts hold markup or plain letters, and shows the
// texts as they were typed.
TEST(Pages, TextsOfTheLeagueAddNoMarkup) {
  auto site = [](bool hostile) {
    auto lg = std::make_unique<Published>(SimLeague(4), 2, [hostile](LeagueState& s) {
      for (const HostileText& h : kHostile) h.put(s, hostile ? h.text : std::string(h.text.size(), 'x'));
    });
    FreeAgents(lg->h.state).cmdOutput();
    lg->publish();
    return lg;
  };
  const auto plain = site(false), marked = site(true);
  ASSERT_EQ(marked->files(), plain->files());
  std::string shown;
  for (const std::string& f : plain->files()) {
    if (!f.ends_with(".html")) continue;
    const std::string page = ReadAll(marked->transfer() / f);
    EXPECT_EQ(Markup(page), Markup(ReadAll(plain->transfer() / f))) << f;
    shown += page;
  }
  for (const HostileText& h : kHostile) EXPECT_NE(shown.find(HtmlText(h.text)), std::string::npos) << h.where;
  EXPECT_EQ(DeadLinks(marked->transfer()), std::vector<std::string>{});
}

TEST(Pages, NoGamesPlayedGivesEmptyTables) {
  Harness h;
  h.load(SimLeague(4));
  EXPECT_EQ(WritePageGroups(h.state, AllPageGroups(), true), 23);  // no schedule, no schedule page
  std::string standings = ReadAll(h.home / "Transfer" / "testStandings.html");
  EXPECT_NE(standings.find(" <A HREF=\"testRosters.html#Team3\">Team3</A>         0   0   0   0   0    0   0   N/A"),
            std::string::npos);
  EXPECT_NE(ReadAll(h.home / "Transfer" / "testTeamStats.html").find("N/A"), std::string::npos);
}

// At the end of a run of game days the stored flags pick the groups, written
// once for the run: any non-zero flag counts, and the tree page waits for the
// playoffs.
TEST(Pages, AutoOutputWritesTheFlaggedGroupsOnceARun) {
  Published lg(SimLeague(4), 0);
  League& l = lg.h.state.league;
  l.CheckFlags.fill(0);
  l.CheckFlags[1] = 255;
  l.CheckFlags[14] = 1;
  l.OptAutoOutput = kTrue;
  lg.h.ui.setFallback(Answer::Yes);
  Games(lg.h.state).BulkGameButton(2);
  int written = 0;
  for (const auto& c : lg.h.ui.callsOf("progress")) written += c.text == "Creating Standings Page";
  EXPECT_EQ(written, 1);
  std::set<std::string> pages;
  for (const std::string& f : lg.files())
    if (f.ends_with(".html") && !std::isdigit(static_cast<unsigned char>(f[4]))) pages.insert(f);
  EXPECT_EQ(pages, (std::set<std::string>{"testCoaches.html", "testFarmStandings.html", "testStandings.html",
                                          "testTodayGames.html", "testindex.html", "index.html"}));
  // Written at the run's end: the same page as one written afresh after it.
  const std::string standings = lg.page("Standings.html");
  lg.publish();
  EXPECT_EQ(lg.page("Standings.html"), standings);
}

}  // namespace
}  // namespace kvl::test
