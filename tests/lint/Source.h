#pragma once

#include <cstddef>
#include <map>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace fenvale::lint {

/// A file of the tree. `path` is relative to the root, with "/".
struct SourceFile {
  std::string path;
  std::string text;
};

/// A line that breaks a rule of the house. `line` counts from 1; 0 speaks of the whole file.
struct Finding {
  std::string path;
  std::size_t line = 0;
  std::string what;

  bool operator==(const Finding&) const = default;
};

std::ostream& operator<<(std::ostream& out, const Finding& finding);

/// One `#include` line. `library` is true for the form with angle brackets.
struct Include {
  std::string header;
  bool library = false;
  std::size_t line = 0;
};

bool startsWithAny(std::string_view text, const std::vector<std::string_view>& prefixes);
bool isCpp(std::string_view path);

std::vector<std::string> linesOf(std::string_view text);
std::vector<Include> includesOf(std::string_view text);

/// The same text with comments and the contents of literals blanked; lines keep their numbers and their lengths.
std::string codeOf(std::string_view text);

/// Whether `word` stands at `at`, not as a part of a longer name.
bool isWordAt(std::string_view text, std::size_t at, std::string_view word);

/// The text files of the project: what is under version control or about to be, else (no git, an unpacked archive)
/// every file outside the folders that hold only what was built.
std::vector<SourceFile> readTree(const std::string& root);

}  // namespace fenvale::lint
