#include "platform/sql/sqlite/Database.h"

#include <sqlite3.h>

#include <algorithm>
#include <thread>
#include <utility>

#include "platform/base/Error.h"
#include "platform/sql/dialect/Literals.h"
#include "platform/sql/sqlite/Failures.h"
#include "platform/sql/sqlite/Functions.h"
#include "platform/sql/sqlite/StorePath.h"

namespace fenvale::sql {
namespace {

using std::chrono::milliseconds;

/// Short at first, since most locks last no longer than a commit.
milliseconds pause(int attempt) { return milliseconds(std::min(100, 1 << std::min(attempt, 7))); }

}  // namespace

void Prepared::Finalize::operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }

Prepared::Prepared(const Database& database, const std::string& text) : database_(&database) {
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v3(database.handle_, text.data(), static_cast<int>(text.size()),
                                      SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  statement_.reset(statement);
  if (code != SQLITE_OK) database.fail(code);
}

void Prepared::bind(const std::vector<StoredValue>& values) {
  for (std::size_t index = 0; index < values.size(); ++index) {
    const int number = static_cast<int>(index) + 1;
    if (const auto* whole = std::get_if<std::int64_t>(&values[index])) {
      sqlite3_bind_int64(statement_.get(), number, *whole);
    } else if (const auto* real = std::get_if<double>(&values[index])) {
      sqlite3_bind_double(statement_.get(), number, *real);
    } else if (const auto* text = std::get_if<std::string>(&values[index])) {
      sqlite3_bind_text64(statement_.get(), number, text->data(), text->size(), SQLITE_TRANSIENT, SQLITE_UTF8);
    } else {
      sqlite3_bind_null(statement_.get(), number);
    }
  }
}

void Prepared::bind(int number, std::int64_t value) { sqlite3_bind_int64(statement_.get(), number, value); }

bool Prepared::step() {
  const int code = sqlite3_step(statement_.get());
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) {
    reset();
    return false;
  }
  const int reported = sqlite3_reset(statement_.get());
  database_->fail(reported == SQLITE_OK ? code : reported);
}

void Prepared::reset() { sqlite3_reset(statement_.get()); }

bool Prepared::isNull(std::size_t column) const {
  return sqlite3_column_type(statement_.get(), static_cast<int>(column)) == SQLITE_NULL;
}

std::int64_t Prepared::integer(std::size_t column) const {
  return sqlite3_column_int64(statement_.get(), static_cast<int>(column));
}

Value Prepared::value(std::size_t column, ValueType type) const {
  if (isNull(column)) return {};
  const int place = static_cast<int>(column);
  // Arithmetic that leaves 64 bits comes out as floating point.
  const bool whole = type == ValueType::integer || type == ValueType::currency;
  if (whole && sqlite3_column_type(statement_.get(), place) == SQLITE_FLOAT)
    throw Error(errors::overflow, "Estouro de capacidade.");
  const auto text = [&] {
    return std::string(reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), place)),
                       static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), place)));
  };
  switch (type) {
    case ValueType::integer:
      return Value::integer(integer(column));
    case ValueType::currency:
      return Value::currency(Currency::fromUnits(integer(column)));
    case ValueType::decimal:
      return Value::decimal(sqlite3_column_double(statement_.get(), place));
    case ValueType::boolean:
      return Value::boolean(integer(column) != 0);
    case ValueType::date:
      if (const auto moment = readStoredDate(text())) return Value::date(*moment);
      throw Error(errors::storeDamaged, "O banco de dados tem uma data ilegível: " + text() + ".");
    default:
      return Value::text(text());
  }
}

Database::Database(const std::string& path, LockWait* lockWait, Access access) : lockWait_(lockWait) {
  checkFile(path);
  context_.path = path;
  const bool writable = canBeWritten(path);
  if (access == Access::write && !writable) fail(SQLITE_READONLY);
  // The program has one thread: no lock around every call.
  const int mode = (writable ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY) | SQLITE_OPEN_NOMUTEX;
  const int code = sqlite3_open_v2(path.c_str(), &handle_, mode, nullptr);
  try {
    if (code != SQLITE_OK) fail(code);
    sqlite3_extended_result_codes(handle_, 1);
    sqlite3_busy_handler(handle_, &waitForLock, this);
    sqlite3_db_config(handle_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    registerFunctions(handle_, functionFailure_);
    if (number("PRAGMA application_id") != applicationId)
      throw Error(errors::fileNotStore, "O arquivo " + path + " não é um banco de dados do sistema.");
    if (access == Access::write && sqlite3_db_readonly(handle_, "main") == 1) fail(SQLITE_READONLY);
    run("PRAGMA foreign_keys = ON; PRAGMA synchronous = FULL; PRAGMA journal_mode = DELETE");
    run("PRAGMA temp_store = MEMORY; PRAGMA cache_size = -16384");
  } catch (const Error&) {
    sqlite3_close_v2(handle_);
    throw;
  }
}

// Recordsets may still hold prepared statements: SQLite frees the database with the last of them.
Database::~Database() { sqlite3_close_v2(handle_); }

void Database::run(const std::string& text) {
  const int code = sqlite3_exec(handle_, text.c_str(), nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) fail(code);
}

void Database::runQuietly(const char* text) { sqlite3_exec(handle_, text, nullptr, nullptr, nullptr); }

std::int64_t Database::number(const std::string& query) const {
  Prepared prepared = prepare(query);
  return prepared.step() ? prepared.integer(0) : 0;
}

void Database::speakOf(std::string table, bool deletes) {
  context_.table = std::move(table);
  context_.deletes = deletes;
}

void Database::fail(int code) const {
  if (calledFailure_) std::rethrow_exception(std::exchange(calledFailure_, nullptr));
  if (functionFailure_) throw *std::exchange(functionFailure_, std::nullopt);
  // A code of our own making is not the one that the handle remembers.
  if (handle_ == nullptr || (sqlite3_errcode(handle_) & 0xFF) != (code & 0xFF)) throw failureOf(code, "", context_);
  throw failureOf(handle_, code, context_);
}

std::vector<std::string> Database::texts(const std::string& query) const {
  std::vector<std::string> result;
  Prepared rows = prepare(query);
  while (rows.step()) result.push_back(rows.value(0, ValueType::text).toText());
  return result;
}

std::int64_t Database::changedRows() const { return sqlite3_changes64(handle_); }

bool Database::inTransaction() const { return sqlite3_get_autocommit(handle_) == 0; }

std::int64_t Database::schemaVersion() const { return number("PRAGMA schema_version"); }

Database::State Database::state() {
  if (!dataVersion_) dataVersion_ = prepare("PRAGMA data_version");
  const Running running(dataVersion_);
  return {sqlite3_total_changes64(handle_), dataVersion_.step() ? dataVersion_.integer(0) : 0};
}

Database::Snapshot::Snapshot(Database& database, bool wanted) {
  if (!wanted) return;
  if (!database.anyRow_) database.anyRow_ = database.prepare(std::string("SELECT 1 FROM ") + catalogTable);
  // A statement that stands on a row keeps the lock for all others of the connection.
  if (database.anyRow_.step()) held_ = &database.anyRow_;
}

Database::Snapshot::~Snapshot() {
  if (held_ != nullptr) held_->reset();
}

int Database::waitForLock(void* self, int attempt) {
  auto& database = *static_cast<Database*>(self);
  if (database.lockWait_ == nullptr) return 0;
  if (attempt == 0) database.waited_ = database.told_ = milliseconds(0);
  const milliseconds length = pause(attempt);
  std::this_thread::sleep_for(length);
  database.waited_ += length;
  if (database.waited_ - database.told_ < milliseconds(100)) return 1;
  database.told_ = database.waited_;
  try {
    return database.lockWait_->keepWaiting(database.waited_) ? 1 : 0;
  } catch (...) {
    database.calledFailure_ = std::current_exception();
    return 0;
  }
}

void Database::whileRunning(std::function<void()> action) {
  constexpr int instructions = 100000;
  whileRunning_ = std::move(action);
  sqlite3_progress_handler(handle_, instructions, whileRunning_ ? &tellRunning : nullptr, this);
}

int Database::tellRunning(void* self) {
  auto& database = *static_cast<Database*>(self);
  try {
    database.whileRunning_();
    return 0;
  } catch (...) {
    database.calledFailure_ = std::current_exception();
    return 1;
  }
}

void Database::checkIntegrity() const {
  if (texts("PRAGMA integrity_check(1)") != std::vector<std::string>{"ok"}) fail(SQLITE_CORRUPT);
}

}  // namespace fenvale::sql
