#pragma once
// Files of fixed-length records numbered from 1, opened for one job and closed.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <span>

#include "util/bytes.h"

namespace kvl {

namespace fs = std::filesystem;

class RecordFile {
 public:
  // Opens (creating when missing) for reading and writing.
  RecordFile(const fs::path& path, std::size_t recordLength);

  std::size_t recordLength() const { return len_; }
  // Whole records in the file; a trailing partial record is not counted.
  std::size_t count();
  // Reads record n (from 1). Past the end the bytes read as zero, as the old platform did.
  Bytes get(std::size_t n);
  // Writes record n (from 1), extending the file with zeros when needed.
  void put(std::size_t n, std::span<const std::uint8_t> bytes);
  // The same for `count` records from n on, in one read or write: a team's
  // roster is one run of records, and a game day moves many of them.
  Bytes getRun(std::size_t n, std::size_t count);
  void putRun(std::size_t n, std::span<const std::uint8_t> bytes);

  template <class R>
  R getRecord(std::size_t n) { return DecodeRecord<R>(get(n)); }
  template <class R>
  void putRecord(std::size_t n, const R& r) { put(n, EncodeRecord(r)); }

  const fs::path& path() const { return path_; }

 private:
  fs::path path_;
  std::size_t len_;
  std::fstream f_;
};

// The whole file as bytes; a KvlError naming the file when it cannot be read.
Bytes ReadFileBytes(const fs::path& path);
// Writes through a temporary name and renames into place, so a crash never
// leaves the target half-written.
void WriteFileAtomic(const fs::path& path, std::span<const std::uint8_t> bytes);
void CopyFileAtomic(const fs::path& from, const fs::path& to);
// Deletes when present; a missing file is no error.
void RemoveIfExists(const fs::path& path);

}  // namespace kvl
