// The console's menu as a function of the league header.
#include <gtest/gtest.h>

#include "console/menu.h"

namespace kvl {
namespace {

struct MenuCase {
  const char* name;
  // Header fields.
  bool scheduleMade;
  int gamesPlayed;
  bool seasonOver, inPlayoffs, offSeason, entryDraft, expansionDraft;
  // Expected.
  bool playoffs, beginEntry, align, review, newSeason, rerateShown, continueEntry;
  const char* entryCaption;
  const char* expansionCaption;
};

void PrintTo(const MenuCase& c, std::ostream* os) { *os << c.name; }

class MenuStates : public ::testing::TestWithParam<MenuCase> {};

TEST_P(MenuStates, EnableAndCaption) {
  const auto& c = GetParam();
  League lg;
  lg.ScheduleMade = ToBool16(c.scheduleMade);
  lg.GamesPlayed = static_cast<i16>(c.gamesPlayed);
  lg.SeasonOver = ToBool16(c.seasonOver);
  lg.InPlayoffs = ToBool16(c.inPlayoffs);
  lg.OffSeason = ToBool16(c.offSeason);
  lg.EntryDraftOn = ToBool16(c.entryDraft);
  lg.ExpansionDraftOn = ToBool16(c.expansionDraft);
  auto menu = ComputeMenu(lg, {true, false});
  auto at = [&](const char* cmd) {
    const MenuEntry* e = FindEntry(menu, cmd);
    EXPECT_NE(e, nullptr) << cmd;
    return e ? *e : MenuEntry{};
  };
  EXPECT_EQ(at("Playoffs").enabled, c.playoffs);
  EXPECT_EQ(at("EntryDraft").enabled, c.beginEntry);
  EXPECT_EQ(at("align").enabled, c.align);
  EXPECT_EQ(at("RevSched").enabled, c.review);
  EXPECT_EQ(at("NewSeason").enabled, c.newSeason);
  EXPECT_EQ(at("ReRatePlayers").visible, c.rerateShown);
  EXPECT_EQ(at("ConEntryDraft").enabled, c.continueEntry);
  EXPECT_EQ(at("EntryDraft").caption, c.entryCaption);
  EXPECT_EQ(at("ExpansionDraft").caption, c.expansionCaption);
  // Whatever the state, the rest of the league commands stay on.
  for (const char* cmd : {"SaveAs", "PlayGames", "cmdSchedule", "Trade", "SetLines", "OutputHTML", "ExpansionDraft"})
    EXPECT_TRUE(at(cmd).enabled) << cmd;
  EXPECT_FALSE(at("SaveLeague").enabled) << "nothing to save";
}

INSTANTIATE_TEST_SUITE_P(
    States, MenuStates,
    ::testing::Values(
        //       name                  sched  gp  over   playo  offs   entry  expan | playo  begin  align  review newS   rerate cont
        MenuCase{"PreSeason",          false, 0,  false, false, false, false, false, false, true,  true,  true,  false, false, false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"ScheduleMade",       true,  0,  false, false, false, false, false, false, true,  true,  true,  false, false, false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"RegularSeason",      true,  40, false, false, false, false, false, true,  true,  true,  true,  false, false, false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"SeasonOver",         true,  80, true,  false, false, false, false, true,  false, false, true,  false, false, false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"Playoffs",           true,  15, true,  true,  false, false, false, false, false, false, false, false, false, false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"OffSeason",          false, 0,  false, false, true,  false, false, false, true,  true,  true,  true,  true,  false,
                 "Begin Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"OffSeasonEntryDraft", false, 0, false, false, true,  true,  false, false, true,  true,  true,  true,  true,  true,
                 "Re-Start Entry Draft", "Begin E&xpansion Draft"},
        MenuCase{"PreSeasonExpansion", false, 0,  false, false, false, false, true,  false, true,  true,  true,  false, false, false,
                 "Begin Entry Draft", "Continue Expansion Draft"},
        MenuCase{"EntryDraftInPlayoffs", true, 5, true,  true,  false, true,  false, false, false, false, false, false, false, true,
                 "Re-Start Entry Draft", "Begin E&xpansion Draft"}),
    [](const auto& info) { return std::string(info.param.name); });

TEST(Menu, WithoutALeagueOnlyFileToolsAndInfoWork) {
  League lg;
  lg.OffSeason = lg.EntryDraftOn = kTrue;  // ignored without a league
  for (const auto& e : ComputeMenu(lg, {false, true})) {
    bool on = e.command == "LoadLeague" || e.command == "CreateLeague" || e.command == "database" ||
              e.command == "exit" || e.menu == "&Tools" || e.menu == "I&nfo";
    EXPECT_EQ(e.enabled, on) << e.command;
  }
}

TEST(Menu, SaveFollowsDirty) {
  League lg;
  for (bool dirty : {false, true}) EXPECT_EQ(FindEntry(ComputeMenu(lg, {true, dirty}), "SaveLeague")->enabled, dirty);
}

TEST(Menu, EntriesAreFoundByCodeOrCommandLineName) {
  auto menu = ComputeMenu(League{}, {true, false});
  EXPECT_EQ(FindEntry(menu, "cmdSchedule"), FindEntry(menu, "make-schedule"));
  EXPECT_EQ(FindEntry(menu, "make-schedule")->caption, "&Make Schedule");
  EXPECT_EQ(FindEntry(menu, "nonsense"), nullptr);
  EXPECT_EQ(PlainCaption("Begin E&xpansion Draft"), "Begin Expansion Draft");
}

}  // namespace
}  // namespace kvl
