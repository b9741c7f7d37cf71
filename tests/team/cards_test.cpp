// The player and team cards: prompts, what each answer stores, and the
// revenue estimate.
#include <gtest/gtest.h>

#include "league/league_files.h"
#include "support/league_fixture.h"
#include "team/cards.h"
#include "team/cards_email.h"

namespace kvl {
namespace {

using test::Harness;

const PlayerField& PField(const std::string& name) {
  for (const auto& f : PlayerFields())
    if (f.name == name) return f;
  throw std::logic_error("no player field " + name);
}

const TeamField& TField(const std::string& name) {
  for (const auto& f : TeamFields())
    if (f.name == name) return f;
  throw std::logic_error("no team field " + name);
}

// Team 0 loaded in side 0 with the card's player chosen.
class Cards : public ::testing::Test {
 protected:
  void SetUp() override {
    h.load(test::StandardLeague(4));
    loadteam(h.state, 0, 0);
    h.state.CurTeam = 0;
  }
  PlayerCard CardOf(int slot) {
    h.state.CurPlayer = static_cast<u8>(slot);
    return PlayerCard(h.state, 0);
  }
  Harness h;
};

struct PlayerEdit {
  const char* field;
  int slot;  // 0 a centre, 19 a goalie
  const char* answer;
  const char* prompt;
  const char* title;
  int (*read)(const Player&);
  int expected;  // the field afterwards
};

class PlayerEdits : public Cards, public ::testing::WithParamInterface<PlayerEdit> {};

TEST_P(PlayerEdits, PromptAndStore) {
  const auto& e = GetParam();
  PlayerCard card = CardOf(e.slot);
  int before = e.read(card.player());
  h.ui.push(e.answer);
  bool accepted = card.edit(PField(e.field));
  ASSERT_EQ(h.ui.callsOf("prompt").size(), 1u);
  EXPECT_EQ(h.ui.callsOf("prompt")[0].text, e.prompt);
  EXPECT_EQ(h.ui.callsOf("prompt")[0].title, e.title);
  EXPECT_EQ(e.read(card.player()), e.expected);
  EXPECT_EQ(accepted, e.expected != before);
  EXPECT_EQ(card.changed(), accepted);
  EXPECT_EQ(e.read(h.state.player(0, e.slot)), before);  // the buffer waits for SaveChanges
}

int Contract(const Player& p) { return p.Contract; }
int Gw(const Player& p) { return p.GW; }
int Pp(const Player& p) { return p.PP; }
int Salary(const Player& p) { return p.Salary; }
int Spd(const Player& p) { return p.rating(kSpd); }
int Ldr(const Player& p) { return p.rating(kLdr); }
int Weight(const Player& p) { return p.Weight; }
int Pos(const Player& p) { return p.Pos; }
int Height(const Player& p) { return p.Height; }
int Status(const Player& p) { return p.Status; }
int Num(const Player& p) { return p.Num; }

INSTANTIATE_TEST_SUITE_P(
    Cards, PlayerEdits,
    ::testing::Values(
        PlayerEdit{"Contract", 0, "4", "Enter New Contract Length", "Edit Player", Contract, 4},
        PlayerEdit{"GW", 0, "3", "Enter New Value for Shutouts", "Edit Player", Gw, 3},
        PlayerEdit{"GW", 19, "5", "Enter New Value for Shutouts", "Edit Player", Pp, 5},  // a goalie's shutouts
        PlayerEdit{"Salary", 0, "750000", "Enter New Pro Salary", "New Salary", Salary, 750000},
        PlayerEdit{"Salary", 0, "-5", "Enter New Pro Salary", "New Salary", Salary, 500000},
        PlayerEdit{"Spd", 0, "77", "New Rating", "Change Player Rating", Spd, 77},
        PlayerEdit{"Ldr", 0, "255", "New Rating", "Change Player Rating", Ldr, 255},  // no such rating
        PlayerEdit{"Weight", 0, "201", "Enter Player Weight", "Player Weight", Weight, 201},
        PlayerEdit{"Weight", 0, "300", "Enter Player Weight", "Player Weight", Weight, 190},  // not a byte
        PlayerEdit{"Weight", 0, "", "Enter Player Weight", "Player Weight", Weight, 190},     // empty
        PlayerEdit{"Pos", 0, "rw", "Enter New Position (C, LW, RW, D or G)", "Edit Player", Pos, kRightWing},
        PlayerEdit{"Pos", 0, "7", "Enter New Position (C, LW, RW, D or G)", "Edit Player", Pos, kCentre},
        PlayerEdit{"Height", 0, "74", "Enter New Height in Inches", "Edit Player", Height, 74},
        PlayerEdit{"Num", 0, "99", "Enter New Sweater Number", "Edit Player", Num, 99},
        PlayerEdit{"Status", 0, "103",
                   "Enter New Status (0 minors, 100 pro roster, 200 dressed, plus the injury class)", "Edit Player",
                   Status, 103}));

TEST_F(Cards, BirthplaceKeepsThreeLetters) {
  PlayerCard card = CardOf(0);
  h.ui.push("Sweden");
  ASSERT_TRUE(card.edit(PField("Birthplace")));
  EXPECT_EQ(h.ui.callsOf("prompt")[0].text, "Enter New Birthplace (3 letters)");
  EXPECT_EQ(card.player().Birthplace.raw(), "Swe");
}

TEST_F(Cards, HandAndExperienceToggle) {
  PlayerCard card = CardOf(0);
  card.lblHD();
  card.lblExp();
  EXPECT_EQ(card.player().Hand, 'R');
  EXPECT_TRUE(card.player().Rookie);
  EXPECT_NE(card.Text().find("Rookie  Shoots R"), std::string::npos) << card.Text();
  card.lblHD();
  card.lblExp();
  EXPECT_EQ(card.player().Hand, 'L');
  EXPECT_EQ(card.player().Rookie, kFalse);
  EXPECT_TRUE(card.changed());
}

TEST_F(Cards, ReleaseIsAskedAndKeptWhenTheCardIsKept) {
  PlayerCard card = CardOf(3);
  h.ui.push("yes");  // release
  h.ui.push("yes");  // keep changes
  ASSERT_TRUE(card.cmdRelease());
  EXPECT_EQ(h.ui.callsOf("ask")[0].text, "Release T0 C 4?");
  EXPECT_EQ(h.ui.callsOf("ask")[0].title, "Release Player");
  card.Close();
  loadteam(h.state, 0, 1);
  EXPECT_EQ(h.state.player(1, 3).Release, 1);
  EXPECT_TRUE(h.state.Dirty);
}

TEST_F(Cards, ClosingAsksAndOnlyYesWritesTheTeam) {
  for (const char* answer : {"no", "yes"}) {
    PlayerCard card = CardOf(0);
    card.edit(PField("Age"), std::string("31"));
    h.ui.push(answer);
    card.Close();
    EXPECT_EQ(h.ui.callsOf("ask").back().text, "Keep Changes?");
    EXPECT_EQ(h.ui.callsOf("ask").back().title, "Keep Changes");
    loadteam(h.state, 0, 1);
    EXPECT_EQ(h.state.player(1, 0).Age, std::string(answer) == "yes" ? 31 : 25) << answer;
  }
}

TEST_F(Cards, UnchangedCardClosesWithoutAsking) {
  CardOf(0).Close();
  EXPECT_TRUE(h.ui.calls().empty());
}

struct ShownCase {
  const char* name;
  void (*craft)(Player&);
  const char* shown;
};

class PlayerShown : public Cards, public ::testing::WithParamInterface<ShownCase> {};

TEST_P(PlayerShown, CardText) {
  const auto& c = GetParam();
  c.craft(h.state.player(0, 19));
  std::string text = CardOf(19).Text();
  EXPECT_NE(text.find(c.shown), std::string::npos) << text;
}

INSTANTIATE_TEST_SUITE_P(
    Cards, PlayerShown,
    ::testing::Values(
        ShownCase{"Short", [](Player& p) { p.Height = 60; }, "Height 5 ft 6 "},
        ShownCase{"Tall", [](Player& p) { p.Height = 73; }, "Height 6 ft 1 "},
        ShownCase{"NoRating", [](Player& p) { p.rating(kSco) = 255; }, "Sco n/a"},
        ShownCase{"Injured", [](Player& p) { p.Status = 203; }, "Status Injured 2-4 weeks"},
        ShownCase{"LongInjury", [](Player& p) { p.Status = 109; }, "Status Injured indefinitely"},
        ShownCase{"Suspended", [](Player& p) { p.Suspended = 3; }, "Status Suspended 3 games"},
        ShownCase{"Healthy", [](Player&) {}, "Status Healthy"},
        ShownCase{"GoalieUnused", [](Player&) {}, "GAA N/A  As 0  SO 0  Sv% N/A"},
        ShownCase{"GoalieFigures",
                  [](Player& p) {
                    p.Plus = 120;  // minutes
                    p.PIM = 5;     // goals against
                    p.Shots = 80;  // shots against
                  },
                  "GA 5  GAA 2.50  As 0  SO 0  Sv% 0.938"},
        ShownCase{"Skater",
                  [](Player& p) {
                    p.Pos = kCentre;
                    p.G = 3;
                    p.Shots = 8;
                  },
                  "Sh% 37.5"},
        ShownCase{"SkaterNoShots", [](Player& p) { p.Pos = kCentre; }, "Sh% N/A"}),
    [](const auto& i) { return std::string(i.param.name); });

struct TeamEdit {
  const char* field;
  const char* answer;
  const char* prompt;
  const char* title;
  std::string (*read)(const TeamCard&);
  const char* expected;
};

class TeamEdits : public Cards, public ::testing::WithParamInterface<TeamEdit> {};

TEST_P(TeamEdits, PromptAndStore) {
  const auto& e = GetParam();
  TeamCard card(h.state, 0);
  h.ui.push(e.answer);
  card.edit(TField(e.field));
  ASSERT_EQ(h.ui.callsOf("prompt").size(), 1u);
  EXPECT_EQ(h.ui.callsOf("prompt")[0].text, e.prompt);
  EXPECT_EQ(h.ui.callsOf("prompt")[0].title, e.title);
  EXPECT_EQ(e.read(card), e.expected);
}

std::string Abbrev(const TeamCard& c) { return c.team().Abbrev.raw(); }
std::string Arena(const TeamCard& c) { return c.team().Arena.str(); }
std::string Seats(const TeamCard& c) { return std::to_string(static_cast<u16>(c.team().Seats)); }
std::string Ticket(const TeamCard& c) { return std::to_string(c.team().Ticket); }
std::string Owner(const TeamCard& c) { return c.team().Owner.str(); }
std::string Password(const TeamCard& c) { return c.team().Password.raw(); }
std::string Email(const TeamCard& c) { return c.email(); }
std::string Icq(const TeamCard& c) { return c.team().ICQ.str(); }
std::string Farm(const TeamCard& c) { return c.farm().Name.str(); }
std::string Cash(const TeamCard& c) { return std::to_string(c.team().CurFin); }

constexpr const char* kCash = "Adjust Team0 cash by how much?\n(prefix - for deductions)";

INSTANTIATE_TEST_SUITE_P(
    Cards, TeamEdits,
    ::testing::Values(TeamEdit{"Abbrev", "WPGX", "New Abbreviation", "Change Abbreviation", Abbrev, "WPG"},
                      TeamEdit{"Arena", "The Barn", "New Arena Name", "Change Arena Name", Arena, "The Barn"},
                      TeamEdit{"Seats", "45000", "New Arena Capacity", "Change Arena Capacity", Seats, "45000"},
                      TeamEdit{"Seats", "60001", "New Arena Capacity", "Change Arena Capacity", Seats, "15000"},
                      TeamEdit{"Ticket", "0", "New Ticket Price", "Change Ticket Price", Ticket, "0"},
                      TeamEdit{"Ticket", "256", "New Ticket Price", "Change Ticket Price", Ticket, "40"},
                      TeamEdit{"Owner", "R. Smith", "New Owner Name", "Change Team Owner", Owner, "R. Smith"},
                      TeamEdit{"Password", "opensesame1", "New Password", "Change Password", Password, "opensesame"},
                      TeamEdit{"Email", "gm@example.org", "New Email Address", "Change Team Email", Email, "gm@example.org"},
                      TeamEdit{"ICQ", "123456", "New Instant Messenger ID", "Change IM ID", Icq, "123456"},
                      TeamEdit{"FarmTeam", "Moose", "New name for farm team", "Change Farm Team", Farm, "Moose"},
                      TeamEdit{"CurFin", "2500", kCash, "Adjust Money", Cash, "2500"},
                      TeamEdit{"CurFin", "-$5000", kCash, "Adjust Money", Cash, "-5000"},
                      TeamEdit{"CurFin", "$-250", kCash, "Adjust Money", Cash, "-250"},
                      TeamEdit{"CurFin", "-75", kCash, "Adjust Money", Cash, "-75"},
                      TeamEdit{"CurFin", "", kCash, "Adjust Money", Cash, "0"}));

TEST_F(Cards, TeamNameIsAskedFirstThenPrompted) {
  TeamCard card(h.state, 0);
  h.ui.push("no");
  EXPECT_FALSE(card.edit(TField("Name")));
  EXPECT_TRUE(h.ui.callsOf("prompt").empty());
  h.ui.push("yes");
  h.ui.push("Winnipeg Jets");
  ASSERT_TRUE(card.edit(TField("Name")));
  EXPECT_EQ(h.ui.callsOf("ask").back().title, "Change team name?");
  EXPECT_EQ(h.ui.callsOf("prompt")[0].text, "What is the new name?");
  EXPECT_EQ(h.ui.callsOf("prompt")[0].title, "New Team Name");
  EXPECT_EQ(card.team().Name.raw(), "Winnipeg J");
}

TEST_F(Cards, KeptTeamCardWritesTeamFarmAndEmail) {
  TeamCard card(h.state, 0);
  card.edit(TField("FarmTeam"), std::string("Moose"));
  card.edit(TField("Email"), std::string("gm@example.org"));
  card.edit(TField("CurFin"), std::string("-$1000"));
  h.ui.push("yes");
  card.Close();
  EXPECT_EQ(h.state.Farm[0].Name.str(), "Moose");
  EXPECT_EQ(h.state.team(0).CurFin, -1000);
  EXPECT_EQ(TeamEmail(h.state, 0), "gm@example.org");
  EXPECT_NE(card.Text().find("Cash -$1,000"), std::string::npos) << card.Text();
  EXPECT_TRUE(h.state.Dirty);
}

TEST_F(Cards, EstimateOnTheCardFollowsItsEditedPrice) {
  TeamCard card(h.state, 0);
  card.edit(TField("Ticket"), std::string("0"));
  EXPECT_NE(card.Text().find("Estimated revenue $0\n"), std::string::npos) << card.Text();
  EXPECT_GT(EstimatedRevenue(h.state, 0, 0), 0);  // the team itself is unchanged until kept
}

struct RevenueCase {
  const char* name;
  int ticket, seats;
  int skaterLevel, goalieLevel;  // ratings of every dressed player
  int expected;
};

class Revenue : public Cards, public ::testing::WithParamInterface<RevenueCase> {};

// Skaters with every rating at L have Overall L + 5; a goalie at 68 has 65 and
// at 82 has 78. Worked by hand: ticket 1 gives a gate of 114% of the seats;
// 32^1.1 = 2^5.5 = 45.25, so a gate of 69.745% of the seats.
TEST_P(Revenue, FollowsPriceSeatsAndDressedQuality) {
  const auto& c = GetParam();
  Team& t = h.state.team(0);
  t.Ticket = static_cast<u8>(c.ticket);
  t.Seats = static_cast<i16>(static_cast<u16>(c.seats));
  for (int slot = 0; slot < kRosterSlots; ++slot) {
    Player& p = h.state.player(0, slot);
    for (int r = 0; r < 13; ++r) p.rating(r) = static_cast<u8>(p.Pos == kGoalie ? c.goalieLevel : c.skaterLevel);
  }
  EXPECT_EQ(EstimatedRevenue(h.state, 0, 0), c.expected);
}

INSTANTIATE_TEST_SUITE_P(
    Cards, Revenue,
    ::testing::Values(RevenueCase{"MeanOf65FillsTheGate", 1, 10000, 60, 68, 2736},        // 11400 x 0.24
                      RevenueCase{"BetterTeamDrawsMore", 1, 10000, 73, 82, 3283},         // 13680 x 0.24
                      RevenueCase{"DearerSeats", 32, 10000, 60, 68, 53568},               // 32 x 6975 x 0.24
                      RevenueCase{"BigArenaIsUnsigned", 1, 50000, 60, 68, 13680},         // 57000 x 0.24
                      RevenueCase{"FreeTickets", 0, 10000, 60, 68, 0}),
    [](const auto& i) { return std::string(i.param.name); });

TEST_F(Cards, RevenueOfATeamWithNobodyDressedIsZero) {
  for (int slot = 0; slot < kRosterSlots; ++slot) h.state.player(0, slot).Status = 100;
  EXPECT_EQ(EstimatedRevenue(h.state, 0, 0), 0);
}

}  // namespace
}  // namespace kvl
