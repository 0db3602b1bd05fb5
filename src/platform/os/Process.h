#pragma once
// The end of the program.

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
};

}  // namespace fenvale
