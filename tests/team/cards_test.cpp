// The player and team cards: prompts, what each answer stores, and the
// revenue estimate.
#include "team/cards.h"

#include "support/kvl_test.h"
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

// What an answer to a field's prompt leaves in the card's copy of the player.
TEST_F(Cards, PlayerEditsStoreWhatFitsTheField) {
  struct Case {
    const char* field;
    int slot;  // 0 a centre, 19 a goalie
    const char* answer;
    int (*read)(const Player&);
    int expected;
  } cases[] = {
      {"Contract", 0, "4", [](const Player& p) { return int(p.Contract); }, 4},
      {"Height", 0, "74", [](const Player& p) { return int(p.Height); }, 74},
      {"Num", 0, "99", [](const Player& p) { return int(p.Num); }, 99},
      {"GW", 0, "3", [](const Player& p) { return int(p.GW); }, 3},
      {"GW", 19, "5", [](const Player& p) { return int(p.PP); }, 5},  // a goalie's shutouts
      {"Salary", 0, "750000", [](const Player& p) { return int(p.Salary); }, 750000},
      {"Salary", 0, "-5", [](const Player& p) { return int(p.Salary); }, 500000},
      {"Spd", 0, "77", [](const Player& p) { return int(p.rating(kSpd)); }, 77},
      {"Ldr", 0, "255", [](const Player& p) { return int(p.rating(kLdr)); }, 255},  // no such rating
      {"Weight", 0, "300", [](const Player& p) { return int(p.Weight); }, 190},     // not a byte
      {"Weight", 0, "", [](const Player& p) { return int(p.Weight); }, 190},
      {"Pos", 0, "rw", [](const Player& p) { return int(p.Pos); }, kRightWing},
      {"Pos", 0, "7", [](const Player& p) { return int(p.Pos); }, kCentre},
      {"Status", 0, "103", [](const Player& p) { return int(p.Status); }, 103},
  };
  for (const auto& c : cases) {
    PlayerCard card = CardOf(c.slot);
    int before = c.read(card.player());
    h.ui.push(c.answer);
    bool accepted = card.edit(PField(c.field));
    EXPECT_EQ(c.read(card.player()), c.expected) << c.field << "=" << c.answer;
    EXPECT_EQ(accepted, c.expected != before) << c.field << "=" << c.answer;
    EXPECT_EQ(card.changed(), accepted) << c.field;
    EXPECT_EQ(c.read(h.state.player(0, c.slot)), before) << "the buffer waits for SaveChanges";
  }
  EXPECT_EQ(h.ui.callsOf("prompt").size(), std::size(cases));
}

TEST_F(Cards, BirthplaceKeepsThreeLettersAndHandAndExperienceToggle) {
  PlayerCard card = CardOf(0);
  h.ui.push("Sweden");
  ASSERT_TRUE(card.edit(PField("Birthplace")));
  EXPECT_EQ(card.player().Birthplace.raw(), "Swe");
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

TEST_F(Cards, ReleaseIsAskedAndClosingAsksAndOnlyYesWritesTheTeam) {
  const int age = h.state.player(0, 3).Age;
  for (const char* answer : {"no", "yes"}) {
    PlayerCard card = CardOf(3);
    card.edit(PField("Age"), std::string("31"));
    h.ui.push("yes");  // release
    ASSERT_TRUE(card.cmdRelease());
    h.ui.push(answer);
    card.Close();
    loadteam(h.state, 0, 1);
    const bool kept = *answer == 'y';
    EXPECT_EQ((std::array{int(h.state.player(1, 3).Age), int(h.state.player(1, 3).Release)}),
              (std::array{kept ? 31 : age, kept ? 1 : 0}))
        << answer;
  }
  EXPECT_EQ(h.ui.callsOf("ask")[0].text, "Release T0 C 4?");
  const std::size_t asked = h.ui.callsOf("ask").size();
  CardOf(0).Close();
  EXPECT_EQ(h.ui.callsOf("ask").size(), asked) << "an unchanged card closes without asking";
}

TEST_F(Cards, PlayerCardText) {
  struct Case {
    void (*craft)(Player&);
    const char* shown;
  } cases[] = {
      {[](Player& p) { p.Height = 73; }, "Height 6 ft 1 "},
      {[](Player& p) { p.rating(kSco) = 255; }, "Sco n/a"},
      {[](Player& p) { p.Status = 203; }, "Status Injured 2-4 weeks"},
      {[](Player& p) { p.Status = 109; }, "Status Injured indefinitely"},
      {[](Player& p) { p.Suspended = 3; }, "Status Suspended 3 games"},
      {[](Player&) {}, "Status Healthy"},
      {[](Player&) {}, "GAA N/A  As 0  SO 0  Sv% N/A"},
      // Minutes, goals against and shots against in the skaters' fields.
      {[](Player& p) { p.Plus = 120, p.PIM = 5, p.Shots = 80; }, "GA 5  GAA 2.50  As 0  SO 0  Sv% 0.938"},
      {[](Player& p) { p.Pos = kCentre, p.G = 3, p.Shots = 8; }, "Sh% 37.5"},
      {[](Player& p) { p.Pos = kCentre; }, "Sh% N/A"},
  };
  const Player goalie = h.state.player(0, 19);
  for (const auto& c : cases) {
    h.state.player(0, 19) = goalie;
    c.craft(h.state.player(0, 19));
    std::string text = CardOf(19).Text();
    EXPECT_NE(text.find(c.shown), std::string::npos) << text;
  }
}

TEST_F(Cards, TeamEditsStoreWhatFitsTheField) {
  struct Case {
    const char* field;
    const char* answer;
    std::string (*read)(const TeamCard&);
    const char* expected;
  };
  auto seats = [](const TeamCard& c) { return std::to_string(static_cast<u16>(c.team().Seats)); };
  auto ticket = [](const TeamCard& c) { return std::to_string(c.team().Ticket); };
  auto cash = [](const TeamCard& c) { return std::to_string(c.team().CurFin); };
  const Case cases[] = {
      {"Abbrev", "WPGX", [](const TeamCard& c) { return c.team().Abbrev.raw(); }, "WPG"},
      {"Arena", "The Barn", [](const TeamCard& c) { return c.team().Arena.str(); }, "The Barn"},
      {"Seats", "45000", seats, "45000"},
      {"Seats", "60001", seats, "15000"},
      {"Ticket", "0", ticket, "0"},
      {"Ticket", "256", ticket, "40"},
      {"Owner", "R. Smith", [](const TeamCard& c) { return c.team().Owner.str(); }, "R. Smith"},
      {"Password", "opensesame1", [](const TeamCard& c) { return c.team().Password.raw(); }, "opensesame"},
      {"Email", "gm@example.org", [](const TeamCard& c) { return c.email(); }, "gm@example.org"},
      {"ICQ", "123456", [](const TeamCard& c) { return c.team().ICQ.str(); }, "123456"},
      {"FarmTeam", "Moose", [](const TeamCard& c) { return c.farm().Name.str(); }, "Moose"},
      {"CurFin", "$-250", cash, "-250"},
      {"CurFin", "", cash, "0"},
  };
  for (const auto& c : cases) {
    TeamCard card(h.state, 0);
    h.ui.push(c.answer);
    card.edit(TField(c.field));
    EXPECT_EQ(c.read(card), c.expected) << c.field << "=" << c.answer;
  }
  EXPECT_EQ(h.ui.callsOf("prompt").back().text, "Adjust Team0 cash by how much?\n(prefix - for deductions)");
}

TEST_F(Cards, TeamNameIsAskedFirstThenPrompted) {
  TeamCard card(h.state, 0);
  h.ui.push("no");
  EXPECT_FALSE(card.edit(TField("Name")));
  EXPECT_TRUE(h.ui.callsOf("prompt").empty());
  h.ui.push("yes");
  h.ui.push("Winnipeg Jets");
  ASSERT_TRUE(card.edit(TField("Name")));
  EXPECT_EQ(card.team().Name.raw(), "Winnipeg J");
}

TEST_F(Cards, KeptTeamCardWritesTeamFarmAndEmailAndItsEstimateFollowsItsEditedPrice) {
  TeamCard card(h.state, 0);
  card.edit(TField("Ticket"), std::string("0"));
  EXPECT_NE(card.Text().find("Estimated revenue $0\n"), std::string::npos) << card.Text();
  EXPECT_GT(EstimatedRevenue(h.state, 0, 0), 0);  // the team itself is unchanged until kept
  card.edit(TField("FarmTeam"), std::string("Moose"));
  card.edit(TField("Email"), std::string("gm@example.org"));
  card.edit(TField("CurFin"), std::string("-$1000"));
  h.ui.push("yes");
  card.Close();
  EXPECT_EQ(h.state.Farm[0].Name.str(), "Moose");
  EXPECT_EQ(h.state.team(0).CurFin, -1000);
  EXPECT_EQ(TeamEmail(h.state, 0), "gm@example.org");
  EXPECT_NE(card.Text().find("Cash -$1,000"), std::string::npos) << card.Text();
}

// Skaters with every rating at L have Overall L + 5; a goalie at 68 has 65 and
// at 82 has 78. Worked by hand: ticket 1 gives a gate of 114% of the seats;
// 32^1.1 = 2^5.5 = 45.25, so a gate of 69.745% of the seats.
TEST_F(Cards, RevenueFollowsPriceSeatsAndDressedQuality) {
  struct Case {
    const char* name;
    int ticket, seats;
    int skaterLevel, goalieLevel;  // ratings of every dressed player
    int expected;
  } cases[] = {
      {"mean of 65 fills the gate", 1, 10000, 60, 68, 2736},  // 11400 x 0.24
      {"a better team draws more", 1, 10000, 73, 82, 3283},   // 13680 x 0.24
      {"dearer seats", 32, 10000, 60, 68, 53568},             // 32 x 6975 x 0.24
      {"a big arena is unsigned", 1, 50000, 60, 68, 13680},   // 57000 x 0.24
      {"free tickets", 0, 10000, 60, 68, 0},
  };
  for (const auto& c : cases) {
    Team& t = h.state.team(0);
    t.Ticket = static_cast<u8>(c.ticket);
    t.Seats = static_cast<i16>(static_cast<u16>(c.seats));
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      Player& p = h.state.player(0, slot);
      for (int r = 0; r < 13; ++r) p.rating(r) = static_cast<u8>(p.Pos == kGoalie ? c.goalieLevel : c.skaterLevel);
    }
    EXPECT_EQ(EstimatedRevenue(h.state, 0, 0), c.expected) << c.name;
  }
  for (int slot = 0; slot < kRosterSlots; ++slot) h.state.player(0, slot).Status = 100;
  EXPECT_EQ(EstimatedRevenue(h.state, 0, 0), 0) << "nobody dressed";
}

}  // namespace
}  // namespace kvl
