#pragma once
// One running copy of the program per logged-on user of the machine.

#include <string>

namespace fenvale {

/// Holds the user's one place as long as it lives; the system takes it back when the process dies, however it dies.
class SingleInstance {
 public:
  /// In the user's run-time folder, or in the machine's folder for temporary files under the user's number.
  SingleInstance();
  /// In the lock file of that path (for tests).
  explicit SingleInstance(const std::string& lockFile);
  ~SingleInstance();
  SingleInstance(const SingleInstance&) = delete;
  SingleInstance& operator=(const SingleInstance&) = delete;

  /// False when another copy holds the place. True also where no lock can be made at all: better two copies than none.
  bool first() const { return first_; }

 private:
  int descriptor_ = -1;
  bool first_ = true;
};

}  // namespace fenvale
