#include "admin/default_data.h"

#include "util/error.h"

namespace kvl {

namespace {

template <class R>
Bytes Concat(const std::vector<R>& records) {
  Bytes out;
  for (const R& r : records) {
    Bytes b = EncodeRecord(r);
    out.insert(out.end(), b.begin(), b.end());
  }
  return out;
}

}  // namespace

const Bytes& DefaultDataFile(std::string_view name) {
  static const std::array<Bytes, 3> files{Concat(MakeDefaultCoaches()), Concat(MakeDefaultPlayers()),
                                          Concat(DefaultInjuryTexts())};
  for (std::size_t i = 0; i < kDefaultDataNames.size(); ++i)
    if (name == kDefaultDataNames[i]) return files[i];
  throw KvlError("no default file " + std::string(name));
}

}  // namespace kvl
