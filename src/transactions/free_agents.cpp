#include "transactions/free_agents.h"

#include <fmt/format.h>

#include "league/league_files.h"
#include "league/ratings.h"
#include "league/transaction_log.h"
#include "league/tables.h"
#include "reports/html.h"
#include "reports/page_files.h"
#include "reports/player_lists.h"
#include "transactions/database_players.h"
#include "ui/ui.h"
#include "util/fixed_text.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr const char* kSignTitle = "Sign Free Agent";

}  // namespace

std::vector<FreeAgentEntry> FreeAgents::list() const {
  std::vector<FreeAgentEntry> out;
  const std::vector<DbRecord> db = ReadDatabase(s_);
  for (std::size_t i = 0; i < db.size(); ++i) {
    const Player& p = db[i].P;
    if (db[i].DbFlag != 0 || p.empty()) continue;
    out.push_back(
        {static_cast<int>(i) + 1, p.Name.str(), p.Pos, p.Age, Overall(p), p.Salary, p.Age >= s_.league.UnresAge});
  }
  return out;
}

// A given value out of range is refused with the range; an asked one is
// asked again, as the form does.
std::optional<double> FreeAgents::AskSalary(const std::string& shortName, std::optional<double> given) {
  auto valid = [](double v) { return v >= 0 && v < kMaxSalary; };
  if (given) {
    if (valid(*given)) return given;
    s_.ui.tell(fmt::format("A salary is from $0 to $99,999,999; {} is not.", *given), kSignTitle);
    return std::nullopt;
  }
  for (;;) {
    std::optional<std::string> a = s_.ui.prompt("New salary for " + shortName, kSignTitle, "");
    if (!a || a->empty()) return std::nullopt;
    if (std::optional<double> v = DollarsIn(*a, kMaxSalary - 1)) return v;
    s_.ui.tell("\"" + *a + "\" is not a salary: whole dollars from $0 to $99,999,999.", kSignTitle);
  }
}

std::optional<int> FreeAgents::AskYears(const std::string& shortName, std::optional<int> given) {
  if (!given) {
    std::optional<std::string> a = s_.ui.prompt("New contract length for " + shortName, kSignTitle, "");
    if (!a || a->empty()) return std::nullopt;
    std::optional<double> v = WholeIn(*a, 0, 255);
    if (!v) {
      s_.ui.tell("A contract length is a whole number of years from 1 to 10.", kSignTitle);
      return std::nullopt;
    }
    given = static_cast<int>(*v);
  }
  if (*given < 1 || *given > kMaxContractYears) {
    s_.ui.tell(fmt::format("A contract length is from 1 to {} years; {} is not.", kMaxContractYears, *given),
               kSignTitle);
    return std::nullopt;
  }
  return given;
}

bool FreeAgents::cmdAdd(int team, int record, const ContractTerms& terms) {
  std::vector<DbRecord> db = ReadDatabase(s_);
  if (record < 1 || record > static_cast<int>(db.size()) || db[static_cast<std::size_t>(record - 1)].DbFlag != 0 ||
      db[static_cast<std::size_t>(record - 1)].P.empty()) {
    s_.ui.tell(fmt::format("Record {} of the database is not a free agent.", record), kSignTitle);
    return false;
  }
  Player p = db[static_cast<std::size_t>(record - 1)].P;
  loadteam(s_, team, 0);
  const int slot = FirstFreeSlot(s_, 0);
  if (slot < 0) {
    s_.ui.tell("This team already has 50 players.", "Cannot Add Player");
    return false;
  }
  const std::string shortName = ShortName(p.Name.str());
  std::optional<double> salary = AskSalary(shortName, terms.salary);
  if (!salary) return false;
  std::optional<int> years = AskYears(shortName, terms.years);
  if (!years) return false;
  p.Salary = static_cast<i32>(*salary);
  p.Contract = static_cast<u8>(*years);
  PlaceOnRoster(s_, 0, slot, p, NewcomerStatus(s_, 0));
  MarkUsed(s_, {record});
  AppendTransactionAndHistory(s_, HtmlText(s_.team(team).Name.str()) + " sign " + HtmlText(p.Name.str()) + " to a " +
                                      NumText(*years) + " year, " + FormatNumber(*salary, "$0,000") +
                                      " contract<BR><BR>");
  SaveTeam(s_, team, 0);
  s_.Dirty = true;
  return true;
}

fs::path FreeAgents::cmdOutput() {
  constexpr const char* kColumns =
      "<PRE>Player                 AG   ST      SALARY  PO IT SP ST EN DU DI SK PA PC DF SC EX LD OV";
  const std::string prefix = HtmlText(s_.LeagueShort);
  std::vector<std::string> page{"<HTML>", "<TITLE>" + prefix + " Free Agents</TITLE>",
                                "<H1>" + prefix + " Free Agents</H1>"};
  std::vector<std::size_t> ends = CaptionEnds(kColumns);
  ends.erase(ends.begin());  // the name is the row's label
  const std::vector<DbRecord> db = ReadDatabase(s_);
  const std::vector<FreeAgentEntry> agents = list();
  for (std::size_t pos = 0; pos < PosPlural.size(); ++pos) {
    page.push_back("<H3>" + std::string(PosPlural[pos]) + "</H3>");
    page.push_back(kColumns);
    for (const FreeAgentEntry& e : agents) {
      const Player& p = db[static_cast<std::size_t>(e.record - 1)].P;
      if (p.Pos != pos) continue;
      std::vector<std::string> values{NumText(p.Age), e.unrestricted ? "UFA" : "RFA", FormatNumber(p.Salary, "#,000")};
      for (std::string& v : PositionAndRatings(p)) values.push_back(std::move(v));
      page.push_back(RowUnder(CutLabel(p.Name.str(), 22), values, ends));
    }
    page.push_back("</PRE>");
  }
  page.push_back("</HTML>");
  fs::path path = TransferFile(s_, "FreeAgents.html");
  WritePage(path, page);
  s_.ui.tell("Output Complete", "Free Agents Outputted");
  return path;
}

bool RandomContracts(LeagueState& s) {
  if (s.ui.ask("Randomly generate contracts for all league players?", "Random Contracts", Buttons::YesNo) !=
      Answer::Yes)
    return false;
  for (int t = 0; t < s.numTeams(); ++t) {
    loadteam(s, t, 0);
    for (int slot = 0; slot < kRosterSlots; ++slot) {
      Player& p = s.player(0, slot);
      if (!p.empty()) p.Contract = static_cast<u8>(static_cast<int>(s.rnd() * 4) + 1);
    }
    SaveTeam(s, t, 0);
  }
  s.Dirty = true;
  return true;
}

}  // namespace kvl
