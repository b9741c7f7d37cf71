#pragma once
// Whole pages checked against reviewed text kept in tests/<area>/golden/.
// KVL_UPDATE_GOLDEN=1 rewrites the kept text from the run, for review.
#include <filesystem>
#include <string>

namespace kvl::test {

std::string ReadAll(const std::filesystem::path& p);
void WriteText(const std::filesystem::path& p, const std::string& text);
// Compares `text` with golden/<name> beside `testFile` (pass __FILE__).
void ExpectGolden(const std::string& testFile, const std::string& name, const std::string& text);

}  // namespace kvl::test
