#include "team/youth_promotion.h"

#include <array>

#include "util/numbers.h"

namespace kvl {

namespace {

constexpr int kFirstRating = 4;  // "Int" in PromoteFieldNames
constexpr int kRatingsInRecord = 13;

const std::string* Find(const PlayerFieldRecord& fields, const std::string& name) {
  for (const auto& [k, v] : fields)
    if (k == name) return &v;
  return nullptr;
}

double Number(const PlayerFieldRecord& fields, const std::string& name) {
  const std::string* v = Find(fields, name);
  return v ? Val(*v) : 0;
}

u8 Byte(const PlayerFieldRecord& fields, const std::string& name) {
  const double v = Number(fields, name);
  return static_cast<u8>(v < 0 ? 0 : v > 255 ? 255 : v);
}

u8 PositionOf(const std::string& text) {
  static const std::array<const char*, 5> kPos{"C", "LW", "RW", "D", "G"};
  for (std::size_t i = 0; i < kPos.size(); ++i)
    if (text == kPos[i]) return static_cast<u8>(i);
  const double v = Val(text);
  return static_cast<u8>(v >= 0 && v <= 4 ? v : 0);
}

}  // namespace

const std::vector<std::string>& PromoteFieldNames() {
  static const std::vector<std::string> names{"Name", "Num",    "Pos",    "Hand", "Int",    "spd",      "str",   "End",
                                              "dur",  "dis",    "ska",    "pas",  "pcc",    "DEF",      "sco",   "ldr",
                                              "Exp",  "Height", "Weight", "Age",  "salary", "Contract", "Active"};
  return names;
}

Player PromoteProspect(const PlayerFieldRecord& fields) {
  const auto& names = PromoteFieldNames();
  Player p;
  const std::string* name = Find(fields, "Name");
  p.Name.set(name ? *name : "");
  p.Num = Byte(fields, "Num");
  const std::string* pos = Find(fields, "Pos");
  p.Pos = pos ? PositionOf(*pos) : 0;
  const std::string* hand = Find(fields, "Hand");
  p.Hand = hand && !hand->empty() ? static_cast<u8>((*hand)[0]) : 0;
  for (int i = 0; i < kRatingsInRecord; ++i)
    p.rating(i) = Byte(fields, names[static_cast<std::size_t>(kFirstRating + i)]);
  p.Height = Byte(fields, "Height");
  p.Weight = Byte(fields, "Weight");
  p.Age = Byte(fields, "Age");
  p.Salary = static_cast<i32>(Number(fields, "salary"));
  p.Contract = Byte(fields, "Contract");
  p.Condition = 100;
  p.Rookie = kTrue;
  p.Birthplace.set("CAN");
  return p;
}

PlayerFieldRecord NewPlayerFields(const std::string& name, int pos, int age, i32 salary, int contract) {
  constexpr const char* kMiddling = "50";
  PlayerFieldRecord f{{"Name", name}, {"Num", "1"}, {"Pos", std::to_string(pos)}, {"Hand", "L"}};
  for (int i = 0; i < kRatingsInRecord; ++i)
    f.emplace_back(PromoteFieldNames()[static_cast<std::size_t>(kFirstRating + i)], kMiddling);
  f.insert(f.end(), {{"Height", "72"},
                     {"Weight", "190"},
                     {"Age", std::to_string(age)},
                     {"salary", std::to_string(salary)},
                     {"Contract", std::to_string(contract)},
                     {"Active", "1"}});
  return f;
}

}  // namespace kvl
