#pragma once
// Runs the statements of a stream on one store.

#include <iosfwd>
#include <string>

#include "platform/sql/Store.h"
#include "sql/Options.h"
#include "sql/Output.h"

namespace fenvale::console {

/// Makes the store of --criar when it is missing, and runs the script; what is applied already is passed over.
void prepareStore(const Options& options, Connection& store);

/// One statement a line; a ";" may end it, "--" begins a line of comment. True when all of them ran.
bool runStatements(std::istream& in, Connection& store, Output& output);

}  // namespace fenvale::console
