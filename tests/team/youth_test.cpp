// Prospects: adding to a full list, and activation through a database match,
// by hand, and onto a full roster.
#include "support/golden.h"
#include "support/kvl_test.h"
#include "team/youth_form.h"
#include "transactions/database_players.h"

namespace kvl::test {
namespace {

struct ProspectsTest : ::testing::Test {
  Harness h;
  void SetUp() override {
    h.load(StandardLeague(2));
    RecordFile db(h.state.swap(swp::Database), DbRecord::kSize);
    DbRecord taken{kTrue, MakePlayer("Ann Ace", kCentre, 60)};
    DbRecord free{kFalse, MakePlayer("Ann Ace", kCentre, 77)};
    free.P.Num = 2;  // worn on the team
    db.putRecord(1, taken);
    db.putRecord(2, free);
  }
};

// Each ViewProspects loads the team again: the roster filled in memory has room once more below.
TEST_F(ProspectsTest, ActivationBringsTheProspectOntoTheRosterUnlessItIsFull) {
  {
    ViewProspects v(h.state, 0);
    const int entry = v.cmdAdd("Ann Ace");
    for (int i = 0; i < kRosterSlots; ++i)
      if (h.state.player(0, i).empty()) h.state.player(0, i) = MakePlayer("Filler", kDefence, 40, 0);
    FindMatch m = v.cmdActivate(entry);
    ASSERT_TRUE(m.matched());
    EXPECT_FALSE(m.cmdMatch(*m.matched()));
    EXPECT_TRUE(h.ui.told("You cannot have more than 50 players on your roster", "No Room on Roster"));
    EXPECT_FALSE(h.state.Prospects[0].Name[static_cast<std::size_t>(entry)].empty()) << "he stays on the list";
  }
  for (const std::string name : {"Bob Blue", "Ann Ace"}) {
    const bool manual = name == "Bob Blue";  // no record of his name: made by hand
    ViewProspects v(h.state, 0);
    const int entry = v.cmdAdd(name);
    const int slot = FirstFreeSlot(h.state, 0);
    FindMatch m = v.cmdActivate(entry);
    EXPECT_EQ(m.status(), manual ? "No match has been found" : "Name has been matched");
    ASSERT_TRUE(manual ? m.cmdManual(name) : m.cmdMatch(*m.matched()));
    EXPECT_TRUE(h.state.Prospects[0].Name[static_cast<std::size_t>(entry)].empty());
    EXPECT_TRUE(h.ui.told(name + " added to the Team0", "Activate Prospect"));
    loadteam(h.state, 0, 0);
    const Player& p = h.state.player(0, slot);
    EXPECT_EQ(p.Name.str(), name);
    EXPECT_EQ(p.rating(kSpd), manual ? 50 : 77) << "the free record of his name, not the used one";
    EXPECT_NE(p.Num, 2) << name << ": a worn number changes";
    EXPECT_TRUE(ReadAll(h.state.swap(swp::Transactions)).ends_with("Team0 sign " + name + "<BR><BR>\r\n")) << name;
  }
  EXPECT_TRUE(FindMatch(h.state, 0, ViewProspects(h.state, 0).cmdAdd("Ann Ace")).records().empty())
      << "a matched record is used";
}

TEST_F(ProspectsTest, AFullListRefusesBeforeThePrompt) {
  ViewProspects v(h.state, 0);
  for (int i = 0; i < kMaxProspects; ++i) ASSERT_EQ(v.cmdAdd("P" + std::to_string(i)), i);
  EXPECT_EQ(v.cmdAdd(), -1);
  EXPECT_TRUE(h.ui.told("No room on prospect list", "Add Prospect"));
  EXPECT_TRUE(h.ui.callsOf("prompt").empty());
  v.cmdDelete(7);
  EXPECT_EQ(ViewProspects(h.state, 0).cmdAdd("Again"), 7) << "a deleted entry frees its place, on file too";
}

}  // namespace
}  // namespace kvl::test
