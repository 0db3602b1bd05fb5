#pragma once
// One open SQLite file, and statements prepared on it.

#include <memory>
#include <string>
#include <vector>

#include "platform/sql/Store.h"
#include "platform/sql/dialect/StoredValue.h"

struct sqlite3;
struct sqlite3_stmt;

namespace fenvale::sql {

class Prepared {
 public:
  Prepared() = default;
  Prepared(sqlite3* database, const std::string& text);

  explicit operator bool() const { return statement_ != nullptr; }
  void bind(const std::vector<StoredValue>& values);
  void bind(int number, std::int64_t value);
  /// False at the end, after which the statement holds no lock. An Error leaves it without one too.
  bool step();
  void reset();
  bool isNull(std::size_t column) const;
  std::int64_t integer(std::size_t column) const;
  Value value(std::size_t column, ValueType type) const;

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const;
  };
  sqlite3* database_ = nullptr;
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// Runs a prepared statement to its end or to the end of the scope: no read lock outlives the step that needed it.
class Running {
 public:
  explicit Running(Prepared& prepared) : prepared_(prepared) {}
  ~Running() { prepared_.reset(); }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

 private:
  Prepared& prepared_;
};

class Database {
 public:
  /// Opens a file that createStore has made. Errors 3024, 3343, 3049, 3027, 3051, 3218.
  Database(const std::string& path, LockWait* lockWait);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  void run(const std::string& text);
  Prepared prepare(const std::string& text) const { return Prepared(handle_, text); }
  /// The rows of a text column.
  std::vector<std::string> texts(const std::string& query) const;
  std::int64_t changedRows() const;
  bool inTransaction() const;
  /// Counts the definitions that the file has seen, by whomever.
  std::int64_t schemaVersion() const;

  /// Differs from an earlier one when anybody has written rows in between. Says nothing inside a transaction.
  struct State {
    std::int64_t ownChanges = 0;
    std::int64_t otherChanges = 0;
    bool operator==(const State&) const = default;
  };
  State state();

  /// While it lives, reads see one state of the file and ask for its lock once.
  class Snapshot {
   public:
    /// Nothing is held unless `wanted`.
    Snapshot(Database& database, bool wanted);
    ~Snapshot();
    Snapshot(const Snapshot&) = delete;
    Snapshot& operator=(const Snapshot&) = delete;

   private:
    Prepared* held_ = nullptr;
  };

 private:
  static int waitForLock(void* self, int attempt);

  sqlite3* handle_ = nullptr;
  LockWait* lockWait_;
  Prepared dataVersion_, anyRow_;
  std::chrono::milliseconds waited_{0};
  std::chrono::milliseconds told_{0};
};

/// The table in which a store keeps the definitions that were applied to it, in their order.
inline constexpr const char* catalogTable = "FenvaleCatalogo";

/// Makes the file whole or not at all.
void createFile(const std::string& path);

}  // namespace fenvale::sql
