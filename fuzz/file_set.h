#pragma once
// A league's file set packed in one fuzz input, so the fuzzer can grow and cut
// every file: for each file kind, in the order the program lists them, a
// little-endian u32 length (0xFFFFFFFF: the file is absent), then the files'
// bytes one after another. A length past the end takes what is left.
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace kvl::fuzz {

// Writes the files of `input` as `base` + extension; true when a .lge came out.
bool UnpackFileSet(std::string_view input, const std::string& base);
// The input that unpacks to the league files at `base`.
std::string PackFileSet(const std::string& base);

}  // namespace kvl::fuzz
