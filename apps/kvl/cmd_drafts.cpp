// The entry draft, the draft tool and the expansion draft: each run makes its
// choices, then prints the board.
#include <fmt/format.h>

#include <algorithm>

#include "console/league_view.h"
#include "console/menu.h"
#include "league/tables.h"
#include "session.h"
#include "transactions/draft_list.h"
#include "transactions/entry_draft.h"
#include "transactions/expansion_draft.h"
#include "ui/ui.h"
#include "util/cp1252.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr int kBoardPicks = 5;

std::string Pos(int pos) { return std::string(PosName[std::min<std::size_t>(static_cast<std::size_t>(pos), 4)]); }

// An item named by its number in the list or by the player's name.
template <class Entry>
const Entry& ChooseListed(Session& s, const std::vector<Entry>& list, const std::string& arg, int number(const Entry&),
                          const std::string& title) {
  const std::string name = Utf8ToCp1252(arg);
  for (const Entry& e : list)
    if (name == e.name || arg == NumText(number(e))) return e;
  s.ui.tell(fmt::format("No player \"{}\" is on the list: name one as the list shows it, by name or number.", arg),
            title);
  throw Refused("unknown player");
}

std::string EntryBoard(LeagueState& st, bool available) {
  DraftNew form(st);
  std::string out;
  if (st.league.EntryDraftOn) {
    const DraftTurn t = form.turn();
    out += form.caption() + "\n";
    out += fmt::format("Pick {} (overall {}): {} on the clock", t.pick + 1, t.overall, st.team(t.holder).Name.str());
    out += t.origTeam != t.holder ? fmt::format(" (pick from {})\n", st.team(t.origTeam).Name.str()) : "\n";
    out += fmt::format("Order of round {}:\n", t.round + 1);
    const std::vector<std::string> order = RoundOrderLines(st, t.round);
    for (std::size_t i = 0; i < order.size(); ++i)
      out += order[i] + (static_cast<int>(i) == t.pick ? "  <- on the clock\n" : "\n");
  } else {
    out += "No entry draft is under way.\n";
  }
  const std::vector<MadePick> made = form.picks();
  if (!made.empty()) out += "Last picks:\n";
  for (std::size_t i = made.size() > kBoardPicks ? made.size() - kBoardPicks : 0; i < made.size(); ++i) {
    const MadePick& p = made[i];
    out += fmt::format("  {:>3}. Rnd {} {}{}, {}\n", p.overall, p.round + 1, p.team,
                       p.fromTeam.empty() ? "" : " (from " + p.fromTeam + ")", p.player);
  }
  const std::vector<UndraftedEntry> open = form.undrafted();
  out += fmt::format("{} undrafted players\n", open.size());
  if (available)
    for (const UndraftedEntry& e : open)
      out += fmt::format("{:>5}  {:<22} {} {:>3}  {:>2}\n", e.record, e.name, Pos(e.pos), e.age, e.overall);
  return Cp1252ToUtf8(out);
}

struct EntryArgs {
  std::string list, pick;
  bool prospect = false, available = false, output = false;
  std::optional<int> autoPicks;
  bool acts() const { return !pick.empty() || autoPicks.has_value(); }
};

// The choices of one run on the draft under way.
void MakeEntryChoices(Session& s, const EntryArgs& a) {
  DraftNew form(s.state);
  if (!a.pick.empty()) {
    // Every name of the list can be named, so that one drafted already is refused as such.
    std::vector<UndraftedEntry> named;
    const std::vector<DraftListRecord> list = ReadDraftList(s.state);
    for (std::size_t i = 0; i < list.size(); ++i)
      if (!list[i].Name.str().empty()) named.push_back({static_cast<int>(i) + 1, list[i].Name.str()});
    const UndraftedEntry& e = ChooseListed<UndraftedEntry>(
        s, named, a.pick, [](const UndraftedEntry& x) { return x.record; }, "Entry Draft");
    if (!(a.prospect ? form.cmdProspect(e.record) : form.cmdAdd(e.record))) throw Refused("pick");
  }
  if (a.autoPicks) form.cmdAuto(*a.autoPicks);
  if (a.output) form.cmdOutput();
}

void RunEntryDraft(Session& s, const EntryArgs& a) {
  if (a.acts() && !a.list.empty()) {
    s.ui.tell("Begin the draft with --list first, then make the picks with --pick or --auto.", "Entry Draft");
    throw Refused("list and pick");
  }
  if (!a.acts()) {
    if (!FindEntry(ComputeMenu(s.state.league, {true, s.state.Dirty}), "EntryDraft")->enabled) {
      s.ui.tell("Begin Entry Draft is not available between the season's end and the playoffs, nor in the playoffs.",
                "Entry Draft");
      throw Refused("entry draft disabled");
    }
    if (!EntryDraft(s.state, a.list.empty() ? std::nullopt : std::optional<fs::path>(fs::absolute(a.list))))
      throw Refused("entry draft");
  }
  MakeEntryChoices(s, a);
  s.ui.print(EntryBoard(s.state, a.available));
}

void AddEntryOptions(CLI::App* cmd, EntryArgs& a) {
  cmd->add_option("--pick", a.pick, "the team on the clock takes this player (name or number in the list)");
  cmd->add_flag("--prospect", a.prospect, "put the pick on the prospect list instead of the roster");
  cmd->add_option("--auto", a.autoPicks, "the next N picks take the best undrafted player by Overall")
      ->check(kPositiveWhole);
  cmd->add_flag("--available", a.available, "list the undrafted players");
  cmd->add_flag("--output", a.output, "write the draft page");
}

void RegisterEntryDraft(CLI::App& app, Session& s) {
  auto a = std::make_shared<EntryArgs>();
  CLI::App* cmd = AddCommand(app, s, "entry-draft",
                             "Begin (or re-start) the entry draft from a list of names (--list FILE); with --pick or "
                             "--auto, make the next picks of the draft under way",
                             true, [&s, a] { RunEntryDraft(s, *a); });
  cmd->add_option("--list", a->list, "the text file of names to draft (asked when not given)");
  AddEntryOptions(cmd, *a);

  auto c = std::make_shared<EntryArgs>();
  CLI::App* con = AddCommand(app, s, "continue-entry-draft",
                             "Continue the entry draft under way at its round and pick; --pick or --auto make picks",
                             true, [&s, c] {
                               if (!ConEntryDraft(s.state)) throw Refused("continue");
                               MakeEntryChoices(s, *c);
                               s.ui.print(EntryBoard(s.state, c->available));
                             });
  AddEntryOptions(con, *c);
}

void RegisterDraftTool(CLI::App& app, Session& s) {
  auto a = std::make_shared<EntryArgs>();
  CLI::App* cmd = AddCommand(app, s, "draft-tool",
                             "The draft console on the entry draft without its question: the board, the undrafted "
                             "players (--available) and the draft page (--output)",
                             true, [&s, a] {
                               if (a->output) DraftNew(s.state).cmdOutput();
                               s.ui.print(EntryBoard(s.state, a->available));
                             });
  cmd->add_flag("--available", a->available, "list the undrafted players");
  cmd->add_flag("--output", a->output, "write the draft page");
}

std::string ExpansionBoard(LeagueState& st, ExpansionDraftForm& form, bool available) {
  std::string out = st.league.ExpansionDraftOn ? "Expansion Draft\n" : "No expansion draft is under way.\n";
  out += "Expansion Teams      Fwd  Def  Goal  Players\n";
  for (int t : form.expansionTeams()) {
    const Team& team = st.team(t);
    out += fmt::format("  {:<18} {:>3}  {:>3}  {:>4}\n", team.Name.str(), team.ExpFwd, team.ExpDef, team.ExpGoal);
  }
  const std::vector<UnprotectedEntry> open = form.unprotected();
  out += fmt::format("{} unprotected players\n", open.size());
  if (available)
    for (std::size_t i = 0; i < open.size(); ++i)
      out += fmt::format("{:>5}  {:<22} {} {:>2}  {}\n", i + 1, open[i].name, Pos(open[i].pos), open[i].overall,
                         st.team(open[i].team).Name.str());
  return Cp1252ToUtf8(out);
}

struct ExpansionArgs {
  std::string team, pick;
  bool autoAll = false, available = false, output = false;
};

int ExpansionTaker(Session& s, ExpansionDraftForm& form, const std::string& team) {
  if (!team.empty()) return ResolveTeam(s.state, team);
  const std::vector<int> teams = form.expansionTeams();
  if (teams.size() == 1) return teams.front();
  s.ui.tell("Name the expansion team that takes the player: --team TEAM.", "Expansion Draft");
  throw Refused("no team");
}

void RunExpansionDraft(Session& s, const ExpansionArgs& a) {
  if (!ExpansionDraft(s.state)) throw Refused("expansion draft");
  ExpansionDraftForm form(s.state);
  if (!a.pick.empty()) {
    const std::vector<UnprotectedEntry> open = form.unprotected();
    const UnprotectedEntry* chosen = nullptr;
    const std::string name = Utf8ToCp1252(a.pick);
    for (std::size_t i = 0; i < open.size() && !chosen; ++i)
      if (open[i].name == name || a.pick == NumText(static_cast<double>(i + 1))) chosen = &open[i];
    if (!chosen) {
      s.ui.tell(
          fmt::format("No unprotected player \"{}\": name one as --available lists him, by name or number.", a.pick),
          "Expansion Draft");
      throw Refused("unknown player");
    }
    const UnprotectedEntry e = *chosen;
    if (!form.cmdAdd(ExpansionTaker(s, form, a.team), e.team, e.slot)) throw Refused("take");
  }
  if (a.autoAll) form.cmdAuto();
  if (a.output) form.cmdOutput();
  s.ui.print(ExpansionBoard(s.state, form, a.available));
}

void RegisterExpansionDraft(CLI::App& app, Session& s) {
  auto a = std::make_shared<ExpansionArgs>();
  CLI::App* cmd = AddCommand(app, s, "expansion-draft",
                             "Begin or continue the expansion draft: --pick takes an unprotected player for --team, "
                             "--auto lets the expansion teams take in turn until the draft is over",
                             true, [&s, a] { RunExpansionDraft(s, *a); });
  cmd->add_option("--team", a->team, "the expansion team that takes (needed when there are several)");
  cmd->add_option("--pick", a->pick, "the unprotected player (name or number in the list)");
  cmd->add_flag("--auto", a->autoAll, "every expansion team takes the best players it still needs, in turn");
  cmd->add_flag("--available", a->available, "list the unprotected players");
  cmd->add_flag("--output", a->output, "write the page of unprotected players");
}

}  // namespace

void RegisterDraftCommands(CLI::App& app, Session& s) {
  RegisterEntryDraft(app, s);
  RegisterDraftTool(app, s);
  RegisterExpansionDraft(app, s);
}

}  // namespace kvl
