// What the documents point to is there: files of the tree and headings of the documents themselves.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <regex>

#include "lint/Source.h"

namespace fenvale::lint {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// The name under which a heading can be linked to.
std::string anchorOf(const std::string& heading) {
  std::string anchor;
  for (const char c : heading) {
    if (c == ' ') anchor += '-';
    if (c >= 'A' && c <= 'Z') anchor += static_cast<char>(c - 'A' + 'a');
    const bool accented = static_cast<unsigned char>(c) >= 0x80;
    if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || accented) anchor += c;
  }
  return anchor;
}

bool hasHeading(const std::string& text, const std::string& anchor) {
  for (const std::string& line : linesOf(text)) {
    const std::size_t begin = line.find_first_not_of('#');
    if (line.starts_with('#') && begin != std::string::npos && anchorOf(line.substr(begin + 1)) == anchor) return true;
  }
  return false;
}

/// The links of a document that lead nowhere. `files` are the whole tree, by path.
std::vector<std::string> brokenLinks(const SourceFile& document, const std::map<std::string, std::string>& files) {
  static const std::regex link(R"re(\]\(([^)\s]*)\)|src="([^"]+)")re");
  namespace fs = std::filesystem;
  std::vector<std::string> broken;
  for (std::sregex_iterator at(document.text.begin(), document.text.end(), link), end; at != end; ++at) {
    const std::string target = (*at)[1].matched ? (*at)[1].str() : (*at)[2].str();
    if (target.find("://") != std::string::npos) continue;
    const std::size_t hash = std::min(target.find('#'), target.size());
    const std::string name = target.substr(0, hash);
    const std::string path =
        name.empty() ? document.path : (fs::path(document.path).parent_path() / name).lexically_normal().string();
    const auto file = files.find(path);
    const bool there = file != files.end() || fs::exists(fs::path(FENVALE_SOURCE_DIR) / path);
    const bool anchored =
        hash == target.size() || (file != files.end() && hasHeading(file->second, target.substr(hash + 1)));
    if (!there || !anchored) broken.push_back(document.path + ": " + target);
  }
  return broken;
}

TEST(Links, ToNowhereAreFound) {
  const std::map<std::string, std::string> files{{"docs/a.md", "# A\n## Adding a screen\n## Ação\n"}};
  EXPECT_THAT(
      brokenLinks({"docs/a.md", "[x](nowhere.md) [y](#adding-a-screen) [z](#b) [w](https://a.b/c) [v](#ação)"}, files),
      ElementsAre("docs/a.md: nowhere.md", "docs/a.md: #b"));
  EXPECT_THAT(brokenLinks({"README.md", "[x](docs/a.md#adding-a-screen) <img src=\"none.png\">"}, files),
              ElementsAre("README.md: none.png"));
}

TEST(Links, OfTheDocumentsLeadSomewhere) {
  std::map<std::string, std::string> files;
  std::vector<SourceFile> tree = readTree(FENVALE_SOURCE_DIR);
  for (const SourceFile& file : tree) files[file.path] = file.text;
  std::vector<std::string> broken;
  for (const SourceFile& file : tree) {
    if (!file.path.ends_with(".md")) continue;
    for (std::string& one : brokenLinks(file, files)) broken.push_back(std::move(one));
  }
  EXPECT_THAT(broken, IsEmpty());
}

}  // namespace
}  // namespace fenvale::lint
