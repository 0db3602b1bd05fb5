// The invented customers and suppliers: right by the program's own checks, and the same every time.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "exemplo/Pessoas.h"
#include "platform/base/Text.h"
#include "shell/services/Validacoes.h"

namespace fenvale::exemplo {
namespace {

constexpr std::uint32_t quantos = 3000;

TEST(Pessoas, TaxNumbersCarryRightCheckDigits) {
  EXPECT_EQ(sCPFCom(529982247), "529.982.247-25");
  EXPECT_EQ(sCNPJCom(11222333), "11.222.333/0001-81");
  for (std::uint32_t i = 0; i < quantos; ++i) {
    Cliente um = cliente(7, i);
    if (um.bEmpresa) {
      EXPECT_TRUE(Validacoes::bValidarCNPJ(um.sCNPJ)) << um.sCNPJ;
    } else {
      EXPECT_TRUE(Validacoes::bValidarCPF(um.sCPF)) << um.sCPF;
    }
    if (!um.sEmail.empty()) {
      EXPECT_TRUE(Validacoes::bValidarEMail(um.sEmail)) << um.sEmail;
    }
  }
}

TEST(Pessoas, SuppliersTooAreRightByTheProgramsChecks) {
  int firmas = 0;
  for (std::uint32_t i = 0; i < quantos; ++i) {
    Fornecedor um = fornecedor(7, i);
    firmas += um.bEmpresa;
    EXPECT_TRUE(um.bEmpresa ? Validacoes::bValidarCNPJ(um.sCNPJ) : Validacoes::bValidarCPF(um.sCPF)) << um.sNome;
    if (!um.sEmail.empty()) {
      EXPECT_TRUE(Validacoes::bValidarEMail(um.sEmail)) << um.sEmail;
    }
    for (const std::string& sTexto : {um.sNome, um.sContato, um.sEmail, um.sHomePage})
      EXPECT_LE(length(sTexto), 50U) << sTexto;
    EXPECT_FALSE(um.sNome.empty());
    EXPECT_FALSE(um.sEndereco.empty());
    EXPECT_EQ(um.sAgencia.size(), 6U) << um.sAgencia;
    EXPECT_EQ(um.sConta.size(), 9U) << um.sConta;
  }
  EXPECT_GT(firmas, 2500);
  EXPECT_LT(firmas, 2900);
  EXPECT_EQ(fornecedor(5, 12).sConta, fornecedor(5, 12).sConta);
}

TEST(Pessoas, WhoMovesChangesPostCodesAndAreaCodesAndNothingElse) {
  constexpr Praca londrina{86010000, 86089999, 43};
  int entregas = 0;
  for (std::uint32_t i = 0; i < quantos; ++i) {
    const Cliente antes = cliente(7, i);
    const Cliente um = cliente(7, i, londrina);
    for (const std::string& sCEP : {um.sCEP, um.sCEPEntrega, um.sCEPCobranca}) {
      if (sCEP.empty()) continue;
      EXPECT_GE(sCEP, "86010-000");
      EXPECT_LE(sCEP, "86089-999");
    }
    entregas += !um.sCEPEntrega.empty();
    EXPECT_EQ(um.sTelefone, "(43)" + antes.sTelefone.substr(4));
    if (!um.sFax.empty()) {
      EXPECT_TRUE(um.sFax.starts_with("(43) ")) << um.sFax;
    }
    EXPECT_EQ(um.sNome + um.sEndereco + um.sBairro + um.sContato + um.sEmail + um.txtObs,
              antes.sNome + antes.sEndereco + antes.sBairro + antes.sContato + antes.sEmail + antes.txtObs);
    const Fornecedor outro = fornecedor(7, i, londrina);
    EXPECT_TRUE(outro.sCEP.starts_with("860")) << outro.sCEP;
    EXPECT_EQ(outro.sConta, fornecedor(7, i).sConta);
  }
  EXPECT_GT(entregas, 0);
}

TEST(Pessoas, NobodySharesANumberWithAnother) {
  std::set<std::string> numeros;
  std::size_t dados = 0;
  for (std::uint32_t i = 0; i < quantos; ++i) {
    const Cliente um = cliente(7, i);
    for (const auto& [sTipo, sNumero] : {std::pair("CPF ", um.sCPF), std::pair("CNPJ ", um.sCNPJ),
                                         std::pair("IE ", um.sIE), std::pair("RG ", um.sRG)}) {
      if (sNumero.empty()) continue;
      ++dados;
      numeros.insert(sTipo + sNumero);
    }
    const Fornecedor outro = fornecedor(7, i);
    for (const auto& [sTipo, sNumero] :
         {std::pair("CPF ", outro.sCPF), std::pair("CNPJ ", outro.sCNPJ), std::pair("IE ", outro.sIE)}) {
      if (sNumero.empty()) continue;
      ++dados;
      numeros.insert(sTipo + sNumero);
    }
  }
  EXPECT_EQ(numeros.size(), dados);
}

TEST(Pessoas, EveryTextFitsItsBox) {
  for (std::uint32_t i = 0; i < quantos; ++i) {
    const Cliente um = cliente(3, i);
    for (const std::string& sTexto : {um.sNome, um.sBairro, um.sContato, um.sPai, um.sMae, um.sEmail, um.sHomePage})
      EXPECT_LE(length(sTexto), 50U) << sTexto;
    for (const std::string& sTexto : {um.sEndereco, um.sEnderecoEntrega, um.sEnderecoCobranca})
      EXPECT_LE(length(sTexto), 100U) << sTexto;
    EXPECT_FALSE(um.sNome.empty());
    EXPECT_FALSE(um.sEndereco.empty());
  }
}

TEST(Pessoas, TheSameSeedAndPlaceGiveTheSameCustomer) {
  EXPECT_EQ(cliente(5, 12).sNome, cliente(5, 12).sNome);
  EXPECT_EQ(cliente(5, 12).sEndereco, cliente(5, 12).sEndereco);
  EXPECT_NE(cliente(5, 12).sEndereco + cliente(5, 13).sEndereco, cliente(6, 12).sEndereco + cliente(6, 13).sEndereco);
}

}  // namespace
}  // namespace fenvale::exemplo
