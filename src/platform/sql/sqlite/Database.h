#pragma once
// One open SQLite file, and statements prepared on it.

#include <exception>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/sql/Store.h"
#include "platform/sql/dialect/StoredValue.h"
#include "platform/sql/sqlite/Failures.h"

struct sqlite3;
struct sqlite3_stmt;

namespace fenvale::sql {

class Database;

class Prepared {
 public:
  Prepared() = default;
  Prepared(const Database& database, const std::string& text);

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
  const Database* database_ = nullptr;
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
  enum class Access {
    write,
    readAtLeast,  ///< a file that cannot be written will do
  };
  /// Opens a file that createStore has made. Errors 3024, 3343, 3049, 3027, 3051, 3218.
  Database(const std::string& path, LockWait* lockWait, Access access = Access::write);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  void run(const std::string& text);
  /// Of which a failure would change nothing for the better.
  void runQuietly(const char* text);
  /// The one number of a query.
  std::int64_t number(const std::string& query) const;
  /// What the next statements are about, for the sentence of a failure.
  void speakOf(std::string table, bool deletes);
  Prepared prepare(const std::string& text) const { return Prepared(*this, text); }
  /// The rows of a text column.
  std::vector<std::string> texts(const std::string& query) const;
  std::int64_t changedRows() const;
  bool inTransaction() const;
  /// Called again and again while long statements run, about every hundredth of a second; what it throws breaks the
  /// statement off and is thrown on.
  void whileRunning(std::function<void()> action);
  /// Error 3049 when anything in the file contradicts anything else.
  void checkIntegrity() const;
  sqlite3* handle() const { return handle_; }
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
  friend class Prepared;
  static int waitForLock(void* self, int attempt);
  static int tellRunning(void* self);
  /// Throws what the last call failed with: an Error of our own functions or of the lock's wait, else SQLite's.
  [[noreturn]] void fail(int code) const;

  sqlite3* handle_ = nullptr;
  FailureContext context_;
  mutable std::optional<Error> functionFailure_;
  /// Thrown by whoever was told of a wait or of a running statement: on once SQLite has let go.
  mutable std::exception_ptr calledFailure_;
  std::function<void()> whileRunning_;
  LockWait* lockWait_;
  Prepared dataVersion_, anyRow_;
  std::chrono::milliseconds waited_{0};
  std::chrono::milliseconds told_{0};
};

/// Marks a file as one of our stores ("FENV"), so that another program's database is told from it.
inline constexpr int applicationId = 0x46454E56;

/// The table in which a store keeps the definitions that were applied to it, in their order.
inline constexpr const char* catalogTable = "FenvaleCatalogo";

// What createStore and copyStore promise.
void createFile(const std::string& path);
void copyFile(const std::string& from, const std::string& to, LockWait* lockWait, const CopyProgress& progress);

}  // namespace fenvale::sql
