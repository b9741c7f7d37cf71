// Waivers, free agents and random contracts.
#include <fmt/format.h>

#include "cmd_glance.h"
#include "console/league_view.h"
#include "league/tables.h"
#include "reports/glance.h"
#include "session.h"
#include "transactions/free_agents.h"
#include "transactions/waivers.h"
#include "ui/ui.h"
#include "util/cp1252.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

namespace {

// A listed item named by its number in the list or by the player's name.
template <class Entry>
const Entry& Pick(Session& s, const std::vector<Entry>& list, const std::string& arg, const std::string& what,
                  int Entry::*number) {
  for (const Entry& e : list)
    if (arg == e.name || arg == NumText(e.*number)) return e;
  s.ui.tell(fmt::format("No {} \"{}\": name one as the list shows it, by name or number.", what, arg), "KVL");
  throw Refused("unknown player");
}

struct WireRow {
  int record = 0;
  std::string name;
};

std::string WireText(const LeagueState& s) {
  std::string text = "  No  Player                  Owner       Holder      Days\n";
  const std::vector<WaiverRecord> wire = ReadWaivers(s);
  for (std::size_t i = 0; i < wire.size(); ++i) {
    const WaiverRecord& w = wire[i];
    if (w.Name.empty()) continue;
    auto team = [&](u8 t) { return t < s.numTeams() ? s.team(t).Name.str() : std::string("-"); };
    text += fmt::format("{:>4}  {:<22}  {:<10}  {:<10}  {:.1f}\n", i + 1, w.Name.str(), team(w.Owner), team(w.Holder),
                        s.clock.now() - w.WaivedAt);
  }
  return text;
}

struct WaiverArgs {
  std::string team, claim, recall;
};

void RunCheckWaivers(Session& s, const WaiverArgs& a) {
  LeagueState& st = s.state;
  UpdateWaivers(st);
  if (a.team.empty()) return s.ui.print(WireText(st));
  const int team = ResolveTeam(st, a.team);
  Waivers form(st, team);
  std::vector<WireRow> claimable, recallable;
  for (const WaiverEntry& e : ListWaivers(st, team)) claimable.push_back({static_cast<int>(e.record), e.name});
  const std::vector<WaiverRecord> wire = ReadWaivers(st);
  for (std::size_t i = 0; i < wire.size(); ++i)
    if (!wire[i].Name.empty() && form.MayRecall(i + 1))
      recallable.push_back({static_cast<int>(i) + 1, wire[i].Name.str()});
  if (!a.claim.empty()) {
    const WireRow& r = Pick(s, claimable, a.claim, "player on waivers that " + st.team(team).Name.str() + " may claim",
                            &WireRow::record);
    if (!form.cmdClaim(static_cast<std::size_t>(r.record))) throw Refused("claim");
    return s.ui.print(
        fmt::format("{} claimed {} (fee {}).\n", st.team(team).Name.str(), r.name, FormatNumber(kWaiverFee, "$#,##0")));
  }
  if (!a.recall.empty()) {
    const WireRow& r = Pick(s, recallable, a.recall,
                            "player on waivers that " + st.team(team).Name.str() + " may recall", &WireRow::record);
    if (!form.cmdRecall(static_cast<std::size_t>(r.record))) throw Refused("recall");
    return s.ui.print(fmt::format("{} recalled {}.\n", st.team(team).Name.str(), r.name));
  }
  std::string text = fmt::format("{} may claim:\n", st.team(team).Name.str());
  for (const WireRow& r : claimable) text += fmt::format("{:>4}  {}\n", r.record, r.name);
  if (claimable.empty()) text += "  nobody\n";
  for (const WireRow& r : recallable) text += fmt::format("May recall {:>4}  {}\n", r.record, r.name);
  s.ui.print(text);
}

void RegisterCheckWaivers(CLI::App& app, Session& s) {
  auto a = std::make_shared<WaiverArgs>();
  CLI::App* cmd = AddCommand(app, s, "check-waivers",
                             "The waiver wire (expired entries removed first); with TEAM, the players it may claim "
                             "or recall, and --claim or --recall to take one",
                             true, [&s, a] { RunCheckWaivers(s, *a); });
  cmd->add_option("TEAM", a->team, "team number or name");
  auto* claim = cmd->add_option("--claim", a->claim, "claim this player (name or number in the list)");
  cmd->add_option("--recall", a->recall, "recall this player of the team's own (name or number)")->excludes(claim);
}

struct SignArgs {
  std::string team, sign;
  std::optional<double> salary;
  std::optional<int> years;
  bool output = false;
  std::string pos, sort;
  std::size_t top = 0;
  bool csv = false;
};

// The list as it stands, or chosen and sorted when --pos, --sort or --top asks.
void PrintFreeAgents(Session& s, std::vector<FreeAgentEntry> list, const SignArgs& a) {
  if (!a.pos.empty() || !a.sort.empty() || a.top > 0) {
    const std::optional<int> pos = PosNumber(a.pos);
    const FreeAgentOrder order = a.sort == "age"      ? FreeAgentOrder::Age
                                 : a.sort == "salary" ? FreeAgentOrder::Salary
                                                      : FreeAgentOrder::Overall;
    list = ChooseFreeAgents(std::move(list), pos, order, a.top > 0 ? a.top : list.size());
  }
  TextTable t{{{"No", 5}, {"Player", 22, true}, {"Pos", 3}, {"Age", 3}, {"Kind", 4, true}, {"Salary", 10}, {"OV", 3}},
              {}};
  for (const FreeAgentEntry& e : list)
    t.rows.push_back({std::to_string(e.record), Cp1252ToUtf8(e.name),
                      PosText(e.pos), std::to_string(e.age), e.unrestricted ? "UFA" : "RFA",
                      a.csv ? std::to_string(e.salary) : FormatNumber(e.salary, "#,000"), std::to_string(e.overall)});
  s.ui.print(TableText(t, a.csv));
}

void RunFreeAgents(Session& s, const SignArgs& a) {
  FreeAgents form(s.state);
  if (a.output) return s.ui.print("Written " + form.cmdOutput().string() + "\n");
  const std::vector<FreeAgentEntry> list = form.list();
  if (a.sign.empty()) return PrintFreeAgents(s, list, a);
  if (a.team.empty()) {
    s.ui.tell("Name the team that signs the player: free-agents TEAM --sign PLAYER", "Sign Free Agent");
    throw Refused("no team");
  }
  const int team = ResolveTeam(s.state, a.team);
  const FreeAgentEntry& e = Pick(s, list, a.sign, "free agent", &FreeAgentEntry::record);
  if (!form.cmdAdd(team, e.record, {a.salary, a.years})) throw Refused("sign");
  s.ui.print(fmt::format("{} signed {}.\n", s.state.team(team).Name.str(), e.name));
}

void RegisterFreeAgents(CLI::App& app, Session& s) {
  auto a = std::make_shared<SignArgs>();
  CLI::App* cmd = AddCommand(app, s, "free-agents",
                             "List the free agents (UFA at UnresAge and older, else RFA); with TEAM --sign PLAYER, "
                             "sign one at --salary and --years (asked when not given); --output writes the "
                             "FreeAgents.html page",
                             true, [&s, a] { RunFreeAgents(s, *a); });
  cmd->add_option("TEAM", a->team, "the team that signs");
  auto* sign = cmd->add_option("--sign", a->sign, "the free agent, by name or number in the list");
  cmd->add_option("--salary", a->salary, "salary in dollars, 0 to 99,999,999")->needs(sign);
  cmd->add_option("--years", a->years, "contract length, 1 to 10 years")->needs(sign);
  cmd->add_flag("--output", a->output, "write the FreeAgents.html page")->excludes(sign);
  cmd->add_option("--pos", a->pos, "list only this position")
      ->check(CLI::IsMember({"C", "LW", "RW", "D", "G"}, CLI::ignore_case))
      ->excludes(sign);
  cmd->add_option("--sort", a->sort, "overall (best first), age (youngest first) or salary (dearest first)")
      ->check(CLI::IsMember({"overall", "age", "salary"}))
      ->excludes(sign);
  cmd->add_option("--top", a->top, "list only the first N")->check(kPositiveWhole)->excludes(sign);
  cmd->add_flag("--csv", a->csv, "comma-separated values for a spreadsheet")->excludes(sign);
}

void RegisterRandomContracts(CLI::App& app, Session& s) {
  AddCommand(app, s, "random-contracts", "Give every player of the league a contract of 1 to 4 years; salaries stay",
             true, [&s] {
               if (!RandomContracts(s.state)) throw Refused("random contracts");
             });
}

}  // namespace

void RegisterTransactionCommands(CLI::App& app, Session& s) {
  RegisterCheckWaivers(app, s);
  RegisterFreeAgents(app, s);
  RegisterRandomContracts(app, s);
}

}  // namespace kvl
