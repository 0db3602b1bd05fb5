#pragma once
// Where the program's files live.

#include <string>
#include <vector>

namespace fenvale {

/// The folders from which the application path is worked out.
struct ProgramPlaces {
  std::string executableFolder;
  /// Where the shipped files may be, the first one that has a script of the stores wins.
  std::vector<std::string> shippedFolders;
  /// The program's folder among the user's data.
  std::string userFolder;
};

/// The places on this machine, by the running program and the user's home. Error 76 without a home.
ProgramPlaces systemPlaces();

/// The folder of the program's files, without a separator at its end: the executable's own when a marker file
/// "portatil", "Dados.MDB" or "init.ini" lies in it, else the user's folder, which gets the shipped files: all that are
/// missing, and those scripts of the stores that a newer program ships. Error 75 when it cannot be made.
std::string applicationPath(const ProgramPlaces& places);

}  // namespace fenvale
