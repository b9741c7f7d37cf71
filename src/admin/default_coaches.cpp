// The bundled coach pool: ratings from 50 to 99 around a level of his own, and
// a salary that follows it. Salaries are stored at twice the amount shown.
#include <algorithm>
#include <set>

#include "admin/default_data.h"
#include "admin/name_lists.h"

namespace kvl {

namespace {
constexpr std::uint64_t kCoachSeed = 0x6b766c2d636f6131ULL;
}

std::vector<Coach> MakeDefaultCoaches() {
  Draws d(kCoachSeed);
  std::set<std::string> used;
  std::vector<Coach> out;
  for (int i = 0; i < kDefaultCoaches; ++i) {
    Coach c;
    c.Name.set(DrawName(d, *DrawBirthplace(d).names, used));
    int level = 50 + (d.between(0, 49) + d.between(0, 49)) / 2;
    int sum = 0;
    for (u8* r : {&c.OF, &c.DF, &c.EX, &c.LD}) {
      *r = static_cast<u8>(std::clamp(level + d.between(-12, 12), 50, 99));
      sum += *r;
    }
    int shown = 200000 + (sum / 4 - 50) * 40000 + d.between(0, 20) * 10000;
    c.Salary = 2 * shown;
    c.Team = Coach::kNoTeam;
    out.push_back(c);
  }
  return out;
}

}  // namespace kvl
