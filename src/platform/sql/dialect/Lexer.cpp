#include "platform/sql/dialect/Lexer.h"

#include <array>
#include <cstring>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/sql/dialect/Literals.h"

namespace fenvale::sql {
namespace {

struct Word {
  std::string_view spelling;
  TokenKind kind;
};

constexpr bool isWord(TokenKind kind) {
  return categoryOf(kind) == TokenCategory::keyword || categoryOf(kind) == TokenCategory::softKeyword;
}

constexpr std::size_t wordCount = [] {
  std::size_t count = 0;
#define TOKEN(kind, category, spelling) count += isWord(TokenKind::kind) ? 1 : 0;
  FENVALE_SQL_TOKENS(TOKEN)
#undef TOKEN
  return count;
}();

/// The words of the table by their first letter: words of one letter lie together.
constexpr auto words = [] {
  std::array<Word, wordCount> table{};
  std::size_t count = 0;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
#define TOKEN(kind, category, spelling) \
  if (isWord(TokenKind::kind) && std::string_view(spelling)[0] == letter) table[count++] = {spelling, TokenKind::kind};
    FENVALE_SQL_TOKENS(TOKEN)
#undef TOKEN
  }
  return table;
}();

constexpr auto firstWordOfLetter = [] {
  std::array<std::uint8_t, 27> first{};
  std::size_t index = 0;
  for (std::size_t letter = 0; letter < 27; ++letter) {
    while (index < words.size() && words[index].spelling[0] < static_cast<char>('A' + letter)) ++index;
    first[letter] = static_cast<std::uint8_t>(index);
  }
  return first;
}();

constexpr char upperOf(char letter) { return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 32) : letter; }

TokenKind kindOfWord(std::string_view text) {
  const char initial = upperOf(text[0]);
  if (initial < 'A' || initial > 'Z') return TokenKind::Name;
  const auto letter = static_cast<std::size_t>(initial - 'A');
  for (std::size_t index = firstWordOfLetter[letter]; index < firstWordOfLetter[letter + 1]; ++index) {
    const Word& word = words[index];
    if (word.spelling.size() != text.size()) continue;
    std::size_t place = 1;
    while (place < text.size() && upperOf(text[place]) == word.spelling[place]) ++place;
    if (place == text.size()) return word.kind;
  }
  return TokenKind::Name;
}

enum Class : std::uint8_t { other = 0, blank = 1, letterClass = 2, digit = 4 };

constexpr auto classes = [] {
  std::array<std::uint8_t, 256> table{};
  for (char letter : {' ', '\t', '\r', '\n'}) table[static_cast<unsigned char>(letter)] = blank;
  for (unsigned code = 'A'; code <= 'Z'; ++code) table[code] = letterClass;
  for (unsigned code = 'a'; code <= 'z'; ++code) table[code] = letterClass;
  for (unsigned code = '0'; code <= '9'; ++code) table[code] = digit;
  table['_'] = letterClass;
  return table;
}();

bool is(char letter, unsigned mask) { return (classes[static_cast<unsigned char>(letter)] & mask) != 0; }

class Lexer {
 public:
  Lexer(std::string_view statement, std::vector<Token>& tokens) : statement_(statement), tokens_(tokens) {}

  void run() {
    tokens_.clear();
    for (;;) {
      while (at_ < statement_.size() && is(statement_[at_], blank)) ++at_;
      if (at_ >= statement_.size()) break;
      readToken();
    }
    add(TokenKind::End, at_, at_, at_);
  }

 private:
  void add(TokenKind kind, std::size_t begin, std::size_t end, std::size_t place, char delimiter = 0) {
    tokens_.push_back({kind, delimiter, statement_.substr(begin, end - begin), place});
  }

  char next(std::size_t ahead = 1) const { return at_ + ahead < statement_.size() ? statement_[at_ + ahead] : '\0'; }

  /// The bytes of the letter at a place: one for an ASCII letter, more for an accented one, 0 for no letter.
  std::size_t letterBytes(std::size_t place) const {
    const char letter = statement_[place];
    if (is(letter, letterClass)) return letter == '_' && place == at_ ? 0 : 1;
    if (static_cast<unsigned char>(letter) < 0x80) return 0;
    const auto [code, bytes] = decodeUtf8(statement_, place);
    const bool accented = code >= 0xC0 && code != 0xD7 && code != 0xF7 && code < 0x2000;
    return accented ? bytes : 0;
  }

  void readToken() {
    const char letter = statement_[at_];
    if (letterBytes(at_) > 0) return readWord();
    if (is(letter, digit) || (letter == '.' && is(next(), digit))) return readNumber();
    switch (letter) {
      case '\'':
      case '"':
        return readText(letter);
      case '[':
        return readBracketed();
      case '#':
        return readDateLiteral();
      case '<':
        return readSymbol(next() == '>' ? TokenKind::NotEqual : next() == '=' ? TokenKind::LessEqual : TokenKind::Less);
      case '>':
        return readSymbol(next() == '=' ? TokenKind::GreaterEqual : TokenKind::Greater);
      case '=':
        return readSymbol(TokenKind::Equal);
      case '&':
        return readSymbol(TokenKind::Ampersand);
      case ',':
        return readSymbol(TokenKind::Comma);
      case '-':
        return readSymbol(TokenKind::Minus);
      case '(':
        return readSymbol(TokenKind::ParenOpen);
      case ')':
        return readSymbol(TokenKind::ParenClose);
      case '+':
        return readSymbol(TokenKind::Plus);
      case '.':
        return readSymbol(TokenKind::Point);
      case ';':
        return readSymbol(TokenKind::Semicolon);
      case '/':
        return readSymbol(TokenKind::Slash);
      case '*':
        return readSymbol(TokenKind::Star);
      default:
        fail(at_);
    }
  }

  void readSymbol(TokenKind kind) {
    const std::size_t begin = at_;
    at_ += spellingOf(kind).size();
    add(kind, begin, at_, begin);
  }

  void readWord() {
    const std::size_t begin = at_;
    std::size_t bytes = letterBytes(at_);
    while (bytes > 0) {
      at_ += bytes;
      while (at_ < statement_.size() && is(statement_[at_], letterClass | digit)) ++at_;
      bytes = at_ < statement_.size() ? letterBytes(at_) : 0;
    }
    const std::string_view word = statement_.substr(begin, at_ - begin);
    if (at_ < statement_.size() && statement_[at_] == '$') {  // Mid$ is one name
      ++at_;
      return add(TokenKind::Name, begin, at_, begin);
    }
    add(kindOfWord(word), begin, at_, begin);
  }

  void readNumber() {
    const std::size_t begin = at_;
    bool point = false;
    for (; at_ < statement_.size(); ++at_) {
      if (statement_[at_] == '.') {
        if (point) fail(begin);
        point = true;
      } else if (!is(statement_[at_], digit)) {
        break;
      }
    }
    // A letter that touches the number would make another dialect read an exponent; here it is a slip of the writer.
    if (at_ < statement_.size() && letterBytes(at_) > 0) fail(begin);
    add(point ? TokenKind::Decimal : TokenKind::Integer, begin, at_, begin);
  }

  void readText(char delimiter) {
    const std::size_t place = at_;
    const std::size_t begin = ++at_;
    for (;; ++at_) {
      at_ = statement_.find(delimiter, at_);
      if (at_ == std::string_view::npos) fail(place);
      if (next() != delimiter) break;
      ++at_;
    }
    add(TokenKind::Text, begin, at_, place, delimiter);
    ++at_;
  }

  void readBracketed() {
    const std::size_t end = statement_.find(']', at_);
    if (end == std::string_view::npos || end == at_ + 1) fail(at_);
    add(TokenKind::Name, at_ + 1, end, at_, '[');
    at_ = end + 1;
  }

  void readDateLiteral() {
    const std::size_t end = statement_.find('#', at_ + 1);
    if (end == std::string_view::npos) fail(at_);
    const std::string_view content = statement_.substr(at_ + 1, end - at_ - 1);
    if (!readLiteralDate(content)) fail(at_);
    add(TokenKind::Date, at_ + 1, end, at_);
    at_ = end + 1;
  }

  [[noreturn]] void fail(std::size_t place) const {
    failSyntax({TokenKind::Name, 0, statement_.substr(place), place}, statement_);
  }

  std::string_view statement_;
  std::vector<Token>& tokens_;
  std::size_t at_ = 0;
};

}  // namespace

void readTokens(std::string_view statement, std::vector<Token>& tokens) { Lexer(statement, tokens).run(); }

void appendShape(const std::vector<Token>& tokens, std::string& shape) {
  for (const Token& token : tokens) {
    shape += static_cast<char>(token.kind);
    if (token.kind == TokenKind::Name) {
      shape += token.delimiter == '[' ? '\x01' : '\x02';
      shape += token.text;
      shape += '\0';
    } else if (categoryOf(token.kind) == TokenCategory::softKeyword) {
      shape += token.text;  // it may stand as a name, whose spelling counts
      shape += '\0';
    }
  }
}

std::string_view textOf(const Token& token, std::string& buffer) {
  if (token.kind != TokenKind::Text || token.text.find(token.delimiter) == std::string_view::npos) return token.text;
  buffer.clear();
  for (std::size_t place = 0; place < token.text.size(); ++place) {
    buffer += token.text[place];
    if (token.text[place] == token.delimiter) ++place;
  }
  return buffer;
}

void failSyntax(const Token& token, std::string_view statement) {
  const std::size_t character = length(statement.substr(0, token.place)) + 1;
  if (token.kind == TokenKind::End || token.place >= statement.size())
    throw Error(errors::syntax, "Erro de sintaxe: a instrução termina antes do esperado.");
  throw Error(errors::syntax, "Erro de sintaxe perto de \"" + left(statement.substr(token.place), 20) +
                                  "\", no caractere " + std::to_string(character) + ".");
}

}  // namespace fenvale::sql
