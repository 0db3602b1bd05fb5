#include "platform/sql/FaultyFiles.h"

#include <signal.h>
#include <sqlite3.h>
#include <unistd.h>

#include <cstring>
#include <string>

namespace fenvale::test {
namespace {

struct Layer {
  sqlite3_vfs& disk = *sqlite3_vfs_find(nullptr);  ///< found before this layer is the default itself
  sqlite3_vfs own{};
  bool registered = false;
  Fault fault = Fault::none;
  int number = 0;
  int count = 0;
};

Layer& layer() {
  static Layer one;
  return one;
}

struct File {
  sqlite3_file base;
  sqlite3_file* real() { return reinterpret_cast<sqlite3_file*>(this + 1); }
};

sqlite3_file* real(sqlite3_file* file) { return reinterpret_cast<File*>(file)->real(); }

[[noreturn]] void die() {
  ::kill(::getpid(), SIGKILL);
  for (;;) ::pause();
}

/// Whether the fault strikes now; what kills does not come back, but for a torn write.
bool strikes(bool writes = false) {
  Layer& one = layer();
  if (one.fault == Fault::none || (one.fault == Fault::garble && !writes) || ++one.count != one.number) return false;
  if (one.fault == Fault::kill) die();
  return true;
}

int failure() { return layer().fault == Fault::full ? SQLITE_FULL : SQLITE_IOERR_WRITE; }

int closeFile(sqlite3_file* file) { return real(file)->pMethods->xClose(real(file)); }
int readFile(sqlite3_file* file, void* bytes, int size, sqlite3_int64 place) {
  return real(file)->pMethods->xRead(real(file), bytes, size, place);
}
int writeFile(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 place) {
  if (strikes(true)) {
    if (layer().fault == Fault::garble) {
      std::string other(static_cast<const char*>(bytes), static_cast<std::size_t>(size));
      other.back() = static_cast<char>(~other.back());
      return real(file)->pMethods->xWrite(real(file), other.data(), size, place);
    }
    if (layer().fault != Fault::tear) return failure();
    real(file)->pMethods->xWrite(real(file), bytes, size / 2, place);
    die();
  }
  return real(file)->pMethods->xWrite(real(file), bytes, size, place);
}
int cutFile(sqlite3_file* file, sqlite3_int64 size) {
  if (strikes()) return layer().fault == Fault::tear ? (die(), SQLITE_OK) : failure();
  return real(file)->pMethods->xTruncate(real(file), size);
}
int flushFile(sqlite3_file* file, int flags) {
  if (strikes()) return layer().fault == Fault::tear ? (die(), SQLITE_OK) : failure();
  return real(file)->pMethods->xSync(real(file), flags);
}
int sizeOfFile(sqlite3_file* file, sqlite3_int64* size) { return real(file)->pMethods->xFileSize(real(file), size); }
int lockFile(sqlite3_file* file, int level) { return real(file)->pMethods->xLock(real(file), level); }
int unlockFile(sqlite3_file* file, int level) { return real(file)->pMethods->xUnlock(real(file), level); }
int checkLock(sqlite3_file* file, int* answer) { return real(file)->pMethods->xCheckReservedLock(real(file), answer); }
int controlFile(sqlite3_file* file, int operation, void* argument) {
  return real(file)->pMethods->xFileControl(real(file), operation, argument);
}
int sectorSize(sqlite3_file* file) { return real(file)->pMethods->xSectorSize(real(file)); }
int characteristics(sqlite3_file* file) { return real(file)->pMethods->xDeviceCharacteristics(real(file)); }

const sqlite3_io_methods methods = {1,           closeFile,  readFile,        writeFile,  cutFile,
                                    flushFile,   sizeOfFile, lockFile,        unlockFile, checkLock,
                                    controlFile, sectorSize, characteristics, nullptr,    nullptr,
                                    nullptr,     nullptr,    nullptr,         nullptr};

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
  file->pMethods = nullptr;
  const int code = layer().disk.xOpen(&layer().disk, name, real(file), flags, outFlags);
  if (code == SQLITE_OK) file->pMethods = &methods;
  return code;
}

int deleteFile(sqlite3_vfs*, const char* name, int synchronize) {
  if (strikes()) return layer().fault == Fault::tear ? (die(), SQLITE_OK) : SQLITE_IOERR_DELETE;
  return layer().disk.xDelete(&layer().disk, name, synchronize);
}

}  // namespace

void arm(Fault fault, int number) {
  Layer& one = layer();
  if (!one.registered) {
    one.own = one.disk;
    one.own.zName = "faulty";
    one.own.szOsFile = static_cast<int>(sizeof(File)) + one.disk.szOsFile;
    one.own.xOpen = openFile;
    one.own.xDelete = deleteFile;
    one.registered = sqlite3_vfs_register(&one.own, 1) == SQLITE_OK;
  }
  one.fault = fault;
  one.number = number;
  one.count = 0;
}

int countedWrites() { return layer().count; }

}  // namespace fenvale::test
