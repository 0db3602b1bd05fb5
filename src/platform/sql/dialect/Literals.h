#pragma once
// The values that stand written in a statement.

#include <optional>
#include <string>
#include <string_view>

#include "platform/base/Date.h"

namespace fenvale::sql {

/// The day between the number signs: month first, "3/15/2026" or "03/15/2026", whatever the machine's locale.
std::optional<Date> readLiteralDate(std::string_view text);

/// A stored date, "2026-03-15" or "2026-03-15 14:30:00". Nothing when the text is no such moment.
std::optional<DateTime> readStoredDate(std::string_view text);
std::string writeStoredDate(DateTime moment);

/// True for "12", "-3.50", ".5" with blanks around: what counts as a number where a text meets one.
bool isPlainNumber(std::string_view text);

/// Quotes for printing a statement.
std::string quotedText(std::string_view text);
/// The name itself where the lexer reads it back as one, else in brackets.
std::string quotedName(std::string_view name);

}  // namespace fenvale::sql
