#include "season/schedule_allot.h"

#include <algorithm>
#include <cstdlib>

#include "season/schedule_alignment.h"
#include "util/numbers.h"

namespace kvl {

namespace {

// The builder's own diagnosis lines; nothing turns them on.
constexpr bool kVerbose = false;

class Allotter {
 public:
  Allotter(const LeagueState& s, const ScheduleParams& p, ScheduleMatrices& m, AllotGameLog& log)
      : s_(s), p_(p), m_(m), log_(log), n_(s.numTeams()), halfGP_(HalfGamesPerTeam(p.GPTeam)) {}

  bool run(const std::function<void(long)>& advance) {
    m_ = ScheduleMatrices{};
    if (!countTeams()) return false;
    logDivisionSizes();
    buildOrder();
    for (int i = 0; i < n_; ++i) {
      int a = m_.AllotOrder[i];
      allotOutOfConference(i, a);
      int homeExtra = allotOutOfDivision(i, a);
      allotDivisional(a, homeExtra);
      verboseTeamLine(a, i);
      if (advance) advance(static_cast<long>(Int(m_.TotalGP[a] / 2.0)));
    }
    log_.Display("Requested games allocated for all teams.");
    if (kVerbose) log_.Display("Alotting extra games to top up to " + NumText(p_.GPTeam) + ".");
    if (!topUp()) return false;
    if (kVerbose) verboseSummary();
    return true;
  }

 private:
  const Team& team(int t) const { return s_.team(t); }
  int conf(int t) const { return team(t).Conf; }
  int div(int t) const { return team(t).Div; }
  int divTeams(int c, int d) const { return counts_.div[static_cast<std::size_t>(c)][static_cast<std::size_t>(d)]; }
  int confTeams(int c) const { return counts_.conf[static_cast<std::size_t>(c)]; }
  const Conference& conference(int c) const { return s_.league.Conf[static_cast<std::size_t>(c)]; }
  std::string divName(int c, int d) const { return PadCut(conference(c).Div[static_cast<std::size_t>(d)].Name.str(), 10); }
  std::string name(int t) const { return LogName(s_, t); }

  bool countTeams() {
    log_.Display("Checking for all teams assigned to a division.");
    for (int t = 0; t < n_; ++t) {
      if (Unassigned(team(t))) return false;
      log_.Display(name(t) + " are in " + PadCut(conference(conf(t)).Name.str(), 12) + " Conference " +
                   divName(conf(t), div(t)) + " Division.");
      ++counts_.div[static_cast<std::size_t>(conf(t))][static_cast<std::size_t>(div(t))];
      ++counts_.conf[static_cast<std::size_t>(conf(t))];
    }
    return true;
  }

  // Both conferences are walked by conference 0's number of divisions; the
  // figures only go to the log.
  void logDivisionSizes() {
    log_.Display("Checking for most and least teams in each division.");
    int fewest = 15, most = 0;
    int divs = std::min<int>(conference(0).NumDivs, 4);
    for (int c = 0; c < 2; ++c)
      for (int d = 0; d < divs; ++d) {
        int count = divTeams(c, d);
        log_.Display("Teams in (" + NumText(c) + "," + NumText(d) + ")" + divName(c, d) + ": " + NumText(count));
        if (count > most) most = count;
        if (count < fewest) fewest = count;
      }
    log_.Display("Most teams in a division is " + NumText(most) + ".");
    log_.Display("Fewest teams in a division is " + NumText(fewest) + ".");
  }

  void buildOrder() {
    int place = 0;
    for (int c = 0; c < 2; ++c)
      for (int d = 0; d < std::min<int>(conference(c).NumDivs, 4); ++d)
        for (int t = 0; t < n_; ++t)
          if (conf(t) == c && div(t) == d) m_.AllotOrder[place++] = static_cast<u8>(t);
  }

  // Books `games` between a and b, a hosting half of them, the odd one when
  // homeExtra is 1.
  int allot(int a, int b, int games, int homeExtra) {
    int homeAllot = static_cast<int>(Int(games / 2.0 + homeExtra * 0.5));
    m_.Matchups(a, b) = static_cast<u8>(games);
    m_.HomeMatchups(a, b) = static_cast<i16>(homeAllot);
    m_.HomeGP[a] = static_cast<i16>(m_.HomeGP[a] + homeAllot);
    return homeAllot;
  }

  void addTotal(int a, int games) { m_.TotalGP[a] = static_cast<i16>(m_.TotalGP[a] + games); }

  void allotOutOfConference(int i, int a) {
    int homeExtra = std::abs(conf(a) - (i & 1));
    log_.Display("Alotting out of conference games.");
    for (int j = 0; j < n_; ++j) {
      int b = m_.AllotOrder[j];
      if (b == a || conf(b) == conf(a)) continue;
      verboseMatchup(a, b, allot(a, b, p_.vsLg, homeExtra));
      addTotal(a, p_.vsLg);
      homeExtra = Toggle(homeExtra);
    }
  }

  // Returns the running parity, which the divisional pass carries on.
  int allotOutOfDivision(int i, int a) {
    log_.Display("Alotting out of division games.");
    int homeExtra = std::abs((div(a) & 1) - (i & 1));
    if (confTeams(conf(a)) > confTeams(Toggle(conf(a)))) homeExtra = Toggle(homeExtra);
    for (int j = 0; j < n_; ++j) {
      int b = m_.AllotOrder[j];
      int outside = confTeams(conf(b)) - divTeams(conf(b), div(b));
      // Made for every team of a's conference, a itself included.
      if (conf(a) == conf(b) && divTeams(conf(a), div(a)) > outside) homeExtra = Toggle(homeExtra);
      if (b == a || conf(b) != conf(a) || div(b) == div(a)) continue;
      verboseMatchup(a, b, allot(a, b, p_.vsConf, homeExtra));
      addTotal(a, p_.vsConf);
      homeExtra = Toggle(homeExtra);
    }
    return homeExtra;
  }

  void allotDivisional(int a, int homeExtra) {
    log_.Display("Alotting divisional games.");
    for (int j = 0; j < n_; ++j) {
      int b = m_.AllotOrder[j];
      if (b == a || conf(b) != conf(a) || div(b) != div(a)) continue;
      log_.Display(matchupLine(a, b, allot(a, b, p_.vsDiv, homeExtra)));
      addTotal(a, p_.vsDiv);
      homeExtra = Toggle(homeExtra);
    }
  }

  // The partner of a top-up game for a: from the end of the order, one with
  // room for a road game.
  int topUpPartner(int a, bool secondChance) const {
    for (int j = n_ - 1; j >= 0; --j) {
      int b = m_.AllotOrder[j];
      if (b == a || (m_.ExtraGame(a, b) && !secondChance) || m_.TotalGP[b] >= p_.GPTeam) continue;
      if (m_.TotalGP[b] - m_.HomeGP[b] < halfGP_) return b;
    }
    return -1;
  }

  void addExtraGame(int a, int b) {
    ++m_.Matchups(a, b);
    ++m_.Matchups(b, a);
    ++m_.TotalGP[a];
    ++m_.TotalGP[b];
    ++m_.HomeMatchups(a, b);
    ++m_.HomeGP[a];
    m_.ExtraGame(a, b) = m_.ExtraGame(b, a) = true;
    verboseMatchup(a, b, 1);
  }

  // Home games are added until a team has exactly half its total at home; one
  // already past that can never get there, and the allotment fails.
  bool topUp() {
    bool secondChance = false;
    for (int i = 0; i < n_; ++i) {
      int a = m_.AllotOrder[i];
      while (m_.HomeGP[a] != halfGP_) {
        int b = topUpPartner(a, secondChance);
        if (b < 0 && !secondChance) {
          secondChance = true;
          b = topUpPartner(a, secondChance);
        }
        if (b < 0) return false;
        addExtraGame(a, b);
      }
      verboseTeamLine(a, i);
    }
    if (kVerbose) log_.Display("All games allocated for all teams.");
    return true;
  }

  std::string matchupLine(int a, int b, int homeAllot) const {
    return name(a) + " c" + NumText(conf(a)) + "d" + NumText(div(a)) + " plays " + name(b) + " c" + NumText(conf(b)) +
           "d" + NumText(div(b)) + " " + NumText(m_.Matchups(a, b)) + " times, " + NumText(homeAllot) +
           " times at home.";
  }

  void verboseMatchup(int a, int b, int homeAllot) {
    if (kVerbose) log_.Display(matchupLine(a, b, homeAllot));
  }

  void verboseTeamLine(int a, int place) {
    if (!kVerbose) return;
    log_.Display("(tm:" + name(a) + " ref:" + NumText(place) + " c:" + NumText(conf(a)) + " d:" + NumText(div(a)) +
                 ") allotted " + NumText(m_.TotalGP[a]) + " games," + NumText(m_.HomeGP[a]) + " at home.");
  }

  void verboseSummary() {
    for (int t = 0; t < n_; ++t)
      log_.Display(name(t) + " has been allotted " + NumText(m_.TotalGP[t]) + " games," + NumText(m_.HomeGP[t]) +
                   " at home.");
  }

  const LeagueState& s_;
  const ScheduleParams& p_;
  ScheduleMatrices& m_;
  AllotGameLog& log_;
  int n_;
  int halfGP_;
  AlignmentCounts counts_;
};

}  // namespace

std::string LogName(const LeagueState& s, int t) {
  return PadCut(t >= 0 && t < kMaxTeams ? s.team(t).Name.str() : "", 10);
}

u8 Toggle(int x) { return static_cast<u8>(std::abs(x - 1)); }

int HalfGamesPerTeam(int gpTeam) { return CInt(gpTeam / 2.0); }

bool AllotGames(const LeagueState& s, const ScheduleParams& p, ScheduleMatrices& m, AllotGameLog& log,
                const std::function<void(long)>& advance) {
  return Allotter(s, p, m, log).run(advance);
}

}  // namespace kvl
