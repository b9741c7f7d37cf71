#pragma once
// Pages read as a browser's parser reads their tags, for the checks that no
// text of a league adds markup and that every link leads somewhere.
#include <filesystem>
#include <string>
#include <vector>

namespace kvl::test {

// Each tag of the page with the names of its attributes ("A HREF"), in order;
// the text between tags is left out.
std::vector<std::string> Markup(const std::string& page);
// The values of every attribute of that name, entities decoded.
std::vector<std::string> AttributeValues(const std::string& page, const std::string& attribute);
// The links of the pages in `folder` (mail links aside) whose file is not in
// the folder, or whose anchor is not named on that page: "page -> link".
std::vector<std::string> DeadLinks(const std::filesystem::path& folder);

}  // namespace kvl::test
