// A traded player's season line per team in the career file (.csr): the lines
// hold what he did for earlier teams, so the difference is his present team's.
#include "league/league_files.h"
#include "transactions/trade_office.h"
#include "util/record_file.h"

namespace kvl {

namespace {

template <class T>
void AddField(T& to, T from, int sign) {
  to = static_cast<T>(to + sign * from);
}

}  // namespace

void AddFigures(Player& to, const Player& from, int sign) {
  AddField(to.GP, from.GP, sign); AddField(to.G, from.G, sign); AddField(to.A, from.A, sign);
  AddField(to.Plus, from.Plus, sign); AddField(to.PIM, from.PIM, sign); AddField(to.Shots, from.Shots, sign);
  AddField(to.PP, from.PP, sign); AddField(to.SH, from.SH, sign); AddField(to.GW, from.GW, sign);
  AddField(to.GT, from.GT, sign); AddField(to.Hits, from.Hits, sign);
  AddField(to.FarmStatC, from.FarmStatC, sign); AddField(to.FarmStatD, from.FarmStatD, sign);
}

void TradeSplit(LeagueState& s, const Player& p, int team) {
  RecordFile f(s.swap(swp::Career), CareerRecord::kSize);
  const std::size_t count = f.count();
  Player diff = p;
  std::size_t present = 0;
  for (std::size_t n = 1; n <= count; ++n) {
    const CareerRecord line = f.getRecord<CareerRecord>(n);
    if (line.P.Name != p.Name) continue;
    AddFigures(diff, line.P, -1);
    if (line.Team == team && present == 0) present = n;
  }
  if (present != 0) {
    CareerRecord line = f.getRecord<CareerRecord>(present);
    AddFigures(line.P, diff, 1);
    f.putRecord(present, line);
  } else if (diff.GP != 0) {
    f.putRecord(count + 1, CareerRecord{static_cast<u8>(team), diff});
  }
}

}  // namespace kvl
