#pragma once
// Whether a file may be opened as a store, found out before SQLite touches it.

#include <string>

namespace fenvale::sql {

/// Error 3024 when there is no such file, 3051 when it is no file or cannot be read, 3343 when its head is not that of
/// a store.
void checkFile(const std::string& path);
/// Whether the file and its folder, which holds the journal, can be written.
bool canBeWritten(const std::string& path);

}  // namespace fenvale::sql
