// Stores that come to be: empty ones, and copies of others. Each is made as a draft and placed when it is whole.

#include <sqlite3.h>
#include <sys/stat.h>

#include <algorithm>
#include <memory>

#include "platform/base/Error.h"
#include "platform/os/Files.h"
#include "platform/sql/sqlite/Database.h"
#include "platform/sql/sqlite/Failures.h"

namespace fenvale::sql {
namespace {

struct Close {
  void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
  void operator()(sqlite3_backup* backup) const { sqlite3_backup_finish(backup); }
};
using Handle = std::unique_ptr<sqlite3, Close>;
using Backup = std::unique_ptr<sqlite3_backup, Close>;

Handle openDraft(const files::Draft& draft) {
  ::chmod(draft.path().c_str(), 0660);  // a store holds passwords: for owner and group only
  sqlite3* handle = nullptr;
  const int code = sqlite3_open_v2(draft.path().c_str(), &handle, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr);
  Handle opened(handle);
  if (code != SQLITE_OK) throw failureOf(code, "", {.path = draft.path(), .table = {}});
  // Nobody else knows the draft, and a half one is thrown away: there is nothing for a journal to keep.
  sqlite3_exec(handle, "PRAGMA journal_mode = OFF; PRAGMA synchronous = FULL", nullptr, nullptr, nullptr);
  return opened;
}

/// A failure of files as the store tells it.
Error storeFailure(const Error& failure) {
  switch (failure.number) {
    case errors::fileExists:
      return {errors::storeExists, failure.description};
    case errors::fileDiskFull:
      return {errors::diskFull, failure.description};
    case errors::fileNotFound:
    case errors::fileAccess:
      return {errors::storeNotOpened, failure.description};
    default:
      return failure;
  }
}

bool concernsOriginal(int code) {
  switch (code & 0xFF) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
      return true;
    default:
      return code == SQLITE_IOERR_READ || code == SQLITE_IOERR_SHORT_READ || code == SQLITE_IOERR_CORRUPTFS;
  }
}

/// The bytes of an open database's file, read by the way that SQLite reads them: to open the file anew would give up
/// the locks on it.
class Bytes {
 public:
  explicit Bytes(const Database& database) {
    sqlite3_file_control(database.handle(), "main", SQLITE_FCNTL_FILE_POINTER, &file_);
    if (file_->pMethods->xFileSize(file_, &size_) != SQLITE_OK) fail();
  }
  std::int64_t size() const { return size_; }
  std::string read(std::int64_t place, std::int64_t count) const {
    std::string block(static_cast<std::size_t>(std::min<std::int64_t>(count, size_ - place)), '\0');
    if (file_->pMethods->xRead(file_, block.data(), static_cast<int>(block.size()), place) != SQLITE_OK) fail();
    return block;
  }

 private:
  [[noreturn]] static void fail() {
    throw Error(errors::storeDamaged, "Um arquivo não pôde ser lido: o disco falhou.");
  }

  sqlite3_file* file_ = nullptr;
  sqlite3_int64 size_ = 0;
};

/// Blanks what a copy has of its own in its first page: the counts of changes and of definitions, and who wrote last.
void blankCounters(std::string& head) {
  for (const auto& [place, count] : {std::pair{24, 4}, {40, 4}, {92, 8}})
    head.replace(static_cast<std::size_t>(place), static_cast<std::size_t>(count), static_cast<std::size_t>(count),
                 '\0');
}

class Copy {
 public:
  Copy(const std::string& from, std::string to, LockWait* lockWait, const CopyProgress& progress)
      : from_(files::nativePath(from)),
        to_(std::move(to)),
        original_(from_, lockWait, Database::Access::readAtLeast),
        progress_(progress) {
    // The open transaction holds the original as it is now until the copy has been compared with it.
    original_.run("BEGIN");
    original_.number("SELECT COUNT(*) FROM sqlite_schema");
    pages_ = original_.number("PRAGMA page_count");
  }

  void make() {
    files::Draft draft(to_);
    writePages(draft);
    draft.flush();
    check(draft);
    draft.place();
    tell(whole());
  }

 private:
  void writePages(const files::Draft& draft) const {
    constexpr int pagesAtOnce = 512;
    const Handle copy = openDraft(draft);
    Backup backup(sqlite3_backup_init(copy.get(), "main", original_.handle(), "main"));
    int code = backup ? SQLITE_OK : sqlite3_extended_errcode(copy.get());
    while (code == SQLITE_OK) {
      code = sqlite3_backup_step(backup.get(), pagesAtOnce);
      if (code == SQLITE_OK) tell(pages_ - sqlite3_backup_remaining(backup.get()));
    }
    if (code != SQLITE_DONE) throw failureOf(code, "", {.path = concernsOriginal(code) ? from_ : to_, .table = {}});
  }

  void check(const files::Draft& draft) {
    try {
      Database copy(draft.path(), nullptr);
      copy.whileRunning([this] { tellChecking(); });
      if (hasSameBytes(copy)) {
        copy.checkIntegrity();
        if (rowsOfTables(copy) == rowsOfTables(original_)) return;
      }
    } catch (const Error& failure) {
      if (brokenOff_) throw;
      if (!files::isFile(draft.path())) throw Error(errors::storeNotOpened, "A pasta de " + to_ + " não existe mais.");
      checkOriginal();
      throw Error(errors::storeDamaged, notKept() + " " + failure.description);
    }
    throw Error(errors::storeDamaged, notKept());
  }

  bool hasSameBytes(const Database& copy) const {
    constexpr std::int64_t blockSize = 1 << 20;
    const Bytes here(original_);
    const Bytes there(copy);
    if (here.size() != there.size()) return false;
    for (std::int64_t place = 0; place < here.size(); place += blockSize) {
      std::string one = here.read(place, blockSize);
      std::string other = there.read(place, blockSize);
      if (place == 0) {
        blankCounters(one);
        blankCounters(other);
      }
      if (one != other) return false;
      tell(pages_ + place * pages_ / here.size());
    }
    return true;
  }

  /// What is damaged there is so in every true copy.
  void checkOriginal() {
    original_.whileRunning([this] { tellChecking(); });
    original_.checkIntegrity();
  }

  std::string notKept() const { return "A cópia " + to_ + " não confere com o original: o disco falhou."; }

  static std::vector<std::pair<std::string, std::int64_t>> rowsOfTables(const Database& database) {
    std::vector<std::pair<std::string, std::int64_t>> rows;
    for (const std::string& table :
         database.texts("SELECT name FROM sqlite_schema WHERE type = 'table' AND rootpage > 0 ORDER BY name"))
      rows.emplace_back(table, database.number("SELECT COUNT(*) FROM \"" + table + "\""));
    return rows;
  }

  // A third of the whole are the pages to be written, a third the same to be compared, a third to be checked. How far a
  // check has come SQLite does not tell: that third is guessed from the time that a page takes.
  std::int64_t whole() const { return 3 * pages_; }
  void tell(std::int64_t done) const {
    if (!progress_) return;
    brokenOff_ = true;  // unless it comes back
    progress_(done, whole());
    brokenOff_ = false;
  }
  void tellChecking() {
    constexpr std::int64_t pagesBetween = 50;
    checked_ = std::min(checked_ + pagesBetween, pages_ - 1);
    tell(2 * pages_ + checked_);
  }

  std::string from_;
  std::string to_;
  Database original_;
  const CopyProgress& progress_;
  std::int64_t pages_ = 0;
  std::int64_t checked_ = 0;
  mutable bool brokenOff_ = false;
};

Error exists(const std::string& path) { return {errors::storeExists, "O arquivo " + path + " já existe."}; }

}  // namespace

void createFile(const std::string& path) try {
  const std::string native = files::nativePath(path);
  if (files::isFile(native)) throw exists(native);
  files::Draft draft(native);
  {
    const Handle handle = openDraft(draft);
    const std::string text = "PRAGMA application_id = " + std::to_string(applicationId) + "; CREATE TABLE " +
                             catalogTable + " (ordem INTEGER PRIMARY KEY AUTOINCREMENT, texto TEXT NOT NULL)";
    if (sqlite3_exec(handle.get(), text.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
      throw failureOf(handle.get(), SQLITE_ERROR, {.path = native, .table = {}});
  }
  draft.place();
} catch (const Error& failure) {
  throw storeFailure(failure);
}

void copyFile(const std::string& from, const std::string& to, LockWait* lockWait, const CopyProgress& progress) try {
  const std::string native = files::nativePath(to);
  if (files::isFile(native)) throw exists(native);
  Copy(from, native, lockWait, progress).make();
} catch (const Error& failure) {
  throw storeFailure(failure);
}

}  // namespace fenvale::sql
