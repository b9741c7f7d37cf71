#include "season/schedule_params.h"

#include <algorithm>

#include "util/numbers.h"

namespace kvl {

ScheduleParams DefaultScheduleParams(int n) {
  ScheduleParams p;
  p.GPDay = static_cast<int>(Int(n / 5.0));
  p.Variance = -static_cast<int>(Int((1 - Int(n / 2.0)) / 2.0));
  return p;
}

ParamRange RangeOf(ScheduleParam which, int n, int suggested) {
  int half = static_cast<int>(Int(n / 2.0));
  switch (which) {
    case ScheduleParam::vsDiv: return {2, 16};
    case ScheduleParam::vsConf:
    case ScheduleParam::vsLg: return {0, 10};
    // The control's low end is the suggestion and its far end 110; a suggestion
    // above 110 turns the control round rather than shutting it.
    case ScheduleParam::GPTeam: return {std::min(suggested, 110), std::max(suggested, 110)};
    case ScheduleParam::GPDay: return {static_cast<int>(Int(n / 10.0)) - 1, half - 1};
    case ScheduleParam::Variance: return {0, half - 1};
    case ScheduleParam::VarTotalGP:
    case ScheduleParam::VarHomeGP: return {2, 10};
  }
  return {0, 0};
}

std::string CaptionOf(ScheduleParam which) {
  switch (which) {
    case ScheduleParam::vsDiv: return "Intra-division";
    case ScheduleParam::vsConf: return "Inter-division";
    case ScheduleParam::vsLg: return "Inter-conference";
    case ScheduleParam::GPTeam: return "Total GP/Team";
    case ScheduleParam::GPDay: return "GP/Day Target";
    case ScheduleParam::Variance: return "GP/Day Variance";
    case ScheduleParam::VarTotalGP: return "Total GP";
    case ScheduleParam::VarHomeGP: return "Home GP";
  }
  return "";
}

int& ValueOf(ScheduleParams& p, ScheduleParam which) {
  switch (which) {
    case ScheduleParam::vsDiv: return p.vsDiv;
    case ScheduleParam::vsConf: return p.vsConf;
    case ScheduleParam::vsLg: return p.vsLg;
    case ScheduleParam::GPTeam: return p.GPTeam;
    case ScheduleParam::GPDay: return p.GPDay;
    case ScheduleParam::Variance: return p.Variance;
    case ScheduleParam::VarTotalGP: return p.VarTotalGP;
    case ScheduleParam::VarHomeGP: break;
  }
  return p.VarHomeGP;
}

}  // namespace kvl
