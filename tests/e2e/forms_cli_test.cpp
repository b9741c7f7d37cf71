// The forms the command line reaches, run as a user runs them: every field's edit,
// refusal and limit shows in the card, listing or message a run prints, and the
// runs are kept whole in golden transcripts (golden/forms_*.txt).
#include "support/golden.h"
#include "support/kvl_test.h"
#include "support/league_cli.h"
#include "support/sim_league.h"
#include "support/team_rosters.h"
#include "team/roster_rules.h"
#include "transactions/draft_picks.h"

namespace kvl::test {
namespace {

// Slot 0 a centre, 19 a goalie; each edit stores what fits its field and drops the rest.
TEST(FormsCli, PlayerAndTeamCards) {
  LeaguePlan plan = StandardLeague(4);
  auto& roster = plan.rosters[0];
  roster[19].Plus = 120, roster[19].PIM = 5, roster[19].Shots = 80;  // minutes, goals and shots against
  roster[1].G = 3, roster[1].Shots = 8;
  roster[2].Suspended = 3;
  for (Player& p : plan.rosters[2]) p.Status = p.Status ? 100 : 0;  // nobody dressed: no revenue
  CliLeague lg(plan);
  lg.kvlEach({{"--no", "player", "0", "0", "--set", "Contract=4", "Height=74", "Num=99", "GW=3", "Salary=750000",
               "Spd=77", "Ldr=255", "Weight=300", "Pos=rw", "Status=103", "Birthplace=Sweden", "--hand", "--rookie"},
              {"--yes", "player", "0", "0", "--set", "Salary=-5", "Weight=", "Pos=7", "Age=31", "--release"},
              {"player", "0", "0"},
              {"--yes", "player", "0", "19", "--set", "GW=5"},
              {"player", "0", "1"},
              {"player", "0", "2"},
              {"--no", "player", "0", "3", "--set", "Status=109"},
              {"--yes", "view-team", "0", "--set", "Abbrev=WPGX", "Arena=The Barn", "Seats=60001", "Ticket=256",
               "Owner=R. Smith", "Password=opensesame1", "Email=gm@example.org", "ICQ=123456", "FarmTeam=Moose",
               "CurFin=$-250"},
              {"--yes", "view-team", "0", "--set", "Seats=45000", "CurFin=", "CurFin=-$1000"},  // seats read unsigned
              {"--yes", "view-team", "0", "--set", "Ticket=0"},
              {"view-team", "0"},
              {"view-team", "2"},
              // An abbreviation another team has is refused; a field set on a list of teams, then on all.
              {"--yes", "view-team", "1", "--set", "Abbrev=t02"},
              {"--yes", "view-team", "1,T02", "--set", "Seats=0"},
              {"--yes", "options", "--set", "OptMoney=on"},
              {"--yes", "view-team", "ALL", "--set", "Seats=17000", "Ticket=45"}});
  // A prompt shows the field's value; an empty answer keeps it.
  lg.answered("no\nyes\nWinnipeg Jets\n\n\n\n\n\n\n\n\n\n\nno\n",
              {"view-team", "0",        "--edit", "Name",   "--edit", "Name",   "--edit", "CurFin",  "--edit",
               "Abbrev",    "--edit",   "Arena",  "--edit", "Seats",  "--edit", "Ticket", "--edit",  "Owner",
               "--edit",    "Password", "--edit", "Email",  "--edit", "ICQ",    "--edit", "FarmTeam"});
  lg.answered("\n\n\n\nno\n",
              {"player", "0", "0", "--edit", "Salary", "--edit", "Pos", "--edit", "Birthplace", "--edit", "Weight"});
  lg.expectTranscript(__FILE__, "forms_cards.txt");
}

// A draft of more than 255 picks is cut; the tree chooses the playoff size and
// says so. A number out of its field's range, a text for a number or a choice,
// and a folder longer than its 20 characters are refused, and nothing changes.
TEST(FormsCli, Options) {
  CliLeague lg(StandardLeague(29));
  lg.kvlEach(
      {{"--yes", "options", "--set", "DraftRounds=9", "MinGP=0", "CurrentYear=2027", "OptFarmStreaks=yes",
        "OutputPage16=on", "OutputPage1=off", "OutputDir=/srv/kvl/pages", "RootDir=/kvl", "PlayoffTree=0",
        "LinesDirectory=  /srv/lines  "},
       {"--yes", "options", "--set", "PlayoffTree=1", "LinesDirectory=/srv/lines/", "DraftRounds=8"},
       {"--yes", "options", "--set", "TradeDeadline=255"},
       {"options", "--set", "TradeDeadline=256"},
       {"options", "--set", "UnresAge=28.5"},
       {"options", "--set", "CurrentYear=abc"},
       {"options", "--set", "PlayoffTree=conference"},
       {"options", "--set", "OutputDir=/home/commissioner/league/pages"},
       {"options", "--set", "GoalsLevel=0"},
       {"options", "--set", "PlayoffSize="},
       {"options", "--set", "OptMoney=maybe"},
       {"options", "--set", "Overtime=on"}});
  EXPECT_EQ(ReadAll(lg.home / "LinesDirectory.txt"), "/srv/lines/\r\n");
  Harness h;
  LoadLg(h.state, lg.path);
  // Ticks are stored as 1, the 255 of a new league's page 2 too.
  EXPECT_EQ((std::array{h.state.league.OptFarmStreaks, h.state.league.CheckFlags[2]}), (std::array<u8, 2>{1, 1}));
  lg.expectTranscript(__FILE__, "forms_options.txt");
}

// Team 3 has no coach and coach 4 is free; ratings are kept within 50-99 and a salary is stored doubled.
TEST(FormsCli, Coaches) {
  LeaguePlan plan = StandardLeague(4);
  HireStandardCoaches(plan);
  plan.teams[3].CoachRec = 0;
  plan.teams[3].Coach = TeamCoach{};
  plan.coaches[3].Team = Coach::kNoTeam;
  CliLeague lg(plan);
  for (const char* answer : {"--no", "--yes"})
    lg.kvlEach({{answer, "edit-coach", "1", "--of", "100", "--df", "49", "--ex", "77.4", "--salary", "20000000"},
                {"view-all-coaches"}});
  lg.kvlEach({{"--yes", "edit-coach", "Coach 3", "--salary", "1"},
              {"--yes", "edit-coach", "2", "--of", "90", "--df", "80"},
              {"view-coach", "1"}});
  lg.answered("New Guy\n101\n100\n49\n60\n70\n80\n40000\n50000\n", {"--yes", "create-coach"});
  lg.kvl({"--yes", "create-coach", "--name", "Quitter", "--of", "70"});  // the next prompt is cancelled
  lg.kvlEach({{"--no", "delete-coach", "4"},
              {"--yes", "delete-coach", "4"},
              {"view-all-coaches"},
              {"--no", "hire-coach", "0", "New Guy"},
              {"--yes", "hire-coach", "0", "New Guy"},
              {"view-coach", "0"}});
  lg.note("log: " + ReadAll(lg.path + ".tra"));
  lg.expectTranscript(__FILE__, "forms_coaches.txt");
  EXPECT_EQ(RecordFile(lg.path + ".tms", Team::kSize).getRecord<Team>(1).Coach.Salary, 100000)
      << "the employer's copy of the salary follows the coach file";
}

// A database beside the league: P1..P4 rated 41.., the even ones used; P3 of no position, no hand and no
// scoring rating.
TEST(FormsCli, PlayerDatabase) {
  CliLeague lg(StandardLeague(2));
  const std::string file = (lg.dir.path() / "new.drs").string();
  std::vector<DbRecord> records;
  for (int i = 1; i <= 4; ++i)
    records.push_back({static_cast<i16>(i % 2 ? 0 : -1), MakePlayer("P" + std::to_string(i), i % 5, 40 + i)});
  records[2].P.Pos = 7, records[2].P.Hand = 0, records[2].P.rating(kSco) = 255;
  WriteFileAtomic(file, EncodeRecords(records));
  lg.kvlEach({{"player-database", file, "--list", "--show", "3"},
              {"player-database", file, "--set", "2:Name=Zed Zulu", "2:Birthplace=Finland", "2:Hand=R",
               "2:Salary=$1500", "2:Spd=77", "2:Pos=D", "2:Contract=3", "--show", "2"},
              {"player-database", file, "--set", "2:Hand=X"},
              {"player-database", file, "--set", "2:Salary=-1"},
              {"player-database", file, "--set", "2:Spd=256"},
              {"player-database", file, "--set", "2:Pos=Q"},
              {"player-database", file, "--set", "2:Colour=red"},
              {"player-database", file, "--output", "--add", "--list"},
              {"--no", "player-database", file, "--delete", "2"},
              {"--yes", "player-database", file, "--delete", "2", "--list"},
              {"--no", "player-database", file, "--clear"},
              {"--yes", "player-database", file, "--clear", "--list"}});
  EXPECT_NE(ReadAll(lg.home / "Transfer" / "testPlayers.html").find(" NA "), std::string::npos)
      << "a rating of 255 is shown as NA";
  lg.expectTranscript(__FILE__, "forms_database.txt");
}

// A merge gives the league's namesake the database's values (the salary when asked) and the rest
// become free agents. An update gives namesakes successive records and reaches prospects and free agents.
TEST(FormsCli, DatabaseMergeAndUpdate) {
  CliLeague merged(StandardLeague(2));
  const std::string file = (merged.dir.path() / "new.drs").string();
  Player star = MakePlayer("T0 C 4", kCentre, 88);
  star.Salary = 900000;
  WriteFileAtomic(file, EncodeRecords(std::vector<DbRecord>{{-1, star}, {-1, MakePlayer("Left Over", kCentre, 70)}}));
  merged.answered("no\nyes\n", {"player-database", file, "--merge", "--list"});  // old salaries, and saved
  merged.kvlEach({{"player", "0", "3"},
                  {"edit-players", "--list"},
                  {"--yes", "player-database", file, "--merge"},
                  {"player", "0", "3"}});

  LeaguePlan plan = StandardLeague(2);
  plan.rosters[0][0].Name.set("Twin");
  plan.rosters[0][5].Name.set("Twin");
  plan.rosters[1][0].Name.set("Twin");
  CliLeague updated(plan);
  const std::string ratings = (updated.dir.path() / "ratings.drs").string();
  EditRecord<ProspectList>(updated.path + ".pct", 1, [](ProspectList& l) { l.Name[4].set("Kid"); });
  RecordFile(updated.path + ".drs", DbRecord::kSize).putRecord(2, DbRecord{0, MakePlayer("Free Guy", kCentre, 40)});
  Player kid = MakePlayer("Kid", kDefence, 50);
  kid.Salary = 4000000, kid.Age = 19, kid.Contract = 3;  // 40,000 hundreds: more than the field holds
  WriteFileAtomic(ratings, EncodeRecords(std::vector<DbRecord>{{0, MakePlayer("Twin", kGoalie, 61)},
                                                               {0, MakePlayer("Free Guy", kCentre, 66)},
                                                               {0, MakePlayer("Twin", kGoalie, 63)},
                                                               {0, kid}}));
  updated.kvlEach({{"--no", "update-player-stats", ratings},
                   {"--yes", "update-player-stats", ratings},
                   {"player", "0", "0"},
                   {"player", "0", "5"},
                   {"player", "1", "0"},
                   {"view-prospects", "0"},
                   {"edit-players", "--show", "2"}});
  ExpectGolden(__FILE__, "forms_merge_update.txt", merged.transcript + updated.transcript);
}

// Team 0 sends down a veteran (10 games, a year over the exemption) whom team 2 and then team 1,
// higher on the priority list, claim for the fee before team 0 recalls him.
TEST(FormsCli, WaiversAndFreeAgents) {
  LeaguePlan plan = StandardLeague(4);
  plan.header.MinGP = 10, plan.header.AgeExempt = 25, plan.header.OptWaivers = kTrue;
  plan.rosters[0][0].GP = 10, plan.rosters[0][0].Age = 26;
  for (std::size_t t = 0; t < 4; ++t) plan.teams[t].CurFin = 1000000, plan.teams[t].Priority = u8(t);
  while (plan.rosters[3].size() < kRosterSlots) plan.rosters[3].push_back(MakePlayer("Filler", kCentre, 50, 0));
  CliLeague lg(plan);
  WriteFileAtomic(lg.path + ".pri", Bytes{0, 1, 2, 3});
  lg.answered("yes\nno\nyes\n", {"set-roster", "0", "--scratch", "0", "--farm", "0"});  // not on waivers
  lg.kvlEach({{"--yes", "set-roster", "0", "--farm", "0"},
              {"check-waivers"},
              {"check-waivers", "0"},
              {"--yes", "check-waivers", "2", "--claim", "1"},
              {"view-team", "0"},
              {"check-waivers", "2"},
              {"check-waivers", "3"},
              {"check-waivers", "1"},
              {"view-team", "2"},
              {"--yes", "check-waivers", "1", "--claim", "1"},
              {"view-team", "1"},
              {"view-team", "2"},
              {"--yes", "check-waivers", "0", "--recall", "1"},
              {"view-team", "0"},
              {"view-team", "1"}});
  for (std::size_t n : {2, 3})
    RecordFile(lg.path + ".drs", DbRecord::kSize)
        .putRecord(n, DbRecord{0, MakePlayer(fmt::format("Free Agent {}", n), kCentre, 60, 0)});
  lg.kvlEach({{"free-agents"},
              {"free-agents", "1", "--sign", "2", "--salary", "100000000", "--years", "2"},
              {"free-agents", "1", "--sign", "2", "--salary", "500000", "--years", "11"},
              {"--yes", "free-agents", "1", "--sign", "Free Agent 2", "--salary", "750000", "--years", "3"},
              {"free-agents"},
              {"free-agents", "3", "--sign", "3"}});
  // The salary is asked again until it is whole dollars; "$250,000" is.
  lg.answered("abc\n250k\n$250,000\n3\n", {"--yes", "free-agents", "2", "--sign", "3"});
  lg.note("log: " + ReadAll(lg.path + ".tra"));
  lg.expectTranscript(__FILE__, "forms_waivers.txt");
}

// StandardLeague deals teams round the four divisions: Team2 is in conference 2, division 1.
TEST(FormsCli, Alignment) {
  CliLeague lg(StandardLeague(4));
  lg.answered("\n", {"--yes", "align", "add", "1", "1"});  // an empty name adds nobody
  lg.kvlEach({{"--yes", "align", "add", "2", "1", "Saskatoon Blades"},
              {"--yes", "align", "rename-conference", "2", "Western Conference"},
              {"--yes", "align", "rename-division", "2", "2", "Pacific Northwest"},
              {"--yes", "align", "expansion", "2"},
              {"--no", "align", "move", "0", "2", "2"},
              {"--yes", "align", "move", "0", "2", "2"},
              {"--yes", "align", "divisions", "1", "4"},
              {"--yes", "align", "divisions", "1", "2"},
              {"--yes", "align", "divisions", "2", "1"},
              {"--yes", "align", "divisions", "1", "5"},
              {"align", "show"},
              {"view-team", "4"},
              {"--yes", "align", "expansion", "2", "--clear"},
              {"align", "show"}});
  lg.note("priority: " + fmt::format("{}", fmt::join(ReadFileBytes(lg.path + ".pri"), " ")));
  CliLeague full(StandardLeague(40));
  full.kvlEach({{"--yes", "align", "add", "1", "1", "Never"},
                {"--yes", "align", "add", "2", "3", "Never"},
                {"--yes", "align", "move", "1", "1", "1"}});
  CliLeague most(StandardLeague(50));
  most.kvl({"--yes", "align", "add", "1", "1", "Y"});
  ExpectGolden(__FILE__, "forms_align.txt", lg.transcript + full.transcript + most.transcript);
}

// Team 0 has lines set, a hurt player dressed (slot 2) and a suspended scratch (slot 18); team 1 a
// goalie of team 0's name; team 2 is short everywhere; team 3 has 25 pro players and a hold-out.
TEST(FormsCli, Rosters) {
  LeaguePlan plan = SimLeague(4);
  plan.rosters[0][2].Status = 204;
  plan.rosters[0][18].Suspended = 3;
  plan.rosters[1][21].Name = plan.rosters[0][21].Name;
  plan.rosters[3] = Join({Squad({4, 4, 4, 6, 2}, 70), Squad({1, 1, 1, 1, 1}, 50, 100), Several(kCentre, 2, 41, 0)});
  CliLeague lg(plan);
  lg.kvlEach({{"set-roster", "0", "--dress", "18"},
              {"set-roster", "0", "--farm", "18"},
              {"set-roster", "0", "--scratch", "0", "--dress", "0"},  // sent down in this sitting: stays down
              {"--yes", "set-roster", "0", "--scratch", "1", "--release", "21"},
              {"--yes", "set-roster", "1", "--dress", "18", "--release", "21"},
              {"free-agents"},
              {"--yes", "set-roster", "1", "--protect", "0",  "1",  "2",  "3",  "4",  "5",
               "6",     "7",          "8", "9",         "12", "13", "14", "15", "16", "19"},
              {"set-roster", "1", "--protect", "10"},          // an eleventh forward
              {"set-roster", "1", "--protect", "17"},          // ten forwards leave room for five D
              {"set-roster", "1", "--protect", "20"},          // and one goalie
              {"--yes", "set-roster", "1", "--protect", "0"},  // unmarking, at the limit
              {"set-roster", "3", "--up", "25", "26"}});
  const Team team = RecordFile(lg.path + ".tms", Team::kSize).getRecord<Team>(1);
  EXPECT_EQ(std::count(team.Lines.cells.begin(), team.Lines.cells.end(), 1) +
                std::count(team.Lines.cells.begin(), team.Lines.cells.end(), 2),
            0)
      << "the player sent down and the hurt one leave the lines";
  EXPECT_EQ(team.LinesOK, kFalse);
  EditRecord<Player>(lg.path + ".ros", 3 * kRosterSlots + 21, [](Player& p) { p.Suspended = kHoldOut; });
  lg.kvl({"set-roster", "3", "--up", "25"});
  LeaguePlan shortPlan = StandardLeague(2);
  shortPlan.rosters[1] = Squad({2, 4, 4, 4, 1}, 70, 100);
  CliLeague shortOfAll(shortPlan);
  shortOfAll.kvl({"set-roster", "1", "--auto"});
  ExpectGolden(__FILE__, "forms_rosters.txt", lg.transcript + shortOfAll.transcript);
}

// The league's database holds Ann Ace used (rated 60) and free (77, wearing Team0's number 2),
// and Cal Cole used by the draft for a prospect list (rated 70, on no roster); Team1's roster is full.
TEST(FormsCli, ProspectsActivated) {
  LeaguePlan plan = StandardLeague(2);
  while (plan.rosters[1].size() < kRosterSlots) plan.rosters[1].push_back(MakePlayer("Filler", kDefence, 40, 0));
  CliLeague lg(plan);
  RecordFile db(lg.path + ".drs", DbRecord::kSize);
  db.putRecord(1, DbRecord{kTrue, MakePlayer("Ann Ace", kCentre, 60)});
  DbRecord free{kFalse, MakePlayer("Ann Ace", kCentre, 77)};
  free.P.Num = 2;
  db.putRecord(2, free);
  db.putRecord(3, DbRecord{kTrue, MakePlayer("Cal Cole", kDefence, 70)});
  lg.kvlEach({{"--yes", "view-prospects", "1", "--add", "Ann Ace", "--activate", "Ann Ace"},
              {"view-prospects", "1"},
              {"--yes", "view-prospects", "0", "--add", "Ann Ace", "--add", "Bob Blue", "--activate", "Ann Ace"},
              {"--yes", "view-prospects", "0", "--activate", "Bob Blue"},
              {"--yes", "view-prospects", "0", "--pos", "X", "--add", "Dan Dale"},
              {"--yes", "view-prospects", "0", "--pos", "D", "--age", "19", "--add", "Dan Dale", "--add", "Cal Cole"},
              {"--yes", "view-prospects", "0", "--activate", "Bob Blue", "--manual", ""},
              {"--yes", "view-prospects", "0", "--activate", "Dan Dale", "--manual", ""},
              {"--yes", "view-prospects", "0", "--activate", "Cal Cole"},  // his own record, used by the draft
              {"player", "0", "24"},
              {"player", "0", "25"},
              {"player", "0", "26"},
              {"player", "0", "27"},
              {"--yes", "view-prospects", "0", "--add", "Ann Ace", "--activate", "Ann Ace"}});  // her record is used
  lg.note("log: " + ReadAll(lg.path + ".tra"));
  lg.expectTranscript(__FILE__, "forms_youth.txt");
}

// Three draft rounds; each team has $1,000,000 and a prospect; teams 2 and 3 have full rosters and
// team 3 a full prospect list. Pick values: 5000 for this year's first round, a prospect 1750,
// and $100 of cash a point.
TEST(FormsCli, TradeOffice) {
  LeaguePlan plan = StandardLeague(4);
  plan.header.DraftRounds = 3;
  plan.header.CurrentYear = 2026;
  for (auto& t : plan.teams) t.CurFin = 1000000;
  for (std::size_t t : {2, 3})
    while (plan.rosters[t].size() < kRosterSlots) plan.rosters[t].push_back(MakePlayer("Filler", kDefence, 40, 0));
  CliLeague lg(plan);
  WriteFileAtomic(lg.path + ".dpk",
                  EncodeRecords(std::vector{NewDraftPicks(0), NewDraftPicks(1), NewDraftPicks(2), NewDraftPicks(3)}));
  for (std::size_t t = 0; t < 4; ++t)
    EditRecord<ProspectList>(lg.path + ".pct", t + 1, [t](ProspectList& l) {
      for (std::size_t i = 0; i < (t == 3 ? kMaxProspects : 1); ++i)
        l.Name[i].set(fmt::format("Prospect {}", i)), l.Age[i] = 18;
    });
  lg.kvlEach(
      {{"trade", "0"},
       {"trade", "0", "1", "--a-pick", "2027 Rnd 1 T00", "--assess"},
       {"trade", "0", "1", "--a-pick", "2027 Rnd 1 T00", "--b-prospect", "0", "--b-cash", "325000", "--assess"},
       {"trade", "0", "1", "--a-pick", "2027 Rnd 1 T00", "--b-prospect", "0", "--b-cash", "$345,000", "--assess"},
       {"trade", "0", "1", "--a-cash", "-5"},
       {"trade", "0", "1", "--a-cash", "lots"},
       {"trade", "0", "1", "--a-cash", "3000000000"},
       {"trade", "0", "1", "--a-cash", "2000000", "--assess"},
       {"trade", "0", "1", "--a-player", "40"},
       {"trade", "0", "1", "--a-prospect", "3"},
       {"trade", "0", "1", "--a-pick", "60"},
       {"trade", "2", "2", "--a-player", "0"},
       {"trade", "2", "3", "--a-player", "0", "--a-prospect", "0", "--b-player", "0", "--b-player", "1"},
       {"trade", "2", "3", "--a-player", "0", "--a-prospect", "0", "--b-player", "0"},
       {"--yes", "trade", "2", "3", "--a-player", "0", "--b-player", "0"},
       {"--yes", "trade", "0", "1", "--a-pick", "2027 Rnd 1 T00"},
       {"edit-draft-picks", "0"},
       {"trade", "1"},
       {"edit-draft-picks", "1", "--add", "2033 Rnd 1 T00"},
       {"edit-draft-picks", "1", "--add", "2027 Rnd 10 T00"},
       {"edit-draft-picks", "1", "--add", "2027 Rnd 1 T07"},
       {"edit-draft-picks", "1", "--remove", "60"},
       {"--no", "edit-draft-picks", "1", "--remove", "5"}});
  lg.expectTranscript(__FILE__, "forms_trade.txt");
}

}  // namespace
}  // namespace kvl::test
