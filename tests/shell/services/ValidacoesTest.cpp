#include "shell/services/Validacoes.h"

#include <gtest/gtest.h>

namespace fenvale {
namespace {

/// The answer of a check and what it leaves in its argument.
template <typename Check>
std::pair<bool, std::string> tried(Check check, std::string text) {
  const bool answer = check(text);
  return {answer, text};
}

std::pair<bool, std::string> cpf(const std::string& text) { return tried(Validacoes::bValidarCPF, text); }
std::pair<bool, std::string> cnpj(const std::string& text) { return tried(Validacoes::bValidarCNPJ, text); }
std::pair<bool, std::string> email(const std::string& text) { return tried(Validacoes::bValidarEMail, text); }
using Result = std::pair<bool, std::string>;

TEST(CPF, ARightNumberComesBackClean) {
  EXPECT_EQ(cpf("111.444.777-35"), Result(true, "11144477735"));
  EXPECT_EQ(cpf(" 111 444/777-35 "), Result(true, "11144477735"));
}

TEST(CPF, EachCheckDigitCounts) {
  EXPECT_EQ(cpf("111.444.777-45"), Result(false, "11144477745"));
  EXPECT_EQ(cpf("111.444.777-36"), Result(false, "11144477736"));
}

TEST(CPF, OnlyElevenCharactersAreJudged) {
  EXPECT_EQ(cpf("111.444.777-3"), Result(false, "1114447773"));
  EXPECT_EQ(cpf("111.444.777-355"), Result(false, "111444777355"));
  EXPECT_EQ(cpf(""), Result(false, ""));
}

TEST(CPF, OneRepeatedDigitPassesWhenItFits) {
  EXPECT_TRUE(cpf("111.111.111-11").first);
  EXPECT_TRUE(cpf("00000000000").first);
}

TEST(CPF, ACharacterThatIsNoDigitCountsAsZero) {
  EXPECT_TRUE(cpf("aaaaaaaaaaa").first);
  EXPECT_TRUE(cpf("çççççççççç0").first);
  EXPECT_FALSE(cpf("1114447773a").first);
}

TEST(CPF, ARemainderOfOneOrNoneGivesTheDigitZero) {
  EXPECT_TRUE(cpf("529.982.247-25").first);
  EXPECT_TRUE(cpf("390.533.447-05").first);
}

TEST(CNPJ, ARightNumberComesBackClean) {
  EXPECT_EQ(cnpj("11.444.777/0001-61"), Result(true, "11444777000161"));
  EXPECT_EQ(cnpj("11.222.333/0001-81"), Result(true, "11222333000181"));
}

TEST(CNPJ, EachCheckDigitCounts) {
  EXPECT_FALSE(cnpj("11.444.777/0001-71").first);
  EXPECT_FALSE(cnpj("11.444.777/0001-62").first);
}

TEST(CNPJ, ZerosAloneAreNoNumber) {
  EXPECT_FALSE(cnpj("00.000.000/0000-00").first);
  EXPECT_FALSE(cnpj("00000000").first);
}

TEST(CNPJ, NumbersWithLettersAreJudgedToo) {
  EXPECT_EQ(cnpj("12.ABC.345/01DE-35"), Result(true, "12ABC34501DE35"));
  EXPECT_FALSE(cnpj("12.ABC.345/01DE-53").first);
  EXPECT_FALSE(cnpj("12.ABD.345/01DE-35").first);
  EXPECT_FALSE(cnpj("12.abc.345/01de-35").first);
  EXPECT_FALSE(cnpj("12.ABC.345/01DE-3Z").first);
}

TEST(CNPJ, ARootOfEightDigitsHasItsOwnCheck) {
  int valid = 0;
  for (char last = '0'; last <= '9'; ++last)
    if (cnpj(std::string("1144477") + last).first) ++valid;
  EXPECT_EQ(valid, 1);
  // (1*2)+1+(4*2)+4+(4*2)+7+(7*2 -> 1+4) = 35, and 5 are missing to the next ten.
  EXPECT_TRUE(cnpj("11444775").first);
  // 2+2+6+4+(10 -> 1)+6+(14 -> 5) = 26: 4 are missing.
  EXPECT_TRUE(cnpj("12345674").first);
}

TEST(CNPJ, AnyOtherLengthIsRefused) {
  for (const char* text : {"", "1", "1144477", "114447770", "1144477700016", "114447770001611"})
    EXPECT_FALSE(cnpj(text).first) << text;
  EXPECT_FALSE(cnpj("11.444.777/0001-6\xC3\xA7").first);
}

TEST(EMail, ThreeCharactersBesideTheSignAreEnough) {
  EXPECT_EQ(email("a@b.c"), Result(true, "a@b.c"));
  EXPECT_EQ(email("ab@c"), Result(true, "ab@c"));
  EXPECT_EQ(email(" ana @ loja .com "), Result(true, "ana@loja.com"));
  EXPECT_EQ(email("a@@bc"), Result(true, "a@@bc"));
}

TEST(EMail, WithoutASignOrWithTheSignInFrontItIsNone) {
  EXPECT_FALSE(email("@abc").first);
  EXPECT_FALSE(email("abc").first);
  EXPECT_FALSE(email("a@b").first);
  EXPECT_FALSE(email("").first);
  EXPECT_FALSE(email(" @abc").first);
  EXPECT_TRUE(email("ã@éb").first);
}

TEST(Literals, AmountsAreWrittenWithAPointAndNothingElse) {
  EXPECT_EQ(Validacoes::sGetFloatSQL(Currency::fromDecimal("1234.5")), "1234.5");
  EXPECT_EQ(Validacoes::sGetFloatSQL(Currency::fromDecimal("0.1")), "0.1");
  EXPECT_EQ(Validacoes::sGetFloatSQL(Currency::fromDecimal("1234")), "1234");
  EXPECT_EQ(Validacoes::sGetFloatSQL(Currency::fromDecimal("-1234567.8901")), "-1234567.8901");
  EXPECT_EQ(Validacoes::sGetFloatSQL(Currency()), "0");
}

TEST(Literals, ApostrophesAreDoubledAndBlanksAtTheEndTakenOff) {
  EXPECT_EQ(Validacoes::sGetStringSQL("d'agua   "), "d''agua");
  EXPECT_EQ(Validacoes::sGetStringSQL("  com blanks à frente"), "  com blanks à frente");
  EXPECT_EQ(Validacoes::sGetStringSQL("'"), "''");
  EXPECT_EQ(Validacoes::sGetStringSQL("   "), "");
  EXPECT_EQ(Validacoes::sTirarFragString(""), "");
  EXPECT_EQ(Validacoes::sTirarFragString("a  b  "), "a  b");
}

TEST(Literals, TheMonthOfADateComesFirst) {
  EXPECT_EQ(Validacoes::sGetDataSQL(makeDate(2026, 3, 15)), "03/15/2026");
  EXPECT_EQ(Validacoes::sGetDataSQL(makeDate(2026, 12, 1)), "12/01/2026");
}

}  // namespace
}  // namespace fenvale
