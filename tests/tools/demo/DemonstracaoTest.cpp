// The folder of the demonstration: the program opens it as it is, its rows obey the rules, and data that are there
// already stay.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "access/services/Permissoes.h"
#include "app/Programa.h"
#include "demo/Demonstracao.h"
#include "platform/base/Error.h"
#include "platform/sql/Store.h"
#include "platform/ui/test/TestHost.h"
#include "store/services/BancoDados.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/PlataformaDeTeste.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale::demonstracao {
namespace {

using ::testing::ElementsAre;

const Date hoje = makeDate(2026, 3, 13);
const std::string dados = std::string(FENVALE_SOURCE_DIR) + "/data";

/// The program started on a folder that is there, with nobody expecting a box.
class ProgramaNaPasta {
 public:
  explicit ProgramaNaPasta(const std::string& sPasta)
      : programa({sPasta, host, relogio, processo, correio, rede, impressoras}, nullptr) {
    relogio.momento = DateTime(hoje);
    BancoDados bancoDados(programa);
    programa.dbConectar().Dados().open();
    bancoDados.vAtualizarBD(sPasta + "/SQL.xmlSQL", false);
    aberta = programa.empresas().bSetEmpresaXML();
  }

  std::string valor(const std::string& sSQL) { return Recordset(sSQL, programa.dbEmpresa().Dados()).field(0).toText(); }
  std::string valorPrograma(const std::string& sSQL) {
    return Recordset(sSQL, programa.dbConectar().Dados()).field(0).toText();
  }

  TestHost host;
  RelogioDeTeste relogio;
  ProcessoDeTeste processo;
  CorreioDeTeste correio;
  RedeDeTeste rede;
  ImpressorasDeTeste impressoras;
  Programa programa;
  bool aberta = false;
};

class Demonstracao : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    pasta_ = std::make_unique<PastaTemporaria>();
    ProcessoDeTeste processo;
    resumo_ = preencher({pasta_->caminho(), dados, hoje, processo});
  }
  static void TearDownTestSuite() { pasta_.reset(); }

  static std::unique_ptr<PastaTemporaria> pasta_;
  static Resumo resumo_;
};
std::unique_ptr<PastaTemporaria> Demonstracao::pasta_;
Resumo Demonstracao::resumo_;

TEST_F(Demonstracao, OpensWithItsCompanyAndAsksForNothing) {
  ProgramaNaPasta aberto(pasta_->caminho());
  EXPECT_TRUE(aberto.aberta);
  EXPECT_FALSE(aberto.programa.permissoes().bFazerLogin());
  EXPECT_EQ(aberto.programa.empresas().sGetNomeArquivo(), "Comercial Fenvale.MDB");
  aberto.programa.empresas().vVerificarDadosEmpresa();
  EXPECT_EQ(aberto.valorPrograma("SELECT sNome FROM Sistema"), "Comercial Fenvale Ltda");
  EXPECT_EQ(aberto.valorPrograma("SELECT COUNT(lCodigo) AS N FROM Usuarios"), "2");
  EXPECT_EQ(aberto.valorPrograma("SELECT sNomeUsuario FROM Usuarios ORDER BY lCodigo"), "ADMINISTRADOR");
  EXPECT_EQ(aberto.valorPrograma("SELECT lTamanhoPagina FROM Configuracoes"), "100");
  EXPECT_THAT(aberto.host.boxes(), testing::IsEmpty());
}

TEST_F(Demonstracao, HoldsAYearUpToToday) {
  ProgramaNaPasta aberto(pasta_->caminho());
  EXPECT_EQ(resumo_.lClientes, 120);
  EXPECT_GT(resumo_.lFaturas, 400);
  EXPECT_GT(resumo_.lTitulos, 2 * resumo_.lFaturas);
  EXPECT_EQ(aberto.valor("SELECT COUNT(lCodigo) AS N FROM TitulosReceber"), std::to_string(resumo_.lTitulos));
  EXPECT_EQ(aberto.valor("SELECT MIN(dtEmissao) AS N FROM FaturasCliente"), "13/03/2025");
  EXPECT_EQ(aberto.valor("SELECT MAX(dtEmissao) AS N FROM FaturasCliente"), "13/03/2026");
  EXPECT_EQ(aberto.valor("SELECT COUNT(lCodigo) AS N FROM TitulosReceber WHERE fValorPago > 0 AND dtPagamento > "
                         "#03/13/2026#"),
            "0");
}

TEST_F(Demonstracao, ShowsEveryKindOfSettlement) {
  ProgramaNaPasta aberto(pasta_->caminho());
  const auto quantos = [&aberto](const std::string& sCondicao) {
    return std::stoi(aberto.valor("SELECT COUNT(lCodigo) AS N FROM TitulosReceber WHERE " + sCondicao));
  };
  EXPECT_GT(quantos("fValorPago = fValor AND fJuros = 0"), 500);
  EXPECT_GT(quantos("fJuros > 0 AND fDesconto = 0"), 20);
  EXPECT_GT(quantos("fJuros > 0 AND fDesconto = fJuros"), 3);
  EXPECT_GT(quantos("MID(sCodigoInf, 8, 1) = 'R'"), 10);
  EXPECT_GT(quantos("fValorPago > fValor AND fJuros = 0"), 3);
  EXPECT_GT(quantos("fValorPago <= 0 AND dtVencimento < #03/13/2026#"), 30);
  EXPECT_GT(quantos("fValorPago <= 0 AND dtVencimento > #03/13/2026#"), 100);
}

TEST_F(Demonstracao, WhatIsPaidAndWhatIsOpenMakesTheTotalOfEveryInvoice) {
  ProgramaNaPasta aberto(pasta_->caminho());
  Recordset rs("SELECT lCodigo, fTotal FROM FaturasCliente", aberto.programa.dbEmpresa().Dados());
  for (; !rs.eof(); rs.moveNext()) {
    const std::string sFatura = rs.field("lCodigo").toText();
    const Recordset somas(
        "SELECT IIF(ISNULL(SUM(fValorPago)), 0, SUM(fValorPago)) AS Pago, IIF(ISNULL(SUM(fJuros)), 0, "
        "SUM(fJuros)) AS Juros, IIF(ISNULL(SUM(fDesconto)), 0, SUM(fDesconto)) AS Desconto FROM "
        "TitulosReceber WHERE lFaturaCliente = " +
            sFatura,
        aberto.programa.dbEmpresa().Dados());
    const Recordset abertos(
        "SELECT IIF(ISNULL(SUM(fValor)), 0, SUM(fValor)) AS Aberto FROM TitulosReceber WHERE "
        "lFaturaCliente = " +
            sFatura + " AND (fValorPago <= 0) ",
        aberto.programa.dbEmpresa().Dados());
    EXPECT_EQ((somas.field("Pago").toCurrency() - somas.field("Juros").toCurrency() +
               somas.field("Desconto").toCurrency() + abertos.field("Aberto").toCurrency())
                  .toDecimal(),
              rs.field("fTotal").toCurrency().toDecimal())
        << sFatura;
  }
}

TEST(FolderOfTheDemonstration, KeepsTheDataThatAreThere) {
  for (const char* sArquivo : {"Dados.MDB", "loja.mdb", "init.ini", "Empresa.XML"}) {
    const PastaTemporaria pasta;
    pasta.gravar(sArquivo, "algo");
    ProcessoDeTeste processo;
    try {
      preencher({pasta.caminho(), dados, hoje, processo});
      ADD_FAILURE() << sArquivo;
    } catch (const Error& falha) {
      EXPECT_EQ(falha.number, 75);
      EXPECT_EQ(falha.description, "A pasta " + pasta.caminho() + " já contém dados. Nada foi alterado.");
    }
    EXPECT_THAT(pasta.nomes(), ElementsAre(sArquivo));
    EXPECT_EQ(pasta.ler(sArquivo), "algo");
  }
}

TEST(FolderOfTheDemonstration, HoldsNoDataAfterAFailure) {
  const PastaTemporaria pasta;
  pasta.gravar("Cidades.XML", "<Cidades><Cid><sUF>PR</sUF><sNome>Londrina</sNome></Cid></Cidades>");
  ProcessoDeTeste processo;
  // The company's customers live in cities that this file lacks.
  EXPECT_THROW(preencher({pasta.caminho(), dados, hoje, processo}), Error);
  EXPECT_THAT(pasta.nomes(), ElementsAre("Bancos.XML", "Cidades.XML", "SQL.xmlSQL", "SQLEmpresas.xmlSQL"));
}

}  // namespace
}  // namespace fenvale::demonstracao
