#pragma once
// The answers of fenvale-sql in their three forms.

#include <iosfwd>
#include <memory>
#include <string>

#include "platform/base/Error.h"
#include "platform/sql/Store.h"
#include "sql/Options.h"

namespace fenvale::console {

class Output {
 public:
  virtual ~Output() = default;
  /// Whole or not at all: a row that cannot be read leaves no half answer.
  virtual void query(Recordset& rows) = 0;
  virtual void changed(std::int64_t rows) = 0;
  virtual void refused(const Error& failure, std::size_t line) = 0;
};

/// Answers go to `out`; a refusal goes to `messages`, but in JSON, where it is an answer.
std::unique_ptr<Output> makeOutput(Format format, std::ostream& out, std::ostream& messages);

}  // namespace fenvale::console
