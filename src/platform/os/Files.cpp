#include "platform/os/Files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <utility>

#include "platform/base/Error.h"
#include "platform/base/Text.h"

namespace fenvale::files {
namespace {

namespace fs = std::filesystem;

std::string reason(int code) {
  switch (code) {
    case EACCES:
    case EPERM:
      return "permissão negada";
    case ENOENT:
    case ENOTDIR:
      return "o caminho não existe";
    case ENOSPC:
    case EDQUOT:
      return "o disco está cheio";
    case EROFS:
      return "o local permite somente leitura";
    case EISDIR:
      return "é uma pasta";
    case ENAMETOOLONG:
      return "o nome é longo demais";
    case EIO:
      return "falha de leitura ou gravação no disco";
    default:
      return std::strerror(code);
  }
}

[[noreturn]] void fail(int code, const std::string& what, const std::string& path) {
  const bool full = code == ENOSPC || code == EDQUOT;
  const bool missing = code == ENOENT || code == ENOTDIR;
  const auto number = full ? errors::fileDiskFull : missing ? errors::fileNotFound : errors::fileAccess;
  throw Error(number, "Não foi possível " + what + " " + path + ": " + reason(code) + ".");
}

/// An open file that is closed whatever happens.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  int number() const { return number_; }
  int close() { return ::close(std::exchange(number_, -1)); }

 private:
  int number_;
};

bool writeAll(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno == EINTR) continue;
    if (written < 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return true;
}

bool exists(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0;
}

/// The name that `folder` has for `name`, letter case apart; `name` itself when there is none.
std::string nameIn(const std::string& folder, const std::string& name) {
  std::error_code ignored;
  std::string found;
  for (const auto& entry : fs::directory_iterator(folder.empty() ? "." : folder, ignored)) {
    const std::string candidate = entry.path().filename().string();
    // The smallest name wins, so that the answer does not hang on the folder's own order.
    if (equalsNoCase(candidate, name) && (found.empty() || candidate < found)) found = candidate;
  }
  return found.empty() ? name : found;
}

/// The folder of the file must know about its new name before a power cut does.
void syncFolder(const std::string& path) {
  const std::size_t end = path.rfind(separator);
  const std::string folder = end == std::string::npos ? "." : path.substr(0, std::max<std::size_t>(end, 1));
  const Descriptor descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (descriptor.number() >= 0) ::fsync(descriptor.number());
}

/// A memory stick knows no links, but renames.
bool giveName(const std::string& draft, const std::string& name) {
  return ::link(draft.c_str(), name.c_str()) == 0 ||
         (errno != EEXIST && ::renameat2(AT_FDCWD, draft.c_str(), AT_FDCWD, name.c_str(), RENAME_NOREPLACE) == 0);
}

mode_t modeFor(const std::string& path) {
  struct stat status {};
  if (::stat(path.c_str(), &status) == 0) return status.st_mode & 07777;
  const mode_t mask = ::umask(0);
  ::umask(mask);
  return 0666 & ~mask;
}

/// The file itself where the path is a link to it.
std::string realPath(const std::string& path) {
  std::string target = nativePath(path);
  std::error_code notThere;
  if (const fs::path real = fs::canonical(target, notThere); !notThere) target = real.string();
  return target;
}

}  // namespace

std::string nativePath(std::string_view path) {
  std::string native(path);
  std::replace(native.begin(), native.end(), '\\', separator);
  if (native.empty() || exists(native)) return native;
  std::string result;
  for (std::size_t place = 0; place < native.size();) {
    const std::size_t end = std::min(native.find(separator, place), native.size());
    const std::string part = native.substr(place, end - place);
    if (!part.empty()) result += exists(result + part) ? part : nameIn(result, part);
    if (end < native.size()) result += separator;
    place = end + 1;
  }
  return result;
}

bool endsWithSeparator(std::string_view path) {
  return !path.empty() && separators.find(path.back()) != std::string_view::npos;
}

bool isFile(const std::string& path) {
  struct stat status {};
  return ::stat(nativePath(path).c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

bool isFolder(const std::string& path) {
  struct stat status {};
  return ::stat(nativePath(path).c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

void createFolder(const std::string& path) {
  const std::string native = nativePath(path);
  std::error_code failure;
  fs::create_directories(native, failure);
  if (failure && !isFolder(native)) fail(failure.value(), "criar a pasta", native);
}

std::string read(const std::string& path) {
  const std::string native = nativePath(path);
  const Descriptor file(::open(native.c_str(), O_RDONLY | O_CLOEXEC));
  if (file.number() < 0) fail(errno, "abrir o arquivo", native);
  std::string bytes;
  std::string block(65536, '\0');
  for (;;) {
    const ssize_t count = ::read(file.number(), block.data(), block.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) fail(errno, "ler o arquivo", native);
    if (count == 0) return bytes;
    bytes.append(block, 0, static_cast<std::size_t>(count));
  }
}

/// A file under a name of its own beside the one it will replace.
struct Writer::Partial {
  explicit Partial(const std::string& path)
      : target(realPath(path)),
        mode(modeFor(target)),
        name(target + ".XXXXXX"),
        file(::mkostemp(name.data(), O_CLOEXEC)) {
    if (file.number() < 0) fail(errno, "gravar o arquivo", target);
  }
  ~Partial() {
    if (!placed) ::unlink(name.c_str());
  }
  Partial(const Partial&) = delete;
  Partial& operator=(const Partial&) = delete;

  void check(bool done) const {
    if (!done) fail(errno, "gravar o arquivo", target);
  }
  void write(std::string_view bytes) const { check(writeAll(file.number(), bytes)); }
  void toDisk() const { check(::fsync(file.number()) == 0); }
  void place() {
    check(::fchmod(file.number(), mode) == 0 && file.close() == 0 && ::rename(name.c_str(), target.c_str()) == 0);
    placed = true;
  }

  std::string target;
  mode_t mode;
  std::string name;
  Descriptor file;
  bool placed = false;
};

Writer::Writer(const std::string& path) : partial_(std::make_unique<Partial>(path)) {}
Writer::~Writer() = default;
void Writer::write(std::string_view bytes) { partial_->write(bytes); }
void Writer::close() { partial_->place(); }

void write(const std::string& path, std::string_view bytes) {
  Writer::Partial partial(path);
  partial.write(bytes);
  partial.toDisk();
  partial.place();
  syncFolder(partial.target);
}

void append(const std::string& path, std::string_view bytes) {
  const std::string native = nativePath(path);
  Descriptor file(::open(native.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666));
  if (file.number() < 0 || !writeAll(file.number(), bytes) || file.close() != 0)
    fail(errno, "gravar o arquivo", native);
}

std::uint64_t size(const std::string& path) {
  const std::string native = nativePath(path);
  const Descriptor file(::open(native.c_str(), O_RDONLY | O_CLOEXEC));
  struct stat status {};
  if (file.number() < 0 || ::fstat(file.number(), &status) != 0) fail(errno, "abrir o arquivo", native);
  if (S_ISDIR(status.st_mode)) fail(EISDIR, "abrir o arquivo", native);
  return static_cast<std::uint64_t>(status.st_size);
}

struct LineReader::Source {
  Source(std::string nativeName, int number) : path(std::move(nativeName)), file(number) {}
  std::string path;
  Descriptor file;
};

LineReader::LineReader(const std::string& path) : block_(65536, '\0') {
  std::string native = nativePath(path);
  const int number = ::open(native.c_str(), O_RDONLY | O_CLOEXEC);
  if (number < 0) fail(errno, "abrir o arquivo", native);
  source_ = std::make_unique<Source>(std::move(native), number);
}

LineReader::~LineReader() = default;

bool LineReader::fill() {
  ssize_t count = 0;
  do count = ::read(source_->file.number(), block_.data(), block_.size());
  while (count < 0 && errno == EINTR);
  if (count < 0) fail(errno, "ler o arquivo", source_->path);
  place_ = 0;
  end_ = static_cast<std::size_t>(count);
  return count > 0;
}

bool LineReader::next(std::string& line) {
  line.clear();
  while (place_ < end_ || fill()) {
    if (std::exchange(afterReturn_, false) && block_[place_] == '\n') {
      ++place_;
      continue;
    }
    const char* const begin = block_.data() + place_;
    const char* const stop = std::find_if(begin, static_cast<const char*>(block_.data() + end_),
                                          [](char c) { return c == '\r' || c == '\n'; });
    line.append(begin, stop);
    place_ += static_cast<std::size_t>(stop - begin);
    if (place_ < end_) {
      afterReturn_ = block_[place_++] == '\r';
      return true;
    }
  }
  return !line.empty();
}

void remove(const std::string& path) {
  const std::string native = nativePath(path);
  if (::unlink(native.c_str()) != 0 && errno != ENOENT && errno != ENOTDIR) fail(errno, "apagar o arquivo", native);
}

void rename(const std::string& from, const std::string& to) {
  const std::string source = nativePath(from);
  const std::string target = nativePath(to);
  if (::rename(source.c_str(), target.c_str()) == 0) return syncFolder(target);
  if (errno != EXDEV) fail(errno, "renomear o arquivo", source);
  write(target, read(source));
  remove(source);
}

void restrictToOwnerAndGroup(const std::string& path) {
  const std::string native = nativePath(path);
  struct stat status {};
  if (::stat(native.c_str(), &status) != 0 || ::chmod(native.c_str(), status.st_mode & 07770) != 0)
    fail(errno, "proteger o arquivo", native);
}

std::vector<std::string> withEnding(const std::string& folder, std::string_view ending) {
  std::vector<std::string> found;
  std::error_code ignored;
  for (const auto& entry : fs::directory_iterator(nativePath(folder), ignored))
    if (endsWithNoCase(entry.path().filename().string(), ending)) found.push_back(entry.path().string());
  std::sort(found.begin(), found.end());
  return found;
}

Draft::Draft(const std::string& path) : target_(nativePath(path)), path_(target_ + ".novo-XXXXXX") {
  const Descriptor file(::mkostemp(path_.data(), O_CLOEXEC));
  if (file.number() < 0) fail(errno, "gravar o arquivo", target_);
}

Draft::~Draft() { ::unlink(path_.c_str()); }

void Draft::flush() const {
  const Descriptor file(::open(path_.c_str(), O_RDWR | O_CLOEXEC));
  if (file.number() < 0 || ::fsync(file.number()) != 0) fail(errno, "gravar o arquivo", target_);
  ::posix_fadvise(file.number(), 0, 0, POSIX_FADV_DONTNEED);
}

void Draft::place() {
  flush();
  if (!giveName(path_, target_)) {
    if (errno == EEXIST) throw Error(errors::fileExists, "O arquivo " + target_ + " já existe.");
    fail(errno, "gravar o arquivo", target_);
  }
  ::unlink(path_.c_str());
  syncFolder(target_);
}

std::vector<std::string> lines(std::string_view text) {
  std::vector<std::string> result;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
    result.emplace_back(text.substr(0, end));
    const bool pair = text.substr(end, 2) == lineBreak;
    text.remove_prefix(std::min(end + (pair ? 2 : 1), text.size()));
  }
  return result;
}

}  // namespace fenvale::files
