// The icon set: one hand in all of them, so that the renderer may recolour them by one replacement, and none missing
// that a button names (a missing one would only draw nothing).
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

namespace {

using ::testing::IsEmpty;
using ::testing::StartsWith;

namespace fs = std::filesystem;

const fs::path source{FENVALE_SOURCE_DIR};

std::string read(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::set<std::string> icons() {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(source / "data/icones")) {
    if (entry.path().extension() == ".svg") names.insert(entry.path().stem().string());
  }
  return names;
}

std::set<std::string> namedByButtons(const std::string& text) {
  static const std::regex button(R"re(Button \w+\{\*this,\s*"[^"]*",\s*"[^"]*",\s*"([^"]+)")re");
  std::set<std::string> names;
  for (std::sregex_iterator at(text.begin(), text.end(), button), end; at != end; ++at) names.insert((*at)[1]);
  return names;
}

TEST(Icons, AreDrawnInOneColourWithOneWeightOnOneGrid) {
  EXPECT_GT(icons().size(), 40U);
  for (const std::string& name : icons()) {
    const std::string text = read(source / "data/icones" / (name + ".svg"));
    EXPECT_THAT(text, StartsWith("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"24\" height=\"24\" "
                                 "viewBox=\"0 0 24 24\" fill=\"none\" stroke=\"#1d2422\" stroke-width=\"1.75\" "
                                 "stroke-linecap=\"round\" stroke-linejoin=\"round\">\n"))
        << name;
    EXPECT_EQ(text.find("stroke=", text.find('>')), std::string::npos) << name;
    EXPECT_EQ(text.find("fill=", text.find('>')), std::string::npos) << name;
  }
}

TEST(Icons, ThePatternFindsTheNameInAButton) {
  EXPECT_THAT(namedByButtons("  Button cmdNovo{*this, \"cmdNovo\", \"&Novo\", \"novo\", Key::f2};\n"
                             "  Button cmdIr{*this, \"cmdIr\", \"Ir\"};\n"),
              ::testing::ElementsAre("novo"));
}

TEST(Icons, EveryNameThatAButtonUsesIsThere) {
  const std::set<std::string> there = icons();
  std::set<std::string> missing;
  for (const auto& entry : fs::recursive_directory_iterator(source / "src")) {
    const std::string ending = entry.path().extension().string();
    if (ending != ".h" && ending != ".cpp") continue;
    for (const std::string& name : namedByButtons(read(entry.path()))) {
      if (there.count(name) == 0) missing.insert(name + " in " + entry.path().filename().string());
    }
  }
  EXPECT_THAT(missing, IsEmpty());
}

}  // namespace
