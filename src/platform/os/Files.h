#pragma once
// Files and folders. Every path may be written with "\" or "/", and a name that is not there as written is looked for
// without regard to case; paths that are given back use "/". Failures are Errors with a sentence in Portuguese.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace fenvale::files {

/// The path as this system writes it: "\" becomes "/", and each part that does not exist as written takes the name that
/// its folder has for it, letter case apart. Parts that are found under no name stay as they are.
std::string nativePath(std::string_view path);
inline constexpr std::string_view separators = "\\/";
/// What ends a folder's path when a name is to follow.
inline constexpr char separator = '/';
bool endsWithSeparator(std::string_view path);

bool isFile(const std::string& path);
bool isFolder(const std::string& path);
/// With the folders above it. Nothing happens when it is there.
void createFolder(const std::string& path);

/// All bytes. Error 53 when the file is not there, 75 when it cannot be read.
std::string read(const std::string& path);
/// The whole file or nothing of it: written beside the old one, brought to the disk and put in its place, with the old
/// one's permissions. Error 75 when it cannot be, 61 on a full disk.
void write(const std::string& path, std::string_view bytes);

/// A file that is written piece by piece, beside the old one until it is whole: without close() nothing of it is left
/// and the old one stays. The disk gets it in its own time, so it is for what can be made again. Errors as of write().
class Writer {
 public:
  explicit Writer(const std::string& path);
  ~Writer();
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;
  void write(std::string_view bytes);
  /// Puts the whole file in its place.
  void close();

 private:
  friend void files::write(const std::string& path, std::string_view bytes);
  struct Partial;
  std::unique_ptr<Partial> partial_;
};

/// Adds to the end of a file, which is made when it is not there. Of bytes that do not all find room some are added
/// all the same. Errors as of write().
void append(const std::string& path, std::string_view bytes);

/// How many bytes there are in a file that can be read. Error 53, 75.
std::uint64_t size(const std::string& path);

/// A file's lines one after the other, broken as lines() breaks them; no more than a block and a line of it is held.
class LineReader {
 public:
  /// Error 53 when the file is not there, 75 when it cannot be read.
  explicit LineReader(const std::string& path);
  ~LineReader();
  LineReader(const LineReader&) = delete;
  LineReader& operator=(const LineReader&) = delete;
  /// False behind the last line. Error 75.
  bool next(std::string& line);

 private:
  bool fill();
  struct Source;
  std::unique_ptr<Source> source_;
  std::string block_;
  std::size_t place_ = 0;
  std::size_t end_ = 0;
  bool afterReturn_ = false;
};

/// Nothing happens when it is not there. Error 75.
void remove(const std::string& path);
/// Replaces what is at `to`. Error 53, 75.
void rename(const std::string& from, const std::string& to);
/// Takes away what others than owner and group may do with the file. Error 75.
void restrictToOwnerAndGroup(const std::string& path);
/// The paths of the files in a folder whose names end so, without case; empty when the folder cannot be read.
std::vector<std::string> withEnding(const std::string& folder, std::string_view ending);

/// A file in the making: written under a name of its own beside its place, it takes the place whole or not at all, and
/// never that of another file. Gone with the object unless it was placed.
class Draft {
 public:
  /// Empty, for its owner alone. Error 53 when the folder is not there, 75 when it cannot be written, 61 on a full
  /// disk.
  explicit Draft(const std::string& path);
  ~Draft();
  Draft(const Draft&) = delete;
  Draft& operator=(const Draft&) = delete;

  /// Where it is to be written.
  const std::string& path() const { return path_; }
  /// Brings it to the disk, from which it is read again. Error 53, 75, 61.
  void flush() const;
  /// Flushes it and gives it its name. Error 58 when a file of that name is there by now, else 53, 75, 61.
  void place();

 private:
  std::string target_;
  std::string path_;
};

/// The lines of a text, whatever breaks them (CR LF, LF or CR); a break at the end opens no further line.
std::vector<std::string> lines(std::string_view text);

}  // namespace fenvale::files
