#pragma once
// The two objects by which the rules reach a store: a connection to one file, and a recordset opened on the text of one
// statement in the dialect of docs/dialect.md.
//
//   Connection company(environment);
//   company.setConnectionString("Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=" + path);
//   company.open();
//   Recordset rows;
//   rows.open("SELECT lCodigo, sNome FROM Categorias ORDER BY sNome", company, CursorType::dynamic,
//   LockType::readOnly); for (; !rows.eof(); rows.moveNext()) use(rows.field("sNome").toText());

#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/Date.h"
#include "platform/sql/Value.h"

namespace fenvale {

enum class ObjectState { closed = 0, open = 1 };
/// A forward-only cursor reads all its rows in one pass when it is opened, for who goes through them once; the others
/// read rows when they are looked at.
enum class CursorType { forwardOnly = 0, keyset = 1, dynamic = 2, staticRows = 3 };
enum class LockType { readOnly = 1, pessimistic = 2, optimistic = 3 };

/// Told while a statement waits for another program's lock.
class LockWait {
 public:
  virtual ~LockWait() = default;
  /// Called about every tenth of a second with the time waited so far. False gives the wait up: the statement then
  /// fails with Error 3218.
  virtual bool keepWaiting(std::chrono::milliseconds waited) = 0;
};

/// What a connection needs from its surroundings. Both outlive it. Without a LockWait a locked store is refused at
/// once.
struct StoreEnvironment {
  const Clock& clock;
  LockWait* lockWait = nullptr;
};

/// One single-file store. Not copied; every recordset opened on it holds on to it.
class Connection {
 public:
  explicit Connection(StoreEnvironment environment);
  ~Connection();
  Connection(const Connection&) = delete;
  Connection& operator=(const Connection&) = delete;

  /// "Provider=...;Data Source=<path>". Error 3705 while open.
  void setConnectionString(std::string text);
  const std::string& connectionString() const;
  /// The path behind "Data Source=", the file's name matched without case in its folder.
  std::string dataSource() const;

  ObjectState state() const;
  bool isOpen() const { return state() == ObjectState::open; }
  /// Error 3705 when open already; 3024 not found, 3343 no store, 3049 damaged, 3027 read-only, 3051 not opened.
  void open();
  /// Error 3704 when closed, 3246 inside a transaction. Recordsets left open on it are closed.
  void close();

  /// The new level, 1 to 5. Error 3709 when closed, 0x8004D013 at the sixth.
  int beginTrans();
  /// The innermost level. Error 0x8004D00E without a transaction.
  void commitTrans();
  void rollbackTrans();
  int transactionLevel() const;

  class Implementation;
  Implementation& implementation() { return *implementation_; }

 private:
  std::unique_ptr<Implementation> implementation_;
};

/// The answer of a statement. Which rows there are, and their sequence, is fixed by open().
class Recordset {
 public:
  Recordset();
  Recordset(std::string_view statement, Connection& connection, CursorType cursor = CursorType::keyset,
            LockType lock = LockType::optimistic)
      : Recordset() {
    open(statement, connection, cursor, lock);
  }
  ~Recordset();
  Recordset(Recordset&&) noexcept;
  Recordset& operator=(Recordset&&) noexcept;

  /// A query leaves the recordset open on its first row; any other statement runs and leaves it closed.
  /// Error 3705 when open, 3709 on a closed connection, else the provider's numbers.
  void open(std::string_view statement, Connection& connection, CursorType cursor = CursorType::keyset,
            LockType lock = LockType::optimistic);
  void close();  ///< Error 3704 when closed
  void closeIfOpen();
  ObjectState state() const;
  bool isOpen() const { return state() == ObjectState::open; }
  CursorType cursorType() const;
  LockType lockType() const;

  bool bof() const;
  bool eof() const;
  /// How many rows; -1 on a forward-only cursor. Worked out when first asked for.
  std::int32_t recordCount() const;
  void moveFirst();  ///< Error 3021 on an empty set
  void moveNext();   ///< Error 3021 when eof() already
  /// By `rows` from the first row; beyond the end sets eof(). Error 3021 on an empty set.
  void moveFromFirst(std::int32_t rows);
  /// By `rows` from the current row, negative backwards; past an end sets eof() or bof().
  void move(std::int32_t rows);

  /// The field of the current row, its name matched without case. Error 3021 without a current row, 3265 unknown.
  Value field(std::string_view name) const;
  Value operator[](std::string_view name) const { return field(name); }
  Value field(std::size_t place) const;
  std::vector<std::string> fieldNames() const;
  std::vector<ValueType> fieldTypes() const;
  /// Rows changed by the last statement that was no query.
  std::int64_t affectedRows() const;

  class Implementation;

 private:
  std::unique_ptr<Implementation> implementation_;
};

/// Makes an empty store. Error 0x80040E17 when the file exists (its name matched without case); 3051 when it cannot be
/// made; the file is there whole or not at all.
void createStore(const std::string& path);

/// Told in the course of a copy how much of the whole is done. What it throws breaks the copy off.
using CopyProgress = std::function<void(std::int64_t done, std::int64_t whole)>;

/// Copies a store, as it stands at one moment, to a file that is not there yet. While it lasts other programs go on
/// reading, and their writes wait. The copy is there only when it is whole, on the disk and found sound: it opens, its
/// integrity holds and each table has as many rows as the original's. Errors: those of opening `from`, which may be
/// read-only; 0x80040E17 when `to` exists (its name matched without case), 3183 on a full disk, 3051 when the place
/// cannot be written, 3049 when the original is damaged or the disk did not keep what was written.
void copyStore(const std::string& from, const std::string& to, StoreEnvironment environment,
               const CopyProgress& progress = {});

}  // namespace fenvale
