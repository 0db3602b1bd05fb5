#include "sql/Console.h"

#include <unistd.h>

#include <filesystem>
#include <istream>
#include <sstream>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/xml/XmlDocument.h"

namespace fenvale::console {
namespace {

namespace fs = std::filesystem;

/// Beside the program, in the data folder next to it, or where the program was told at its making.
std::string findScript(const std::string& name) {
  std::error_code failure;
  const fs::path program = fs::read_symlink("/proc/self/exe", failure).parent_path();
  std::vector<fs::path> folders{program, program / ".." / "share" / "gestor-fenvale"};
  std::istringstream others(FENVALE_DATA_DIRS);
  for (std::string folder; std::getline(others, folder, ':');) folders.emplace_back(folder);
  for (const fs::path& folder : folders)
    if (fs::exists(folder / name, failure)) return (folder / name).string();
  throw Error(errors::fileNotFound, "O script " + name + " não foi encontrado.");
}

/// What a definition answers that was applied before.
bool isAppliedAlready(std::int32_t number) {
  return number == errors::refused || number == errors::syntax || number == errors::columnExists;
}

std::string withoutEnd(const std::string& line) {
  std::string text = line;
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r')) text.pop_back();
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string::npos ? std::string() : text.substr(first);
}

}  // namespace

void prepareStore(const Options& options, Connection& store) {
  store.setConnectionString("Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=" + options.file);
  if (options.script.empty()) return store.open();
  const XmlDocument script = XmlDocument::load(findScript(options.script));
  if (!script.sound()) throw Error(errors::fileAccess, "O script " + options.script + " não pode ser lido.");
  std::error_code failure;
  if (!fs::exists(store.dataSource(), failure)) createStore(options.file);
  store.open();
  store.beginTrans();
  for (const XmlElement& element : script.elements("SQL")) {
    if (element.children.size() != 1) continue;
    try {
      Recordset(element.children[0], store);
    } catch (const Error& refusal) {
      if (!isAppliedAlready(refusal.number)) throw;
    }
  }
  store.commitTrans();
}

bool runStatements(std::istream& in, Connection& store, Output& output) {
  bool all = true;
  std::size_t number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    const std::string statement = withoutEnd(line);
    if (statement.empty() || statement.starts_with("--")) continue;
    try {
      Recordset rows(statement, store, CursorType::keyset, LockType::readOnly);
      rows.isOpen() ? output.query(rows) : output.changed(rows.affectedRows());
    } catch (const Error& refusal) {
      output.refused(refusal, number);
      all = false;
    }
  }
  return all;
}

}  // namespace fenvale::console
