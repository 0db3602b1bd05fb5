// The statements that define tables, indexes and relations.

#include <charconv>

#include "platform/base/Error.h"
#include "platform/sql/dialect/Parser.h"

namespace fenvale::sql {

Statement Parser::parseCreate() {
  expect(TokenKind::Create);
  if (at(TokenKind::Table)) return parseCreateTable();
  return parseCreateIndex();
}

CreateTableStatement Parser::parseCreateTable() {
  expect(TokenKind::Table);
  CreateTableStatement create;
  create.table = parseName();
  expect(TokenKind::ParenOpen);
  do {
    if (atConstraint()) {
      create.constraints.push_back(parseConstraint());
    } else {
      ColumnDefinition column;
      parseColumn(column, create.constraints);
      create.columns.push_back(std::move(column));
    }
  } while (accept(TokenKind::Comma));
  expect(TokenKind::ParenClose);
  if (create.columns.empty()) throw Error(errors::syntax, "A tabela " + create.table + " não tem campos.");
  return create;
}

CreateIndexStatement Parser::parseCreateIndex() {
  CreateIndexStatement create;
  create.unique = accept(TokenKind::Unique);
  expect(TokenKind::Index);
  create.name = parseName();
  expect(TokenKind::On);
  create.table = parseName();
  expect(TokenKind::ParenOpen);
  do {
    CreateIndexStatement::Column column{parseName()};
    column.descending = accept(TokenKind::Desc);
    if (!column.descending) accept(TokenKind::Asc);
    create.columns.push_back(std::move(column));
  } while (accept(TokenKind::Comma));
  expect(TokenKind::ParenClose);
  create.where = parseOptionalWhere();
  return create;
}

Statement Parser::parseAlterTable() {
  expect(TokenKind::Alter);
  expect(TokenKind::Table);
  std::string table = parseName();
  expect(TokenKind::Add);
  if (atConstraint()) return AddConstraintStatement{std::move(table), parseConstraint()};
  accept(TokenKind::Column);
  AddColumnStatement alter;
  alter.table = std::move(table);
  parseColumn(alter.column, alter.constraints);
  return alter;
}

void Parser::parseColumn(ColumnDefinition& column, std::vector<ConstraintDefinition>& constraints) {
  column.name = parseName();
  column.type = parseType();
  for (;;) {
    if (accept(TokenKind::Not)) {
      expect(TokenKind::Null);
      column.required = true;
    } else if (!parseColumnConstraint(column.name, constraints)) {
      return;
    }
  }
}

ColumnType Parser::parseType() {
  const Token& token = current();
  const auto kind = findColumnKind(parseName());
  if (!kind) fail(token);
  ColumnType type{*kind, *kind == ColumnKind::text ? longestText : 0};
  if (*kind == ColumnKind::text && accept(TokenKind::ParenOpen)) {
    const Token& number = current();
    expect(TokenKind::Integer);
    const char* end = number.text.data() + number.text.size();
    const auto [rest, failure] = std::from_chars(number.text.data(), end, type.limit);
    if (failure != std::errc() || rest != end || type.limit < 1 || type.limit > longestText) fail(number);
    expect(TokenKind::ParenClose);
  }
  return type;
}

bool Parser::atConstraint() const {
  switch (current().kind) {
    case TokenKind::Unique:
      return true;
    case TokenKind::Constraint:
      return ahead(2).kind != TokenKind::ParenOpen && ahead(2).kind != TokenKind::Comma;
    case TokenKind::Primary:
    case TokenKind::Foreign:
      return ahead().kind == TokenKind::Key;
    default:
      return false;
  }
}

ConstraintDefinition Parser::parseConstraint() {
  ConstraintDefinition constraint;
  if (accept(TokenKind::Constraint)) constraint.name = parseName();
  if (accept(TokenKind::Primary)) {
    expect(TokenKind::Key);
    constraint.kind = ConstraintDefinition::Kind::primaryKey;
    constraint.columns = parseNames();
  } else if (accept(TokenKind::Unique)) {
    constraint.kind = ConstraintDefinition::Kind::unique;
    constraint.columns = parseNames();
  } else {
    expect(TokenKind::Foreign);
    expect(TokenKind::Key);
    constraint.kind = ConstraintDefinition::Kind::relation;
    constraint.relation.columns = parseNames();
    parseReferences(constraint.relation);
  }
  return constraint;
}

bool Parser::parseColumnConstraint(const std::string& column, std::vector<ConstraintDefinition>& constraints) {
  ConstraintDefinition constraint;
  const bool named = accept(TokenKind::Constraint);
  if (named) constraint.name = parseName();
  if (accept(TokenKind::Primary)) {
    expect(TokenKind::Key);
    constraint.kind = ConstraintDefinition::Kind::primaryKey;
    constraint.columns = {column};
  } else if (accept(TokenKind::Unique)) {
    constraint.kind = ConstraintDefinition::Kind::unique;
    constraint.columns = {column};
  } else if (at(TokenKind::References)) {
    constraint.kind = ConstraintDefinition::Kind::relation;
    constraint.relation.columns = {column};
    parseReferences(constraint.relation);
  } else {
    if (named) fail();
    return false;
  }
  constraints.push_back(std::move(constraint));
  return true;
}

void Parser::parseReferences(RelationClause& relation) {
  expect(TokenKind::References);
  relation.table = parseName();
  if (at(TokenKind::ParenOpen)) relation.referencedColumns = parseNames();
  if (!accept(TokenKind::On)) return;
  expect(TokenKind::Delete);
  expect(TokenKind::Cascade);
  relation.cascade = true;
  if (!accept(TokenKind::Unless)) return;
  expect(TokenKind::ParenOpen);
  const std::size_t first = at_;
  relation.unless = parseExpression();
  relation.unlessText = sourceText(first, at_);
  expect(TokenKind::ParenClose);
  const Token& refusal = current();
  expect(TokenKind::Text);
  std::string buffer;
  relation.refusal = textOf(refusal, buffer);
}

}  // namespace fenvale::sql
