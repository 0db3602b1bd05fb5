#pragma once
// Cuts a statement into tokens.

#include <string>
#include <string_view>
#include <vector>

#include "platform/sql/dialect/Token.h"

namespace fenvale::sql {

/// The tokens of a statement, End as the last. They point into the statement. Error 0x80040E14 at a character that
/// belongs to no token, at a text, name or date that is not closed, at a number with two points, and at a date whose
/// month or day cannot be.
void readTokens(std::string_view statement, std::vector<Token>& tokens);

/// Equal for two statements that differ in nothing but blanks, the case of keywords and the values of literals of one
/// kind: what a translation may be kept under.
void appendShape(const std::vector<Token>& tokens, std::string& shape);

/// A failure at a token: the one sentence that every syntax error speaks.
[[noreturn]] void failSyntax(const Token& token, std::string_view statement);

}  // namespace fenvale::sql
