#include "platform/ui/Places.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "platform/base/Error.h"
#include "platform/base/Text.h"

namespace fenvale {
namespace {

namespace fs = std::filesystem;
constexpr std::int32_t deviceNotReady = 68;

std::string homeFolder() {
  if (const char* const home = std::getenv("HOME"); home != nullptr && *home != '\0') return home;
  const passwd* user = getpwuid(getuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : std::string();
}

void addFoldersOf(const fs::path& folder, std::vector<std::string>& places) {
  std::error_code failure;
  for (const auto& entry : fs::directory_iterator(folder, failure)) {
    if (entry.is_directory(failure)) places.push_back(entry.path().string());
  }
}

std::vector<std::string> startingPlaces() {
  std::vector<std::string> places{"/"};
  if (std::string home = homeFolder(); !home.empty() && home != "/") places.push_back(std::move(home));
  std::vector<std::string> media;
  std::error_code failure;
  for (const auto& user : fs::directory_iterator("/media", failure)) addFoldersOf(user.path(), media);
  addFoldersOf("/mnt", media);
  std::sort(media.begin(), media.end());
  places.insert(places.end(), media.begin(), media.end());
  return places;
}

bool hidden(const fs::path& path) { return path.filename().string().starts_with('.'); }

bool matchesOne(std::string_view name, std::string_view pattern) {
  if (pattern.empty()) return name.empty();
  if (pattern.front() == '*') {
    for (std::size_t skipped = 0; skipped <= name.size(); ++skipped)
      if (matchesOne(name.substr(skipped), pattern.substr(1))) return true;
    return false;
  }
  return !name.empty() && (pattern.front() == '?' || pattern.front() == name.front()) &&
         matchesOne(name.substr(1), pattern.substr(1));
}

std::vector<std::string> sortedNoCase(std::vector<std::string> names) {
  std::sort(names.begin(), names.end(), [](const std::string& first, const std::string& second) {
    const std::string low = toLower(first), high = toLower(second);
    return low == high ? first < second : low < high;
  });
  return names;
}

}  // namespace

bool matchesPattern(std::string_view name, std::string_view pattern) {
  const std::string lowerName = toLower(name);
  const std::string lowerPattern = toLower(pattern);
  for (std::size_t start = 0; start <= lowerPattern.size();) {
    const std::size_t end = std::min(lowerPattern.find(';', start), lowerPattern.size());
    const std::string one = trim(lowerPattern.substr(start, end - start));
    if (one == "*.*" || (!one.empty() && matchesOne(lowerName, one))) return true;
    start = end + 1;
  }
  return false;
}

DriveList::DriveList(Screen& owner, std::string name)
    : Control(owner, std::move(name)), drives_(startingPlaces()), drive_(drives_.back()) {
  if (drives_.size() > 1) drive_ = drives_[1];
}

void DriveList::setDrive(std::string path) {
  if (path == drive_) return;
  drive_ = std::move(path);
  changed(Aspect::content);
  raise(onChange);
}

void DriveList::userChoose(std::string path) {
  if (acceptsInput()) setDrive(std::move(path));
}

FolderTree::FolderTree(Screen& owner, std::string name) : Control(owner, std::move(name)), path_(homeFolder()) {}

void FolderTree::setPath(std::string path) {
  while (path.size() > 1 && (path.back() == '/' || path.back() == '\\')) path.pop_back();
  if (path == path_) return;
  std::error_code failure;
  fs::directory_iterator probe(path, failure);
  if (failure) throw Error(deviceNotReady, "A pasta " + path + " não pode ser lida.");
  path_ = std::move(path);
  changed(Aspect::content);
  raise(onChange);
}

std::vector<std::string> FolderTree::folders() const {
  std::vector<std::string> names;
  std::error_code failure;
  for (const auto& entry : fs::directory_iterator(path_, failure)) {
    std::error_code unreadable;
    if (entry.is_directory(unreadable) && !hidden(entry.path())) names.push_back(entry.path().filename().string());
  }
  return sortedNoCase(std::move(names));
}

void FolderTree::userChoose(std::string path) {
  if (acceptsInput()) raise([&] { setPath(std::move(path)); });
}

FileList::FileList(Screen& owner, std::string name, std::string pattern)
    : Control(owner, std::move(name)), path_(homeFolder()), pattern_(std::move(pattern)) {}

void FileList::setPath(std::string path) {
  path_ = std::move(path);
  fileName_.clear();
  changed(Aspect::items);
}

void FileList::setPattern(std::string pattern) {
  pattern_ = std::move(pattern);
  changed(Aspect::items);
}

std::vector<std::string> FileList::files() const {
  std::vector<std::string> names;
  std::error_code failure;
  for (const auto& entry : fs::directory_iterator(path_, failure)) {
    std::error_code unreadable;
    const std::string name = entry.path().filename().string();
    if (entry.is_regular_file(unreadable) && matchesPattern(name, pattern_)) names.push_back(name);
  }
  return sortedNoCase(std::move(names));
}

void FileList::userClick(std::string fileName) {
  if (!acceptsInput()) return;
  fileName_ = std::move(fileName);
  changed(Aspect::selection);
  raise(onClick);
}

}  // namespace fenvale
