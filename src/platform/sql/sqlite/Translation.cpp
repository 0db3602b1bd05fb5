#include "platform/sql/sqlite/Translation.h"

#include <algorithm>

#include "platform/base/Error.h"
#include "platform/sql/dialect/Binder.h"
#include "platform/sql/dialect/Lexer.h"
#include "platform/sql/dialect/Literals.h"
#include "platform/sql/dialect/Parser.h"
#include "platform/sql/sqlite/Emitter.h"

namespace fenvale::sql {
namespace {

// More shapes than the program has; a clerk's free statements must not fill the memory.
constexpr std::size_t mostShapes = 1000;

bool isZero(TokenKind kind, std::string_view literal) {
  return kind == TokenKind::Integer && literal.find_first_not_of('0') == std::string_view::npos;
}

/// A row that goes takes those with it that are tied to it by a cascade.
void addCascades(const Catalog& catalog, std::vector<std::string>& tables) {
  for (std::size_t index = 0; index < tables.size(); ++index) {
    for (const std::string& name : catalog.tableNames()) {
      if (std::find(tables.begin(), tables.end(), name) != tables.end()) continue;
      for (const RelationDescription& relation : catalog.get(name)->relations)
        if (relation.cascade && sameName(relation.referencedTable, tables[index])) {
          tables.push_back(name);
          break;
        }
    }
  }
}

void translateSelect(const BoundSelect& select, Translation& translation) {
  for (const auto& column : select.columns) translation.columns.push_back({column.name, column.value.type});
  const auto plan = planKeys(select, translation.parameters.size());
  if (!plan) {
    translation.wholeText = SqliteEmitter().emit(select);
    return;
  }
  const std::string next = std::to_string(translation.parameters.size() + 1);
  const std::string afterNext = std::to_string(translation.parameters.size() + 2);
  translation.keyed = true;
  BoundSelect whole = select;
  whole.orderBy = plan->keys.orderBy;  // the same sequence, whichever way the rows are read
  translation.wholeText = SqliteEmitter().emit(whole);
  translation.rowIsKey = plan->rowIsKey;
  translation.keysText = SqliteEmitter().emit(plan->keys) + " LIMIT ?" + next + " OFFSET ?" + afterNext;
  translation.countText = SqliteEmitter().emit(plan->count);
  translation.rowText = SqliteEmitter().emit(plan->row);
}

std::shared_ptr<Translation> translated(const Statement& statement, const Catalog& catalog) {
  auto translation = std::make_shared<Translation>();
  if (isDefinition(statement)) {
    translation->kind = Translation::Kind::definition;
    return translation;
  }
  BoundStatement bound = sql::bind(statement, catalog);
  translation->parameters = std::move(bound.parameters);
  translation->literals = std::move(bound.literals);
  translation->tables = std::move(bound.tables);
  if (const auto* select = std::get_if<BoundSelect>(&bound.content)) {
    translateSelect(*select, *translation);
    return translation;
  }
  translation->kind = Translation::Kind::write;
  translation->wholeText = std::visit([](const auto& content) { return SqliteEmitter().emit(content); }, bound.content);
  translation->deletes = std::holds_alternative<BoundDelete>(bound.content);
  if (translation->deletes) addCascades(catalog, translation->tables);
  return translation;
}

}  // namespace

bool TranslationCache::serves(const Translation& translation, const std::vector<Literal>& literals) {
  for (std::size_t index = 0; index < translation.literals.size() && index < literals.size(); ++index) {
    const LiteralUse& use = translation.literals[index];
    if (use.dependence == LiteralUse::Dependence::whetherZero &&
        use.zero != isZero(literals[index].kind, literals[index].text))
      return false;
    if (use.dependence == LiteralUse::Dependence::value && use.text != literals[index].text) return false;
  }
  return true;
}

std::vector<StoredValue> TranslationCache::valuesOf(const Translation& translation,
                                                    const std::vector<Literal>& literals, Date today) {
  std::vector<StoredValue> values;
  values.reserve(translation.parameters.size());
  for (const Parameter& parameter : translation.parameters) {
    if (parameter.origin == Parameter::Origin::today) {
      values.emplace_back(writeStoredDate(today));
    } else {
      const Literal& literal = literals.at(parameter.literal);
      values.push_back(supply(parameter, literal.kind, literal.text));
    }
  }
  return values;
}

BoundRun TranslationCache::translate(std::string_view statement, const Catalog& catalog, Date today) {
  tokens_.clear();
  readTokens(statement, tokens_);
  shape_.clear();
  appendShape(tokens_, shape_);
  literals_.clear();
  buffers_.clear();
  buffers_.reserve(tokens_.size());  // the views into them must hold
  for (const Token& token : tokens_)
    if (categoryOf(token.kind) == TokenCategory::literal)
      literals_.push_back({token.kind, textOf(token, buffers_.emplace_back())});

  if (const auto known = byShape_.find(shape_); known != byShape_.end())
    for (const auto& translation : known->second)
      if (serves(*translation, literals_)) return {translation, valuesOf(*translation, literals_, today)};

  const auto translation = translated(Parser(statement, tokens_).parseStatement(), catalog);
  if (translation->kind == Translation::Kind::definition) return {translation, {}};
  if (byShape_.size() >= mostShapes) byShape_.clear();
  byShape_[shape_].push_back(translation);
  return {translation, valuesOf(*translation, literals_, today)};
}

}  // namespace fenvale::sql
