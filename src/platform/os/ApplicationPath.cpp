#include "platform/os/ApplicationPath.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"

namespace fenvale {
namespace {

namespace fs = std::filesystem;

constexpr const char* programFolder = "gestor-fenvale";
constexpr const char* storeScript = "SQL.xmlSQL";
constexpr std::string_view scriptEnding = ".xmlSQL";

bool holdsMarker(const std::string& folder) {
  return files::isFile(folder + "/portatil") || files::isFile(folder + "/Dados.MDB") ||
         files::isFile(folder + "/init.ini");
}

std::string homeFolder() {
  if (const char* home = std::getenv("HOME"); home != nullptr && *home != '\0') return home;
  if (const passwd* user = ::getpwuid(::getuid()); user != nullptr) return user->pw_dir;
  constexpr std::int32_t pathNotFound = 76;
  throw Error(pathNotFound, "A pasta pessoal do usuário não foi localizada.");
}

std::string userDataFolder() {
  if (const char* data = std::getenv("XDG_DATA_HOME"); data != nullptr && *data == '/') return data;
  return homeFolder() + "/.local/share";
}

bool differs(const fs::path& first, const fs::path& second) {
  return files::read(first.string()) != files::read(second.string());
}

void bringShippedFiles(const std::string& from, const std::string& to) {
  for (const auto& entry : fs::recursive_directory_iterator(from)) {
    if (!entry.is_regular_file()) continue;
    const fs::path target = fs::path(to) / fs::relative(entry.path(), from);
    const bool script = endsWithNoCase(target.string(), scriptEnding);
    if (files::isFile(target.string()) && !(script && differs(entry.path(), target))) continue;
    files::createFolder(target.parent_path().string());
    files::write(target.string(), files::read(entry.path().string()));
  }
}

}  // namespace

ProgramPlaces systemPlaces() {
  const fs::path executable = fs::read_symlink("/proc/self/exe");
  const fs::path folder = executable.parent_path();
  return {folder.string(),
          {(folder / "../../share" / programFolder).lexically_normal().string(),
           (folder / "../share" / programFolder).lexically_normal().string()},
          userDataFolder() + "/" + programFolder};
}

std::string applicationPath(const ProgramPlaces& places) {
  if (holdsMarker(places.executableFolder)) return places.executableFolder;
  files::createFolder(places.userFolder);
  const auto shipped = std::find_if(places.shippedFolders.begin(), places.shippedFolders.end(),
                                    [](const auto& folder) { return files::isFile(folder + "/" + storeScript); });
  if (shipped != places.shippedFolders.end()) bringShippedFiles(*shipped, places.userFolder);
  return places.userFolder;
}

}  // namespace fenvale
