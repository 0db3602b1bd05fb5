#include "platform/sql/sqlite/StorePath.h"

#include <unistd.h>

#include <array>
#include <filesystem>
#include <fstream>

#include "platform/base/Error.h"

namespace fenvale::sql {
namespace {

namespace fs = std::filesystem;

bool exists(const std::string& path) {
  std::error_code failure;
  return fs::exists(path, failure);
}

std::string folderOf(const std::string& path) {
  const std::string folder = fs::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

}  // namespace

void checkFile(const std::string& path) {
  std::error_code failure;
  if (!exists(path)) throw Error(errors::storeNotFound, "O banco de dados " + path + " não foi encontrado.");
  if (!fs::is_regular_file(path, failure) || access(path.c_str(), R_OK) != 0)
    throw Error(errors::storeNotOpened, "O banco de dados " + path + " não pode ser aberto.");
  // An empty file would pass for an empty store.
  std::array<char, 16> head{};
  std::ifstream(path, std::ios::binary).read(head.data(), head.size());
  if (std::string_view(head.data(), 15) != "SQLite format 3")
    throw Error(errors::fileNotStore, "O arquivo " + path + " não é um banco de dados do sistema.");
}

bool canBeWritten(const std::string& path) {
  return access(path.c_str(), W_OK) == 0 && access(folderOf(path).c_str(), W_OK) == 0;
}

}  // namespace fenvale::sql
