// The trade office and the trade workshop: what each side gives, named as the
// office's lists show it, then the judgement or the trade.
#include <fmt/format.h>

#include <algorithm>
#include <cstdio>

#include "console/league_view.h"
#include "league/ratings.h"
#include "league/tables.h"
#include "session.h"
#include "transactions/draft_pick_editor.h"
#include "transactions/trade_office.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

namespace {

struct SideArgs {
  std::vector<std::string> players, prospects, picks, cash;
};

struct TradeArgs {
  std::string teamA, teamB;
  std::array<SideArgs, 2> sides;
  bool assess = false;
};

// The list entry named by its text or by the number it keeps; Refused naming the item.
int Choose(Session& s, const std::vector<TradeListEntry>& list, const std::string& arg, const std::string& team,
           const std::string& what) {
  for (const TradeListEntry& e : list)
    if (arg == e.text || arg == NumText(e.index)) return e.index;
  s.ui.tell(fmt::format("{} has no {} \"{}\" to trade: name one as `kvl trade {}` lists it.", team, what, arg, team),
            "Trade");
  throw Refused("not held");
}

std::vector<int> ChooseAll(Session& s, const std::vector<TradeListEntry>& list, const std::vector<std::string>& args,
                           const std::string& team, const std::string& what) {
  std::vector<int> chosen;
  for (const std::string& a : args) {
    const int i = Choose(s, list, a, team, what);
    if (std::find(chosen.begin(), chosen.end(), i) != chosen.end()) {
      s.ui.tell(fmt::format("{}: the {} \"{}\" is named twice.", team, what, a), "Trade");
      throw Refused("twice");
    }
    chosen.push_back(i);
  }
  std::sort(chosen.begin(), chosen.end());  // the office takes a selection in list order
  return chosen;
}

TradeSelection Select(Session& s, TradeOffice& office, int side, const SideArgs& a) {
  const std::string team = s.state.team(office.team(side)).Name.str();
  for (const std::string& cash : a.cash)
    if (!office.EnterCash(side, cash)) throw Refused("cash");
  return {ChooseAll(s, office.lstPlayers(side), a.players, team, "player"),
          ChooseAll(s, office.lstProspects(side), a.prospects, team, "prospect"),
          ChooseAll(s, office.lstPicks(side), a.picks, team, "pick")};
}

std::string OfferText(LeagueState& st, const TradeOffice& office) {
  std::string text = fmt::format("{}: cash {}\nPlayers\n", st.team(office.team(0)).Name.str(),
                                 FormatNumber(st.team(office.team(0)).CurFin, "$#,##0"));
  for (const TradeListEntry& e : office.lstPlayers(0)) {
    const Player& p = st.player(0, e.index);
    text += fmt::format("{:>4}  {:<22}  {:>2} {:>3} OV {:>2}\n", e.index, e.text, PosName[p.Pos], p.Age, Overall(p));
  }
  text += "Prospects\n";
  for (const TradeListEntry& e : office.lstProspects(0)) text += fmt::format("{:>4}  {}\n", e.index, e.text);
  text += "Picks\n";
  for (const TradeListEntry& e : office.lstPicks(0)) text += fmt::format("{:>4}  {}\n", e.index, e.text);
  return text;
}

void RunTrade(Session& s, const TradeArgs& a, bool workshop) {
  LeagueState& st = s.state;
  if (!workshop && !TradeDeadlineAllows(st)) throw Refused("deadline");
  const int teamA = ResolveTeam(st, a.teamA);
  if (a.teamB.empty()) return s.ui.print(OfferText(st, TradeOffice(st, teamA, teamA)));
  const int teamB = ResolveTeam(st, a.teamB);
  if (teamA == teamB) {
    s.ui.tell(st.team(teamA).Name.str() + " is on both sides of the trade: name two teams.", "Trade");
    throw Refused("same team");
  }
  TradeOffice office(st, teamA, teamB);
  const std::array<TradeSelection, 2> sel{Select(s, office, 0, a.sides[0]), Select(s, office, 1, a.sides[1])};
  if (workshop || a.assess) return void(office.cmdAssess(sel));
  if (!office.cmdExecute(sel)) throw Refused("trade");
  s.ui.print(fmt::format("Traded between {} and {}.\n", st.team(teamA).Name.str(), st.team(teamB).Name.str()));
}

void AddSideOptions(CLI::App* cmd, SideArgs& side, const std::string& letter) {
  const std::string who = "what team " + letter + " gives: ";
  cmd->add_option("--" + letter + "-player", side.players, who + "a player, by name or roster slot");
  cmd->add_option("--" + letter + "-prospect", side.prospects, who + "a prospect, by name or number");
  cmd->add_option("--" + letter + "-pick", side.picks, who + "a pick as listed (\"2027 Rnd 1 BOS\") or its number");
  cmd->add_option("--" + letter + "-cash", side.cash, who + "cash, in dollars");
}

void RegisterTrade(CLI::App& app, Session& s, const std::string& name, bool workshop) {
  auto a = std::make_shared<TradeArgs>();
  const std::string about = workshop ? "Judge a trade between two teams without making it"
                                     : "Trade between TEAM_A and TEAM_B (--assess only judges it); "
                                       "with TEAM_A alone, list what it has to offer";
  CLI::App* cmd = AddCommand(app, s, name, about, true, [&s, a, workshop] { RunTrade(s, *a, workshop); });
  cmd->add_option("TEAM_A", a->teamA, "team number or name")->required();
  cmd->add_option("TEAM_B", a->teamB, "team number or name");
  AddSideOptions(cmd, a->sides[0], "a");
  AddSideOptions(cmd, a->sides[1], "b");
  if (!workshop) cmd->add_flag("--assess", a->assess, "give the judgement and trade nothing");
}

struct PickArgs {
  std::string team;
  std::vector<std::string> add, remove;
};

// "2027 Rnd 1 BOS" as the editor's add takes it: draft offset, round from 0, team.
void AddPick(Session& s, DraftPickEditor& form, const std::string& text) {
  int year = 0, round = 0;
  char orig[64] = {};
  if (std::sscanf(text.c_str(), "%d Rnd %d %63s", &year, &round, orig) != 3) {
    s.ui.tell(fmt::format("Pick \"{}\": write it as the list shows one, such as \"2027 Rnd 1 BOS\".", text),
              "Edit Draft Picks");
    throw Refused("pick text");
  }
  const int team = ResolveTeam(s.state, orig);
  if (!form.cmdAdd(year - s.state.league.CurrentYear - 1, round - 1, team)) throw Refused("pick");
}

void RunEditDraftPicks(Session& s, const PickArgs& a) {
  const int team = ResolveTeam(s.state, a.team);
  DraftPickEditor form(s.state, team);
  std::vector<TradeListEntry> listed;
  for (const DraftPickEditor::Entry& e : form.list()) listed.push_back({e.index, e.text});
  for (int i : ChooseAll(s, listed, a.remove, s.state.team(team).Name.str(), "pick")) form.cmdRemove(i);
  for (const std::string& text : a.add) AddPick(s, form, text);
  form.cmdExit();
  std::string text = "Draft picks of " + s.state.team(team).Name.str() + "\n";
  for (const DraftPickEditor::Entry& e : DraftPickEditor(s.state, team).list())
    text += fmt::format("{:>4}  {}\n", e.index, e.text);
  s.ui.print(text);
}

void RegisterEditDraftPicks(CLI::App& app, Session& s) {
  auto a = std::make_shared<PickArgs>();
  CLI::App* cmd = AddCommand(app, s, "edit-draft-picks",
                             "Show a team's draft picks; --add and --remove change them (kept after a yes)", true,
                             [&s, a] { RunEditDraftPicks(s, *a); });
  cmd->add_option("TEAM", a->team, "the team, by number or name")->required();
  cmd->add_option("--add", a->add, "a pick to add, such as \"2027 Rnd 1 BOS\" (the team it was made for last)");
  cmd->add_option("--remove", a->remove, "a pick to take away, as listed or by its number");
}

}  // namespace

void RegisterTradeCommands(CLI::App& app, Session& s) {
  RegisterTrade(app, s, "trade", false);
  RegisterTrade(app, s, "trade-workshop", true);
  RegisterEditDraftPicks(app, s);
}

}  // namespace kvl
