// Date masks: runs of d, m, y, h, n, s (any case) are fields, AM/PM markers switch
// to the 12-hour clock, everything else is copied.
#include <array>
#include <cctype>

#include "util/dates.h"

namespace kvl {
namespace {

constexpr std::array<const char*, 12> kMonths = {"January", "February", "March",     "April",   "May",      "June",
                                                 "July",    "August",   "September", "October", "November", "December"};
constexpr std::array<const char*, 7> kDays = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

struct AmPmMarker {
  std::string_view token, am, pm;
};
constexpr std::array<AmPmMarker, 6> kAmPm = {{{"AMPM", "AM", "PM"},
                                              {"ampm", "am", "pm"},
                                              {"AM/PM", "AM", "PM"},
                                              {"am/pm", "am", "pm"},
                                              {"A/P", "A", "P"},
                                              {"a/p", "a", "p"}}};

const AmPmMarker* AmPmAt(std::string_view mask, std::size_t i) {
  for (const auto& marker : kAmPm)
    if (mask.substr(i, marker.token.size()) == marker.token) return &marker;
  return nullptr;
}

bool HasAmPm(std::string_view mask) {
  for (std::size_t i = 0; i < mask.size(); ++i)
    if (AmPmAt(mask, i)) return true;
  return false;
}

std::string Number(int v, std::size_t width) {
  std::string s = std::to_string(v);
  if (s.size() < width) s.insert(0, width - s.size(), '0');
  return s;
}

std::string Abbrev(const char* name) { return std::string(name, 3); }

int DayOfYear(const CivilTime& t) {
  return static_cast<int>(DateSerial(t.year, t.month, t.day) - DateSerial(t.year, 1, 0));
}

class DateFormatter {
 public:
  DateFormatter(double date, std::string_view mask)
      : date_(date), t_(ToCivil(date)), mask_(mask), twelveHour_(HasAmPm(mask)) {}

  std::string run() {
    while (pos_ < mask_.size()) step();
    return out_;
  }

 private:
  void step() {
    if (const AmPmMarker* marker = AmPmAt(mask_, pos_)) {
      out_ += t_.hour < 12 ? marker->am : marker->pm;
      pos_ += marker->token.size();
      return;
    }
    char c = static_cast<char>(std::tolower(static_cast<unsigned char>(mask_[pos_])));
    std::size_t run = 1;
    while (pos_ + run < mask_.size() && std::tolower(static_cast<unsigned char>(mask_[pos_ + run])) == c) ++run;
    if (std::string_view("dmyhns").find(c) == std::string_view::npos) {
      out_ += mask_[pos_++];
      if (mask_[pos_ - 1] != ':') afterHour_ = false;
      return;
    }
    field(c, run);
    pos_ += run;
  }

  void field(char c, std::size_t run) {
    bool minute = c == 'n' || (c == 'm' && run <= 2 && afterHour_);
    afterHour_ = c == 'h';
    if (minute) return put(t_.minute, run);
    switch (c) {
      case 'd': return day(run);
      case 'm': return month(run);
      case 'y': return year(run);
      case 'h': return put(twelveHour_ ? (t_.hour + 11) % 12 + 1 : t_.hour, run);
      default: return put(t_.second, run);
    }
  }

  // Two letters give a padded number, more than two count as the longest form.
  void put(int v, std::size_t run) { out_ += Number(v, run >= 2 ? 2 : 1); }
  void day(std::size_t run) {
    if (run <= 2) return put(t_.day, run);
    const char* name = kDays[static_cast<std::size_t>(Weekday(date_) - 1)];
    out_ += run == 3 ? Abbrev(name) : name;
  }
  void month(std::size_t run) {
    if (run <= 2) return put(t_.month, run);
    const char* name = kMonths[static_cast<std::size_t>(t_.month - 1)];
    out_ += run == 3 ? Abbrev(name) : name;
  }
  void year(std::size_t run) {
    if (run == 1) out_ += std::to_string(DayOfYear(t_));
    else if (run <= 3) out_ += Number(t_.year % 100, 2);
    else out_ += std::to_string(t_.year);
  }

  double date_;
  CivilTime t_;
  std::string_view mask_;
  bool twelveHour_;
  std::size_t pos_ = 0;
  bool afterHour_ = false;  // a following m or mm is minutes
  std::string out_;
};

}  // namespace

std::string FormatDate(double date, std::string_view mask) {
  return DateFormatter(date, mask).run();
}

}  // namespace kvl
