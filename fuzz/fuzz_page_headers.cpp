// Header and footer files: the commissioner's own text framing every page.
#include "fuzz_home.h"
#include "reports/output_form.h"
#include "reports/page_files.h"

using namespace kvl;
using namespace kvl::fuzz;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzHome& h = Home();
  const std::string_view input = AsText(data, size);
  // The first half heads every page, the second ends it.
  const std::string_view head = input.substr(0, size / 2), foot = input.substr(size / 2);
  for (int n = 0; n <= 20; ++n) {
    h.Scratch("h", head);
    std::filesystem::copy_file(h.scratch / "h", HeaderFile(h.state, n), std::filesystem::copy_options::overwrite_existing);
    h.Scratch("f", foot);
    std::filesystem::copy_file(h.scratch / "f", FooterFile(h.state, n), std::filesystem::copy_options::overwrite_existing);
  }
  PagePicks picks{};
  picks[1] = picks[3] = picks[11] = true;  // standings, leaders, waivers (footer 20)
  RefusedBy([&] { WritePageGroups(h.state, picks, true); });
  h.ui.forget();
  return 0;
}
