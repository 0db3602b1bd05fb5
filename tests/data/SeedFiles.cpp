// The two seed files as they are shipped: every row in its place, and bytes that any XML reader takes without a
// repair, whatever encoding it assumes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Pair;

using Row = std::pair<std::string, std::string>;

std::string shipped(const std::string& name) {
  std::ifstream file(FENVALE_SOURCE_DIR "/data/" + name, std::ios::binary);
  EXPECT_TRUE(file.is_open()) << name;
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> lines(const std::string& text) {
  std::vector<std::string> found;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = text.find("\r\n", begin);
    EXPECT_NE(end, std::string::npos) << "a line without CR LF";
    if (end == std::string::npos) break;
    found.push_back(text.substr(begin, end - begin));
    begin = end + 2;
  }
  return found;
}

/// What stands between `open` and `close`, which must both be there.
std::string between(const std::string& line, const std::string& open, const std::string& close) {
  const std::size_t begin = line.find(open);
  const std::size_t end = line.find(close);
  if (begin == std::string::npos || end == std::string::npos) {
    ADD_FAILURE() << line;
    return {};
  }
  return line.substr(begin + open.size(), end - begin - open.size());
}

std::string element(const std::string& name, const std::string& content) {
  return "<" + name + ">" + content + "</" + name + ">";
}

/// The rows of a file that holds one element per line between its first two lines and its last.
std::vector<Row> rows(const std::string& file, const std::string& name, const std::string& first,
                      const std::string& second) {
  const std::vector<std::string> all = lines(shipped(file));
  EXPECT_GT(all.size(), 3U);
  if (all.size() <= 3) return {};
  EXPECT_EQ(all.front(), "<?xml version=\"1.0\"?>");
  const std::string root = between(all[1], "<", ">");
  EXPECT_EQ(all.back(), "</" + root + ">");
  std::vector<Row> found;
  for (std::size_t i = 2; i + 1 < all.size(); ++i) {
    Row row{between(all[i], "<" + first + ">", "</" + first + ">"),
            between(all[i], "<" + second + ">", "</" + second + ">")};
    // Read by place: nothing may stand before, between or behind the two.
    EXPECT_EQ(all[i], element(name, element(first, row.first) + element(second, row.second)));
    found.push_back(std::move(row));
  }
  return found;
}

std::vector<Row> cities() { return rows("Cidades.XML", "Cid", "sUF", "sNome"); }
std::vector<Row> banks() { return rows("Bancos.XML", "bc", "iCodigoInf", "sNome"); }

class SeedFile : public ::testing::TestWithParam<const char*> {};

TEST_P(SeedFile, IsPlainAsciiWithLinesOfCrLf) {
  const std::string text = shipped(GetParam());
  std::size_t returns = 0;
  std::size_t feeds = 0;
  for (const char c : text) {
    ASSERT_TRUE((c >= ' ' && c <= '~') || c == '\r' || c == '\n') << "code " << static_cast<int>(c);
    returns += c == '\r' ? 1U : 0U;
    feeds += c == '\n' ? 1U : 0U;
  }
  EXPECT_EQ(returns, feeds);
  EXPECT_EQ(lines(text).size(), feeds);
}

TEST_P(SeedFile, EveryAmpersandBeginsADecimalReference) {
  const std::string text = shipped(GetParam());
  for (std::size_t at = text.find('&'); at != std::string::npos; at = text.find('&', at + 1)) {
    const std::size_t end = text.find(';', at);
    ASSERT_NE(end, std::string::npos);
    const std::string reference = text.substr(at, end - at);
    ASSERT_GT(reference.size(), 2U);
    EXPECT_EQ(reference[1], '#');
    EXPECT_TRUE(std::all_of(reference.begin() + 2, reference.end(), [](char c) { return c >= '0' && c <= '9'; }))
        << reference;
  }
}

TEST_P(SeedFile, HasNoRowTwiceAndNoBlankAroundAValue) {
  const std::vector<Row> all = std::string(GetParam()) == "Cidades.XML" ? cities() : banks();
  EXPECT_EQ(std::set<Row>(all.begin(), all.end()).size(), all.size());
  for (const auto& [first, second] : all) {
    for (const std::string& value : {first, second}) {
      ASSERT_FALSE(value.empty());
      EXPECT_NE(value.front(), ' ') << value;
      EXPECT_NE(value.back(), ' ') << value;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Shipped, SeedFile, ::testing::Values("Cidades.XML", "Bancos.XML"),
                         [](const auto& file) { return std::string(file.param, 6); });

TEST(SeedCities, HoldTheWholeCountryByState) {
  const std::vector<Row> all = cities();
  EXPECT_EQ(all.size(), 5571U);
  std::set<std::string> states;
  for (const auto& row : all) states.insert(row.first);
  EXPECT_THAT(states, ElementsAre("AC", "AL", "AM", "AP", "BA", "CE", "DF", "ES", "GO", "MA", "MG", "MS", "MT", "PA",
                                  "PB", "PE", "PI", "PR", "RJ", "RN", "RO", "RR", "RS", "SC", "SE", "SP", "TO"));
}

TEST(SeedCities, KeepAccentsAndApostrophes) {
  EXPECT_THAT(cities(),
              AllOf(Contains(Pair("SP", "S&#227;o Paulo")), Contains(Pair("SP", "Santa B&#225;rbara d'Oeste")),
                    Contains(Pair("DF", "Bras&#237;lia")), Contains(Pair("PA", "Pau D'Arco"))));
}

TEST(SeedBanks, HoldANumberOfSixteenBitsEachOnlyOnce) {
  const std::vector<Row> all = banks();
  EXPECT_EQ(all.size(), 463U);
  std::set<std::string> numbers;
  for (const auto& row : all) {
    EXPECT_LE(row.first.size(), 4U) << row.first;
    EXPECT_TRUE(std::all_of(row.first.begin(), row.first.end(), [](char c) { return c >= '0' && c <= '9'; }));
    EXPECT_NE(row.first.front(), '0');
    numbers.insert(row.first);
  }
  EXPECT_EQ(numbers.size(), all.size());
  EXPECT_THAT(all, AllOf(Contains(Pair("1", "Banco do Brasil S.A.")),
                         Contains(Pair("3", "Banco da Amaz&#244;nia S.A.")), Contains(Pair("104", testing::_))));
}

}  // namespace
