#pragma once
// LinesDirectory.txt in the home folder: one line, the folder where the
// managers' lines files are looked for.
#include <filesystem>
#include <string>

namespace kvl {

std::filesystem::path LinesDirectoryFile(const std::filesystem::path& home);
// The first line of the file; a missing file is first created holding the home folder.
std::string ReadLinesDirectory(const std::filesystem::path& home);
// Stores `dir` trimmed, with a separator added when it does not end in one.
void WriteLinesDirectory(const std::filesystem::path& home, const std::string& dir);

}  // namespace kvl
