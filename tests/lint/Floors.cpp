#include "lint/Floors.h"

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <set>

namespace fenvale::lint {
namespace {

enum class Floor { base, platform, services, screens, adapter, composition };

/// Where a file lives. `order` counts the rooms of the rules in the order in which they need each other.
struct Place {
  Floor floor = Floor::base;
  std::string folder;
  std::size_t order = 0;
};

constexpr std::array<std::string_view, 8> rooms{"shell",  "store",   "access",   "registers",
                                                "titles", "reports", "overview", "documents"};

/// The services of the rooms up to the registers stand on one floor and need each other in every direction.
constexpr std::size_t lastOfTheGround = 3;

const std::vector<std::string_view> adapters{"platform/ui/qt", "platform/report/qt", "platform/print/cups"};

struct Library {
  std::string_view name;
  std::function<bool(std::string_view)> owns;
  std::vector<std::string_view> folders;
};

bool isQt(std::string_view header) {
  const bool module = header.starts_with("Qt") || header.find("/Q") != std::string_view::npos;
  return module || (header.size() > 1 && header[0] == 'Q' && header[1] >= 'A' && header[1] <= 'Z');
}

const std::vector<Library>& libraries() {
  static const auto below = [](std::string_view prefix) {
    return [prefix](std::string_view header) { return header.starts_with(prefix); };
  };
  // The composition starts the toolkit's application, too.
  static const std::vector<Library> all{
      {"Qt", isQt, {"platform/ui/qt", "platform/report/qt", "app"}},
      {"SQLite", below("sqlite3"), {"platform/sql"}},
      {"libxml2", below("libxml"), {"platform/xml"}},
      {"libcurl", below("curl/"), {"platform/mail"}},
      {"CUPS", below("cups/"), {"platform/print/cups"}},
  };
  return all;
}

const Library* libraryOf(const Include& include) {
  if (!include.library) return nullptr;
  const auto& all = libraries();
  const auto found = std::find_if(all.begin(), all.end(), [&](const Library& l) { return l.owns(include.header); });
  return found == all.end() ? nullptr : &*found;
}

/// `path` is relative to src/. Nothing when the folder has no floor.
std::optional<Place> placeOf(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  const std::string folder(path.substr(0, slash == std::string_view::npos ? 0 : slash));
  if (folder.empty() || folder == "app") return Place{Floor::composition, folder, 0};
  if (folder == "platform/base") return Place{Floor::base, folder, 0};
  if (startsWithAny(folder, adapters)) return Place{Floor::adapter, folder, 0};
  if (folder.starts_with("platform/")) return Place{Floor::platform, folder, 0};
  for (std::size_t i = 0; i < rooms.size(); ++i) {
    const std::string room(rooms[i]);
    if (folder == room + "/services") return Place{Floor::services, folder, std::max(i, lastOfTheGround)};
    if (folder == room + "/screens") return Place{Floor::screens, folder, i};
  }
  return std::nullopt;
}

bool isScreen(std::string_view header) { return header.find("/frm") != std::string_view::npos; }

/// Why `from` may not include `header`, which lives at `to`; empty when it may.
std::string refusal(const Place& from, const Place& to, std::string_view header) {
  if (from.floor == Floor::composition || from.folder == to.folder) return {};
  if (to.floor == Floor::composition) return "the composition is included by nobody";
  if (to.floor == Floor::adapter) return "only the composition includes an adapter";
  if (from.floor == Floor::adapter) {
    return to.floor <= Floor::platform ? "" : "an adapter knows the platform, not the rules";
  }
  if (to.floor > from.floor) return "an include runs upwards";
  const bool rules = to.floor == Floor::services || to.floor == Floor::screens;
  if (rules && to.floor == from.floor && to.order > from.order) return "an include runs to a later room";
  if (to.floor == Floor::screens && isScreen(header)) return "a screen of another room is asked of the registry";
  return {};
}

class FloorCheck {
 public:
  explicit FloorCheck(const std::vector<SourceFile>& tree) {
    for (const SourceFile& file : tree) {
      if (file.path.starts_with("src/") && isCpp(file.path)) files_[file.path.substr(4)] = includesOf(file.text);
    }
  }

  std::vector<Finding> run() {
    for (const auto& [path, includes] : files_) check(path, includes);
    return std::move(findings_);
  }

 private:
  void add(const std::string& path, std::size_t line, const std::string& what) {
    findings_.push_back({"src/" + path, line, what});
  }

  void check(const std::string& path, const std::vector<Include>& includes) {
    const std::optional<Place> place = placeOf(path);
    if (!place) return add(path, 0, "the folder stands on no floor");
    checkOwnHeaderFirst(path, includes);
    for (const Include& include : includes) {
      if (const Library* library = libraryOf(include)) {
        if (!startsWithAny(place->folder, library->folders)) {
          add(path, include.line, std::string(library->name) + " outside its adapter: " + include.header);
        }
      } else if (!include.library) {
        checkInclude(path, *place, include);
      }
    }
  }

  void checkOwnHeaderFirst(const std::string& path, const std::vector<Include>& includes) {
    if (!path.ends_with(".cpp")) return;
    const std::string header = path.substr(0, path.size() - 4) + ".h";
    if (files_.count(header) == 0) return;
    if (includes.empty() || includes.front().header != header) {
      add(path, includes.empty() ? 0 : includes.front().line, "the first include is not " + header);
    }
  }

  void checkInclude(const std::string& path, const Place& place, const Include& include) {
    if (files_.count(include.header) == 0) return add(path, include.line, "not a path below src/: " + include.header);
    const std::optional<Place> target = placeOf(include.header);
    if (!target) return;
    const std::string why = refusal(place, *target, include.header);
    if (!why.empty()) return add(path, include.line, why + ": " + include.header);
    const bool rules = place.floor == Floor::services || place.floor == Floor::screens;
    if (rules && target->floor == Floor::platform) {
      std::set<std::string> seen;
      const Library* library = libraryBehind(include.header, seen);
      if (library != nullptr) add(path, include.line, include.header + " brings in " + std::string(library->name));
    }
  }

  /// The first library that a header includes by itself or by way of others.
  const Library* libraryBehind(const std::string& header, std::set<std::string>& seen) const {
    if (!seen.insert(header).second) return nullptr;
    const auto file = files_.find(header);
    if (file == files_.end()) return nullptr;
    for (const Include& include : file->second) {
      const Library* library = include.library ? libraryOf(include) : libraryBehind(include.header, seen);
      if (library != nullptr) return library;
    }
    return nullptr;
  }

  std::map<std::string, std::vector<Include>> files_;
  std::vector<Finding> findings_;
};

}  // namespace

std::vector<Finding> checkFloors(const std::vector<SourceFile>& tree) { return FloorCheck(tree).run(); }

}  // namespace fenvale::lint
