// The wording of injuries, by class. The transaction log reads
// "<name> suffers <text>, sidelined <time>", so each text carries its article.
#include <array>
#include <string_view>

#include "admin/default_data.h"

namespace kvl {

namespace {

struct Wording {
  std::string_view text;
  u8 cls;
};

constexpr std::array kWordings{
    Wording{"a bruised shoulder", 1},         Wording{"a sore back", 1},
    Wording{"a bruised foot", 1},             Wording{"a cut above the eye", 1},
    Wording{"a stiff neck", 1},               Wording{"a charley horse", 1},
    Wording{"bruised ribs", 1},               Wording{"a sprained wrist", 2},
    Wording{"a pulled groin", 2},             Wording{"a bruised knee", 2},
    Wording{"a strained hamstring", 2},       Wording{"a sprained thumb", 2},
    Wording{"a hip flexor strain", 2},        Wording{"a deep thigh bruise", 2},
    Wording{"a sprained ankle", 3},           Wording{"a mild concussion", 3},
    Wording{"a separated shoulder", 3},       Wording{"a cracked rib", 3},
    Wording{"a broken finger", 3},            Wording{"a strained abdominal muscle", 3},
    Wording{"a sprained knee", 3},            Wording{"a broken hand", 4},
    Wording{"a broken foot", 4},              Wording{"a high ankle sprain", 4},
    Wording{"a fractured cheekbone", 4},      Wording{"a torn groin muscle", 4},
    Wording{"a broken jaw", 4},               Wording{"a dislocated shoulder", 4},
    Wording{"a broken leg", 5},               Wording{"a torn knee ligament", 5},
    Wording{"a broken collarbone", 5},        Wording{"a fractured wrist", 5},
    Wording{"a torn shoulder muscle", 5},     Wording{"a fractured vertebra", 5},
    Wording{"a torn hip labrum", 5},          Wording{"a severe concussion", 6},
    Wording{"a ruptured Achilles tendon", 6}, Wording{"a serious eye injury", 6},
    Wording{"a herniated disc", 6},           Wording{"torn knee ligaments", 6},
    Wording{"a fractured skull", 6},          Wording{"a neck injury", 6},
};
static_assert(kWordings.size() <= 100, "only the first 100 texts are read");

}  // namespace

std::vector<InjuryText> DefaultInjuryTexts() {
  std::vector<InjuryText> out;
  for (const Wording& w : kWordings) {
    InjuryText t;
    t.Text.set(w.text);
    t.Class = w.cls;
    out.push_back(t);
  }
  return out;
}

}  // namespace kvl
