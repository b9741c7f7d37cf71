#include "support/page_markup.h"

#include <algorithm>
#include <cctype>
#include <cstring>

#include "support/golden.h"

namespace kvl::test {

namespace {

struct Tag {
  std::string name;
  std::vector<std::pair<std::string, std::string>> attributes;
};

std::string Upper(std::string text) {
  for (char& c : text) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return text;
}

std::string Decoded(std::string text) {
  for (auto [entity, c] : {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
    for (std::size_t at; (at = text.find(entity)) != std::string::npos;) text.replace(at, std::string(entity).size(), c);
  return text;
}

bool Blank(char c) { return std::isspace(static_cast<unsigned char>(c)) != 0; }

// A word up to a blank or one of `stops`.
std::string Word(const std::string& page, std::size_t& i, const char* stops) {
  const std::size_t from = i;
  while (i < page.size() && !Blank(page[i]) && !std::strchr(stops, page[i])) ++i;
  return page.substr(from, i - from);
}

std::string Value(const std::string& page, std::size_t& i) {
  if (i < page.size() && (page[i] == '"' || page[i] == '\'')) {
    const std::size_t end = page.find(page[i], i + 1);
    std::string v = page.substr(i + 1, end - i - 1);
    i = end == std::string::npos ? page.size() : end + 1;
    return v;
  }
  return Word(page, i, ">");
}

// As the parser splits them: a value runs to its closing quote, or unquoted to a blank or ">".
std::vector<Tag> Tags(const std::string& page) {
  std::vector<Tag> tags;
  for (std::size_t i = page.find('<'); i != std::string::npos; i = page.find('<', i)) {
    ++i;
    if (page.compare(i, 3, "!--") == 0) {
      i = page.find("-->", i);
      if (i == std::string::npos) break;
      continue;
    }
    Tag tag{Upper(Word(page, i, ">")), {}};
    for (;;) {
      while (i < page.size() && Blank(page[i])) ++i;
      if (i >= page.size() || page[i] == '>') break;
      std::string name = Upper(Word(page, i, "=>"));
      std::string value;
      if (i < page.size() && page[i] == '=') value = Value(page, ++i);
      if (name.empty()) ++i;
      else tag.attributes.emplace_back(name, Decoded(value));
    }
    tags.push_back(tag);
  }
  return tags;
}

}  // namespace

std::vector<std::string> Markup(const std::string& page) {
  std::vector<std::string> out;
  for (const Tag& t : Tags(page)) {
    std::string line = t.name;
    for (const auto& a : t.attributes) line += " " + a.first;
    out.push_back(line);
  }
  return out;
}

std::vector<std::string> AttributeValues(const std::string& page, const std::string& attribute) {
  std::vector<std::string> out;
  for (const Tag& t : Tags(page))
    for (const auto& [name, value] : t.attributes)
      if (name == attribute) out.push_back(value);
  return out;
}

std::vector<std::string> DeadLinks(const std::filesystem::path& folder) {
  std::vector<std::string> dead;
  for (const auto& e : std::filesystem::directory_iterator(folder)) {
    if (e.path().extension() != ".html") continue;
    const std::string page = ReadAll(e.path());
    std::vector<std::string> links = AttributeValues(page, "HREF");
    for (const std::string& content : AttributeValues(page, "CONTENT"))
      if (content.starts_with("0; URL=")) links.push_back(content.substr(7));
    for (const std::string& link : links) {
      if (link.starts_with("mailto:")) continue;
      const std::string file = link.substr(0, link.find('#'));
      const std::filesystem::path target = file.empty() ? e.path() : folder / file;
      bool found = std::filesystem::exists(target);
      if (found && link.find('#') != std::string::npos) {
        const std::vector<std::string> names = AttributeValues(ReadAll(target), "NAME");
        found = std::find(names.begin(), names.end(), link.substr(link.find('#') + 1)) != names.end();
      }
      if (!found) dead.push_back(e.path().filename().string() + " -> " + link);
    }
  }
  return dead;
}

}  // namespace kvl::test
