#include "util/clock.h"

#include <ctime>

#include "util/dates.h"

namespace kvl {

// Whole seconds, as the old platform's Now gave.
double SystemClock::now() const {
  std::time_t secs = std::time(nullptr);
  std::tm local{};
  localtime_r(&secs, &local);
  return DateTime({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                   local.tm_sec});
}

}  // namespace kvl
