#pragma once
// A layer between SQLite and the disk that fails, or kills the process, at a chosen write.

#include <cstdint>

namespace fenvale::test {

enum class Fault {
  none,
  kill,    ///< the process dies before the write
  tear,    ///< the process dies with half of the write done
  full,    ///< the disk is full, once
  broken,  ///< the disk answers with an error, once
  garble,  ///< the disk keeps something else than was written, once, and does not tell
};

/// From now on every file of SQLite goes through the layer: writes, cuts, flushes and deletions are counted from 1, and
/// the fault strikes at the one with this number. A test that asks for it runs in a process of its own.
void arm(Fault fault, int number);
/// How many were counted since.
int countedWrites();

}  // namespace fenvale::test
