#include "platform/sql/Store.h"

#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <map>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/sql/dialect/Binder.h"
#include "platform/sql/dialect/Lexer.h"
#include "platform/sql/dialect/Literals.h"
#include "platform/sql/dialect/Parser.h"
#include "platform/sql/dialect/StoredValue.h"
#include "platform/sql/sqlite/Emitter.h"
#include "platform/sql/sqlite/Functions.h"

namespace fenvale {
namespace {

using namespace fenvale::sql;
namespace fs = std::filesystem;

std::string matchedWithoutCase(const std::string& path) {
  std::error_code failure;
  if (fs::exists(path, failure)) return path;
  const fs::path wanted(path);
  const std::string name = toLower(wanted.filename().string());
  const fs::path folder = wanted.has_parent_path() ? wanted.parent_path() : fs::path(".");
  for (const auto& entry : fs::directory_iterator(folder, failure))
    if (toLower(entry.path().filename().string()) == name) return entry.path().string();
  return path;
}

struct Finalize {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Prepared = std::unique_ptr<sqlite3_stmt, Finalize>;

}  // namespace

class Connection::Implementation {
 public:
  explicit Implementation(StoreEnvironment surroundings) : environment(surroundings) {}
  ~Implementation() { sqlite3_close_v2(database); }

  [[noreturn]] void fail(int code) const {
    const std::string text = sqlite3_errmsg(database);
    const int primary = code & 0xFF;
    switch (primary) {
      case SQLITE_CONSTRAINT:
        if (sqlite3_extended_errcode(database) == SQLITE_CONSTRAINT_TRIGGER) throw Error(errors::refused, text);
        throw Error(errors::refused, sqlite3_extended_errcode(database) == SQLITE_CONSTRAINT_FOREIGNKEY
                                         ? "O registro está em uso ou aponta para um registro que não existe."
                                         : "Valor repetido ou em falta: " + text + ".");
      case SQLITE_NOTADB:
        throw Error(errors::fileNotStore, "O arquivo não é um banco de dados deste programa.");
      case SQLITE_CORRUPT:
        throw Error(errors::storeDamaged, "O banco de dados está danificado.");
      case SQLITE_READONLY:
        throw Error(errors::storeReadOnly, "O banco de dados só pode ser lido.");
      case SQLITE_BUSY:
      case SQLITE_LOCKED:
        throw Error(errors::storeLocked, "O banco de dados está em uso por outro programa.");
      case SQLITE_FULL:
        throw Error(errors::diskFull, "O disco está cheio.");
      case SQLITE_CANTOPEN:
        throw Error(errors::storeNotOpened, "O banco de dados não pode ser aberto.");
      default:
        throw Error(errors::syntax, text);
    }
  }

  void run(const std::string& text) const {
    const int code = sqlite3_exec(database, text.c_str(), nullptr, nullptr, nullptr);
    if (code != SQLITE_OK) fail(code);
  }

  Prepared prepare(const std::string& text) const {
    sqlite3_stmt* statement = nullptr;
    const int code = sqlite3_prepare_v2(database, text.c_str(), -1, &statement, nullptr);
    if (code != SQLITE_OK) fail(code);
    return Prepared(statement);
  }

  void open() {
    const std::string path = matchedWithoutCase(source);
    std::error_code failure;
    if (!fs::exists(path, failure))
      throw Error(errors::storeNotFound, "O banco de dados " + path + " não foi localizado.");
    int code = sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE, nullptr);
    try {
      if (code != SQLITE_OK) fail(code);
      sqlite3_extended_result_codes(database, 1);
      sqlite3_busy_handler(database, &waitForLock, this);
      sql::registerFunctions(database);
      run("PRAGMA foreign_keys = ON; PRAGMA synchronous = FULL; PRAGMA journal_mode = DELETE");
      run("CREATE TABLE IF NOT EXISTS FenvaleCatalogo (ordem INTEGER PRIMARY KEY, texto TEXT NOT NULL)");
      readCatalog();
    } catch (const Error&) {
      sqlite3_close_v2(database);
      database = nullptr;
      throw;
    }
  }

  void readCatalog() {
    catalog = Catalog();
    const Prepared rows = prepare("SELECT texto FROM FenvaleCatalogo ORDER BY ordem");
    while (sqlite3_step(rows.get()) == SQLITE_ROW)
      catalog.apply(parse(reinterpret_cast<const char*>(sqlite3_column_text(rows.get(), 0))));
  }

  static int waitForLock(void* self, int count) {
    const auto& connection = *static_cast<Implementation*>(self);
    if (connection.environment.lockWait == nullptr) return 0;
    usleep(100000);
    return connection.environment.lockWait->keepWaiting(std::chrono::milliseconds(100 * (count + 1))) ? 1 : 0;
  }

  StoreEnvironment environment;
  std::string connectionText;
  std::string source;
  sqlite3* database = nullptr;
  Catalog catalog;
  int level = 0;
};

namespace {

std::string columnType(const ColumnDefinition& column) {
  switch (column.type.kind) {
    case ColumnKind::counter:
      return "INTEGER PRIMARY KEY AUTOINCREMENT";
    case ColumnKind::boolean:
      return "INTEGER NOT NULL DEFAULT 0";
    case ColumnKind::date:
      return "TEXT";
    case ColumnKind::text:
    case ColumnKind::memo:
      return "TEXT COLLATE " + std::string(collationName);
    default:
      return "INTEGER";
  }
}

std::string nameList(const std::vector<std::string>& names) {
  std::string list;
  for (const std::string& name : names) list += (list.empty() ? "" : ", ") + sqliteName(name);
  return list;
}

std::string conditionText(const Expression& condition, const std::shared_ptr<const TableDescription>& table,
                          const std::string& prefix) {
  const BoundStatement bound = bindCondition(condition, table);
  const auto& target = std::get<BoundDelete>(bound.content);
  // The conditions of the scripts compare with zero and with nothing else.
  SqliteEmitter emitter([](std::size_t) { return std::string("0"); });
  return emitter.emitCondition(target.conditions, target.target, prefix);
}

}  // namespace

class DefinitionRunner {
 public:
  DefinitionRunner(Connection::Implementation& store, const std::string& text) : store_(store), text_(text) {}

  void run(const Statement& definition) {
    Catalog changed = store_.catalog;
    changed.apply(definition);
    store_.run("SAVEPOINT definicao");
    try {
      std::visit([&](const auto& statement) { apply(statement, changed); }, definition);
      const Prepared insert = store_.prepare("INSERT INTO FenvaleCatalogo (texto) VALUES (?1)");
      sqlite3_bind_text(insert.get(), 1, text_.c_str(), -1, SQLITE_TRANSIENT);
      if (const int code = sqlite3_step(insert.get()); code != SQLITE_DONE) store_.fail(code);
      store_.run("RELEASE definicao");
    } catch (const Error&) {
      sqlite3_exec(store_.database, "ROLLBACK TO definicao; RELEASE definicao", nullptr, nullptr, nullptr);
      throw;
    }
    store_.catalog = std::move(changed);
  }

 private:
  void apply(const CreateTableStatement& create, const Catalog& catalog) {
    const auto table = catalog.get(create.table);
    std::string ddl = "CREATE TABLE " + sqliteName(table->name) + " (";
    for (std::size_t index = 0; index < table->columns.size(); ++index) {
      const ColumnDefinition& column = table->columns[index];
      ddl += (index > 0 ? ", " : "") + sqliteName(column.name) + " " + columnType(column);
      if (column.required && column.type.kind != ColumnKind::counter && column.type.kind != ColumnKind::boolean)
        ddl += " NOT NULL";
    }
    for (const RelationDescription& relation : table->relations)
      ddl += ", CONSTRAINT " + sqliteName(relation.name) + " FOREIGN KEY (" + nameList(relation.columns) +
             ") REFERENCES " + sqliteName(relation.referencedTable) + " (" + nameList(relation.referencedColumns) +
             ")" + (relation.cascade ? " ON DELETE CASCADE" : "");
    store_.run(ddl + ")");
    for (const IndexDescription& index : table->indexes) {
      std::vector<std::string> names;
      for (const auto& column : index.columns) names.push_back(column.name);
      if (index.primary && table->counter() != TableDescription::none) continue;
      store_.run("CREATE UNIQUE INDEX " + sqliteName(table->name + "." + index.name) + " ON " +
                 sqliteName(table->name) + " (" + nameList(names) + ")");
    }
    for (const RelationDescription& relation : table->relations) {
      if (relation.unless.empty()) continue;
      const ExpressionPointer condition = parseCondition(relation.unless);
      store_.run("CREATE TRIGGER " + sqliteName(relation.name + ".unless") + " BEFORE DELETE ON " +
                 sqliteName(relation.referencedTable) + " WHEN EXISTS (SELECT 1 FROM " + sqliteName(table->name) +
                 " WHERE " + sqliteName(relation.columns[0]) + " = OLD." + sqliteName(relation.referencedColumns[0]) +
                 " AND " + conditionText(*condition, table, "") + ") BEGIN SELECT RAISE(ABORT, " +
                 sqliteText(relation.refusal) + "); END");
    }
  }

  void apply(const CreateIndexStatement& create, const Catalog& catalog) {
    const auto table = catalog.get(create.table);
    std::string list;
    for (const auto& column : create.columns)
      list += (list.empty() ? "" : ", ") + sqliteName(column.name) + (column.descending ? " DESC" : "");
    store_.run(std::string("CREATE ") + (create.unique ? "UNIQUE " : "") + "INDEX " +
               sqliteName(table->name + "." + create.name) + " ON " + sqliteName(table->name) + " (" + list + ")" +
               (create.where ? " WHERE " + conditionText(*create.where, table, "") : ""));
  }

  void apply(const AddColumnStatement& alter, const Catalog&) {
    store_.run("ALTER TABLE " + sqliteName(alter.table) + " ADD COLUMN " + sqliteName(alter.column.name) + " " +
               columnType(alter.column));
  }

  void apply(const AddConstraintStatement&, const Catalog&) {
    throw Error(errors::notSupported, "A relação tem de nascer com a tabela.");
  }
  template <typename Other>
  void apply(const Other&, const Catalog&) {}

  Connection::Implementation& store_;
  const std::string& text_;
};

Connection::Connection(StoreEnvironment environment) : implementation_(std::make_unique<Implementation>(environment)) {}
Connection::~Connection() = default;

void Connection::setConnectionString(std::string text) {
  if (isOpen()) throw Error(errors::objectOpen, "A conexão está aberta.");
  const std::size_t place = text.find("Data Source=");
  implementation_->source = place == std::string::npos ? std::string() : text.substr(place + 12);
  implementation_->connectionText = std::move(text);
}

const std::string& Connection::connectionString() const { return implementation_->connectionText; }
std::string Connection::dataSource() const { return matchedWithoutCase(implementation_->source); }
ObjectState Connection::state() const { return implementation_->database ? ObjectState::open : ObjectState::closed; }

void Connection::open() {
  if (isOpen()) throw Error(errors::objectOpen, "A conexão já está aberta.");
  implementation_->open();
}

void Connection::close() {
  if (!isOpen()) throw Error(errors::objectClosed, "A conexão está fechada.");
  if (implementation_->level > 0) throw Error(errors::inTransaction, "Há uma transação aberta.");
  sqlite3_close_v2(implementation_->database);
  implementation_->database = nullptr;
}

int Connection::beginTrans() {
  if (!isOpen()) throw Error(errors::connectionClosed, "A conexão está fechada.");
  if (implementation_->level == 5) throw Error(errors::tooManyTransactions, "Transações demais.");
  implementation_->run(implementation_->level == 0 ? "BEGIN IMMEDIATE"
                                                   : "SAVEPOINT t" + std::to_string(implementation_->level + 1));
  return ++implementation_->level;
}

void Connection::commitTrans() {
  if (implementation_->level == 0) throw Error(errors::noTransaction, "Não há transação aberta.");
  implementation_->run(implementation_->level == 1 ? "COMMIT" : "RELEASE t" + std::to_string(implementation_->level));
  --implementation_->level;
}

void Connection::rollbackTrans() {
  if (implementation_->level == 0) throw Error(errors::noTransaction, "Não há transação aberta.");
  const std::string name = "t" + std::to_string(implementation_->level);
  implementation_->run(implementation_->level == 1 ? "ROLLBACK" : "ROLLBACK TO " + name + "; RELEASE " + name);
  --implementation_->level;
  implementation_->readCatalog();
}

int Connection::transactionLevel() const { return implementation_->level; }

class Recordset::Implementation {
 public:
  struct Column {
    std::string name;
    ValueType type;
  };

  void run(std::string_view statement, Connection::Implementation& store) {
    const Statement tree = parse(statement);
    if (isDefinition(tree)) {
      const std::string text(statement);
      DefinitionRunner(store, text).run(tree);
      return;
    }
    const BoundStatement bound = sql::bind(tree, store.catalog);
    const std::string text =
        std::visit([](const auto& content) { return SqliteEmitter().emit(content); }, bound.content);
    const Prepared prepared = store.prepare(text);
    supplyAll(*prepared, bound, statement, store);
    const auto* select = std::get_if<BoundSelect>(&bound.content);
    if (select != nullptr)
      for (const auto& column : select->columns) columns.push_back({column.name, column.value.type});
    int code = sqlite3_step(prepared.get());
    for (; code == SQLITE_ROW; code = sqlite3_step(prepared.get())) readRow(*prepared);
    sql::rethrowFunctionError();
    if (code != SQLITE_DONE) store.fail(code);
    affected = select != nullptr ? 0 : sqlite3_changes64(store.database);
    open = select != nullptr;
    place = 0;
  }

  void supplyAll(sqlite3_stmt& prepared, const BoundStatement& bound, std::string_view statement,
                 const Connection::Implementation& store) const {
    std::vector<Token> tokens;
    readTokens(statement, tokens);
    std::vector<Token> literals;
    for (const Token& token : tokens)
      if (categoryOf(token.kind) == TokenCategory::literal) literals.push_back(token);
    int number = 0;
    for (const Parameter& parameter : bound.parameters) {
      StoredValue value;
      if (parameter.origin == Parameter::Origin::today) {
        value = writeStoredDate(DateTime(store.environment.clock.today()));
      } else {
        const Token& token = literals.at(parameter.literal);
        std::string buffer;
        const std::string_view content = token.kind == TokenKind::Text ? textOf(token, buffer) : token.text;
        value = supply(parameter, token.kind, content);
      }
      ++number;
      if (const auto* whole = std::get_if<std::int64_t>(&value)) sqlite3_bind_int64(&prepared, number, *whole);
      if (const auto* real = std::get_if<double>(&value)) sqlite3_bind_double(&prepared, number, *real);
      if (const auto* words = std::get_if<std::string>(&value))
        sqlite3_bind_text(&prepared, number, words->data(), static_cast<int>(words->size()), SQLITE_TRANSIENT);
    }
  }

  void readRow(sqlite3_stmt& prepared) {
    std::vector<Value> row;
    for (std::size_t index = 0; index < columns.size(); ++index) {
      const int column = static_cast<int>(index);
      if (sqlite3_column_type(&prepared, column) == SQLITE_NULL) {
        row.emplace_back();
        continue;
      }
      const auto text = [&] {
        return std::string(reinterpret_cast<const char*>(sqlite3_column_text(&prepared, column)),
                           static_cast<std::size_t>(sqlite3_column_bytes(&prepared, column)));
      };
      switch (columns[index].type) {
        case ValueType::integer:
          row.push_back(Value::integer(sqlite3_column_int64(&prepared, column)));
          break;
        case ValueType::currency:
          row.push_back(Value::currency(Currency::fromUnits(sqlite3_column_int64(&prepared, column))));
          break;
        case ValueType::decimal:
          row.push_back(Value::decimal(sqlite3_column_double(&prepared, column)));
          break;
        case ValueType::boolean:
          row.push_back(Value::boolean(sqlite3_column_int64(&prepared, column) != 0));
          break;
        case ValueType::date:
          if (const auto moment = readStoredDate(text()))
            row.push_back(Value::date(*moment));
          else
            row.emplace_back();
          break;
        default:
          row.push_back(Value::text(text()));
      }
    }
    rows.push_back(std::move(row));
  }

  void requireOpen() const {
    if (!open) throw Error(errors::objectClosed, "O conjunto de registros está fechado.");
  }
  std::int64_t size() const { return static_cast<std::int64_t>(rows.size()); }
  void go(std::int64_t to) {
    if (rows.empty()) throw Error(errors::noCurrentRecord, "Não há registro atual.");
    place = to < 0 ? -1 : std::min(to, size());
  }

  bool open = false;
  CursorType cursor = CursorType::forwardOnly;
  LockType lock = LockType::readOnly;
  std::vector<Column> columns;
  std::vector<std::vector<Value>> rows;
  std::int64_t place = 0;
  std::int64_t affected = 0;
};

Recordset::Recordset() : implementation_(std::make_unique<Implementation>()) {}
Recordset::~Recordset() = default;
Recordset::Recordset(Recordset&&) noexcept = default;
Recordset& Recordset::operator=(Recordset&&) noexcept = default;

void Recordset::open(std::string_view statement, Connection& connection, CursorType cursor, LockType lock) {
  if (isOpen()) throw Error(errors::objectOpen, "O conjunto de registros está aberto.");
  if (!connection.isOpen()) throw Error(errors::connectionClosed, "A conexão está fechada.");
  implementation_ = std::make_unique<Implementation>();
  implementation_->cursor = cursor;
  implementation_->lock = lock;
  implementation_->run(statement, connection.implementation());
}

void Recordset::close() {
  implementation_->requireOpen();
  implementation_->open = false;
}

void Recordset::closeIfOpen() {
  if (isOpen()) close();
}

ObjectState Recordset::state() const { return implementation_->open ? ObjectState::open : ObjectState::closed; }
CursorType Recordset::cursorType() const { return implementation_->cursor; }
LockType Recordset::lockType() const { return implementation_->lock; }

bool Recordset::bof() const {
  implementation_->requireOpen();
  return implementation_->rows.empty() || implementation_->place < 0;
}

bool Recordset::eof() const {
  implementation_->requireOpen();
  return implementation_->place >= implementation_->size();
}

std::int32_t Recordset::recordCount() const {
  implementation_->requireOpen();
  return implementation_->cursor == CursorType::forwardOnly ? -1 : static_cast<std::int32_t>(implementation_->size());
}

void Recordset::moveFirst() { moveFromFirst(0); }

void Recordset::moveNext() {
  if (eof()) throw Error(errors::noCurrentRecord, "Não há registro atual.");
  implementation_->go(implementation_->place + 1);
}

void Recordset::moveFromFirst(std::int32_t rows) {
  implementation_->requireOpen();
  implementation_->go(rows);
}

void Recordset::move(std::int32_t rows) {
  implementation_->requireOpen();
  implementation_->go(implementation_->place + rows);
}

Value Recordset::field(std::size_t place) const {
  if (eof() || bof()) throw Error(errors::noCurrentRecord, "Não há registro atual.");
  if (place >= implementation_->columns.size()) throw Error(errors::noSuchField, "Não há esse campo.");
  return implementation_->rows[static_cast<std::size_t>(implementation_->place)][place];
}

Value Recordset::field(std::string_view name) const {
  implementation_->requireOpen();
  for (std::size_t index = 0; index < implementation_->columns.size(); ++index)
    if (sameName(implementation_->columns[index].name, name)) return field(index);
  throw Error(errors::noSuchField, "Não há o campo " + std::string(name) + ".");
}

std::vector<std::string> Recordset::fieldNames() const {
  std::vector<std::string> names;
  for (const auto& column : implementation_->columns) names.push_back(column.name);
  return names;
}

std::vector<ValueType> Recordset::fieldTypes() const {
  std::vector<ValueType> types;
  for (const auto& column : implementation_->columns) types.push_back(column.type);
  return types;
}

std::int64_t Recordset::affectedRows() const { return implementation_->affected; }

void createStore(const std::string& path) {
  if (std::error_code failure; fs::exists(matchedWithoutCase(path), failure))
    throw Error(errors::storeExists, "O banco de dados já existe.");
  sqlite3* database = nullptr;
  const int code = sqlite3_open_v2(path.c_str(), &database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
  const int made =
      code != SQLITE_OK
          ? code
          : sqlite3_exec(database, "CREATE TABLE FenvaleCatalogo (ordem INTEGER PRIMARY KEY, texto TEXT NOT NULL)",
                         nullptr, nullptr, nullptr);
  sqlite3_close_v2(database);
  if (made == SQLITE_OK) return;
  std::error_code failure;
  fs::remove(path, failure);
  throw Error(errors::storeNotOpened, "O banco de dados " + path + " não pode ser criado.");
}

}  // namespace fenvale
