// A shot: who shoots, who passed, the goalie's answer, rebounds and goals.
#include <cctype>
#include <cmath>

#include "sim/byte_round.h"
#include "sim/game.h"
#include "util/numbers.h"

namespace kvl {

namespace {

constexpr int kMaxRedraws = 100000;

std::string Upper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

}  // namespace

void Game::TakeShot() {
  notedClock = Clock;
  const GameSide& att = sideOf(Attacker);
  GameSide& def = sideOf(Defender);
  u8 shooter = PickShooter(Attacker);
  int shot = CInt(ShotValue(Attacker, shooter));
  u8 g = def.Goalie;
  int save = CInt(GoalieValue(Defender, g));
  ++def.ShotsOnGoalie[g];
  int passDraw = Rnd(100);
  u8 passer = kNoPlayer;
  int bonus = 0;
  if (passDraw < 95) {
    passer = PickPasser(Attacker, shooter);
    bonus = CByte(att.terms[passer].passBonus);
  }
  bool savedHard = false;
  if (IsBreakaway && Rnd(100) < def.terms[g].holdsGround + 40) {
    savedHard = true;
    save = CInt(1.5 * save);
  }
  int q = shot + bonus;
  bool goal = Rnd(static_cast<double>(save) + q) < q;
  bool loose = false;
  if (!goal && Rnd(175) > def.terms[g].rebound + 20) {
    loose = true;
    if (Rnd(400) > 200 + CoverSum(Defender)) {
      u8 second = PickShooter(Attacker);
      if (second == passer) passer = shooter;
      shooter = second;
      ++def.ShotsOnGoalie[g];
      int sr = CInt(ShotValue(Attacker, shooter));
      int vr = CInt(GoalieValue(Defender, g));
      if (savedHard) vr = CInt(vr / 1.5);
      goal = Rnd(static_cast<double>(sr) + vr) < sr;
    }
  }
  if (goal) {
    Zone = 2;
    ScoreGoal(shooter, passer, passDraw, g);
    Whistle();
  } else if (!loose) {
    // The goalie holds on, or clears it himself.
    int t = CInt(2.0 * scaled(Defender, kPas, g) + scaled(Defender, kPcc, g));
    if (Rnd(30) < t) {
      SwapPuck();
      Zone = 2;
    } else {
      Whistle();
    }
  } else {
    LooseRebound();
  }
  IsBreakaway = 0;
}

void Game::ScoreGoal(u8 shooter, u8 passer, int passDraw, u8 g) {
  GameSide& att = sideOf(Attacker);
  GameSide& def = sideOf(Defender);
  ++att.Goals;
  ++GoalCount;
  for (GameSide& hurt : side) {
    if (!hurt.goalieHurt || side[0].Goals < hurt.goalieHurtScore || side[1].Goals < hurt.goalieHurtScore) continue;
    for (GameSide& x : side) x.CreditGoalie = x.Goalie;
    hurt.goalieHurt = false;
  }
  if (side[0].Goals >= 5 && side[1].Goals >= 5)
    for (GameSide& x : side) x.CreditGoalie = x.Goalie;
  if (att.Goals == def.Goals) {
    att.TiedAt = -1;
    def.TiedAt = 0;
  }
  ++att.PlayerGoals[shooter];
  ++def.GoalsOnGoalie[g];
  ++player(Defender, g).PIM;  // a goalie's goals against
  att.Scorers[static_cast<std::size_t>(att.Goals)] = shooter;
  // A team pulls a bad goalie once a game, after the fifth goal against him.
  if (def.GoalsOnGoalie[g] > 4 && GoalieChanged[static_cast<std::size_t>(Defender)] == 0 && !InOvertime) {
    ChangeGoalie(Defender);
    GoalieChanged[static_cast<std::size_t>(Defender)] = -1;
  }
  int man = ManDifference(Attacker, Defender);
  if (man == 0) {
    for (u8 p : att.OnIce)
      if (p != kNoPlayer) ++att.PlusMinus[p];
    for (u8 p : def.OnIce)
      if (p != kNoPlayer) --def.PlusMinus[p];
  }
  Player& scorer = player(Attacker, shooter);
  std::string text = NumText(GoalCount) + ". " + Upper(TeamName(Attacker)) + ", " +
                     ShortPlayerName(Attacker, shooter) + " " + NumText(scorer.G + att.PlayerGoals[shooter]);
  if (passDraw < 95) {
    text += " (" + ShortPlayerName(Attacker, passer);
    ++att.PlayerAssists[passer];
    if (passDraw < 85) {
      u8 second = PickSecondAssist(Attacker, shooter, passer);
      ++att.PlayerAssists[second];
      text += ", " + ShortPlayerName(Attacker, second) + ")";
    } else {
      text += ")";
    }
  } else {
    text += " (UNASSISTED)";
  }
  if (man < 0) {
    text += " (PP)";
    ++scorer.PP;
    ++att.PowerPlayGoals;
    ReleaseMinor(Defender);
  } else if (man > 0) {
    text += " (SH)";
    ++scorer.SH;
  }
  PlayByPlay.push_back(text + ", " + ClockText(notedClock) + "<BR>");
  if (InOvertime) Clock = PeriodLength;
  if (OvertimeCount >= 2) AddNote("Winning Goal Scored in " + Ordinal(OvertimeCount) + " period of overtime");
}

u8 Game::WalkSeats(int sd, const std::array<double, kSeats>& weights, double total) {
  const GameSide& g = sideOf(sd);
  int r = Rnd(total);
  double running = 0;
  for (int seat = 0; seat < kSeats; ++seat) {
    if (g.OnIce[seat] == kNoPlayer) continue;
    running += weights[seat];
    if (r <= running) return g.OnIce[seat];
  }
  return kNoPlayer;
}

u8 Game::PickShooter(int sd) {
  GameSide& g = sideOf(sd);
  bool manUp = ManDifference(sd, other(sd)) < 0;
  std::array<double, kSeats> w{};
  double total = 0;
  for (int seat = 0; seat < kSeats; ++seat) {
    u8 p = g.OnIce[seat];
    if (p == kNoPlayer) continue;
    int pos = player(sd, p).Pos;
    if (pos == kGoalie) Stop("a goalie in a shooter's seat for " + TeamName(sd));
    double sco = g.Scaled[kSco][p];
    int x = CInt(sco * 3);
    if (pos == kDefence) x = CInt(x / 1.1);
    else if (IsBreakaway) x = CInt(std::pow(static_cast<double>(g.Scaled[kSka][p]), 2) + x);
    if (manUp) x = CInt(std::pow(sco, 2) + x);
    w[seat] = x;
    total += x;
  }
  u8 shooter = WalkSeats(sd, w, total);
  if (shooter == kNoPlayer) Stop("no shooter on the ice for " + TeamName(sd));
  ++g.PlayerShots[shooter];
  ++g.Shots;
  ++player(sd, shooter).Shots;
  return shooter;
}

u8 Game::PickPasser(int sd, u8 shooter) {
  const GameSide& g = sideOf(sd);
  std::array<double, kSeats> w{};
  double total = 0;
  for (int seat = 0; seat < kSeats; ++seat) {
    u8 p = g.OnIce[seat];
    if (p == kNoPlayer) continue;
    double x = g.terms[p].passer;
    if (player(sd, p).Pos == kDefence) x = std::floor(x / 2);
    w[seat] = x;
    total += x;
  }
  for (int i = 0; i < kMaxRedraws; ++i) {
    u8 p = WalkSeats(sd, w, total);
    if (p != kNoPlayer && p != shooter) return p;
  }
  Stop("no passer on the ice for " + TeamName(sd));
}

u8 Game::PickSecondAssist(int sd, u8 scorer, u8 first) {
  const GameSide& g = sideOf(sd);
  if (Rnd(30) == 1 && Rnd(110) < std::pow(static_cast<double>(g.Scaled[kPas][g.Goalie]), 2)) return g.Goalie;
  std::array<double, kSeats> w{};
  double total = 0;
  for (int seat = 0; seat < kSeats; ++seat) {
    u8 p = g.OnIce[seat];
    if (p == kNoPlayer) continue;
    double x = g.terms[p].secondAssist;
    if (player(sd, p).Pos == kDefence) x = std::floor(x / 1.5);
    w[seat] = x;
    total += x;
  }
  for (int i = 0; i < kMaxRedraws; ++i) {
    u8 p = WalkSeats(sd, w, total);
    if (p != kNoPlayer && p != scorer && p != first) return p;
  }
  Stop("no second assist on the ice for " + TeamName(sd));
}

double Game::ShotValue(int sd, u8 shooter) {
  const GameSide& g = sideOf(sd);
  auto r = [&](int rating) { return static_cast<double>(g.Scaled[rating][shooter]); };
  double v = 90 + 35 * ManDifference(Defender, sd) + g.terms[shooter].shot;
  if (player(sd, shooter).Pos != kDefence) v = v + r(kSco) + r(kSpd);
  else v = v / 2.4;
  if (g.Goals >= 6) v = v - (g.Goals - 5) * 10;
  else if (g.Goals > 0) v = v + Period * 10;
  if (!Lapse(sd)) v = v * 0.6 * (r(kExp) / 10);  // a nervous shot; experience steadies it
  v = v + s.league.GoalsLevel() * 10 - 50;
  if (IsBreakaway) v = v * 2;
  return v;
}

double Game::GoalieValue(int sd, u8 goalie) {
  const GameSide& g = sideOf(sd);
  auto r = [&](int rating) { return static_cast<double>(g.Scaled[rating][goalie]); };
  double v = g.terms[goalie].goalie;
  v = v - 70 * ManDifference(sd, other(sd)) + CoverSum(sd);
  v = v * (player(sd, goalie).Condition / 100.0);
  if (!Lapse(sd)) v = 0.8 * v + std::floor(0.2 * v * r(kExp) / 10);
  return v;
}

}  // namespace kvl
