#include "admin/default_data.h"

#include "util/error.h"

namespace kvl {

const Bytes& DefaultDataFile(std::string_view name) {
  static const std::array<Bytes, 3> files{EncodeRecords(MakeDefaultCoaches()), EncodeRecords(MakeDefaultPlayers()),
                                          EncodeRecords(DefaultInjuryTexts())};
  for (std::size_t i = 0; i < kDefaultDataNames.size(); ++i)
    if (name == kDefaultDataNames[i]) return files[i];
  throw KvlError("no default file " + std::string(name));
}

}  // namespace kvl
