// The rules of the house, on the tree as it stands.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lint/Floors.h"
#include "lint/Source.h"
#include "lint/Words.h"

namespace fenvale::lint {
namespace {

using ::testing::IsEmpty;

const std::vector<SourceFile>& tree() {
  static const std::vector<SourceFile> files = readTree(FENVALE_SOURCE_DIR);
  return files;
}

TEST(Tree, IsFound) { EXPECT_GT(tree().size(), 50U); }

TEST(Tree, IncludesRunDownwardsAndLibrariesStayInTheirAdapters) { EXPECT_THAT(checkFloors(tree()), IsEmpty()); }

TEST(Tree, HoldsNoForbiddenWord) {
  std::vector<Finding> findings;
  for (const SourceFile& file : tree()) {
    for (Finding& finding : checkWords(file)) findings.push_back(std::move(finding));
  }
  EXPECT_THAT(findings, IsEmpty());
}

TEST(Tree, HangsOnNoLocaleAndHidesNoFailure) {
  std::vector<Finding> findings;
  for (const SourceFile& file : tree()) {
    for (Finding& finding : checkCode(file)) findings.push_back(std::move(finding));
  }
  EXPECT_THAT(findings, IsEmpty());
}

}  // namespace
}  // namespace fenvale::lint
