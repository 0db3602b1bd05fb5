#include "platform/base/Text.h"

#include <gtest/gtest.h>

namespace fenvale {
namespace {

TEST(Text, LengthsAndCutsCountCharacters) {
  EXPECT_EQ(length("São João"), 8U);
  EXPECT_EQ(left("açaí", 3), "aça");
  EXPECT_EQ(left("açaí", 9), "açaí");
  EXPECT_EQ(right("açaí", 2), "aí");
  EXPECT_EQ(mid("açaí", 2, 2), "ça");
  EXPECT_EQ(mid("açaí", 2), "çaí");
  EXPECT_EQ(mid("açaí", 5), "");
  EXPECT_EQ(mid("açaí", 1, 0), "");
}

TEST(Text, LetterCaseOfAccentedLetters) {
  EXPECT_EQ(toUpper("praça da sé ÿ"), "PRAÇA DA SÉ ÿ");
  EXPECT_EQ(toLower("AÇÃO ÷ × Ü"), "ação ÷ × ü");
  EXPECT_TRUE(equalsNoCase("ÓRGÃO", "órgão"));
  EXPECT_FALSE(equalsNoCase("orgao", "órgão"));
  EXPECT_TRUE(endsWithNoCase("loja.mdb", ".MDB"));
  EXPECT_FALSE(endsWithNoCase("mdb", ".MDB"));
}

TEST(Text, BlanksAreBlanksOnly) {
  EXPECT_EQ(trim("  a b \t"), "a b \t");
  EXPECT_EQ(trimRight("a  "), "a");
  EXPECT_EQ(trimRight("   "), "");
  EXPECT_EQ(trim("\xC2\xA0"), "\xC2\xA0");
  EXPECT_EQ(without("11.444-7 /7", " .-/"), "1144477");
  EXPECT_EQ(replaceAll("a'b''c", "'", "''"), "a''b''''c");
  EXPECT_EQ(replaceAll("abc", "", "x"), "abc");
}

TEST(Text, EveryCodeOfWindows1252GoesThereAndBack) {
  for (int code = 0; code < 256; ++code) {
    const std::string byte(1, static_cast<char>(static_cast<unsigned char>(code)));
    ASSERT_EQ(toWindows1252(fromWindows1252(byte)), byte) << code;
  }
  EXPECT_EQ(fromWindows1252("\x80 \xE7 \x99"), "€ ç ™");
  EXPECT_EQ(windows1252Code(U'€'), 128);
  EXPECT_EQ(windows1252Code(U'Ω'), -1);
  EXPECT_EQ(toWindows1252("Ω e ç"), "? e \xE7");
}

TEST(Text, BytesThatAreNoUtf8StandForThemselves) {
  for (const char* text : {"\xE7", "\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF5\x80\x80\x80", "\xE2\x82"}) {
    const DecodedCharacter decoded = decodeUtf8(text, 0);
    EXPECT_EQ(decoded.code, U'\uFFFD') << text;
    EXPECT_EQ(decoded.bytes, 1U) << text;
  }
  EXPECT_EQ(decodeUtf8("€", 0).code, U'€');
  EXPECT_EQ(decodeUtf8("😀", 0).bytes, 4U);
}

}  // namespace
}  // namespace fenvale
