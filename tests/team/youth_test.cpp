// Prospects: adding to a full list. Activation through a database match, by hand and onto a full
// roster is the forms transcript's (e2e/golden/forms_prospects.txt).
#include "support/kvl_test.h"
#include "team/youth_form.h"

namespace kvl::test {
namespace {

struct ProspectsTest : ::testing::Test {
  Harness h;
  void SetUp() override { h.load(StandardLeague(2)); }
};

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
