#include "reports/standings_rank.h"

#include <algorithm>
#include <tuple>

#include "reports/payroll.h"
#include "util/numbers.h"

namespace kvl {

namespace {

StandingRow MakeRow(const LeagueState& s, int t) {
  const Team& tm = s.team(t);
  StandingRow r;
  r.team = t;
  r.Points = TeamPoints(s.league, tm);
  r.GP = tm.W[0] + tm.L[0] + tm.T[0];
  r.GF = tm.GF;
  r.Diff = tm.GF - tm.GA;
  r.Wins = tm.W[0];
  int perGame = PointSystemInForce(s.league) == kSwedish ? 3 : 2;
  r.MaxPoints = (SeasonGamesWhole(s) - r.GP) * perGame + r.Points;
  return r;
}

// True when the team of `a` goes ahead of the row `b` already placed.
bool GoesAhead(const StandingRow& a, const StandingRow& b) {
  if (b.GP == 0) return true;
  if (a.Points != b.Points) return a.Points > b.Points;
  if (a.GP != b.GP) return a.GP < b.GP;
  if (a.Wins != b.Wins) return a.Wins > b.Wins;
  if (a.Diff != b.Diff) return a.Diff > b.Diff;
  return a.GF > b.GF;
}

// The first team met from each division goes to the head. Only the team and
// its points move: the other columns stay with the place, as they always have.
void SeedDivisionLeaders(const LeagueState& s, std::vector<StandingRow>& rows) {
  const std::size_t leaders = 2u * s.league.Conf[0].NumDivs;
  std::vector<StandingRow> order, rest;
  std::vector<int> divsSeen;
  for (const StandingRow& r : rows) {
    const Team& t = s.team(r.team);
    int div = t.Conf * 10 + t.Div;
    bool first = std::find(divsSeen.begin(), divsSeen.end(), div) == divsSeen.end();
    if (first && order.size() < leaders) {
      divsSeen.push_back(div);
      order.push_back(r);
    } else {
      rest.push_back(r);
    }
  }
  order.insert(order.end(), rest.begin(), rest.end());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i].team = order[i].team;
    rows[i].Points = order[i].Points;
  }
}

void AddHeadToHead(GameWalk& w, int system, int home, int away, int hs, int as, bool ot) {
  auto& h2h = w.HeadToHead;
  if (hs == as) {
    if (system == kClassic || system == kModern) h2h[home][away] += 1, h2h[away][home] += 1;
    h2h[away][home] += 1;
    h2h[home][away] += 2;
    return;
  }
  int win = hs > as ? home : away, lose = hs > as ? away : home;
  switch (system) {
    case kModern:
      h2h[win][lose] += 2;
      if (ot) h2h[lose][win] += 1;
      break;
    case kSwedish:
      h2h[win][lose] += ot ? 2 : 3;
      if (ot) h2h[lose][win] += 1;
      break;
    default:
      h2h[win][lose] += 2;
  }
  h2h[win][lose] += 2;
}

void AddSplits(const LeagueState& s, GameWalk& w, int home, int away, int hs, int as) {
  TeamSplits& h = w.splits[static_cast<std::size_t>(home)];
  TeamSplits& a = w.splits[static_cast<std::size_t>(away)];
  bool conf = s.team(home).Conf == s.team(away).Conf;
  if (hs > as) {
    ++h.HomeW;
    if (conf) ++h.ConfW, ++a.ConfL;
  } else if (hs < as) {
    ++h.HomeL;
    if (conf) ++h.ConfL, ++a.ConfW;
  } else {
    ++h.HomeT;
    if (conf) ++h.ConfT, ++a.ConfT;
  }
  for (auto [sp, gf, ga] : {std::tuple{&h, hs, as}, std::tuple{&a, as, hs}}) {
    if (sp->seen < 10) (gf > ga ? sp->L10W : gf < ga ? sp->L10L : sp->L10T) += 1;
    ++sp->seen;
  }
}

}  // namespace

void InsertRanked(std::vector<StandingRow>& rows, const StandingRow& r) {
  rows.insert(std::find_if(rows.begin(), rows.end(), [&](const StandingRow& b) { return GoesAhead(r, b); }), r);
}

int SeasonGamesWhole(const LeagueState& s) { return CInt(SeasonGames(s)); }

std::vector<StandingRow> RankTeams(const LeagueState& s) {
  std::vector<StandingRow> rows;
  for (int t = 0; t < s.numTeams(); ++t) {
    InsertRanked(rows, MakeRow(s, t));
  }
  if (s.league.SeedDivLeaders) SeedDivisionLeaders(s, rows);
  return rows;
}

GameWalk WalkGames(const LeagueState& s, const std::vector<ScheduleRecord>& games) {
  GameWalk w;
  int system = PointSystemInForce(s.league);
  int last = std::min<int>(s.league.GamesPlayed, static_cast<int>(games.size()));
  for (int g = last; g >= 1; --g) {
    const ScheduleRecord& r = games[static_cast<std::size_t>(g - 1)];
    if (r.HomeTeam >= s.numTeams() || r.AwayTeam >= s.numTeams()) continue;
    AddHeadToHead(w, system, r.HomeTeam, r.AwayTeam, r.HomeScore, r.AwayScore, r.Overtime != 0);
    AddSplits(s, w, r.HomeTeam, r.AwayTeam, r.HomeScore, r.AwayScore);
  }
  return w;
}

int Berths(const League& lg) { return 8 >> std::min<int>(lg.PlayoffSize, 2); }

std::vector<std::string> ClinchMarks(const LeagueState& s, const std::vector<StandingRow>& confRows,
                                     const GameWalk& walk) {
  std::vector<std::string> marks;
  int given = 0;
  const int berths = Berths(s.league);
  for (const StandingRow& t : confRows) {
    int challengers = 0;
    bool divOpen = false;
    for (const StandingRow& u : confRows) {
      if (u.team == t.team) continue;
      const auto& h2h = walk.HeadToHead;
      bool beatsMax = u.MaxPoints > t.Points;
      bool equalMax = u.MaxPoints == t.Points;
      bool challenge = beatsMax || (equalMax && u.Wins > t.Wins) ||
                       (equalMax && u.Wins == t.Wins && h2h[u.team][t.team] > h2h[t.team][u.team]) ||
                       (equalMax && u.Wins == t.Wins && h2h[u.team][t.team] == h2h[t.team][u.team] && u.Diff > t.Diff);
      if (!challenge) continue;
      ++challengers;
      if (beatsMax && s.team(u.team).Div == s.team(t.team).Div) divOpen = true;
    }
    std::string mark = " ";
    if (challengers == 0) mark = "z";
    else if (!divOpen) mark = "y";
    else if (challengers < berths && given < berths) mark = "x";
    if (mark != " ") ++given;
    marks.push_back(mark);
  }
  return marks;
}

}  // namespace kvl
