#include "lint/Source.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>
#include <sstream>

namespace fenvale::lint {
namespace {

bool isNameCharacter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

std::string read(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string outputOf(const std::string& command) {
  struct Close {
    void operator()(std::FILE* pipe) const { pclose(pipe); }
  };
  const std::unique_ptr<std::FILE, Close> pipe(popen(command.c_str(), "r"));
  std::string output;
  if (!pipe) return output;
  std::array<char, 4096> buffer{};
  for (std::size_t n = 0; (n = std::fread(buffer.data(), 1, buffer.size(), pipe.get())) > 0;) {
    output.append(buffer.data(), n);
  }
  return output;
}

std::set<std::string> filesUnderGit(const std::string& root) {
  // The tree may belong to another user than the one who tests; reading its list of files is safe.
  std::istringstream names(outputOf("git -c safe.directory='*' -C '" + root +
                                    "' ls-files -z --cached --others --exclude-standard 2>/dev/null"));
  std::set<std::string> files;
  for (std::string name; std::getline(names, name, '\0');) files.insert(name);
  return files;
}

std::set<std::string> filesOnDisk(const std::string& root) {
  static const std::vector<std::string_view> notOurs{".git/", "build/", "instalacao/"};
  std::set<std::string> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    const std::string path = std::filesystem::relative(entry.path(), root).generic_string();
    if (entry.is_regular_file() && !startsWithAny(path, notOurs)) files.insert(path);
  }
  return files;
}

/// Blanks what the compiler does not run, one character at a time.
class Blanker {
 public:
  explicit Blanker(std::string_view text) : text_(text), code_(text) {}

  std::string run() {
    while (at_ < text_.size()) step();
    return std::move(code_);
  }

 private:
  void step() {
    if (ahead("//")) return blankUntil(std::min(text_.find('\n', at_), text_.size()));
    if (ahead("/*")) return blankThrough("*/");
    if (ahead("R\"") && (at_ == 0 || !isNameCharacter(text_[at_ - 1]))) return rawString();
    if (text_[at_] == '"') return literal('"');
    // 1'000'000 holds no character literal.
    if (text_[at_] == '\'' && (at_ == 0 || !isNameCharacter(text_[at_ - 1]))) return literal('\'');
    ++at_;
  }

  bool ahead(std::string_view token) const { return text_.substr(at_, token.size()) == token; }

  void blankUntil(std::size_t end) {
    for (; at_ < end; ++at_) {
      if (text_[at_] != '\n') code_[at_] = ' ';
    }
  }

  void blankThrough(std::string_view token) {
    const std::size_t end = text_.find(token, at_ + 2);
    blankUntil(end == std::string_view::npos ? text_.size() : end + token.size());
  }

  void rawString() {
    const std::size_t open = std::min(text_.find('(', at_), text_.size());
    blankThrough(")" + std::string(text_.substr(at_ + 2, open - at_ - 2)) + "\"");
  }

  void literal(char quote) {
    std::size_t end = at_ + 1;
    while (end < text_.size() && text_[end] != quote && text_[end] != '\n') end += text_[end] == '\\' ? 2U : 1U;
    ++at_;
    blankUntil(std::min(end, text_.size()));
    ++at_;
  }

  std::string_view text_;
  std::string code_;
  std::size_t at_ = 0;
};

}  // namespace

std::ostream& operator<<(std::ostream& out, const Finding& finding) {
  return out << finding.path << ":" << finding.line << ": " << finding.what;
}

bool startsWithAny(std::string_view text, const std::vector<std::string_view>& prefixes) {
  return std::any_of(prefixes.begin(), prefixes.end(), [text](std::string_view p) { return text.starts_with(p); });
}

bool isCpp(std::string_view path) { return path.ends_with(".h") || path.ends_with(".cpp"); }

std::vector<std::string> linesOf(std::string_view text) {
  std::vector<std::string> lines;
  std::istringstream in{std::string(text)};
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

std::vector<Include> includesOf(std::string_view text) {
  std::vector<Include> found;
  const std::vector<std::string> lines = linesOf(text);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string& line = lines[i];
    if (line.rfind("#include ", 0) != 0) continue;
    const std::size_t open = line.find_first_of("<\"");
    if (open == std::string::npos) continue;
    const bool library = line[open] == '<';
    const std::size_t close = line.find(library ? '>' : '"', open + 1);
    if (close == std::string::npos) continue;
    found.push_back({line.substr(open + 1, close - open - 1), library, i + 1});
  }
  return found;
}

std::string codeOf(std::string_view text) { return Blanker(text).run(); }

bool isWordAt(std::string_view text, std::size_t at, std::string_view word) {
  if (text.substr(at, word.size()) != word) return false;
  const std::size_t end = at + word.size();
  return (at == 0 || !isNameCharacter(text[at - 1])) && (end >= text.size() || !isNameCharacter(text[end]));
}

std::vector<SourceFile> readTree(const std::string& root) {
  std::set<std::string> names = filesUnderGit(root);
  if (names.empty()) names = filesOnDisk(root);
  std::vector<SourceFile> tree;
  for (const std::string& name : names) {
    const std::filesystem::path path = std::filesystem::path(root) / name;
    if (!std::filesystem::is_regular_file(path)) continue;  // deleted, not yet committed
    std::string text = read(path);
    if (text.find('\0') == std::string::npos) tree.push_back({name, std::move(text)});
  }
  return tree;
}

}  // namespace fenvale::lint
