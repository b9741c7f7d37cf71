#pragma once
// The numbers the commissioner sets on the Schedule form, with their defaults
// and the reach of their scroll controls.
#include <string>

namespace kvl {

struct ScheduleParams {
  int vsDiv = 6;       // "Intra-division"
  int vsConf = 2;      // "Inter-division"
  int vsLg = 2;        // "Inter-conference"
  int GPTeam = 0;      // "Total GP/Team", set by SuggestGamesPerTeam
  int GPDay = 0;       // "GP/Day Target"
  int Variance = 0;    // "GP/Day Variance"
  int VarTotalGP = 5;  // "Total GP" spread, earlier maker only
  int VarHomeGP = 4;   // "Home GP" spread, earlier maker only
};

// The form's defaults for a league of n teams (GPTeam still to be suggested).
ScheduleParams DefaultScheduleParams(int n);

enum class ScheduleParam { vsDiv, vsConf, vsLg, GPTeam, GPDay, Variance, VarTotalGP, VarHomeGP };

struct ParamRange {
  int lo, hi;
  bool contains(int v) const { return v >= lo && v <= hi; }
};

// What the scroll control of `which` can reach in a league of n teams;
// `suggested` is the games per team SuggestGamesPerTeam found.
ParamRange RangeOf(ScheduleParam which, int n, int suggested);
// The form's caption of a parameter ("GP/Day Target").
std::string CaptionOf(ScheduleParam which);
int& ValueOf(ScheduleParams& p, ScheduleParam which);

}  // namespace kvl
