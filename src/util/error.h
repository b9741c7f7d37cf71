#pragma once
// Failures that abandon a command. The front end maps each kind to an exit status.
#include <stdexcept>
#include <string>

namespace kvl {

// A damaged or missing file, or a state the rules exclude: the command is abandoned.
struct KvlError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

// The user has already been told why; nothing changed.
struct Refused : std::runtime_error {
  Refused() : std::runtime_error("refused") {}
  explicit Refused(const std::string& why) : std::runtime_error(why) {}
};

// The old program ended itself here (a required league file missing); the user was told.
struct FatalStop : std::runtime_error {
  using std::runtime_error::runtime_error;
};

}  // namespace kvl
