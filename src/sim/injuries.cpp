#include "sim/injuries.h"

#include <cmath>
#include <vector>

#include "reports/html.h"
#include "league/tables.h"
#include "league/transaction_log.h"
#include "util/record_file.h"

namespace kvl {

namespace {

constexpr int kMaxInjuryTexts = 100;

int Draw(LeagueState& s, double n) { return 1 + static_cast<int>(std::floor(s.rnd() * n)); }

std::string Tag(const LeagueState& s, int team, const Player& p) {
  return HtmlText(p.Name.str() + " (" + s.team(team).Abbrev.str() + ")");
}

// A text of class c from inj.dtf, noting its record number in InjuryType.
std::string InjuryWording(LeagueState& s, Player& p, int c) {
  fs::path file = s.AppPath / "inj.dtf";
  if (!fs::exists(file)) return "injury ";
  RecordFile f(file, InjuryText::kSize);
  std::vector<std::size_t> fits;
  std::vector<std::string> texts;
  for (std::size_t n = 1; n <= f.count() && n <= kMaxInjuryTexts; ++n) {
    InjuryText t = f.getRecord<InjuryText>(n);
    if (t.Class != c) continue;
    fits.push_back(n);
    texts.push_back(t.Text.str());
  }
  std::size_t pick = static_cast<std::size_t>(Draw(s, static_cast<double>(fits.size())) - 1);
  if (fits.empty()) return "injury ";
  p.InjuryType = static_cast<u8>(fits[pick]);
  return texts[pick];
}

}  // namespace

void DecideInjury(LeagueState& s, int team, int side, int slot) {
  Player& p = s.player(side, slot);
  const int dur = p.rating(kDur);
  if (Draw(s, 200) < dur) return;  // nothing lasting
  const int n = 110 + 3 * (s.league.InjuriesLevel() - 5);
  int c = 1;
  // The class walks up with the player's fragility...
  while (c != 6 && Draw(s, n + 5 * c) >= dur) ++c;
  // ...and a fragile one often falls back to a minor injury after a long walk.
  if (Draw(s, 100) > dur) c = 1;
  // A byte cannot go below 0: a player already worn down stops there.
  p.Condition = static_cast<u8>(std::max(0, p.Condition - (100 - InjuryScale[static_cast<std::size_t>(c)])));
  p.Status = static_cast<u8>(p.Status + c);
  s.team(team).LinesOK = kFalse;
  std::string text = InjuryWording(s, p, c);
  AppendTransaction(s, Tag(s, team, p) + " suffers " + text + ", sidelined " +
                           std::string(InjuryName[static_cast<std::size_t>(c)]) + "<BR><BR>");
}

void RecoverDay(LeagueState& s, int team, int side, int slot) {
  Player& p = s.player(side, slot);
  int c = p.Status % 100;
  p.Status = static_cast<u8>(p.Status - c);
  if (c > 7) c = 6;
  int heal = InjuryRate[static_cast<std::size_t>(InjuryClassFor(c))];
  p.Condition = static_cast<u8>(std::min(100, p.Condition + Draw(s, heal)));
  // The class follows the condition: he walks down the table as it rises.
  for (int i = 1; i < 7; ++i)
    if (p.Condition > InjuryScale[static_cast<std::size_t>(i)]) {
      c = i;
      break;
    }
  if (p.Condition > 95) {
    c = 0;
    s.team(team).LinesOK = kFalse;
    AppendTransaction(s, Tag(s, team, p) + " returns from injury<BR><BR>");
  }
  p.Status = static_cast<u8>(p.Status + c);
}

}  // namespace kvl
