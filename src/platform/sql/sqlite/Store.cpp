#include "platform/sql/Store.h"

#include <algorithm>
#include <set>

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/os/Files.h"
#include "platform/sql/dialect/Parser.h"
#include "platform/sql/sqlite/Definitions.h"
#include "platform/sql/sqlite/Rows.h"

namespace fenvale {

using namespace sql;

class Recordset::Implementation {
 public:
  void requireOpen() const {
    if (!rows) throw Error(errors::objectClosed, "O conjunto de registros está fechado.");
  }

  void requireRow() const {
    requireOpen();
    if (place < 0 || !rows->has(place)) throw Error(errors::noCurrentRecord, "Não há registro atual.");
  }

  void go(std::int64_t to) {
    requireOpen();
    if (!rows->has(0)) throw Error(errors::noCurrentRecord, "O conjunto de registros está vazio.");
    place = to < 0 ? -1 : rows->has(to) ? to : rows->count();
  }

  void close();

  CursorType cursor = CursorType::forwardOnly;
  LockType lock = LockType::readOnly;
  Connection::Implementation* connection = nullptr;
  std::shared_ptr<Translation> translation;
  std::unique_ptr<Rows> rows;
  std::int64_t place = 0;
  std::int64_t affected = 0;
};

class Connection::Implementation {
 public:
  explicit Implementation(StoreEnvironment surroundings) : environment(surroundings) {}

  void open() {
    database = std::make_unique<Database>(files::nativePath(source), environment.lockWait);
    try {
      refreshCatalog();
    } catch (const Error&) {
      database.reset();
      throw;
    }
  }

  void close() {
    while (!recordsets.empty()) (*recordsets.begin())->close();
    translations.clear();
    database.reset();
  }

  void refreshCatalog() {
    catalog = readCatalog(*database);
    schemaVersion = database->schemaVersion();
    translations.clear();
  }

  BoundRun translate(std::string_view statement) {
    try {
      return translations.translate(statement, catalog, environment.clock.today());
    } catch (const Error&) {
      // Another program may have added what this statement speaks of.
      if (database->schemaVersion() == schemaVersion) throw;
      refreshCatalog();
      return translations.translate(statement, catalog, environment.clock.today());
    }
  }

  void run(std::string_view statement, Recordset::Implementation& recordset) {
    BoundRun bound = translate(statement);
    recordset.translation = bound.translation;
    switch (bound.translation->kind) {
      case Translation::Kind::select:
        recordset.rows = openRows(*database, std::move(bound), recordset.cursor == CursorType::forwardOnly);
        recordset.connection = this;
        recordsets.insert(&recordset);
        break;
      case Translation::Kind::write:
        recordset.affected = write(bound);
        break;
      case Translation::Kind::definition:
        requireWhole();
        settle({});
        if (database->schemaVersion() != schemaVersion) refreshCatalog();
        define(*database, catalog, parse(statement));
        schemaVersion = database->schemaVersion();
        translations.clear();
        break;
    }
  }

  std::int64_t write(const BoundRun& bound) {
    requireWhole();
    settle(bound.translation->tables);
    database->speakOf(bound.translation->tables.front(), bound.translation->deletes);
    Prepared& prepared = bound.translation->whole;
    if (!prepared) prepared = database->prepare(bound.translation->wholeText);
    const Running running(prepared);
    prepared.bind(bound.values);
    prepared.step();
    return database->changedRows();
  }

  /// Before the rows of these tables change, or of any when none is named, each recordset settles which it has.
  void settle(const std::vector<std::string>& tables) {
    for (Recordset::Implementation* recordset : recordsets) {
      const auto& read = recordset->translation->tables;
      const bool touched =
          tables.empty() || std::find_first_of(read.begin(), read.end(), tables.begin(), tables.end()) != read.end();
      if (touched) recordset->rows->settle();
    }
  }

  void requireOpen() const {
    if (!database) throw Error(errors::connectionClosed, "A conexão com o banco de dados está fechada.");
  }

  /// After SQLite has rolled back by itself, what is written until the program does so too would be kept by mistake.
  void requireWhole() const {
    if (level > 0 && !database->inTransaction())
      throw Error(errors::diskFull, "A gravação anterior falhou e a transação foi desfeita: nada mais é gravado nela.");
  }

  std::string levelName() const { return "t" + std::to_string(level); }

  StoreEnvironment environment;
  std::string connectionText;
  std::string source;
  std::unique_ptr<Database> database;
  Catalog catalog;
  std::int64_t schemaVersion = 0;
  TranslationCache translations;
  std::set<Recordset::Implementation*> recordsets;
  int level = 0;
};

void Recordset::Implementation::close() {
  rows.reset();
  if (connection != nullptr) connection->recordsets.erase(this);
  connection = nullptr;
}

Connection::Connection(StoreEnvironment environment) : implementation_(std::make_unique<Implementation>(environment)) {}
Connection::~Connection() { implementation_->close(); }

void Connection::setConnectionString(std::string text) {
  if (isOpen()) throw Error(errors::objectOpen, "A conexão está aberta.");
  constexpr std::string_view mark = "Data Source=";
  const std::size_t place = text.find(mark);
  implementation_->source = place == std::string::npos ? std::string() : text.substr(place + mark.size());
  if (const std::size_t end = implementation_->source.find(';'); end != std::string::npos)
    implementation_->source.erase(end);
  implementation_->connectionText = std::move(text);
}

const std::string& Connection::connectionString() const { return implementation_->connectionText; }
std::string Connection::dataSource() const { return files::nativePath(implementation_->source); }
ObjectState Connection::state() const { return implementation_->database ? ObjectState::open : ObjectState::closed; }

void Connection::open() {
  if (isOpen()) throw Error(errors::objectOpen, "A conexão já está aberta.");
  implementation_->open();
}

void Connection::close() {
  if (!isOpen()) throw Error(errors::objectClosed, "A conexão está fechada.");
  if (implementation_->level > 0) throw Error(errors::inTransaction, "A conexão está dentro de uma transação.");
  implementation_->close();
}

int Connection::beginTrans() {
  constexpr int deepest = 5;
  implementation_->requireOpen();
  if (implementation_->level == deepest)
    throw Error(errors::tooManyTransactions, "Não cabem mais de cinco transações uma na outra.");
  implementation_->requireWhole();
  ++implementation_->level;
  try {
    implementation_->database->run(implementation_->level == 1 ? "BEGIN IMMEDIATE"
                                                               : "SAVEPOINT " + implementation_->levelName());
  } catch (const Error&) {
    --implementation_->level;
    throw;
  }
  return implementation_->level;
}

void Connection::commitTrans() {
  implementation_->requireOpen();
  if (implementation_->level == 0) throw Error(errors::noTransaction, "Não há transação aberta.");
  implementation_->requireWhole();
  implementation_->database->run(implementation_->level == 1 ? "COMMIT" : "RELEASE " + implementation_->levelName());
  --implementation_->level;
}

void Connection::rollbackTrans() {
  implementation_->requireOpen();
  if (implementation_->level == 0) throw Error(errors::noTransaction, "Não há transação aberta.");
  implementation_->settle({});
  const std::string name = implementation_->levelName();
  // A disk that is full or fails makes SQLite roll back everything by itself.
  if (implementation_->database->inTransaction())
    implementation_->database->run(implementation_->level == 1 ? "ROLLBACK"
                                                               : "ROLLBACK TO " + name + "; RELEASE " + name);
  --implementation_->level;
  if (implementation_->database->schemaVersion() != implementation_->schemaVersion) implementation_->refreshCatalog();
}

int Connection::transactionLevel() const { return implementation_->level; }

Recordset::Recordset() : implementation_(std::make_unique<Implementation>()) {}
Recordset::~Recordset() {
  if (implementation_) implementation_->close();
}
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&& other) noexcept {
  if (implementation_) implementation_->close();
  implementation_ = std::move(other.implementation_);
  return *this;
}

void Recordset::open(std::string_view statement, Connection& connection, CursorType cursor, LockType lock) {
  if (isOpen()) throw Error(errors::objectOpen, "O conjunto de registros já está aberto.");
  connection.implementation().requireOpen();
  // The engine has no dynamic cursor and gives a keyset in its place.
  implementation_->cursor = cursor == CursorType::dynamic ? CursorType::keyset : cursor;
  implementation_->lock = lock;
  implementation_->place = 0;
  implementation_->affected = 0;
  connection.implementation().run(statement, *implementation_);
}

void Recordset::close() {
  implementation_->requireOpen();
  implementation_->close();
}

void Recordset::closeIfOpen() {
  if (isOpen()) close();
}

ObjectState Recordset::state() const { return implementation_->rows ? ObjectState::open : ObjectState::closed; }
CursorType Recordset::cursorType() const { return implementation_->cursor; }
LockType Recordset::lockType() const { return implementation_->lock; }

bool Recordset::bof() const {
  implementation_->requireOpen();
  return implementation_->place < 0 || !implementation_->rows->has(0);
}

bool Recordset::eof() const {
  implementation_->requireOpen();
  return !implementation_->rows->has(std::max<std::int64_t>(implementation_->place, 0));
}

std::int32_t Recordset::recordCount() const {
  implementation_->requireOpen();
  return implementation_->cursor == CursorType::forwardOnly ? -1 : toInt32(implementation_->rows->count());
}

void Recordset::moveFirst() { moveFromFirst(0); }

void Recordset::moveNext() {
  implementation_->requireOpen();
  if (eof()) throw Error(errors::noCurrentRecord, "Não há registro depois do último.");
  ++implementation_->place;
}

void Recordset::moveFromFirst(std::int32_t rows) { implementation_->go(rows); }

void Recordset::move(std::int32_t rows) {
  implementation_->requireOpen();
  const bool beyondEnd = rows > 0 && eof();
  const bool beyondStart = rows < 0 && bof();
  if (beyondEnd || beyondStart) throw Error(errors::noCurrentRecord, "Não há registro nessa direção.");
  implementation_->go(implementation_->place + rows);
}

Value Recordset::field(std::size_t place) const {
  implementation_->requireRow();
  if (place >= implementation_->translation->columns.size()) throw Error(errors::noSuchField, "Não há esse campo.");
  return implementation_->rows->cells(implementation_->place)[place];
}

Value Recordset::field(std::string_view name) const {
  implementation_->requireOpen();
  const auto& columns = implementation_->translation->columns;
  for (std::size_t index = 0; index < columns.size(); ++index)
    if (sameName(columns[index].name, name)) return field(index);
  throw Error(errors::noSuchField, "Não há o campo " + std::string(name) + ".");
}

std::vector<std::string> Recordset::fieldNames() const {
  implementation_->requireOpen();
  std::vector<std::string> names;
  for (const auto& column : implementation_->translation->columns) names.push_back(column.name);
  return names;
}

std::vector<ValueType> Recordset::fieldTypes() const {
  implementation_->requireOpen();
  std::vector<ValueType> types;
  for (const auto& column : implementation_->translation->columns) types.push_back(column.type);
  return types;
}

std::int64_t Recordset::affectedRows() const { return implementation_->affected; }

void createStore(const std::string& path) { createFile(path); }

void copyStore(const std::string& from, const std::string& to, StoreEnvironment environment,
               const CopyProgress& progress) {
  copyFile(from, to, environment.lockWait, progress);
}

}  // namespace fenvale
