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

TEST_F(ProspectsTest, ActivationBringsTheProspectOntoTheRoster) {
  struct Case {
    const char* what;
    const char* prospect;
    bool manual, fullRoster;
    const char* status;
    int rating;  // of the new player; 0: nobody added
    const char* told;
  } cases[] = {
      {"no record: made by hand", "Bob Blue", true, false, "No match has been found", 50,
       "Bob Blue added to the Team0"},
      {"a full roster keeps him on the list", "Ann Ace", false, true, "Name has been matched", 0,
       "You cannot have more than 50 players on your roster"},
      {"the free record of his name, not the used one", "Ann Ace", false, false, "Name has been matched", 77,
       "Ann Ace added to the Team0"},
  };
  for (const auto& c : cases) {
    Harness& s = h;  // one league: the full roster is not saved, so the next case has room again
    ViewProspects v(s.state, 0);
    const int entry = v.cmdAdd(c.prospect);
    if (c.fullRoster)
      for (int i = 0; i < kRosterSlots; ++i)
        if (s.state.player(0, i).empty()) s.state.player(0, i) = MakePlayer("Filler", kDefence, 40, 0);
    const int slot = FirstFreeSlot(s.state, 0);
    FindMatch m = v.cmdActivate(entry);
    EXPECT_EQ(m.status(), c.status) << c.what;
    ASSERT_TRUE(c.manual || m.matched()) << c.what;
    const bool added = c.manual ? m.cmdManual(c.prospect) : m.cmdMatch(*m.matched());
    EXPECT_EQ(added, c.rating != 0) << c.what;
    EXPECT_EQ(s.state.Prospects[0].Name[static_cast<std::size_t>(entry)].empty(), added) << c.what;
    EXPECT_EQ(s.ui.callsOf("tell").back().text, c.told) << c.what;
    if (!added) continue;
    loadteam(s.state, 0, 0);
    const Player& p = s.state.player(0, slot);
    EXPECT_EQ(p.Name.str(), c.prospect) << c.what;
    EXPECT_EQ(p.rating(kSpd), c.rating) << c.what;
    EXPECT_NE(p.Num, 2) << c.what << ": a worn number changes";
    EXPECT_TRUE(
        ReadAll(h.state.swap(swp::Transactions)).ends_with(std::string("Team0 sign ") + c.prospect + "<BR><BR>\r\n"))
        << c.what;
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
