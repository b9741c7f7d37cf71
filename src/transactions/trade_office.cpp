#include "transactions/trade_office.h"

#include <fmt/format.h>

#include <cmath>
#include <limits>

#include "league/league_files.h"
#include "league/transaction_log.h"
#include "reports/html.h"
#include "team/renumber.h"
#include "transactions/draft_picks.h"
#include "ui/ui.h"
#include "util/error.h"
#include "util/numbers.h"
#include "util/record_file.h"

namespace kvl {

namespace {

std::size_t At(int i) { return static_cast<std::size_t>(i); }

struct HeldProspect {
  FixedText<22> Name;
  u8 Pos = 0, Age = 0, Contract = 0;
  i16 Salary = 0;
};

HeldProspect TakeProspect(ProspectList& l, std::size_t i) {
  HeldProspect h{l.Name[i], l.Pos[i], l.Age[i], l.Contract[i], l.Salary[i]};
  l.Name[i] = FixedText<22>{};
  return h;
}

void PutProspect(ProspectList& l, const HeldProspect& h) {
  for (std::size_t i = 0; i < kMaxProspects; ++i)
    if (l.Name[i].empty()) {
      l.Name[i] = h.Name; l.Pos[i] = h.Pos; l.Age[i] = h.Age; l.Contract[i] = h.Contract; l.Salary[i] = h.Salary;
      return;
    }
  throw KvlError("No free prospect slot for " + h.Name.str());
}

// Copies the player's contract future from the old team's .fas record to the new one's.
void MoveFuture(LeagueState& s, int oldTeam, int oldSlot, int newTeam, int newSlot) {
  if (!fs::exists(s.swap(swp::Futures))) return;
  RecordFile f(s.swap(swp::Futures), ContractFuture::kSize);
  const ContractFuture from = f.getRecord<ContractFuture>(At(oldTeam) + 1);
  ContractFuture to = f.getRecord<ContractFuture>(At(newTeam) + 1);
  to.Value[At(newSlot)] = from.Value[At(oldSlot)];
  for (std::size_t y = 0; y < 5; ++y) {
    const u8 owner = from.OwnerTeam[y][At(oldSlot)];
    to.OwnerTeam[y][At(newSlot)] = owner == oldTeam ? static_cast<u8>(newTeam) : owner;
    to.Amount[y][At(newSlot)] = from.Amount[y][At(oldSlot)];
  }
  f.putRecord(At(newTeam) + 1, to);
}

}  // namespace

struct TradeOffice::Held {
  std::vector<std::pair<int, Player>> players;  // old slot, record
  std::vector<HeldProspect> prospects;
  std::vector<DraftPick> picks;
  bool lostPro = false;
};

TradeOffice::TradeOffice(LeagueState& s, int teamA, int teamB) : s_(s), teams_{teamA, teamB} {
  load(0);
  load(1);
}

void TradeOffice::load(int side) {
  loadteam(s_, team(side), side);
  picks_[At(side)] = ReadDraftPicks(s_, team(side));
}

void TradeOffice::cboTeam(int side, int team) {
  teams_[At(side)] = team;
  load(side);
}

std::vector<TradeListEntry> TradeOffice::lstPlayers(int side) const {
  std::vector<TradeListEntry> out;
  for (int slot = 0; slot < kRosterSlots; ++slot)
    if (!s_.player(side, slot).empty()) out.push_back({slot, s_.player(side, slot).Name.str()});
  return out;
}

std::vector<TradeListEntry> TradeOffice::lstProspects(int side) const {
  std::vector<TradeListEntry> out;
  const ProspectList& l = s_.Prospects[At(side)];
  for (std::size_t i = 0; i < kMaxProspects; ++i)
    if (!l.Name[i].empty()) out.push_back({static_cast<int>(i), l.Name[i].str()});
  return out;
}

std::vector<TradeListEntry> TradeOffice::lstPicks(int side) const {
  std::vector<TradeListEntry> out;
  const DraftPickRecord& r = picks_[At(side)];
  for (int i : ListedPicks(s_, r)) out.push_back({i, PickText(s_, r.Pick[At(i)])});
  return out;
}

void TradeOffice::txtCash_DblClick(int side) {
  const auto answer = s_.ui.prompt("How much cash from " + s_.team(team(side)).Name.str(), "Include Cash", "");
  if (answer) EnterCash(side, *answer);
}

bool TradeOffice::EnterCash(int side, const std::string& answer) {
  if (answer.empty()) return true;
  const Team& t = s_.team(team(side));
  if (answer[0] == '-' || (answer.size() > 1 && answer[1] == '-')) {
    s_.ui.tell("You cannot trade negative cash!", "Invalid Cash Value");
    return false;
  }
  std::string digits = answer[0] == '$' ? answer.substr(1) : answer;
  std::erase(digits, ',');
  double amount = std::round(Val(digits));
  // Money is a 32-bit sum; anything else cannot be paid.
  if (digits.empty() || digits.find_first_not_of("0123456789.") != std::string::npos ||
      amount > std::numeric_limits<i32>::max()) {
    s_.ui.tell(fmt::format("Cash from {}: \"{}\" is not a sum of money.", t.Name.str(), answer), "Include Cash");
    return false;
  }
  if (amount > t.CurFin) {
    const std::string head = t.Name.str() + "\nhas only $" + NumText(t.CurFin) + " in its current account.\n";
    if (t.CurFin < 0) {
      s_.ui.tell(head + "They can't trade cash they don't have!", "Not Enough Cash");
      if (s_.league.OptMoney)
        s_.ui.tell("Tell the " + t.Name.raw() + "GM to clean up his finances!", t.Name.str() + " are bankrupt");
    } else {
      s_.ui.tell(head + "They can only trade that amount.", "Not Enough Cash");
      amount = t.CurFin;
    }
  }
  cash_[At(side)] = FormatNumber(amount, "$#,##0");
  return true;
}

bool TradeOffice::Holds(const std::array<TradeSelection, 2>& sel) {
  for (int side = 0; side < 2; ++side) {
    const TradeSelection& mine = sel[At(side)];
    auto missing = [&](const char* what, int index) {
      s_.ui.tell(fmt::format("{} holds no {} at {} to trade.", s_.team(team(side)).Name.str(), what, index), "Trade");
      return false;
    };
    for (int slot : mine.players)
      if (slot < 0 || slot >= kRosterSlots || s_.player(side, slot).empty()) return missing("player", slot);
    for (int i : mine.prospects)
      if (i < 0 || i >= kMaxProspects || s_.Prospects[At(side)].Name[At(i)].empty()) return missing("prospect", i);
    for (int i : mine.picks)
      if (i < 1 || i >= DraftPickRecord::kEntries || !picks_[At(side)].Pick[At(i)].Active) return missing("pick", i);
  }
  return true;
}

double TradeOffice::SideValue(int side, const TradeSelection& sel) const {
  double v = 0;
  for (int slot : sel.players) v += PlayerTradeValue(s_.player(side, slot));
  v += 1750.0 * static_cast<double>(sel.prospects.size());
  for (int i : sel.picks) v += PickTradeValue(picks_[At(side)].Pick[At(i)]);
  return v + CashShown(txtCash(side)) / 100.0;
}

std::string TradeOffice::cmdAssess(const std::array<TradeSelection, 2>& sel) {
  if (!Holds(sel)) return "";
  const double v0 = SideValue(0, sel[0]), v1 = SideValue(1, sel[1]);
  const std::string text = std::abs(v0 - v1) < 200
                               ? std::string("Trade is even")
                               : "Trade favours the " + s_.team(team(v0 < v1 ? 0 : 1)).Name.str();
  s_.ui.tell(text, "");
  return text;
}

bool TradeOffice::RosterFits(const std::array<TradeSelection, 2>& sel) {
  for (int side = 0; side < 2; ++side) {
    const std::size_t count = lstPlayers(side).size() + sel[At(1 - side)].players.size() - sel[At(side)].players.size();
    if (count > kRosterSlots) {
      s_.ui.tell(s_.team(team(side)).Name.str() + " will end up with too many players", "Too many players");
      return false;
    }
  }
  return true;
}

// Prospects and picks have no limit of their own, but their records are full at 100 and 255.
bool TradeOffice::RecordsFit(const std::array<TradeSelection, 2>& sel) {
  for (int side = 0; side < 2; ++side) {
    const TradeSelection& in = sel[At(1 - side)];
    const std::size_t prospects = lstProspects(side).size() + in.prospects.size();
    std::size_t picks = in.picks.size();
    for (const DraftPick& p : picks_[At(side)].Pick) picks += p.Active ? 1 : 0;
    if (prospects > kMaxProspects || picks >= DraftPickRecord::kEntries) {
      s_.ui.tell(fmt::format("{} would end up with {} prospects and {} draft picks: the most are {} and {}.",
                             s_.team(team(side)).Name.str(), prospects, picks, kMaxProspects,
                             DraftPickRecord::kEntries - 1),
                 "Trade");
      return false;
    }
  }
  return true;
}

TradeOffice::Held TradeOffice::TakeAway(int side, const TradeSelection& sel) {
  Held h;
  for (int slot : sel.players) {
    Player& p = s_.player(side, slot);
    h.players.emplace_back(slot, p);
    if (p.Status >= 100) {
      s_.team(team(side)).LinesOK = 0;
      h.lostPro = true;
    }
    TradeSplit(s_, p, team(side));
    p = Player{};
  }
  for (int i : sel.prospects) h.prospects.push_back(TakeProspect(s_.Prospects[At(side)], At(i)));
  for (int i : sel.picks) {
    h.picks.push_back(picks_[At(side)].Pick[At(i)]);
    picks_[At(side)].Pick[At(i)] = DraftPick{};
  }
  return h;
}

// The players of the other side come to `side`.
void TradeOffice::Receive(int side, const Held& held) {
  for (const auto& [oldSlot, p] : held.players) {
    int slot = 0;
    while (slot < kRosterSlots && !s_.player(side, slot).empty()) ++slot;
    Player& to = s_.player(side, slot);
    to = p;
    if (to.GP != 0) to.Traded = kTrue;
    to.Protected = 0;
    if (to.Contract == 0) MoveFuture(s_, team(1 - side), oldSlot, team(side), slot);
  }
}

// The prospects, cash and picks of the other side come to `side`.
void TradeOffice::ReceiveOthers(int side, const Held& held) {
  const int other = 1 - side;
  Renumber(s_, side);
  s_.team(team(0)).LinesOK = 0;
  s_.team(team(1)).LinesOK = 0;
  for (const HeldProspect& p : held.prospects) PutProspect(s_.Prospects[At(side)], p);
  const i32 cash = CashShown(txtCash(other));
  s_.team(team(side)).CurFin += cash;
  s_.team(team(other)).CurFin -= cash;
  DraftPickRecord& mine = picks_[At(side)];
  for (DraftPick p : held.picks) {
    int i = 1;
    while (i < DraftPickRecord::kEntries && mine.Pick[At(i)].Active) ++i;
    if (i == DraftPickRecord::kEntries) throw KvlError("No free draft pick entry for " + s_.team(team(side)).Name.str());
    p.Owner = static_cast<u8>(side);  // the side, not the team, as the old office stored it
    mine.Pick[At(i)] = p;
  }
  for (int t = 0; t < 2; ++t) WriteDraftPicks(s_, team(t), picks_[At(t)]);
  for (int t = 0; t < 2; ++t) {
    SortDraftPicks(s_, team(t));
    picks_[At(t)] = ReadDraftPicks(s_, team(t));
  }
  for (int t = 0; t < 2; ++t) SaveTeam(s_, team(t), t);
}

std::string TradeOffice::RecordLine(int side, const TradeSelection& sel) const {
  std::vector<std::string> items;
  // The log holds HTML: names go in escaped.
  for (int slot : sel.players) items.push_back(HtmlText(Condense(s_.player(side, slot).Name.str())));
  for (int i : sel.prospects) items.push_back(HtmlText(Condense(s_.Prospects[At(side)].Name[At(i)].str())));
  for (const TradeListEntry& e : lstPicks(side))
    for (int i : sel.picks)
      if (e.index == i) items.push_back(e.text);
  const i32 cash = CashShown(txtCash(side));
  if (cash != 0) items.push_back(FormatNumber(cash, "$#,##0"));
  std::string line = "To " + HtmlText(Condense(s_.team(team(1 - side)).Name.str())) + ": ";
  for (std::size_t i = 0; i < items.size(); ++i) line += (i ? ", " : "") + items[i];
  return line + "<BR>";
}

bool TradeOffice::cmdExecute(const std::array<TradeSelection, 2>& sel) {
  if (team(0) == team(1)) return false;
  if (!Holds(sel) || !RosterFits(sel) || !RecordsFit(sel)) return false;
  const std::array<std::string, 3> record{RecordLine(0, sel[0]), RecordLine(1, sel[1]), "<BR>"};
  std::array<Held, 2> held{TakeAway(0, sel[0]), TakeAway(1, sel[1])};
  for (int side = 0; side < 2; ++side)
    if (held[At(side)].lostPro) RemoveIfExists(s_.AppPath / (s_.LeagueShort + NumText(team(side)) + ".lns"));
  for (int side = 0; side < 2; ++side) Receive(1 - side, held[At(side)]);
  for (int side = 0; side < 2; ++side) ReceiveOthers(side, held[At(1 - side)]);
  for (const std::string& line : record) AppendTransactionAndHistory(s_, line);
  cash_ = {"0", "0"};
  load(0);
  load(1);
  s_.Dirty = true;
  return true;
}

}  // namespace kvl
