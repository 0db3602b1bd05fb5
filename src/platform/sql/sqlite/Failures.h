#pragma once
// SQLite's result codes as the failures that the rules know.

struct sqlite3;

namespace fenvale::sql {

/// Throws the Error for the result `code` of the database's last call.
[[noreturn]] void fail(sqlite3* database, int code);

}  // namespace fenvale::sql
