#pragma once
// The words and signs of the dialect. One table gives each token its kind, its category and its spelling; the
// enumeration, the lexer's look-ups and the names in messages all come from it.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace fenvale::sql {

enum class TokenCategory : std::uint8_t {
  special,      ///< the end, and names
  literal,      ///< a value written in the statement
  keyword,      ///< a reserved word
  softKeyword,  ///< a word with a meaning in definitions only; elsewhere it may be a name
  symbol,
};

// clang-format off
#define FENVALE_SQL_TOKENS(TOKEN)            \
  TOKEN(End,          special,     "")       \
  TOKEN(Name,         special,     "")       \
  TOKEN(Integer,      literal,     "")       \
  TOKEN(Decimal,      literal,     "")       \
  TOKEN(Text,         literal,     "")       \
  TOKEN(Date,         literal,     "")       \
  TOKEN(Alter,        keyword,     "ALTER")      \
  TOKEN(And,          keyword,     "AND")        \
  TOKEN(As,           keyword,     "AS")         \
  TOKEN(Between,      keyword,     "BETWEEN")    \
  TOKEN(By,           keyword,     "BY")         \
  TOKEN(Create,       keyword,     "CREATE")     \
  TOKEN(Delete,       keyword,     "DELETE")     \
  TOKEN(False,        keyword,     "FALSE")      \
  TOKEN(From,         keyword,     "FROM")       \
  TOKEN(Group,        keyword,     "GROUP")      \
  TOKEN(Inner,        keyword,     "INNER")      \
  TOKEN(Insert,       keyword,     "INSERT")     \
  TOKEN(Into,         keyword,     "INTO")       \
  TOKEN(Is,           keyword,     "IS")         \
  TOKEN(Join,         keyword,     "JOIN")       \
  TOKEN(Not,          keyword,     "NOT")        \
  TOKEN(Null,         keyword,     "NULL")       \
  TOKEN(On,           keyword,     "ON")         \
  TOKEN(Or,           keyword,     "OR")         \
  TOKEN(Order,        keyword,     "ORDER")      \
  TOKEN(Select,       keyword,     "SELECT")     \
  TOKEN(Set,          keyword,     "SET")        \
  TOKEN(Table,        keyword,     "TABLE")      \
  TOKEN(True,         keyword,     "TRUE")       \
  TOKEN(Unique,       keyword,     "UNIQUE")     \
  TOKEN(Update,       keyword,     "UPDATE")     \
  TOKEN(Values,       keyword,     "VALUES")     \
  TOKEN(Where,        keyword,     "WHERE")      \
  TOKEN(Add,          softKeyword, "ADD")        \
  TOKEN(Asc,          softKeyword, "ASC")        \
  TOKEN(Cascade,      softKeyword, "CASCADE")    \
  TOKEN(Column,       softKeyword, "COLUMN")     \
  TOKEN(Constraint,   softKeyword, "CONSTRAINT") \
  TOKEN(Desc,         softKeyword, "DESC")       \
  TOKEN(Foreign,      softKeyword, "FOREIGN")    \
  TOKEN(Index,        softKeyword, "INDEX")      \
  TOKEN(Key,          softKeyword, "KEY")        \
  TOKEN(Primary,      softKeyword, "PRIMARY")    \
  TOKEN(References,   softKeyword, "REFERENCES") \
  TOKEN(Unless,       softKeyword, "UNLESS")     \
  TOKEN(Ampersand,    symbol,      "&")  \
  TOKEN(Comma,        symbol,      ",")  \
  TOKEN(Equal,        symbol,      "=")  \
  TOKEN(Greater,      symbol,      ">")  \
  TOKEN(GreaterEqual, symbol,      ">=") \
  TOKEN(Less,         symbol,      "<")  \
  TOKEN(LessEqual,    symbol,      "<=") \
  TOKEN(Minus,        symbol,      "-")  \
  TOKEN(NotEqual,     symbol,      "<>") \
  TOKEN(ParenClose,   symbol,      ")")  \
  TOKEN(ParenOpen,    symbol,      "(")  \
  TOKEN(Plus,         symbol,      "+")  \
  TOKEN(Point,        symbol,      ".")  \
  TOKEN(Semicolon,    symbol,      ";")  \
  TOKEN(Slash,        symbol,      "/")  \
  TOKEN(Star,         symbol,      "*")
// clang-format on

enum class TokenKind : std::uint8_t {
#define TOKEN(kind, category, spelling) kind,
  FENVALE_SQL_TOKENS(TOKEN)
#undef TOKEN
};

constexpr TokenCategory categoryOf(TokenKind kind) {
  switch (kind) {
#define TOKEN(kind, category, spelling) \
  case TokenKind::kind:                 \
    return TokenCategory::category;
    FENVALE_SQL_TOKENS(TOKEN)
#undef TOKEN
  }
  return TokenCategory::special;
}

constexpr std::string_view spellingOf(TokenKind kind) {
  switch (kind) {
#define TOKEN(kind, category, spelling) \
  case TokenKind::kind:                 \
    return spelling;
    FENVALE_SQL_TOKENS(TOKEN)
#undef TOKEN
  }
  return {};
}

/// One token: its slice of the statement. A bracketed name's slice has no brackets, a text's no delimiters (but its
/// doubled delimiters), a date's no number signs.
struct Token {
  TokenKind kind = TokenKind::End;
  char delimiter = 0;  ///< of a Text: the apostrophe or the double quote; of a Name in brackets: '['
  std::string_view text;
  std::size_t place = 0;  ///< of its first byte in the statement
};

/// The content of a Text token, its doubled delimiters made single.
std::string_view textOf(const Token& token, std::string& buffer);

}  // namespace fenvale::sql
