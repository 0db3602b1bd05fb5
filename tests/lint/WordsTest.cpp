#include "lint/Words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fenvale::lint {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<Finding> words(const std::string& text) { return checkWords({"docs/a.md", text}); }
std::vector<Finding> code(const std::string& text) { return checkCode({"src/platform/base/A.cpp", text}); }
Finding inCode(std::size_t line, const std::string& what) { return {"src/platform/base/A.cpp", line, what}; }

TEST(Words, MarksOfUnfinishedWorkAreFound) {
  const std::string mark =
      "TO"
      "DO";
  EXPECT_THAT(words("fine\n// " + mark + ": later\n"), ElementsAre(Finding{"docs/a.md", 2, mark}));
  EXPECT_THAT(words("Mostrar " + mark + "S os registros"), IsEmpty());
}

TEST(Words, DisabledTestsAreFound) {
  const std::string mark =
      "DIS"
      "ABLED_";
  EXPECT_THAT(words("TEST(A, " + mark + "B) {"), ElementsAre(Finding{"docs/a.md", 1, mark}));
}

TEST(Words, PathsOfAMachineAreFound) {
  const std::string path =
      "/wo"
      "rk/";
  EXPECT_THAT(words("cp " + path + "file ."), ElementsAre(Finding{"docs/a.md", 1, path}));
}

TEST(Words, ReferencesToNumberedPapersAreFound) {
  const std::string word =
      "Pa"
      "rt";
  EXPECT_THAT(words("as told in " + word + " 2.5\n" + word + "s 1 and 2\n"),
              ElementsAre(Finding{"docs/a.md", 1, "a reference to a paper outside the tree"},
                          Finding{"docs/a.md", 2, "a reference to a paper outside the tree"}));
  EXPECT_THAT(words(word + " of the list; " + word + "ial 2"), IsEmpty());
}

TEST(Code, CallsThatHangOnTheLocaleAreFound) {
  EXPECT_THAT(code("double d = std::stod(s);\nsetlocale(0, s);\nauto v = strtod(p, nullptr);\n"),
              ElementsAre(inCode(1, "hangs on the locale: stod"), inCode(2, "hangs on the locale: setlocale"),
                          inCode(3, "hangs on the locale: strtod")));
  EXPECT_THAT(code("std::snprintf(b, n, \"%.2f\", d);\n"),
              ElementsAre(inCode(1, "hangs on the locale: printf of a real")));
  EXPECT_THAT(code("std::to_string(static_cast<double>(n));\n"),
              ElementsAre(inCode(1, "hangs on the locale: to_string of a real")));
}

TEST(Code, OfIntegersCommentsAndTextsNothingIsFound) {
  EXPECT_THAT(
      code("std::to_string(n);\nstd::snprintf(b, n, \"%06d\", d);\n// stod(x) would be wrong\n"
           "auto s = \"atof(1)\";\nauto r = R\"(strtod(x))\";\nauto n = 1'000'000; /* atof(\n */ int mystod(int);\n"),
      IsEmpty());
}

TEST(Code, AHandlerOfEverythingHandsTheExceptionOn) {
  EXPECT_THAT(code("try {\n} catch (...) {\n  count = 0;\n}\n"), ElementsAre(inCode(2, "swallows every exception")));
  EXPECT_THAT(code("try {\n} catch (...) {\n  undo();\n  throw;\n}\n"), IsEmpty());
  EXPECT_THAT(code("try {\n} catch (...) {\n  kept = std::current_exception();\n}\n"), IsEmpty());
}

TEST(Code, AFileStaysReadable) {
  EXPECT_THAT(code(std::string(800, '\n')), IsEmpty());
  EXPECT_THAT(code(std::string(801, '\n')), ElementsAre(inCode(0, "longer than 800 lines")));
}

TEST(Code, ATestNeverSleeps) {
  EXPECT_THAT(checkCode({"tests/a/B.cpp", "std::this_thread::sleep_for(1s);\n"}),
              ElementsAre(Finding{"tests/a/B.cpp", 1, "sleeps in a test"}));
}

}  // namespace
}  // namespace fenvale::lint
