// A draft list: a text file of database names read item by item.
#include "fuzz_home.h"
#include "transactions/draft_list.h"

using namespace kvl;
using namespace kvl::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzHome& h = Home();
  const auto file = h.Scratch("list.txt", AsText(data, size));
  RefusedBy([&] { ReadDraftListFile(h.state, file); });
  h.ui.forget();
  return 0;
}
