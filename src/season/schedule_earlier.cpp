#include "season/schedule_earlier.h"

#include <utility>

#include "season/schedule_allot.h"
#include "util/error.h"
#include "util/numbers.h"

namespace kvl {

namespace {
constexpr int kStallLimit = 1000;
constexpr int kTries = 100;
}  // namespace

EarlierScheduleMaker::EarlierScheduleMaker(LeagueState& s, const ScheduleParams& p, ScheduleMatrices& m,
                                           AllotGameLog& log, double totalGames, Writer write)
    : s_(s), p_(p), m_(m), log_(log), totalGames_(totalGames), n_(s.numTeams()),
      book_(m, p, n_, s.rnd, placed_, [this, write = std::move(write)](int number, const ScheduleRecord& r) {
        ScheduleRecord withDay = r;
        withDay.GameDay = static_cast<i16>(gameDay_);
        write(number, withDay);
      }) {}

bool EarlierScheduleMaker::run(const std::function<void(int)>& progress) {
  book_.Start();
  while (placed_ != totalGames_) {
    book_.ClearPlacedToday();
    ++gameDay_;
    int target = drawTarget();
    int gamesToday = 0;
    while (gamesToday != target && placed_ < totalGames_) {
      if (++stall_ >= kStallLimit) return false;
      Extremes e = findExtremes();
      if (stall_ > 800) logStall(e);
      int host = chooseHost(e);
      int opp = chooseOpponent(host, e);
      if (opp < 0 || opp == host) break;
      book_.PlaceGame(opp, host);
      stall_ = 0;
      ++gamesToday;
    }
    if (progress) progress(placed_);
  }
  return true;
}

// The target was held in a byte, so a negative draw stops the program.
int EarlierScheduleMaker::drawTarget() {
  int target = static_cast<int>(Int(2 * p_.Variance * s_.rnd() - p_.Variance)) + p_.GPDay;
  if (target < 0 || target > 255) throw KvlError("Overflow");
  if (n_ < 2 * target) target = static_cast<int>(Int(n_ / 2.0));
  if (target == 0) target = 1;
  if (target > 12) target = 12;
  return target;
}

EarlierScheduleMaker::Extremes EarlierScheduleMaker::findExtremes() const {
  Extremes e{static_cast<int>(totalGames_), 0, 0, static_cast<int>(totalGames_ / 2), 0, 0, 0};
  for (int t = 0; t < n_; ++t) {
    int total = m_.TotalGP[t], home = m_.HomeGP[t];
    if (total < e.leastTotal) e.leastTotal = total, e.fewestTotal = t;
    if (total > e.mostTotal) e.mostTotal = total;
    if (home < e.leastHome) e.leastHome = home, e.fewestHome = t;
    if (home > e.mostHome) e.mostHome = home, e.mostHomeTeam = t;
  }
  return e;
}

// The counts stand where team numbers belong: that is how the line was written.
void EarlierScheduleMaker::logStall(const Extremes& e) {
  log_.Display("FewGP: " + NumText(e.leastTotal) + " " + LogName(s_, e.fewestTotal) + "FewHmGP: " +
               NumText(e.leastHome) + " " + LogName(s_, e.leastHome) + "FewGP: " + NumText(e.mostHome) + " " +
               LogName(s_, e.mostHome));
}

// When no draw passes, the last one stands.
int EarlierScheduleMaker::chooseHost(const Extremes& e) {
  int host = 0;
  for (int tries = 1; tries <= kTries; ++tries) {
    host = draw();
    if (tries == 1) host = e.fewestTotal;
    if (tries == 2) host = e.fewestHome;
    if (m_.TotalGP[host] < p_.GPTeam && !book_.PlacedToday(host) && m_.HomeGP[host] < p_.GPTeam / 2.0 &&
        m_.TotalGP[host] < e.leastTotal + 3)
      break;
  }
  return host;
}

bool EarlierScheduleMaker::acceptOpponent(int host, int opp, const Extremes& e) const {
  bool evenSoFar = lead_ > 1 || m_.HomeMatchups(host, opp) >= m_.HomeMatchups(opp, host);
  return evenSoFar && m_.Matchups(host, opp) > 0 && m_.HomeMatchups(host, opp) > 0 &&
         m_.TotalGP[opp] - m_.HomeGP[opp] < p_.GPTeam / 2.0 && m_.TotalGP[opp] < e.leastTotal + 4 &&
         !book_.PlacedToday(opp) && book_.LastHost()(host, opp) != host;
}

int EarlierScheduleMaker::firstOpenOpponent(int host) const {
  for (int t = 0; t < n_; ++t)
    if (t != host && m_.Matchups(host, t) >= 1 && m_.HomeMatchups(host, t) >= 1 && !book_.PlacedToday(t)) return t;
  return -1;
}

// A pair that met last at this host plays the other way round when it can.
void EarlierScheduleMaker::swapIfMetHere(int& host, int& opp) const {
  if (book_.LastHost()(host, opp) == host && m_.HomeMatchups(opp, host) >= 1 && !book_.PlacedToday(opp))
    std::swap(host, opp);
}

int EarlierScheduleMaker::drawOpponent(int tries, const Extremes& e) {
  int opp = draw();
  if (tries == 1 && p_.VarHomeGP < e.mostHome - e.leastHome) opp = e.mostHomeTeam;
  if (tries == 2 && placed_ > totalGames_ - 30) opp = e.mostHomeTeam;
  if (tries == 3 && p_.VarTotalGP < e.mostTotal - e.leastTotal) opp = e.fewestTotal;
  return opp;
}

// Returns the opponent, or -1 when the day must end; `host` may be swapped.
int EarlierScheduleMaker::chooseOpponent(int& host, const Extremes& e) {
  for (int tries = 1; tries < kTries; ++tries) {
    int opp = drawOpponent(tries, e);
    int lead = m_.HomeMatchups(opp, host) - m_.HomeMatchups(host, opp);
    if (lead > 0) lead_ = lead;  // otherwise it keeps its last value
    if (acceptOpponent(host, opp, e)) return opp;
    if (tries == kTries - 1) {
      // The last try takes the first team the host still has a home game with.
      opp = firstOpenOpponent(host);
      if (opp < 0) return -1;
    }
    swapIfMetHere(host, opp);
    if (tries == kTries - 1) return opp;
  }
  return -1;
}

}  // namespace kvl
