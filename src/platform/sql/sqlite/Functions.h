#pragma once
// The functions and the collation that the emitter names, registered on a database.

struct sqlite3;

namespace fenvale::sql {

void registerFunctions(sqlite3* database);
/// Throws what a function refused a value with during the last step, if it did.
void rethrowFunctionError();

}  // namespace fenvale::sql
