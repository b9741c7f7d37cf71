// League administration on the command line: align, options, and the team and
// player cards.
#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <memory>

#include "admin/alignment.h"
#include "admin/options.h"
#include "console/league_view.h"
#include "console/menu.h"
#include "league/league_files.h"
#include "session.h"
#include "team/cards.h"
#include "ui/ui.h"
#include "util/cp1252.h"
#include "util/error.h"

namespace kvl {

namespace {

// The console offers Align League only outside the playoffs and before a
// season's end; the command line keeps to the same rule.
AlignLeague OpenAlign(Session& s) {
  auto menu = ComputeMenu(s.state.league, {s.state.hasLeague(), s.state.Dirty});
  if (!FindEntry(menu, "align")->enabled) {
    s.ui.tell("Align League is not available once the season is over or while the playoffs run.", "Align League");
    throw Refused("align disabled");
  }
  return AlignLeague(s.state);
}

// Conferences and divisions are numbered from 1 on the command line, as info shows them.
CLI::Option* AddNumber(CLI::App* cmd, const std::string& name, std::shared_ptr<int> to, const std::string& what) {
  return cmd->add_option(name, *to, what)->required()->check(kPositiveWhole);
}

struct AlignArgs {
  std::shared_ptr<std::string> team = std::make_shared<std::string>();
  std::shared_ptr<int> conf = std::make_shared<int>(0), div = std::make_shared<int>(0), count = std::make_shared<int>(0);
  std::shared_ptr<std::string> name = std::make_shared<std::string>();
  std::shared_ptr<bool> clear = std::make_shared<bool>(false);
  std::optional<std::string> givenName() const {
    return name->empty() ? std::nullopt : std::optional(Utf8ToCp1252(*name));
  }
};

void AddTeamArg(CLI::App* cmd, const AlignArgs& a) {
  cmd->add_option("TEAM", *a.team, "the team, by number, name or abbreviation")->required();
}

void RegisterAlignEdits(CLI::App* align, Session& s) {
  AlignArgs a;
  auto* add = AddCommand(*align, s, "add", "Add a team at the end of a division (prompts for the name when not given)", true,
                         [&s, a] {
                           if (!OpenAlign(s).cmdAdd(*a.conf - 1, *a.div - 1, a.givenName())) return;
                           const Team& t = s.state.team(s.state.numTeams() - 1);
                           s.ui.print(fmt::format(
                               "{} ({}) starts with 0 seats, a $0 ticket and $0 cash, as every new team. Set them "
                               "with: kvl view-team {} --set Seats=17000 --set Ticket=45 --set CurFin=5000000 "
                               "(or view-team ALL for every team)\n",
                               Cp1252ToUtf8(t.Name.str()), t.Abbrev.str(), t.Abbrev.str()));
                         });
  AddNumber(add, "CONF", a.conf, "conference, 1 or 2");
  AddNumber(add, "DIV", a.div, "division within the conference, from 1");
  add->add_option("NAME", *a.name, "the team's name (10 characters are kept)");

  auto* del = AddCommand(*align, s, "delete", "Delete a team; later teams move down one number in every league file",
                         true, [&s, a] { OpenAlign(s).cmdDelete(ResolveTeam(s.state, *a.team)); });
  AddTeamArg(del, a);

  auto* rc = AddCommand(*align, s, "rename-conference", "Rename a conference (prompts when no name is given)", true,
                        [&s, a] { OpenAlign(s).cmdRenameConf(*a.conf - 1, a.givenName()); });
  AddNumber(rc, "CONF", a.conf, "conference, 1 or 2");
  rc->add_option("NAME", *a.name, "the new name (12 characters are kept)");

  auto* rd = AddCommand(*align, s, "rename-division", "Rename a division (prompts when no name is given)", true,
                        [&s, a] { OpenAlign(s).cmdRenameDiv(*a.conf - 1, *a.div - 1, a.givenName()); });
  AddNumber(rd, "CONF", a.conf, "conference, 1 or 2");
  AddNumber(rd, "DIV", a.div, "division within the conference, from 1");
  rd->add_option("NAME", *a.name, "the new name (10 characters are kept)");
}

void RegisterAlignStructure(CLI::App* align, Session& s) {
  AlignArgs a;
  auto* move = AddCommand(*align, s, "move", "Move a team to another division", true, [&s, a] {
    OpenAlign(s).MoveTeam(ResolveTeam(s.state, *a.team), *a.conf - 1, *a.div - 1);
  });
  AddTeamArg(move, a);
  AddNumber(move, "CONF", a.conf, "conference, 1 or 2");
  AddNumber(move, "DIV", a.div, "division within the conference, from 1");

  auto* divs = AddCommand(*align, s, "divisions", "Set the number of divisions of a conference (1 to 4)", true,
                          [&s, a] { OpenAlign(s).ChangeDivisions(*a.conf - 1, *a.count); });
  AddNumber(divs, "CONF", a.conf, "conference, 1 or 2");
  AddNumber(divs, "COUNT", a.count, "divisions, 1 to 4");

  auto* exp = AddCommand(*align, s, "expansion", "Mark a team as an expansion team for the expansion draft", true,
                         [&s, a] { OpenAlign(s).Expansion(ResolveTeam(s.state, *a.team), !*a.clear); });
  AddTeamArg(exp, a);
  exp->add_flag("--clear", *a.clear, "take the mark off instead");

  AddCommand(*align, s, "show", "Show the conferences, divisions and their teams", true,
             [&s] { s.ui.print(OpenAlign(s).Listing()); });
}

// `options` lists every option; `options --set NAME=VALUE ...` changes the
// controls as typed and applies, then lists what the league now holds.
void RegisterOptions(CLI::App& app, Session& s) {
  auto sets = std::make_shared<std::vector<std::string>>();
  auto* cmd = AddCommand(app, s, "options", "Show the league options, or set some by name and apply them", true, [&s, sets] {
    Options form(s.state);
    for (const auto& setting : *sets) {
      auto eq = setting.find('=');
      if (eq == std::string::npos) {
        s.ui.tell("Give each option as NAME=VALUE, such as ShotsLevel=6.", "Options");
        throw Refused("no value");
      }
      form.set(setting.substr(0, eq), Utf8ToCp1252(setting.substr(eq + 1)));
    }
    if (!sets->empty()) form.cmdApply();
    s.ui.print(Options(s.state).Listing());
  });
  cmd->add_option("--set", *sets, "NAME=VALUE, e.g. ShotsLevel=6 or OptMoney=on; the names are those the listing shows");
}

// What the card commands take besides the team: edits by name, with or without a value.
struct CardArgs {
  std::shared_ptr<std::string> team = std::make_shared<std::string>();
  std::shared_ptr<int> slot = std::make_shared<int>(0);
  std::shared_ptr<std::vector<std::string>> sets = std::make_shared<std::vector<std::string>>();
  std::shared_ptr<std::vector<std::string>> edits = std::make_shared<std::vector<std::string>>();
  std::shared_ptr<bool> hand = std::make_shared<bool>(false), rookie = std::make_shared<bool>(false),
                        release = std::make_shared<bool>(false);
};

void AddEditOptions(CLI::App* cmd, const CardArgs& a, const std::string& names) {
  cmd->add_option("--set", *a.sets, "FIELD=VALUE, as if typed at the field's prompt; fields: " + names);
  cmd->add_option("--edit", *a.edits, "FIELD: click the field, which prompts for its value");
}

template <class Field>
std::string FieldNames(const std::vector<Field>& fields) {
  std::string out;
  for (const auto& f : fields) out += (out.empty() ? "" : ", ") + f.name;
  return out;
}

template <class Field>
const Field& FindField(Session& s, const std::vector<Field>& fields, const std::string& name, const char* title) {
  auto lower = [](std::string x) {
    for (auto& c : x) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return x;
  };
  for (const auto& f : fields)
    if (lower(f.name) == lower(name)) return f;
  s.ui.tell("There is no field \"" + name + "\" on this card. The fields are: " + FieldNames(fields) + ".", title);
  throw Refused("no such field");
}

// --set FIELD=VALUE and --edit FIELD, in that order, on either card.
template <class Card, class Field>
void ApplyEdits(Session& s, Card& card, const std::vector<Field>& fields, const CardArgs& a, const char* title) {
  for (const auto& setting : *a.sets) {
    auto eq = setting.find('=');
    const Field& f = FindField(s, fields, setting.substr(0, eq), title);
    card.edit(f, Utf8ToCp1252(eq == std::string::npos ? "" : setting.substr(eq + 1)));
  }
  for (const auto& name : *a.edits) card.edit(FindField(s, fields, name, title));
}

// "ALL", or teams apart by commas, each by number, name or abbreviation.
std::vector<int> TeamsNamed(Session& s, const std::string& arg) {
  std::vector<int> teams;
  if (CLI::detail::to_lower(arg) == "all") {
    for (int t = 0; t < s.state.numTeams(); ++t) teams.push_back(t);
    return teams;
  }
  for (std::size_t from = 0; from <= arg.size();) {
    const std::size_t comma = std::min(arg.find(',', from), arg.size());
    teams.push_back(ResolveTeam(s.state, arg.substr(from, comma - from)));
    from = comma + 1;
  }
  return teams;
}

// Loads the team into side 0 as the cards expect it, as CurTeam.
int OpenTeam(Session& s, const std::string& arg) {
  int t = ResolveTeam(s.state, arg);
  loadteam(s.state, t, 0);
  s.state.CurTeam = static_cast<u8>(t);
  return t;
}

void RegisterCards(CLI::App& app, Session& s) {
  CardArgs a;
  auto* team = AddCommand(app, s, "view-team", "Show a team's card, with its revenue estimate, and edit its fields", true,
                          [&s, a] {
                            for (int t : TeamsNamed(s, *a.team)) {
                              OpenTeam(s, std::to_string(t));
                              TeamCard card(s.state, 0);
                              ApplyEdits(s, card, TeamFields(), a, "View Team");
                              s.ui.print(card.Text());
                              card.Close();
                            }
                          });
  team->add_option("TEAM", *a.team,
                   "the team, by number, name or abbreviation; several with commas (BOS,NYR), or ALL")
      ->required();
  AddEditOptions(team, a, FieldNames(TeamFields()) + " (CurFin adds to the cash: -$5000 deducts)");

  CardArgs b;
  auto* player = AddCommand(app, s, "player", "Show a player's card and edit its fields", true, [&s, b] {
    int t = OpenTeam(s, *b.team);
    if (*b.slot >= kRosterSlots || s.state.player(0, *b.slot).empty()) {
      s.ui.tell("Slot " + std::to_string(*b.slot) + " of " + s.state.team(t).Name.str() + " holds no player.", "Edit Player");
      throw Refused("empty slot");
    }
    s.state.CurPlayer = static_cast<u8>(*b.slot);
    PlayerCard card(s.state, 0);
    ApplyEdits(s, card, PlayerFields(), b, "Edit Player");
    if (*b.hand) card.lblHD();
    if (*b.rookie) card.lblExp();
    if (*b.release) card.cmdRelease();
    s.ui.print(card.Text());
    card.Close();
  });
  player->add_option("TEAM", *b.team, "the team, by number, name or abbreviation")->required();
  player->add_option("SLOT", *b.slot, "the roster slot, 0 to 49")->required()->check(CLI::Range(0, kRosterSlots - 1));
  AddEditOptions(player, b, FieldNames(PlayerFields()));
  player->add_flag("--hand", *b.hand, "switch the shooting hand between L and R");
  player->add_flag("--rookie", *b.rookie, "switch between rookie and veteran");
  player->add_flag("--release", *b.release, "mark the player for release (asks first); the roster editor releases him");
}

}  // namespace

void RegisterAlignmentCommands(CLI::App& app, Session& s) {
  RegisterOptions(app, s);
  RegisterCards(app, s);
  CLI::App* align = app.add_subcommand("align", "Align the league: add, delete, rename, move teams, divisions, expansion");
  align->require_subcommand(1);
  RegisterAlignEdits(align, s);
  RegisterAlignStructure(align, s);
}

}  // namespace kvl
