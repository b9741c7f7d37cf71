#include "console/menu.h"

#include <algorithm>
#include <set>

namespace kvl {

namespace {

struct Row {
  const char* menu;
  const char* caption;
  const char* command;
  const char* cli;
};

constexpr Row kRows[] = {
    {"&File", "&Load", "LoadLeague", "load"},
    {"&File", "&Save", "SaveLeague", "save"},
    {"&File", "Save &As", "SaveAs", "save-as"},
    {"&File", "&New", "CreateLeague", "new"},
    {"&File", "Player &Database", "database", "player-database"},
    {"&File", "&Import HLS2 Teams", "ImportLeague", "import-hls2"},
    {"&File", "&Update Player Stats", "UpdateStats", "update-player-stats"},
    {"&File", "E&xit", "exit", "exit"},
    {"&Manager", "&View Team", "ViewTeam", "view-team"},
    {"&Manager", "View Team &Coach", "ViewCoach", "view-coach"},
    {"&Manager", "View Team &Prospects", "GotoProspects", "view-prospects"},
    {"&Manager", "Trade Work&shop", "TradeWorkshop", "trade-workshop"},
    {"&Manager", "&Trade Players", "Trade", "trade"},
    {"&Manager", "&Free Agents", "FAgents", "free-agents"},
    {"&Manager", "Check &Waivers", "CheckWaivers", "check-waivers"},
    {"&Manager", "&Random Contracts", "contracts", "random-contracts"},
    {"&Manager", "View &All Coaches", "ViewAllCoaches", "view-all-coaches"},
    {"&Coach", "Set Game &Roster", "SetRoster", "set-roster"},
    {"&Coach", "Set Lin&es", "SetLines", "set-lines"},
    {"&Coach", "&Auto All", "AutoAll", "auto-all"},
    {"&Coach", "Auto Load Lines", "LoadAutoLines", "auto-load-lines"},
    {"&League", "&Align League", "align", "align"},
    {"&League", "&Make Schedule", "cmdSchedule", "make-schedule"},
    {"&League", "&Review Schedule", "RevSched", "review-schedule"},
    {"&League", "Play &Games", "PlayGames", "play-games"},
    {"&League", "Start &Playoffs", "Playoffs", "start-playoffs"},
    {"&League", "Start New &Season", "NewSeason", "new-season"},
    {"&League", "ReRate Pla&yers", "ReRatePlayers", "rerate"},
    {"&League", "&Options", "LgOptions", "options"},
    {"&Internet", "&Output HTML", "OutputHTML", "output-html"},
    {"&Draft", "Begin Entry &Draft", "EntryDraft", "entry-draft"},
    {"&Draft", "&Continue Entry Draft", "ConEntryDraft", "continue-entry-draft"},
    {"&Draft", "Begin E&xpansion Draft", "ExpansionDraft", "expansion-draft"},
    {"&Draft", "Assign &Unused Players", "DraftUnused", "assign-unused"},
    {"&Tools", "&League Transfer", "LgTransfer", "league-transfer"},
    {"&Tools", "Edit Players", "EditPlayers", "edit-players"},
    {"&Tools", "Schedule Editor", "EditSchedule", "schedule-editor"},
    {"&Tools", "Draft Tool", "DraftTool", "draft-tool"},
    {"&Tools", "Edit Draft Picks", "EditDraftPicks", "edit-draft-picks"},
    {"I&nfo", "&About", "About", "about"},
};

// Commands that need a league: the Manager, Coach, League, Internet and Draft
// menus, and three of File.
bool IsLeagueCommand(const Row& r) {
  static const std::set<std::string> menus{"&Manager", "&Coach", "&League", "&Internet", "&Draft"};
  static const std::set<std::string> commands{"UpdateStats", "ImportLeague", "SaveAs"};
  return menus.count(r.menu) || commands.count(r.command);
}

MenuEntry* Entry(std::vector<MenuEntry>& m, const std::string& command) {
  auto it = std::find_if(m.begin(), m.end(), [&](const MenuEntry& e) { return e.command == command; });
  return it == m.end() ? nullptr : &*it;
}

void Enable(std::vector<MenuEntry>& m, std::initializer_list<const char*> commands, bool on) {
  for (const char* c : commands) Entry(m, c)->enabled = on;
}

void ApplyLeagueState(std::vector<MenuEntry>& m, const League& lg) {
  if (lg.InPlayoffs) Enable(m, {"Playoffs", "EntryDraft", "align", "RevSched"}, false);
  if (!lg.SeasonOver && lg.GamesPlayed == 0) {
    Enable(m, {"EntryDraft", "align", "RevSched"}, true);
    Enable(m, {"Playoffs"}, false);
  }
  Entry(m, "NewSeason")->enabled = lg.OffSeason != 0;
  Entry(m, "ReRatePlayers")->visible = lg.OffSeason != 0;
  if (lg.SeasonOver && !lg.InPlayoffs) {
    Enable(m, {"Playoffs", "RevSched"}, true);
    Enable(m, {"EntryDraft", "align"}, false);
  }
  if (lg.ExpansionDraftOn) Entry(m, "ExpansionDraft")->caption = "Continue Expansion Draft";
  Entry(m, "EntryDraft")->caption = lg.EntryDraftOn ? "Re-Start Entry Draft" : "Begin Entry Draft";
  Entry(m, "ConEntryDraft")->enabled = lg.EntryDraftOn != 0;
}

}  // namespace

std::vector<MenuEntry> ComputeMenu(const League& lg, MenuInput in) {
  std::vector<MenuEntry> m;
  for (const Row& r : kRows) m.push_back({r.menu, r.caption, r.command, r.cli, !IsLeagueCommand(r) || in.hasLeague, true});
  Entry(m, "SaveLeague")->enabled = in.hasLeague && in.dirty;
  if (in.hasLeague) ApplyLeagueState(m, lg);
  return m;
}

const MenuEntry* FindEntry(const std::vector<MenuEntry>& menu, const std::string& command) {
  auto it = std::find_if(menu.begin(), menu.end(), [&](const MenuEntry& e) { return e.command == command || e.cli == command; });
  return it == menu.end() ? nullptr : &*it;
}

std::string PlainCaption(const std::string& caption) {
  std::string out;
  for (char c : caption)
    if (c != '&') out += c;
  return out;
}

}  // namespace kvl
