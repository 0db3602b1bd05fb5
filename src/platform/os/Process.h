#pragma once
// The end of the program.

namespace fenvale {

/// The exit code by which the launcher knows that the program ended because its store was updated.
inline constexpr int exitRestart = 75;

class Process {
 public:
  virtual ~Process() = default;
  /// Ends the process at once, without unwinding anything: open transactions undo themselves. A test's process throws
  /// ProgramEnded in its place.
  [[noreturn]] virtual void end(int exitCode) = 0;
};

}  // namespace fenvale
