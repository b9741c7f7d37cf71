// The league's pages: writing them, and the header and footer files.
#include <fmt/format.h>

#include <cstdlib>
#include <fstream>
#include <sstream>

#include "reports/header_editor.h"
#include "reports/output_form.h"
#include "reports/page_files.h"
#include "reports/page_groups.h"
#include "session.h"
#include "util/error.h"
#include "util/record_file.h"

namespace kvl {

namespace {

// A page group by its number or its name; 0 when it is neither.
int GroupNumber(const std::string& word) {
  for (const PageGroup& g : PageGroups())
    if (word == g.name || word == std::to_string(g.flag)) return g.flag;
  return 0;
}

std::vector<std::string> SplitList(const std::string& text) {
  std::vector<std::string> words;
  std::stringstream in(text);
  for (std::string w; std::getline(in, w, ',');) words.push_back(w);
  return words;
}

std::string GroupList() {
  std::string out;
  for (const PageGroup& g : PageGroups()) out += fmt::format("{}{} {}", out.empty() ? "" : ", ", g.flag, g.name);
  return out;
}

void RegisterOutputHtml(CLI::App& app, Session& s) {
  auto pages = std::make_shared<std::string>();
  CLI::App* cmd = AddCommand(app, s, "output-html", "Write the league's pages to Transfer/ (every group, or --pages)",
                             true, [&s, pages] {
                               Output form(s.state);
                               if (!pages->empty()) {
                                 form.Check = {};
                                 for (const std::string& w : SplitList(*pages))
                                   form.Check[static_cast<std::size_t>(GroupNumber(w))] = true;
                               } else {
                                 form.Check = AllPageGroups();
                               }
                               int written = form.cmdOutput();
                               s.ui.print(fmt::format("{} pages written to {}\n", written,
                                                      TransferFile(s.state, "").parent_path().string()));
                             });
  cmd->add_option("--pages", *pages, "the groups to write, by number or name, joined by commas: " + GroupList())
      ->check(CLI::Validator(
          [](std::string& text) {
            for (const std::string& w : SplitList(text))
              if (GroupNumber(w) == 0) return "no page group \"" + w + "\"";
            return std::string();
          },
          "LIST"));
}

void ShowOrEdit(Session& s, bool footer, int n, const std::string& from, bool show) {
  HeaderEditor editor(s.state, footer, n);
  if (show) return s.ui.print(editor.Text1.empty() ? "" : editor.Text1 + "\n");
  if (!from.empty()) {
    Bytes bytes = ReadFileBytes(fs::absolute(from));
    editor.Text1.assign(bytes.begin(), bytes.end());
  } else {
    const char* editorCmd = std::getenv("VISUAL") ? std::getenv("VISUAL") : std::getenv("EDITOR");
    if (!editorCmd || !*editorCmd) {
      s.ui.tell("Set VISUAL or EDITOR, or give the new text with --from FILE.", editor.caption.string());
      throw Refused("no editor");
    }
    fs::path temp = fs::temp_directory_path() / ("kvl-" + editor.caption.filename().string() + ".html");
    std::ofstream(temp, std::ios::binary) << editor.Text1;
    int rc = std::system(fmt::format("{} '{}'", editorCmd, temp.string()).c_str());
    Bytes bytes = ReadFileBytes(temp);
    RemoveIfExists(temp);
    if (rc != 0) throw KvlError(fmt::format("the editor {} ended with status {}; {} is unchanged", editorCmd, rc,
                                            editor.caption.string()));
    editor.Text1.assign(bytes.begin(), bytes.end());
  }
  editor.cmdSave();
  s.ui.print("Saved " + editor.caption.string() + "\n");
}

void RegisterEditPageFile(CLI::App& app, Session& s, bool footer) {
  struct Args {
    int n = 0;
    std::string from;
    bool show = false;
  };
  auto a = std::make_shared<Args>();
  const char* what = footer ? "footer" : "header";
  CLI::App* cmd = AddCommand(app, s, footer ? "edit-footer" : "edit-header",
                             fmt::format("Edit the HTML {} file of page group N in $VISUAL or $EDITOR", what), true,
                             [&s, a, footer] { ShowOrEdit(s, footer, a->n, a->from, a->show); });
  cmd->add_option("N", a->n, "0 to 16, or 20")
      ->required()
      ->check(CLI::Validator(
          [](std::string& text) {
            try {
              if (IsPageFileNumber(std::stoi(text)) && text.find_first_not_of("0123456789") == std::string::npos)
                return std::string();
            } catch (const std::exception&) {
            }
            return "no page has header or footer number " + text + " (0 to 16, or 20)";
          },
          "N"));
  auto* from = cmd->add_option("--from", a->from, fmt::format("take the new {} from this file", what));
  cmd->add_flag("--show", a->show, fmt::format("print the {} and change nothing", what))->excludes(from);
}

}  // namespace

void RegisterReportCommands(CLI::App& app, Session& s) {
  RegisterOutputHtml(app, s);
  RegisterEditPageFile(app, s, false);
  RegisterEditPageFile(app, s, true);
}

}  // namespace kvl
