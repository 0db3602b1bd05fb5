#pragma once
// SQLite's result codes as the program's numbers, each with one Portuguese sentence that names the table or the file.

#include <string>

#include "platform/base/Error.h"

struct sqlite3;

namespace fenvale::sql {

/// What a statement was about to do, for the sentence.
struct FailureContext {
  std::string path;   ///< of the store
  std::string table;  ///< that the statement writes; empty for a query
  bool deletes = false;
};

/// The failure that the last call on the database ended with.
Error failureOf(sqlite3* database, int code, const FailureContext& context);
/// Without a database, from a code and its message.
Error failureOf(int extendedCode, const std::string& message, const FailureContext& context);

}  // namespace fenvale::sql
