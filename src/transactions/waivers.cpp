#include "transactions/waivers.h"

#include "league/league_files.h"
#include "league/transaction_log.h"
#include "reports/html.h"
#include "transactions/check_waivers.h"
#include "transactions/database_players.h"
#include "transactions/priority.h"
#include "ui/ui.h"
#include "util/fixed_text.h"
#include "util/record_file.h"

namespace kvl {

namespace {

std::size_t At(int i) { return static_cast<std::size_t>(i); }

// Log lines hold HTML: names go in escaped.
std::string Tag(const LeagueState& s, int team) { return HtmlText(Condense(s.team(team).Name.str())); }
std::string NameText(const FixedText<22>& name) { return HtmlText(Condense(name.str())); }

u8 Scratched(u8 status) { return static_cast<u8>(status % 100 + 100); }

}  // namespace

std::vector<WaiverRecord> ReadWaivers(const LeagueState& s) {
  std::vector<WaiverRecord> out;
  const fs::path file = s.swap(swp::Waivers);
  if (!fs::exists(file)) return out;
  const Bytes bytes = ReadFileBytes(file);
  for (std::size_t at = 0; at + WaiverRecord::kSize <= bytes.size(); at += WaiverRecord::kSize)
    out.push_back(DecodeRecord<WaiverRecord>(std::span(bytes).subspan(at)));
  return out;
}

bool CheckWaivers(LeagueState& s, int side, int index, int actor) {
  const League& l = s.league;
  Player& p = s.player(side, index);
  if (p.GP < l.MinGP || p.Age <= l.AgeExempt || !l.OptWaivers || l.InPlayoffs) return true;
  const std::string caption = actor == kEditorActor ? "Keep changes?" : s.team(actor).Name.str();
  if (s.ui.ask("Put " + p.Name.str() + " on waivers?", caption, Buttons::YesNo) != Answer::Yes) {
    p.Status = Scratched(p.Status);
    return false;
  }
  const std::vector<WaiverRecord> wire = ReadWaivers(s);
  for (const WaiverRecord& w : wire)
    if (w.Name == p.Name) {
      s.ui.tell("Player must clear waivers first", s.team(side).Name.str());
      p.Status = Scratched(p.Status);
      return false;
    }
  WaiverRecord w;
  w.Name = p.Name;
  w.Active = -1;
  w.WaivedAt = s.clock.now();
  w.ClaimedBy = kNoPlayer;
  w.Holder = w.Owner = s.CurTeam;
  w.Slot = static_cast<u8>(index);
  for (int t = 0; t < s.numTeams() && t < 49; ++t) w.Open[At(t)] = -1;
  RecordFile(s.swap(swp::Waivers), WaiverRecord::kSize).putRecord(wire.size() + 1, w);
  p.Status = static_cast<u8>(p.Status % 100);
  const int team = actor == kEditorActor ? s.CurTeam : actor;
  AppendTransactionAndHistory(s, Tag(s, team) + " place " + NameText(p.Name) + " on waivers<BR><BR>");
  return false;
}

void UpdateWaivers(LeagueState& s) {
  if (!fs::exists(s.swap(swp::Waivers))) return;
  RecordFile f(s.swap(swp::Waivers), WaiverRecord::kSize);
  const double now = s.clock.now();
  for (std::size_t n = 1; n <= f.count(); ++n) {
    const WaiverRecord w = f.getRecord<WaiverRecord>(n);
    if (w.Name.empty() || now - w.WaivedAt < kWaiverDays) continue;
    if (w.Holder < s.numTeams()) {
      s.team(w.Holder).Waived = kFalse;
      UpdatePriority(s, w.Holder);
    }
    f.putRecord(n, WaiverRecord{});
  }
}

std::vector<WaiverEntry> ListWaivers(const LeagueState& s, int team) {
  std::vector<WaiverEntry> out;
  if (s.team(team).Waived) return out;
  const double now = s.clock.now();
  const std::vector<WaiverRecord> wire = ReadWaivers(s);
  for (std::size_t i = 0; i < wire.size(); ++i) {
    const WaiverRecord& w = wire[i];
    if (!w.Name.empty() && now - w.WaivedAt <= kClaimDays && team < 49 && w.Open[At(team)])
      out.push_back({i + 1, w.Name.str()});
  }
  return out;
}

Waivers::Waivers(LeagueState& s, int team) : s_(s), team_(team) {}

void Waivers::Write(std::size_t record, const WaiverRecord& w) {
  RecordFile(s_.swap(swp::Waivers), WaiverRecord::kSize).putRecord(record, w);
}

bool Waivers::TakePlayer(WaiverRecord& w) {
  const int from = w.Holder;
  loadteam(s_, team_, 0);
  loadteam(s_, from, 1);
  const int slot = FirstFreeSlot(s_, 0);
  if (slot < 0) {
    s_.ui.tell("No room on roster", "");
    return false;
  }
  Player& moved = s_.player(0, slot);
  moved = s_.player(1, w.Slot);
  s_.player(1, w.Slot) = Player{};
  moved.Status = Scratched(moved.Status);
  w.ClaimedBy = w.Holder = static_cast<u8>(team_);
  w.Slot = static_cast<u8>(slot);
  s_.team(team_).CurFin -= kWaiverFee;
  s_.team(from).CurFin += kWaiverFee;
  s_.team(team_).Waived = kTrue;
  return true;
}

bool Waivers::cmdClaim(std::size_t record) {
  WaiverRecord w = ReadWaivers(s_).at(record - 1);
  // A claim of one's own player would move him onto the roster he is on.
  if (w.Holder == team_ || w.Owner == team_) {
    s_.ui.tell(Condense(w.Name.str()) + " is " + s_.team(team_).Name.str() + "'s own player: recall him instead of "
               "claiming him.", "Waivers");
    return false;
  }
  const int from = w.Holder;
  if (!TakePlayer(w)) return false;
  AppendTransaction(s_, Tag(s_, team_) + " claim " + NameText(w.Name) + " from waivers<BR><BR>");
  if (from != w.Owner && s_.team(from).Waived) s_.team(from).Waived = kFalse;
  // The claimant and every team below it may claim no more; those above still may.
  bool below = false;
  RecordFile pri(s_.swap(swp::Priority), 1);
  for (int place = 1; place <= s_.numTeams(); ++place) {
    const int t = pri.get(At(place))[0];
    below = below || t == team_;
    if (below && t < 49) w.Open[At(t)] = 0;
  }
  SaveTeam(s_, team_, 0);
  SaveTeam(s_, from, 1);
  Write(record, w);
  s_.Dirty = true;
  return true;
}

bool Waivers::MayRecall(std::size_t record) const {
  const WaiverRecord w = ReadWaivers(s_).at(record - 1);
  return w.Owner == team_ && team_ < 49 && w.Open[At(team_)];
}

bool Waivers::cmdRecall(std::size_t record) {
  WaiverRecord w = ReadWaivers(s_).at(record - 1);
  Write(record, WaiverRecord{});
  s_.Dirty = true;
  if (w.Holder == team_) {
    loadteam(s_, team_, 0);
    s_.player(0, w.Slot).Status = Scratched(s_.player(0, w.Slot).Status);
    SaveTeam(s_, team_, 0);
    return true;
  }
  const int from = w.Holder;
  if (!TakePlayer(w)) return false;
  Write(record, w);
  AppendTransaction(s_, Tag(s_, team_) + " recall " + NameText(w.Name) + " from waivers<BR><BR>");
  SaveTeam(s_, team_, 0);
  SaveTeam(s_, from, 1);
  return true;
}

}  // namespace kvl
