#pragma once
// The command line of fenvale-sql.

#include <optional>
#include <string>
#include <vector>

#include "platform/base/Date.h"

namespace fenvale::console {

enum class Format { table, tsv, json };

struct Options {
  std::string file;
  std::string script;         ///< of --criar: the name of the script that is shipped; empty without it
  std::optional<Date> today;  ///< of --hoje
  std::optional<Format> format;
};

extern const char* const usage;

/// Nothing for a command line that is no use of the program.
std::optional<Options> readOptions(const std::vector<std::string>& arguments);

}  // namespace fenvale::console
