#pragma once
// The records of a league and of its files. Each lists its fields once, in file
// order, in Visit; DecodeRecord/EncodeRecord (util/bytes.h) use that list, and
// kSize is the record length on disk.
#include <array>
#include <cstdint>

#include "util/bytes.h"
#include "util/fixed_text.h"

namespace kvl {

using u8 = std::uint8_t;
using i16 = std::int16_t;
using u16 = std::uint16_t;
using i32 = std::int32_t;

constexpr int kMaxTeams = 50;
constexpr int kRosterSlots = 50;    // stored per team
constexpr int kBufferSlots = 51;    // slot 50 is scratch, never saved
constexpr int kMaxProspects = 100;
constexpr int kLineRows = 13;
constexpr int kLineSlots = 5;
constexpr u8 kNoPlayer = 255;
constexpr int kMaxDivisions = 4;       // a conference's
constexpr int kMaxDivisionTeams = 10;  // a division's

enum Position : u8 { kCentre = 0, kLeftWing = 1, kRightWing = 2, kDefence = 3, kGoalie = 4 };

// Rating elements by index, Int first.
enum Rating : int { kInt, kSpd, kStr, kEnd, kDur, kDis, kSka, kPas, kPcc, kDef, kSco, kExp, kLdr, kRatingSpare };
constexpr int kRatingCount = 14;

// One roster slot (.ros, 86 bytes). Empty when Name's first byte is 0.
struct Player {
  static constexpr std::size_t kSize = 86;
  FixedText<22> Name;
  u8 Pos = 0, Num = 0;
  Bool16 Rookie = 0;
  u8 Hand = 0, Height = 0, Weight = 0, Age = 0, Status = 0, Condition = 0;
  std::array<u8, kRatingCount> Ratings{};  // Int Spd Str End Dur Dis Ska Pas Pcc Def Sco Exp Ldr RatingSpare
  i32 Salary = 0;
  u8 Contract = 0, Suspended = 0, GP = 0, G = 0, A = 0;
  i16 Plus = 0, PIM = 0, Shots = 0;
  u8 PP = 0, SH = 0, GW = 0, GT = 0, GSStreak = 0, PSStreak = 0;
  Bool16 Protected = 0, Traded = 0;
  u8 FarmStatA = 0, FarmStatB = 0;
  i16 StarPoints = 0;
  u8 Release = 0;
  FixedText<3> Birthplace;
  u8 InjuryType = 0, HatTricks = 0, FarmStatC = 0;
  i16 FarmStatD = 0, Hits = 0;

  bool empty() const { return Name.empty(); }
  u8& rating(int i) { return Ratings[static_cast<std::size_t>(i)]; }
  u8 rating(int i) const { return Ratings[static_cast<std::size_t>(i)]; }
  // Hundreds digit of Status: 0 minors, 1 pro roster scratched, 2 dressed.
  int list() const { return Status / 100; }
  int injury() const { return Status % 100; }

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("Name", r.Name); io("Pos", r.Pos); io("Num", r.Num); io("Rookie", r.Rookie);
    io("Hand", r.Hand); io("Height", r.Height); io("Weight", r.Weight); io("Age", r.Age);
    io("Status", r.Status); io("Condition", r.Condition); io("Ratings", r.Ratings);
    io("Salary", r.Salary); io("Contract", r.Contract); io("Suspended", r.Suspended);
    io("GP", r.GP); io("G", r.G); io("A", r.A); io("Plus", r.Plus); io("PIM", r.PIM);
    io("Shots", r.Shots); io("PP", r.PP); io("SH", r.SH); io("GW", r.GW); io("GT", r.GT);
    io("GSStreak", r.GSStreak); io("PSStreak", r.PSStreak); io("Protected", r.Protected);
    io("Traded", r.Traded); io("FarmStatA", r.FarmStatA); io("FarmStatB", r.FarmStatB);
    io("StarPoints", r.StarPoints); io("Release", r.Release); io("Birthplace", r.Birthplace);
    io("InjuryType", r.InjuryType); io("HatTricks", r.HatTricks); io("FarmStatC", r.FarmStatC);
    io("FarmStatD", r.FarmStatD); io("Hits", r.Hits);
  }
};

struct TeamCoach {
  FixedText<22> Name;
  i32 Salary = 0;
  u8 Contract = 0;
};

// Line table: 13 rows of 5 slots, stored row + 13 x slot.
struct LineTable {
  std::array<u8, kLineRows * kLineSlots> cells{};
  u8& at(int row, int slot) { return cells[static_cast<std::size_t>(row + kLineRows * slot)]; }
  u8 at(int row, int slot) const { return cells[static_cast<std::size_t>(row + kLineRows * slot)]; }
  bool operator==(const LineTable&) const = default;
};

// A team (.tms, 254 bytes), held in memory while the league is open.
struct Team {
  static constexpr std::size_t kSize = 254;
  FixedText<10> Name;
  FixedText<25> Owner;
  u8 ExpFwd = 0;
  FixedText<12> ICQ;
  FixedText<10> Password;
  std::array<u8, 2> TeamBytesA{};
  u8 TeamByteA = 0;
  FixedText<3> Abbrev;
  FixedText<30> Arena;
  i16 Seats = 0;
  u8 Ticket = 0, Conf = 0, Div = 0;
  i32 CurFin = 0;
  TeamCoach Coach;
  u8 ExpDef = 0, ExpGoal = 0;
  std::array<u8, 3> W{}, L{}, T{};
  i16 GA = 0, GF = 0;
  u8 Streak = 0, PlayoffOut = 0, DraftOrder = 0;
  i16 TeamWordA = 0, TeamWordB = 0, TeamWordC = 0;
  u8 TeamByteB = 0, TeamByteC = 0;
  i16 PPO = 0;
  u8 PPG = 0;
  i16 PKO = 0;
  u8 PKG = 0;
  i32 SF = 0, SA = 0, TeamPIM = 0;
  LineTable Lines;
  i16 Attendance = 0;
  u8 HomeGames = 0;
  i32 Revenue = 0;
  u8 TeamByteD = 0;
  Bool16 Waived = 0;
  u8 CoachRec = 0, Priority = 0, Expansion = 0;
  Bool16 LinesOK = 0;

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("Name", r.Name); io("Owner", r.Owner); io("ExpFwd", r.ExpFwd); io("ICQ", r.ICQ);
    io("Password", r.Password); io("TeamBytesA", r.TeamBytesA); io("TeamByteA", r.TeamByteA);
    io("Abbrev", r.Abbrev); io("Arena", r.Arena); io("Seats", r.Seats); io("Ticket", r.Ticket);
    io("Conf", r.Conf); io("Div", r.Div); io("CurFin", r.CurFin);
    io("Coach.Name", r.Coach.Name); io("Coach.Salary", r.Coach.Salary);
    io("Coach.Contract", r.Coach.Contract); io("ExpDef", r.ExpDef); io("ExpGoal", r.ExpGoal);
    io("W", r.W); io("L", r.L); io("T", r.T); io("GA", r.GA); io("GF", r.GF);
    io("Streak", r.Streak); io("PlayoffOut", r.PlayoffOut); io("DraftOrder", r.DraftOrder);
    io("TeamWordA", r.TeamWordA); io("TeamWordB", r.TeamWordB); io("TeamWordC", r.TeamWordC);
    io("TeamByteB", r.TeamByteB); io("TeamByteC", r.TeamByteC); io("PPO", r.PPO);
    io("PPG", r.PPG); io("PKO", r.PKO); io("PKG", r.PKG); io("SF", r.SF); io("SA", r.SA);
    io("TeamPIM", r.TeamPIM); io("Lines", r.Lines.cells); io("Attendance", r.Attendance);
    io("HomeGames", r.HomeGames); io("Revenue", r.Revenue); io("TeamByteD", r.TeamByteD);
    io("Waived", r.Waived); io("CoachRec", r.CoachRec); io("Priority", r.Priority);
    io("Expansion", r.Expansion); io("LinesOK", r.LinesOK);
  }
};

struct Division {
  FixedText<10> Name;
  u8 NumTeams = 0;
  std::array<u8, 10> Team{};
};

struct Conference {
  FixedText<12> Name;
  u8 NumDivs = 0;
  std::array<Division, 4> Div{};
};

// The league header (.lge, 459 bytes). NumTeams is the count in memory; the
// file holds the count less one, and only SaveLg/LoadLg do that conversion.
struct League {
  static constexpr std::size_t kSize = 459;
  FixedText<25> LeagueName;
  u8 NumTeams = 0;
  std::array<Conference, 2> Conf{};
  Bool16 ScheduleMade = 0, SeasonOver = 0;
  u8 PlayoffSize = 0, TradeDeadline = 0;
  i16 NextGameMark = 0;
  Bool16 OptInjuries = 0;
  u8 LgByteA = 0;
  Bool16 OptWaivers = 0;
  u8 ExpansionRounds = 0;
  Bool16 LgFlagA = 0;
  u8 UnresAge = 0, LgByteB = 0;
  std::array<u8, 32> CheckFlags{};
  Bool16 OptAutoOutput = 0;
  i16 GamesPlayed = 0, LeagueGames = 0;
  FixedText<20> RootDir, CommandDir, LeagueDir;
  FixedText<15> LgTextA;
  FixedText<20> BoxscoreDir, OutputDir;
  i16 CurrentYear = 0;
  u8 DraftRounds = 0, MinGP = 0, AgeExempt = 0, TwoWayAfter = 0;
  Bool16 FirstDayPending = 0;
  u8 LgByteC = 0, PlayoffTeams = 0;
  Bool16 SeedDivLeaders = 0, OptCoach = 0, OptMoney = 0, OptSuspensions = 0, OptStreaks = 0,
         OptFarm = 0, OptExpLdr = 0;
  i16 LgWordA = 0;
  Bool16 ExpansionDraftOn = 0, InPlayoffs = 0, OffSeason = 0, EntryDraftOn = 0;
  u8 DraftRound = 0, DraftPick = 0;
  Bool16 OptLottery = 0;
  u8 OptFarmStreaks = 0, PointSystem = 0, LgByteD = 0;
  // InjuriesLevel, ShotsLevel, PenaltiesLevel, GoalsLevel, FinancesLevel.
  std::array<u8, 5> Slider{};
  Bool16 Exhibition = 0;
  std::array<i16, 10> LgWords{};

  u8& InjuriesLevel() { return Slider[0]; }
  u8& ShotsLevel() { return Slider[1]; }
  u8& PenaltiesLevel() { return Slider[2]; }
  u8& GoalsLevel() { return Slider[3]; }
  u8& FinancesLevel() { return Slider[4]; }
  u8 InjuriesLevel() const { return Slider[0]; }
  u8 ShotsLevel() const { return Slider[1]; }
  u8 PenaltiesLevel() const { return Slider[2]; }
  u8 GoalsLevel() const { return Slider[3]; }
  u8 FinancesLevel() const { return Slider[4]; }

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("LeagueName", r.LeagueName); io("NumTeams", r.NumTeams);
    for (auto& c : r.Conf) {
      io("Conf.Name", c.Name); io("Conf.NumDivs", c.NumDivs);
      for (auto& d : c.Div) { io("Div.Name", d.Name); io("Div.NumTeams", d.NumTeams); io("Div.Team", d.Team); }
    }
    io("ScheduleMade", r.ScheduleMade); io("SeasonOver", r.SeasonOver);
    io("PlayoffSize", r.PlayoffSize); io("TradeDeadline", r.TradeDeadline);
    io("NextGameMark", r.NextGameMark); io("OptInjuries", r.OptInjuries); io("LgByteA", r.LgByteA);
    io("OptWaivers", r.OptWaivers); io("ExpansionRounds", r.ExpansionRounds); io("LgFlagA", r.LgFlagA);
    io("UnresAge", r.UnresAge); io("LgByteB", r.LgByteB); io("CheckFlags", r.CheckFlags);
    io("OptAutoOutput", r.OptAutoOutput); io("GamesPlayed", r.GamesPlayed);
    io("LeagueGames", r.LeagueGames); io("RootDir", r.RootDir); io("CommandDir", r.CommandDir);
    io("LeagueDir", r.LeagueDir); io("LgTextA", r.LgTextA); io("BoxscoreDir", r.BoxscoreDir);
    io("OutputDir", r.OutputDir); io("CurrentYear", r.CurrentYear); io("DraftRounds", r.DraftRounds);
    io("MinGP", r.MinGP); io("AgeExempt", r.AgeExempt); io("TwoWayAfter", r.TwoWayAfter);
    io("FirstDayPending", r.FirstDayPending); io("LgByteC", r.LgByteC); io("PlayoffTeams", r.PlayoffTeams);
    io("SeedDivLeaders", r.SeedDivLeaders); io("OptCoach", r.OptCoach); io("OptMoney", r.OptMoney);
    io("OptSuspensions", r.OptSuspensions); io("OptStreaks", r.OptStreaks); io("OptFarm", r.OptFarm);
    io("OptExpLdr", r.OptExpLdr); io("LgWordA", r.LgWordA); io("ExpansionDraftOn", r.ExpansionDraftOn);
    io("InPlayoffs", r.InPlayoffs); io("OffSeason", r.OffSeason); io("EntryDraftOn", r.EntryDraftOn);
    io("DraftRound", r.DraftRound); io("DraftPick", r.DraftPick); io("OptLottery", r.OptLottery);
    io("OptFarmStreaks", r.OptFarmStreaks); io("PointSystem", r.PointSystem); io("LgByteD", r.LgByteD);
    io("Slider", r.Slider); io("Exhibition", r.Exhibition); io("LgWords", r.LgWords);
  }
};

// A team's prospects (.pct, 2700 bytes): five parallel arrays of 100.
struct ProspectList {
  static constexpr std::size_t kSize = 2700;
  std::array<FixedText<22>, kMaxProspects> Name{};
  std::array<u8, kMaxProspects> Pos{};
  std::array<i16, kMaxProspects> Salary{};  // hundreds of dollars
  std::array<u8, kMaxProspects> Age{};
  std::array<u8, kMaxProspects> Contract{};

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("Name", r.Name); io("Pos", r.Pos); io("Salary", r.Salary); io("Age", r.Age); io("Contract", r.Contract);
  }
};

// A coach (.coa, 31 bytes). Team is 1-based, 255 for none.
struct Coach {
  static constexpr std::size_t kSize = 31;
  static constexpr u8 kNoTeam = 255;
  FixedText<22> Name;
  u8 OF = 0, DF = 0, EX = 0, LD = 0;
  i32 Salary = 0;
  u8 Team = kNoTeam;

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("Name", r.Name); io("OF", r.OF); io("DF", r.DF); io("EX", r.EX); io("LD", r.LD);
    io("Salary", r.Salary); io("Team", r.Team);
  }
};

// A farm club (.frm, 43 bytes), indexed like Team.
struct FarmTeam {
  static constexpr std::size_t kSize = 43;
  FixedText<15> Name;
  u8 W = 0, L = 0, T = 0;
  i16 GF = 0, GA = 0;
  std::array<u8, 21> Recent{};

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("Name", r.Name); io("W", r.W); io("L", r.L); io("T", r.T); io("GF", r.GF); io("GA", r.GA);
    io("Recent", r.Recent);
  }
};

// Player database record (.drs, 88 bytes). DbFlag: 0 free, -1 in use by a team.
struct DbRecord {
  static constexpr std::size_t kSize = 88;
  i16 DbFlag = 0;
  Player P;

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) { io("DbFlag", r.DbFlag); Player::Visit(io, r.P); }
};

// Career line (.csr, 87 bytes): the team byte, then the player.
struct CareerRecord {
  static constexpr std::size_t kSize = 87;
  u8 Team = 0;
  Player P;

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) { io("Team", r.Team); Player::Visit(io, r.P); }
};

// A player on waivers (.wvr, 134 bytes). Empty when Name's first byte is 0.
struct WaiverRecord {
  static constexpr std::size_t kSize = 134;
  FixedText<22> Name;
  u8 Slot = 0, Holder = 0;
  double WaivedAt = 0;
  u8 ClaimedBy = 0, Owner = 0;
  std::array<i16, 49> Open{};
  i16 Active = 0;

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("Name", r.Name); io("Slot", r.Slot); io("Holder", r.Holder); io("WaivedAt", r.WaivedAt);
    io("ClaimedBy", r.ClaimedBy); io("Owner", r.Owner); io("Open", r.Open); io("Active", r.Active);
  }
};

// One name of the entry-draft list (.dft, 47 bytes).
struct DraftListRecord {
  static constexpr std::size_t kSize = 47;
  FixedText<22> Name;
  i16 FieldA = 0;
  FixedText<10> FieldB, FieldC;
  u8 FieldD = 0;
  i16 FieldE = 0;

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("Name", r.Name); io("FieldA", r.FieldA); io("FieldB", r.FieldB); io("FieldC", r.FieldC);
    io("FieldD", r.FieldD); io("FieldE", r.FieldE);
  }
};

// Contract futures of one team (.fas, 1350 bytes); [year][slot], slot fastest.
struct ContractFuture {
  static constexpr std::size_t kSize = 1350;
  std::array<i16, 50> Value{};
  std::array<std::array<u8, 50>, 5> OwnerTeam{};
  std::array<std::array<i32, 50>, 5> Amount{};

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) { io("Value", r.Value); io("OwnerTeam", r.OwnerTeam); io("Amount", r.Amount); }
};

struct DraftPick {
  u8 CurrentYear = 0, Round = 0, OrigTeam = 0, Owner = 0;
  Bool16 Active = 0;
};

// A team's draft picks (.dpk, 1536 bytes): 256 entries of 6 bytes, entry 0 unused.
struct DraftPickRecord {
  static constexpr std::size_t kSize = 1536;
  static constexpr int kEntries = 256;
  std::array<DraftPick, kEntries> Pick{};

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    for (auto& p : r.Pick) {
      io("CurrentYear", p.CurrentYear); io("Round", p.Round); io("OrigTeam", p.OrigTeam);
      io("Owner", p.Owner); io("Active", p.Active);
    }
  }
};

// One game of the schedule (.scx, 31 bytes); record k is game number k.
struct ScheduleRecord {
  static constexpr std::size_t kSize = 31;
  u8 HomeTeam = 0, HomeScore = 0, AwayTeam = 0, AwayScore = 0;
  i16 Played = 0, GameNumber = 0, DayA = 0, GameDay = 0;
  u8 Overtime = 0;
  std::array<u8, 18> Reserved{};

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("HomeTeam", r.HomeTeam); io("HomeScore", r.HomeScore); io("AwayTeam", r.AwayTeam);
    io("AwayScore", r.AwayScore); io("Played", r.Played); io("GameNumber", r.GameNumber);
    io("DayA", r.DayA); io("GameDay", r.GameDay); io("Overtime", r.Overtime); io("Reserved", r.Reserved);
  }
};

// The older schedule form of 13-byte records, read only by conversion.
struct ScheduleRecord13 {
  static constexpr std::size_t kSize = 13;
  u8 Home = 0, HomeScore = 0, Away = 0, AwayScore = 0;
  i16 GameNumber = 0, Played = 0, DayA = 0, DayB = 0;
  u8 Overtime = 0;

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("Home", r.Home); io("HomeScore", r.HomeScore); io("Away", r.Away); io("AwayScore", r.AwayScore);
    io("GameNumber", r.GameNumber); io("Played", r.Played); io("DayA", r.DayA); io("DayB", r.DayB);
    io("Overtime", r.Overtime);
  }
};

// The oldest schedule form of 6-byte records, read only by conversion.
struct ScheduleRecord6 {
  static constexpr std::size_t kSize = 6;
  u8 Home = 0, HomeScore = 0, Away = 0, AwayScore = 0;
  i16 Played = 0;

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("Home", r.Home); io("HomeScore", r.HomeScore); io("Away", r.Away); io("AwayScore", r.AwayScore);
    io("Played", r.Played);
  }
};

// The playoff bracket (.plf, 388 bytes). Grids are indexed stage + 5 x series.
struct PlayoffState {
  static constexpr std::size_t kSize = 388;
  std::array<u8, 40> SeriesHome{}, SeriesAway{}, HomeWins{}, AwayWins{};
  u8 PlayoffRound = 0;
  std::array<i16, 40> SeriesDone{};
  std::array<u8, 49> Seeds{};
  std::array<i16, 49> DivLeader{};

  static constexpr std::size_t Index(int stage, int series) { return static_cast<std::size_t>(stage + 5 * series); }

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("SeriesHome", r.SeriesHome); io("SeriesAway", r.SeriesAway); io("HomeWins", r.HomeWins);
    io("AwayWins", r.AwayWins); io("PlayoffRound", r.PlayoffRound); io("SeriesDone", r.SeriesDone);
    io("Seeds", r.Seeds); io("DivLeader", r.DivLeader);
  }
};

// A manager's binary lines file (.lns, 236 bytes).
struct LinesFileRecord {
  static constexpr std::size_t kSize = 236;
  u8 TeamNumber = 0;
  FixedText<10> Password;
  std::array<u8, 10> Zero{};
  LineTable Lines;
  std::array<u8, 50> Status{};
  std::array<i16, 50> Protected{};

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) {
    io("TeamNumber", r.TeamNumber); io("Password", r.Password); io("Zero", r.Zero);
    io("Lines", r.Lines.cells); io("Status", r.Status); io("Protected", r.Protected);
  }
};

// One injury wording (inj.dtf, 31 bytes).
struct InjuryText {
  static constexpr std::size_t kSize = 31;
  FixedText<30> Text;
  u8 Class = 0;

  template <class IO, class Self>
  static void Visit(IO& io, Self& r) { io("Text", r.Text); io("Class", r.Class); }
};

}  // namespace kvl
