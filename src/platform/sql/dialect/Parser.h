#pragma once
// From tokens to a tree: one function for each rule of the grammar.
//
//   statement   = (select | insert | update | delete | create-table | create-index | alter-table) [";"]
//   select      = SELECT item {"," item} [FROM from] [WHERE expression]
//                 [GROUP BY expression {"," expression}] [ORDER BY order {"," order}]
//   item        = "*" | expression [AS name]
//   order       = expression [ASC | DESC]
//   from        = source {INNER JOIN source ON expression}
//   source      = name | "(" select ")" | "(" from ")"          the last only at the left of a join
//   insert      = INSERT INTO name "(" name {"," name} ")" VALUES "(" expression {"," expression} ")"
//   update      = UPDATE name SET name "=" expression {"," name "=" expression} [WHERE expression]
//   delete      = DELETE ["*"] FROM name [WHERE expression]
//   expression  = the ladder of Operators.h over operands
//   operand     = literal | NULL | TRUE | FALSE | name ["." name] | call | "(" select ")" | "(" expression ")"
//   call        = name "(" ["*" | expression {"," expression}] ")"
//   create-table = CREATE TABLE name "(" element {"," element} ")"
//   element     = column | constraint
//   column      = name type ["(" integer ")"] {NOT NULL | column-constraint}
//   constraint  = [CONSTRAINT name] (PRIMARY KEY names | UNIQUE names | FOREIGN KEY names references)
//   column-constraint = [CONSTRAINT name] (PRIMARY KEY | UNIQUE | references)
//   references  = REFERENCES name [names] [ON DELETE CASCADE [UNLESS "(" expression ")" text]]
//   create-index = CREATE [UNIQUE] INDEX name ON name "(" name [ASC | DESC] {"," ...} ")" [WHERE expression]
//   alter-table = ALTER TABLE name ADD (constraint | [COLUMN] column)

#include <string_view>
#include <vector>

#include "platform/sql/dialect/Statement.h"
#include "platform/sql/dialect/Token.h"

namespace fenvale::sql {

/// How deep parentheses, calls, selects and chains of operators may be nested: far above any real statement, far below
/// what would exhaust the stack.
inline constexpr std::size_t deepestNesting = 400;

/// Error 0x80040E14 when the text is no statement; it names the place.
Statement parse(std::string_view statement);

/// A condition alone, as a definition keeps it.
ExpressionPointer parseCondition(std::string_view text);

class Parser {
 public:
  Parser(std::string_view statement, const std::vector<Token>& tokens) : statement_(statement), tokens_(tokens) {}

  Statement parseStatement();
  ExpressionPointer parseWholeExpression();

 private:
  SelectStatement parseSelect();
  SelectItem parseItem();
  OrderItem parseOrder();
  FromClause parseFrom();
  FromSource parseSource();
  InsertStatement parseInsert();
  UpdateStatement parseUpdate();
  DeleteStatement parseDelete();
  ExpressionPointer parseOptionalWhere();

  ExpressionPointer parseExpression() { return parseLadder(Precedence::logicalOr); }
  ExpressionPointer parseLadder(Precedence rung);
  ExpressionPointer parseNot();
  ExpressionPointer parseComparison();
  ExpressionPointer parseSign();
  ExpressionPointer parseOperand();
  ExpressionPointer parseLiteral();
  ExpressionPointer parseNameOrCall();
  ExpressionPointer parseCall();
  ExpressionPointer parseParentheses();

  Statement parseCreate();
  CreateTableStatement parseCreateTable();
  CreateIndexStatement parseCreateIndex();
  Statement parseAlterTable();
  void parseColumn(ColumnDefinition& column, std::vector<ConstraintDefinition>& constraints);
  ColumnType parseType();
  bool atConstraint() const;
  ConstraintDefinition parseConstraint();
  bool parseColumnConstraint(const std::string& column, std::vector<ConstraintDefinition>& constraints);
  void parseReferences(RelationClause& relation);

  const Token& current() const { return tokens_[at_]; }
  const Token& ahead(std::size_t count = 1) const { return tokens_[std::min(at_ + count, tokens_.size() - 1)]; }
  bool at(TokenKind kind) const { return current().kind == kind; }
  bool accept(TokenKind kind);
  void expect(TokenKind kind);
  bool atName() const;
  std::string parseName();
  std::vector<std::string> parseNames();
  std::string sourceText(std::size_t firstToken, std::size_t endToken) const;
  [[noreturn]] void fail() const { fail(current()); }
  [[noreturn]] void fail(const Token& token) const;
  ExpressionPointer checkDepth(ExpressionPointer expression) const;

  /// Counts how deep the grammar's recursion is.
  class Nesting;

  std::string_view statement_;
  const std::vector<Token>& tokens_;
  std::size_t at_ = 0;
  std::size_t literals_ = 0;
  std::size_t nesting_ = 0;
};

}  // namespace fenvale::sql
