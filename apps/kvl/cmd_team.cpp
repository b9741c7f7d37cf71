// Rosters, lines and coaches: set-roster, set-lines, auto-all and the coach commands.
#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <memory>
#include <vector>

#include "console/league_view.h"
#include "refuse.h"
#include "session.h"
#include "team/auto_all.h"
#include "team/coach_card.h"
#include "team/coach_hire.h"
#include "team/coach_list.h"
#include "team/coach_rules.h"
#include "util/numbers.h"
#include "team/cards.h"
#include "team/line_editor.h"
#include "team/line_table.h"
#include "team/line_view.h"
#include "team/roster_editor.h"
#include "team/roster_view.h"
#include "util/cp1252.h"
#include "util/error.h"

namespace kvl {

namespace {

// --- set-roster -------------------------------------------------------------

struct RosterArgs {
  std::string team;
  bool autoRoster = false, protectView = false;
  std::vector<int> scratch, farm, up, dress, release, protect;
  std::vector<std::string> add, names, ratings;
  std::string addPos = "C";
};

void CheckSlot(Session& s, RosterEditor& e, int index) {
  if (index < 0 || index >= kRosterSlots || s.state.player(0, index).empty())
    RefuseWith(s, fmt::format("There is no player in slot {} of the {}.", index, s.state.team(e.team()).Name.str()),
               "Set Roster");
}

// One player at a time, so the pro roster count follows each call-up.
void Move(Session& s, RosterEditor& e, RosterMove move, const std::vector<int>& indexes) {
  static constexpr const char* kListNames[] = {"minors", "scratches", "dressed list"};
  for (int index : indexes) {
    CheckSlot(s, e, index);
    if (e.listOf(index) != SourceList(move))
      RefuseWith(s,
                 fmt::format("{} is not on the {}.", s.state.player(0, index).Name.str(),
                             kListNames[SourceList(move)]),
                 "Set Roster");
    if (!e.cmdMovePlayer(move, {index})) throw Refused("move refused");
  }
}

void Protect(Session& s, RosterEditor& e, const std::vector<int>& indexes) {
  for (int index : indexes) {
    CheckSlot(s, e, index);
    if (e.ToggleProtect(index)) continue;
    s.ui.print(fmt::format("No protection mark for {}: the team's limit for his group is reached.",
                           s.state.player(0, index).Name.str()));
    throw Refused("protection limit");
  }
}

// "12=Joe Smith" and "12:Spd=70": a roster slot, then what to store.
std::pair<int, std::string> SlotEdit(Session& s, RosterEditor& e, const std::string& text, char sep) {
  const auto at = text.find(sep);
  const double slot = at == std::string::npos ? -1 : Val(text.substr(0, at));
  if (at == std::string::npos || slot != Int(slot))
    RefuseWith(s, "Name a roster slot first, as 12" + std::string(1, sep) + "..., not \"" + text + "\".", "Set Roster");
  CheckSlot(s, e, static_cast<int>(slot));
  return {static_cast<int>(slot), text.substr(at + 1)};
}

void EditNamesAndRatings(Session& s, RosterEditor& e, const RosterArgs& a) {
  for (const auto& text : a.names) {
    auto [slot, name] = SlotEdit(s, e, text, '=');
    e.SetName(slot, Utf8ToCp1252(name));
  }
  for (const auto& text : a.ratings) {
    auto [slot, edit] = SlotEdit(s, e, text, ':');
    const auto eq = edit.find('=');
    const std::string which = edit.substr(0, eq);
    int rating = -1;
    for (const auto& f : PlayerFields())
      if (f.rating >= 0 && f.name == which) rating = f.rating;
    if (rating < 0 || eq == std::string::npos)
      RefuseWith(s, "A rating edit reads SLOT:RATING=VALUE with a rating as the player card names it, not \"" + text +
                        "\".", "Set Roster");
    const int overall = e.SetRating(slot, rating, edit.substr(eq + 1));
    s.ui.print(fmt::format("{}: Overall {}", s.state.player(0, slot).Name.str(), overall));
  }
}

void AddPlayers(Session& s, RosterEditor& e, const RosterArgs& a) {
  static const std::vector<std::string> kPos{"C", "LW", "RW", "D", "G"};
  auto pos = std::find(kPos.begin(), kPos.end(), a.addPos);
  if (pos == kPos.end()) RefuseWith(s, "A position is C, LW, RW, D or G, not \"" + a.addPos + "\".", "Set Roster");
  for (const auto& name : a.add) {
    const int slot = e.cmdAdd(Utf8ToCp1252(name), static_cast<int>(pos - kPos.begin()),
                              [&](PlayerCard& card) { s.ui.print(e.AddCaption() + "\n" + card.Text()); });
    if (slot < 0) throw Refused("roster full");
  }
}

void RunSetRoster(Session& s, const RosterArgs& a) {
  RosterEditor e(s.state, ResolveTeam(s.state, a.team));
  if (a.protectView || !a.protect.empty()) e.chkProtect(true);
  AddPlayers(s, e, a);
  EditNamesAndRatings(s, e, a);
  if (a.autoRoster && !e.cmdAuto()) throw Refused("auto roster");
  Move(s, e, RosterMove::DressedToScratch, a.scratch);
  Move(s, e, RosterMove::ScratchToMinors, a.farm);
  Move(s, e, RosterMove::MinorsToScratch, a.up);
  Move(s, e, RosterMove::ScratchToDressed, a.dress);
  for (int index : a.release) {
    CheckSlot(s, e, index);
    e.SetRelease(index, true);
  }
  Protect(s, e, a.protect);
  s.ui.print(RosterEditorText(e, s.state));
  e.cmdExit();
}

void RegisterSetRoster(CLI::App& app, Session& s) {
  auto a = std::make_shared<RosterArgs>();
  CLI::App* cmd = AddCommand(app, s, "set-roster",
                             "Show a team's dressed, scratched and minor-league players (by roster slot) and move "
                             "them; changes are kept after \"Keep Roster Changes?\"",
                             true, [&s, a] { RunSetRoster(s, *a); });
  cmd->add_option("TEAM", a->team, "team number or name")->required();
  cmd->add_flag("--auto", a->autoRoster, "dress the best 20 automatically");
  cmd->add_option("--scratch", a->scratch, "roster slots to move from the dressed list to the scratches");
  cmd->add_option("--farm", a->farm, "roster slots to send from the scratches to the minors");
  cmd->add_option("--up", a->up, "roster slots to call up from the minors to the scratches");
  cmd->add_option("--dress", a->dress, "roster slots to dress from the scratches");
  cmd->add_option("--release", a->release, "roster slots to release to the free agents on leaving");
  cmd->add_option("--protect", a->protect, "roster slots whose protection mark to toggle");
  cmd->add_flag("--protection-view", a->protectView, "mark protected players and rookies with *");
  cmd->add_option("--add", a->add, "add a new player of this name in the first free slot (then edit him: kvl player)");
  cmd->add_option("--add-pos", a->addPos, "position of the players added: C, LW, RW, D or G (default C)");
  cmd->add_option("--name", a->names, "SLOT=NAME: rename a player (cut to 22 characters)");
  cmd->add_option("--rating", a->ratings, "SLOT:RATING=VALUE: set a rating (Int, Spd, ...) to 15-99, else dropped");
  cmd->footer(
      "Moves run in the order scratch, farm, up, dress; a player goes from the minors to the dressed list with "
      "--up N --dress N. A refused move keeps nothing and exits 1.");
}

// --- set-lines --------------------------------------------------------------

struct LinesArgs {
  std::string team;
  bool autoLines = false;
  std::vector<std::string> place;
};

struct Placement {
  int page, index, player;
};

// "E1:0=12": row label (E1-E4, P1-P4, K1-K4) or G, slot from 0, roster slot.
std::optional<Placement> ParsePlacement(const std::string& text) {
  auto colon = text.find(':'), equals = text.find('=');
  if (colon == std::string::npos || equals == std::string::npos || equals < colon) return std::nullopt;
  std::string row = text.substr(0, colon);
  int slot = 0, player = 0;
  try {
    slot = std::stoi(text.substr(colon + 1, equals - colon - 1));
    player = std::stoi(text.substr(equals + 1));
  } catch (const std::exception&) {
    return std::nullopt;
  }
  if (row == "G" || row == "g") return Placement{kEvenPage, 20 + slot, player};
  static const std::string kLetters = "EPK";
  if (row.size() != 2 || kLetters.find(static_cast<char>(std::toupper(row[0]))) == std::string::npos ||
      row[1] < '1' || row[1] > '4' || slot < 0 || slot > 4)
    return std::nullopt;
  int page = static_cast<int>(kLetters.find(static_cast<char>(std::toupper(row[0]))));
  return Placement{page, (row[1] - '1') * 5 + slot, player};
}

void ShowLines(Session& s, const LineEditor& e) {
  std::string out = e.caption() + "\n";
  for (int page : {kEvenPage, kPowerPlayPage, kPenaltyKillPage}) out += LinePageText(e, s.state, page);
  out += GoalieRowText(e, s.state) + AssignmentsText(e, s.state);
  if (auto seats = EmptySeats(e.LineBuf); !seats.empty())
    out += fmt::format("Empty seats ({}): {}\n", seats.size(), fmt::join(seats, ", "));
  s.ui.print(out);
}

void RunSetLines(Session& s, const LinesArgs& a) {
  LineEditor e(s.state, ResolveTeam(s.state, a.team));
  if (a.autoLines && !e.cmdAuto()) throw Refused("auto lines");
  for (const auto& text : a.place) {
    auto p = ParsePlacement(text);
    if (!p) RefuseWith(s, "A placement reads ROW:SLOT=PLAYER, as E1:0=12 or G:1=5, not \"" + text + "\".", "Set Lines");
    if (!e.Offers(p->player)) {
      const bool named = p->player >= 0 && p->player < kRosterSlots && !s.state.player(0, p->player).empty();
      RefuseWith(s,
                 named ? "Roster slot " + NumText(p->player) + " (" + s.state.player(0, p->player).Name.str() +
                             ") is not dressed: only dressed players go in the lines (" + text + ")."
                       : "Roster slot " + NumText(p->player) + " holds no player (" + text + ").",
                 "Set Lines");
    }
    e.ShowPage(p->page);
    if (e.Place(p->index, p->player)) continue;
    s.ui.print("The placement " + text + " does not fit the line table; nothing was kept.");
    throw Refused("placement");
  }
  ShowLines(s, e);
  if (!e.cmdExit()) throw Refused("lines not complete");
}

void RegisterSetLines(CLI::App& app, Session& s) {
  auto a = std::make_shared<LinesArgs>();
  CLI::App* cmd = AddCommand(app, s, "set-lines",
                             "Show a team's line table page by page with assignments and averages, and set it; "
                             "changes are kept after \"Keep Line Changes?\"",
                             true, [&s, a] { RunSetLines(s, *a); });
  cmd->add_option("TEAM", a->team, "team number or name")->required();
  cmd->add_flag("--auto", a->autoLines, "make all lines from the 20 dressed players");
  cmd->add_option("--place", a->place,
                  "ROW:SLOT=PLAYER: put roster slot PLAYER on a row (E1-E4, P1-P4, K1-K4) at SLOT from 0, or in "
                  "the goalie row G (0 starter, 1 and 2 spares)");
  cmd->footer("Slots per row: 5 on E1-P2 (C LW RW D D), 4 on P3-K2 (C W D D), 3 on K3-K4 (C D D). The table "
              "shows its empty seats by name (E1:2 (RW)); placements go into an incomplete table, and are kept only "
              "when the table is complete after them (else exit 1, nothing changed).");
}

// --- auto-all ---------------------------------------------------------------

void RegisterAutoAll(CLI::App& app, Session& s) {
  AddCommand(app, s, "auto-all",
             "Set every team's roster and lines automatically; teams short of players are listed and left alone",
             true, [&s] {
               AutoAllResult r = AutoAll(s.state);
               s.ui.print(fmt::format("{} of {} teams set.", r.teamsSet, s.state.numTeams()));
             });
}

// --- coaches ----------------------------------------------------------------

std::size_t CoachArg(Session& s, const std::string& what) {
  if (auto rec = FindCoach(s.state, what)) return *rec;
  RefuseWith(s, "There is no coach \"" + what + "\" in the coach file.", "List Coaches");
}

void PrintCoaches(Session& s, const CoachList& list) {
  std::string out = list.caption() + "\n";
  for (std::size_t rec : list.rows()) out += list.RowText(rec) + "\n";
  s.ui.print(out);
}

void RegisterViewCoach(CLI::App& app, Session& s) {
  auto team = std::make_shared<std::string>();
  AddCommand(app, s, "view-coach", "Show a team's head coach: ratings, salary and style", true, [&s, team] {
    s.ui.print(CoachCardText(DisplayCoach(s.state, ResolveTeam(s.state, *team))));
  })->add_option("TEAM", *team, "team number or name")->required();
}

struct CoachEdits {
  std::string coach;
  std::optional<double> of, df, ex, ld, salary;
};

void RegisterViewAllCoaches(CLI::App& app, Session& s) {
  AddCommand(app, s, "view-all-coaches", "List every coach of the coach file with ratings and salary", true,
             [&s] { PrintCoaches(s, CoachList(s.state)); });

  auto e = std::make_shared<CoachEdits>();
  CLI::App* cmd = AddCommand(app, s, "edit-coach",
                             "Change a coach's ratings (kept within 50-99) or salary (50000-10000000); kept after "
                             "\"Save changes?\"",
                             true, [&s, e] {
                               CoachList list(s.state);
                               std::size_t rec = CoachArg(s, e->coach);
                               const std::array<std::optional<double>, 4> ratings{e->of, e->df, e->ex, e->ld};
                               for (int which = 0; which < 4; ++which)
                                 if (auto v = ratings[static_cast<std::size_t>(which)]) list.SetRating(rec, which, *v);
                               if (e->salary) list.SetSalary(rec, *e->salary);
                               s.ui.print(list.RowText(rec));
                               list.cmdExit();
                             });
  cmd->add_option("COACH", e->coach, "record number or name")->required();
  cmd->add_option("--of", e->of, "offence rating");
  cmd->add_option("--df", e->df, "defence rating");
  cmd->add_option("--ex", e->ex, "experience rating");
  cmd->add_option("--ld", e->ld, "leadership rating");
  cmd->add_option("--salary", e->salary, "salary in dollars, as shown");
}

struct NewCoach {
  std::optional<std::string> name, of, df, ex, ld, salary;
};

void RegisterCreateCoach(CLI::App& app, Session& s) {
  auto c = std::make_shared<NewCoach>();
  CLI::App* cmd = AddCommand(app, s, "create-coach",
                             "Add a coach to the coach file; asks for what the options do not give", true, [&s, c] {
                               // The options answer the prompts in their order.
                               for (const auto& v : {c->name, c->of, c->df, c->ex, c->ld, c->salary}) {
                                 if (!v) break;
                                 s.ui.addAnswer(*v);
                               }
                               CoachList(s.state).cmdCreate();
                             });
  cmd->add_option("--name", c->name, "the coach's name (22 characters at most)");
  cmd->add_option("--of", c->of, "offence rating, 50-100");
  cmd->add_option("--df", c->df, "defence rating, 50-100");
  cmd->add_option("--ex", c->ex, "experience rating, 50-100");
  cmd->add_option("--ld", c->ld, "leadership rating, 50-100");
  cmd->add_option("--salary", c->salary, "salary in dollars, 50000-10000000");
}

void RegisterCoachMoves(CLI::App& app, Session& s) {
  auto del = std::make_shared<std::string>();
  AddCommand(app, s, "delete-coach", "Blank a coach's record in the coach file (asks first)", true,
             [&s, del] { CoachList(s.state).cmdDelete(CoachArg(s, *del)); })
      ->add_option("COACH", *del, "record number or name")
      ->required();

  auto hireTeam = std::make_shared<std::string>();
  auto hireCoach = std::make_shared<std::string>();
  CLI::App* hire = AddCommand(app, s, "hire-coach", "Hire a free coach for a team, firing its present one (asks first)",
                              true, [&s, hireTeam, hireCoach] {
                                int team = ResolveTeam(s.state, *hireTeam);
                                CoachList(s.state, team).cmdSelect(CoachArg(s, *hireCoach));
                              });
  hire->add_option("TEAM", *hireTeam, "team number or name")->required();
  hire->add_option("COACH", *hireCoach, "record number or name of the coach")->required();

  auto fireTeam = std::make_shared<std::string>();
  AddCommand(app, s, "fire-coach", "Fire a team's head coach, who becomes free", true, [&s, fireTeam] {
    int team = ResolveTeam(s.state, *fireTeam);
    if (!FireCoach(s.state, team)) RefuseWith(s, s.state.team(team).Name.str() + " has no head coach.", "Fire Coach");
  })->add_option("TEAM", *fireTeam, "team number or name")->required();
}

}  // namespace

void RegisterTeamCommands(CLI::App& app, Session& s) {
  RegisterSetRoster(app, s);
  RegisterSetLines(app, s);
  RegisterAutoAll(app, s);
  RegisterViewCoach(app, s);
  RegisterViewAllCoaches(app, s);
  RegisterCreateCoach(app, s);
  RegisterCoachMoves(app, s);
}

}  // namespace kvl
