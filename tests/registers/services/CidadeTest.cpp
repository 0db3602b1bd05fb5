#include "registers/services/Cidade.h"

#include <gtest/gtest.h>

#include "platform/sql/Store.h"
#include "store/services/DBConectar.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

class Escolhas : public testing::Test {
 protected:
  Escolhas() { programa.abrirEmpresa(); }
  ProgramaDeTeste programa;
};

TEST_F(Escolhas, ACityIsNoneUntilItIsSet) {
  const Cidade cidade;
  EXPECT_EQ(cidade.lGetCodigo(), -1);
  EXPECT_EQ(cidade.sGetNome() + cidade.sGetUF(), "");
}

TEST_F(Escolhas, ACityIsTakenFromARow) {
  Recordset rs(
      "SELECT (lCodigo) AS CidadeCodigo, (sNome) AS CidadeNome, (sUF) AS CidadeUF FROM Cidades WHERE lCodigo = 2",
      programa.dbEmpresa().Dados());
  Cidade cidade;
  cidade.vSetEstado(rs);
  EXPECT_EQ(cidade.lGetCodigo(), 2);
  EXPECT_EQ(cidade.sGetNome(), "São Paulo");
  EXPECT_EQ(cidade.sGetUF(), "SP");
}

TEST_F(Escolhas, ACityIsLookedUpByNameAndStateWithoutCase) {
  Cidade cidade;
  cidade.vSetEstado2(programa, "LONDRINA", "pr", true);
  EXPECT_EQ(cidade.lGetCodigo(), 1);
  EXPECT_EQ(cidade.sGetNome(), "LONDRINA");
  cidade.vSetEstado2(programa, "Londrina", "SP", true);
  EXPECT_EQ(cidade.lGetCodigo(), -1);
  EXPECT_EQ(cidade.sGetNome(), "Londrina");
  cidade.vSetEstado2(programa, "Pau d'Alho", "PE", true);
  EXPECT_EQ(cidade.lGetCodigo(), -1);
}

TEST_F(Escolhas, EachStoreHasItsOwnCities) {
  programa.executar("INSERT INTO Cidades (sNome, sUF) VALUES ('Ibiporã', 'PR')");
  Cidade cidade;
  cidade.vSetEstado2(programa, "Ibiporã", "PR", true);
  EXPECT_EQ(cidade.lGetCodigo(), 3);
  cidade.vSetEstado2(programa, "Ibiporã", "PR", false);
  EXPECT_EQ(cidade.lGetCodigo(), -1);
}

TEST_F(Escolhas, ACityIsEmptied) {
  Cidade cidade;
  cidade.vSetEstado2(programa, "Londrina", "PR", true);
  cidade.vSetEstado2(programa, "", "", true);
  EXPECT_EQ(cidade.lGetCodigo(), -1);
  cidade.vSetEstado2(programa, "Londrina", "PR", true);
  cidade.vLimpar();
  EXPECT_EQ(cidade.lGetCodigo(), -1);
  EXPECT_EQ(cidade.sGetNome(), "");
}

TEST_F(Escolhas, ABankIsTakenFromARowOrLookedUp) {
  Banco banco;
  EXPECT_EQ(banco.lGetCodigo(), -1);
  banco.vSetEstado2(programa, "caixa econômica federal");
  EXPECT_EQ(banco.lGetCodigo(), 2);
  EXPECT_EQ(banco.iGetCodigoInf(), 104);
  banco.vSetEstado2(programa, "Outro");
  EXPECT_EQ(banco.lGetCodigo(), -1);
  EXPECT_EQ(banco.iGetCodigoInf(), 0);
  Recordset rs("SELECT (lCodigo) AS BancoCodigo, (iCodigoInf) AS BancoCodigoInf, (sNome) AS BancoNome FROM Bancos",
               programa.dbEmpresa().Dados());
  banco.vSetEstado(rs);
  EXPECT_EQ(banco.sGetNome(), "Banco do Brasil S.A.");
  EXPECT_EQ(banco.iGetCodigoInf(), 1);
}

}  // namespace
}  // namespace fenvale
