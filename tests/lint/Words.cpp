#include "lint/Words.h"

#include <algorithm>
#include <optional>
#include <regex>

namespace fenvale::lint {
namespace {

constexpr std::size_t longestFile = 800;

/// The words are written in two pieces so that this file may be checked by itself.
std::string join(const char* first, const char* second) { return std::string(first) + second; }

const std::vector<std::string>& forbiddenWords() {
  static const std::vector<std::string> words{join("TO", "DO"), join("FIX", "ME"), join("XX", "X"), join("HA", "CK"),
                                              join("GTEST_", "SKIP")};
  return words;
}

const std::vector<std::string>& forbiddenPieces() {
  static const std::vector<std::string> pieces{join("/wo", "rk/"), join("DIS", "ABLED_"), join("sp", "ec.md")};
  return pieces;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// The word, or its plural, with a number behind it.
bool refersToNumberedPart(const std::string& line) {
  static const std::string word = join("Pa", "rt");
  for (std::size_t at = line.find(word); at != std::string::npos; at = line.find(word, at + 1)) {
    std::size_t end = at + word.size();
    if (end < line.size() && line[end] == 's') ++end;
    if (end + 1 < line.size() && line[end] == ' ' && isDigit(line[end + 1])) return true;
  }
  return false;
}

bool hasWord(const std::string& line, const std::string& word) {
  for (std::size_t at = line.find(word); at != std::string::npos; at = line.find(word, at + 1)) {
    if (isWordAt(line, at, word)) return true;
  }
  return false;
}

bool hasCall(const std::string& line, const std::string& name) {
  for (std::size_t at = line.find(name); at != std::string::npos; at = line.find(name, at + 1)) {
    if (isWordAt(line, at, name) && line.substr(at + name.size(), 1) == "(") return true;
  }
  return false;
}

/// Calls whose result hangs on the process's locale.
std::optional<std::string> localeCall(const std::string& code, const std::string& whole) {
  static const std::vector<std::string> calls{"setlocale", "localeconv", "atof",  "strtod",   "strtof", "strtold",
                                              "stod",      "stof",       "stold", "strftime", "strcoll"};
  for (const std::string& call : calls) {
    if (hasCall(code, call)) return call;
  }
  static const std::regex floatFormat("printf.*%[-+ #0-9.*]*[aAeEfFgG]");
  if (code.find("printf") != std::string::npos && std::regex_search(whole, floatFormat)) return "printf of a real";
  static const std::regex realToText(R"(to_string\([^)]*(double|float|[0-9]\.[0-9]))");
  if (code.find("to_string") != std::string::npos && std::regex_search(code, realToText)) return "to_string of a real";
  if (whole.find("std::locale(\"\")") != std::string::npos) return "the user's locale";
  return std::nullopt;
}

/// A handler of everything must hand the exception on, now or later.
bool swallows(const std::vector<std::string>& code, std::size_t line) {
  constexpr std::size_t handlerLines = 12;
  for (std::size_t i = line; i < std::min(code.size(), line + handlerLines); ++i) {
    if (hasWord(code[i], "throw") || hasWord(code[i], "current_exception") || hasWord(code[i], "rethrow_exception") ||
        hasWord(code[i], "terminate")) {
      return false;
    }
    if (i > line && code[i].starts_with("}")) break;
  }
  return true;
}

}  // namespace

std::vector<Finding> checkWords(const SourceFile& file) {
  std::vector<Finding> findings;
  const std::vector<std::string> lines = linesOf(file.text);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto add = [&](const std::string& what) { findings.push_back({file.path, i + 1, what}); };
    for (const std::string& word : forbiddenWords()) {
      if (hasWord(lines[i], word)) add(word);
    }
    for (const std::string& piece : forbiddenPieces()) {
      if (lines[i].find(piece) != std::string::npos) add(piece);
    }
    if (refersToNumberedPart(lines[i])) add("a reference to a paper outside the tree");
  }
  return findings;
}

std::vector<Finding> checkCode(const SourceFile& file) {
  std::vector<Finding> findings;
  if (!isCpp(file.path)) return findings;
  const std::vector<std::string> whole = linesOf(file.text);
  const std::vector<std::string> code = linesOf(codeOf(file.text));
  if (whole.size() > longestFile) findings.push_back({file.path, 0, "longer than 800 lines"});
  for (std::size_t i = 0; i < code.size(); ++i) {
    const auto add = [&](const std::string& what) { findings.push_back({file.path, i + 1, what}); };
    if (const auto call = localeCall(code[i], whole[i])) add("hangs on the locale: " + *call);
    if (code[i].find("catch (...)") != std::string::npos && swallows(code, i)) add("swallows every exception");
    if (file.path.starts_with("tests/") && (hasCall(code[i], "sleep_for") || hasCall(code[i], "usleep"))) {
      add("sleeps in a test");
    }
  }
  return findings;
}

}  // namespace fenvale::lint
