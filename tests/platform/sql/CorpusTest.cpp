// What the fuzzer of statements has found or was given to start from.

#include <filesystem>
#include <fstream>

#include "fuzz/sql_statement.h"
#include "platform/sql/StoreFixture.h"

namespace fenvale::test {
namespace {

TEST(Corpus, EveryStatementIsRefusedOrPrintsItselfBack) {
  std::size_t count = 0;
  for (const auto& entry : std::filesystem::directory_iterator(FENVALE_SOURCE_DIR "/fuzz/corpus/sql_statement")) {
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string text((std::istreambuf_iterator<char>(file)), {});
    EXPECT_EQ(fuzz::sqlStatement(text), "") << entry.path();
    ++count;
  }
  EXPECT_GE(count, 16u);
}

}  // namespace
}  // namespace fenvale::test
