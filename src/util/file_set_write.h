#pragma once
// Replacing a set of files as one.
//
// Each new file is first written in full beside its target, under the target's
// name with ".kvlnew" added, and flushed to the disk. Then a journal is put in
// place (written under a temporary name and renamed, so it is whole or absent):
// a text file, first line "KVL file set", then one line a step, either
// "rename<TAB>from<TAB>to" or "remove<TAB>path". The steps run, and the journal
// is removed last. A journal found later means a process stopped between the
// first and the last step; RollForward runs the steps again (each is a no-op
// once done), so the set on disk is either all old or all new.
#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "util/file_system.h"

namespace kvl {

class FileSetWrite {
 public:
  FileSetWrite(FileSystem& files, fs::path journal) : files_(files), journal_(std::move(journal)) {}
  // Removes the temporary files of a set that was never committed.
  ~FileSetWrite();
  FileSetWrite(const FileSetWrite&) = delete;
  FileSetWrite& operator=(const FileSetWrite&) = delete;

  void write(const fs::path& target, std::span<const std::uint8_t> bytes);
  void copy(const fs::path& from, const fs::path& target);
  // Deletes `target` with the set, when it exists.
  void remove(const fs::path& target);
  // Journals the steps and runs them.
  void commit();

 private:
  struct Step {
    fs::path from;  // empty for a removal
    fs::path to;
  };
  FileSystem& files_;
  fs::path journal_;
  std::vector<Step> steps_;
  bool journaled_ = false;
};

// Completes the set whose journal is `journal`; false when there is none.
// A damaged journal is a KvlError naming it.
bool RollForward(FileSystem& files, const fs::path& journal);

}  // namespace kvl
