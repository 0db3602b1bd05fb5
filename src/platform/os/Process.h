#pragma once
// The program as the system runs it: its end, and the other programs that it starts for the person.

#include <string>

#include "platform/base/Error.h"

namespace fenvale {

/// The exit code by which the launcher knows that the program ended because its store was updated.
inline constexpr int exitRestart = 75;
/// The exit code of a program that ended because of a failure.
inline constexpr int exitFailure = 1;

class Process {
 public:
  virtual ~Process() = default;
  /// Ends the process at once, without unwinding anything: open transactions undo themselves. A test's process throws
  /// ProgramEnded in its place.
  [[noreturn]] virtual void end(int exitCode) = 0;
  /// Hands a file to the program that the system associates with its kind, and returns at once. Error 53 when none can
  /// be started.
  virtual void openFile(const std::string& path) {
    throw Error(errors::fileNotFound, "Não há programa que abra o arquivo " + path + ".");
  }
};

}  // namespace fenvale
