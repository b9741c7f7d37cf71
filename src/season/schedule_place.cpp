#include "season/schedule_place.h"

#include "util/numbers.h"

namespace kvl {

int PickDayGames(int GPDay, int Variance, int n, double r) {
  int target = static_cast<int>(Int(Variance * 2 * r - Variance)) + GPDay;
  if (2 * target > n) target = static_cast<int>(Int(n / 2.0));
  if (target < 1) target = 1;
  return target % 20;
}

GameDayMaker::GameDayMaker(ScheduleMatrices& m, const ScheduleParams& p, int n, Rnd& rnd, i16& gamesPlayed,
                           Writer write)
    : m_(m), p_(p), n_(n), rnd_(rnd), gamesPlayed_(gamesPlayed), write_(std::move(write)) {}

void GameDayMaker::Start() {
  m_.TotalGP.fill(0);
  m_.HomeGP.fill(0);
  lastHost_.fill(kNoHost);
  ClearPlacedToday();
  dayNumber_ = 0;
  UpdateSpreads();
}

int GameDayMaker::MakeGameDay() {
  UpdateSpreads();
  int games = 0;
  int target = 0;
  do {
    // Drawn afresh before every game: the day ends when the running count
    // meets the latest draw.
    target = PickDayGames(p_.GPDay, p_.Variance, n_, rnd_());
    int away = -1, home = -1;
    if (findPair(away, home)) {
      PlaceGame(away, home);
      ++games;
    } else {
      target = games;
    }
  } while (games != target);
  ++dayNumber_;
  ClearPlacedToday();
  return games;
}

// The old maker ran the host's tests in a loop that gave up after N + 1 rounds
// and returned the same team anyway, so the host of place i is simply the team
// at place i. The last place, the team with the most home games, hosts nobody.
int GameDayMaker::HomeCandidate(int i) const { return i < n_ - 1 ? orderByHome_[i] : -1; }

// The last place, the team with the most games, is never an opponent.
int GameDayMaker::OpponentCandidate(int j, int home) const {
  if (home < 0) return -1;
  if (j == n_ - 1) return -2;
  return orderByTotal_[j];
}

bool GameDayMaker::findPair(int& away, int& home) const {
  for (int i = 0; i < n_; ++i) {
    home = HomeCandidate(i);
    for (int j = 0; j < n_; ++j) {
      away = OpponentCandidate(j, home);
      if (GamePlaceable(away, home)) return true;
      if (away < 0) break;
    }
    if (home < 0) break;
  }
  return false;
}

bool GameDayMaker::GamePlaceable(int away, int home) const {
  return away >= 0 && home >= 0 && away != home && m_.HomeMatchups(home, away) >= 1 && !placedToday_[home] &&
         !placedToday_[away] && m_.Matchups(home, away) != 0;
}

void GameDayMaker::PlaceGame(int away, int home) {
  ++m_.TotalGP[away];
  ++m_.TotalGP[home];
  ++m_.HomeGP[home];
  --m_.Matchups(home, away);
  --m_.Matchups(away, home);
  --m_.HomeMatchups(home, away);
  placedToday_[home] = placedToday_[away] = 1;
  lastHost_(home, away) = lastHost_(away, home) = static_cast<u8>(home);
  ++gamesPlayed_;
  ScheduleRecord r;
  r.HomeTeam = static_cast<u8>(home);
  r.AwayTeam = static_cast<u8>(away);
  r.GameNumber = gamesPlayed_;
  write_(gamesPlayed_, r);
}

// Comparisons include equality, so the last team at each extreme is kept.
void GameDayMaker::UpdateSpreads() {
  Spreads s;
  for (int t = 0; t < n_; ++t) {
    int total = m_.TotalGP[t], home = m_.HomeGP[t];
    if (total <= s.MinTotalGP) s.MinTotalGP = total, s.MinTotalTeam = t;
    if (total >= s.MaxTotalGP) s.MaxTotalGP = total, s.MaxTotalTeam = t;
    if (home <= s.MinHomeGP) s.MinHomeGP = home, s.MinHomeTeam = t;
    if (home >= s.MaxHomeGP) s.MaxHomeGP = home, s.MaxHomeTeam = t;
  }
  spreads_ = s;
  SortByTotal();
  SortByHome();
}

void GameDayMaker::SortByTotal() { sortBy(m_.TotalGP, spreads_.MinTotalGP, spreads_.MaxTotalGP, orderByTotal_); }

void GameDayMaker::SortByHome() { sortBy(m_.HomeGP, spreads_.MinHomeGP, spreads_.MaxHomeGP, orderByHome_); }

// Ascending by count, ties by team number.
void GameDayMaker::sortBy(const TeamList<i16>& counts, int lo, int hi, TeamList<u8>& order) {
  for (int i = 0; i < kMaxTeams; ++i) order[i] = static_cast<u8>(i);
  int place = 0;
  for (int v = lo; v <= hi; ++v)
    for (int t = 0; t < n_; ++t)
      if (counts[t] == v) order[place++] = static_cast<u8>(t);
}

}  // namespace kvl
