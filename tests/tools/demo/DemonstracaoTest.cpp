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
#include "shell/services/Validacoes.h"
#include "store/services/BancoDados.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/PlataformaDeTeste.h"
#include "support/ProgramaDeTeste.h"
#include "titles/services/Lado.h"

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
  int contar(const std::string& sTabela, const std::string& sCondicao = "lCodigo > 0") {
    return std::stoi(valor("SELECT COUNT(lCodigo) AS N FROM " + sTabela + " WHERE " + sCondicao));
  }
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
  EXPECT_EQ(aberto.contar("Clientes"), 120);
  EXPECT_EQ(aberto.contar("Fornecedores"), 40);
  EXPECT_EQ(resumo_.lClientes, 120);
  EXPECT_EQ(resumo_.lFornecedores, 40);
  EXPECT_EQ(resumo_.lFaturas, aberto.contar("FaturasCliente") + aberto.contar("FaturasFornecedor"));
  EXPECT_EQ(resumo_.lTitulos, aberto.contar("TitulosReceber") + aberto.contar("TitulosPagar"));
  EXPECT_THAT(aberto.host.boxes(), testing::IsEmpty());
}

TEST_F(Demonstracao, TheOverviewIsOnWithAllItsLists) {
  ProgramaNaPasta aberto(pasta_->caminho());
  for (const char* sColuna : {"bitMostrarContasPagarDia", "bitMostrarContasReceberDia", "bitMostrarContasVencidasPagar",
                              "bitMostrarContasVencidasReceber"})
    EXPECT_EQ(aberto.valorPrograma(std::string("SELECT IIF(") + sColuna + " = 0, 'Não', 'Sim') AS N FROM Sistema"),
              "Sim");
}

TEST_F(Demonstracao, SuppliersHaveABankAndFitTheirBoxes) {
  ProgramaNaPasta aberto(pasta_->caminho());
  EXPECT_EQ(aberto.valor("SELECT COUNT(Fornecedores.lCodigo) AS N FROM ((Fornecedores INNER JOIN Cidades ON "
                         "Fornecedores.lCidade = Cidades.lCodigo) INNER JOIN Bancos ON Bancos.lCodigo = "
                         "Fornecedores.lBanco) INNER JOIN Categorias ON Categorias.lCodigo = Fornecedores.lCategoria "
                         "WHERE Categorias.sNome <> '' AND sAgencia <> '' AND sConta <> ''"),
            "40")
      << "all of them show in their register";
  EXPECT_GT(aberto.contar("Fornecedores", "sCNPJ <> ''"), 30);
  EXPECT_GT(aberto.contar("Fornecedores", "sCPF <> ''"), 0);
  EXPECT_EQ(aberto.valor("SELECT COUNT(Fornecedores.lCodigo) AS N FROM Fornecedores INNER JOIN Categorias ON "
                         "Categorias.lCodigo = Fornecedores.lCategoria WHERE MID(Fornecedores.sNome, 1, 14) = "
                         "'Transportadora' AND Categorias.sNome <> 'Transporte'"),
            "0");
  EXPECT_GT(aberto.contar("Fornecedores", "MID(sNome, 1, 14) = 'Transportadora'"), 0);
}

TEST_F(Demonstracao, PostCodesAndTelephonesAreThoseOfTheCity) {
  struct Lugar {
    const char* sCidade;
    std::string sCEP, sDDD;
  };
  const std::vector<Lugar> lugares{{"Londrina", "860", "(43)"},  {"Cambé", "861", "(43)"},
                                   {"Ibiporã", "862", "(43)"},   {"Rolândia", "866", "(43)"},
                                   {"Arapongas", "867", "(43)"}, {"Apucarana", "868", "(43)"},
                                   {"Maringá", "870", "(44)"},   {"Curitiba", "8", "(41)"},
                                   {"São Paulo", "0", "(11)"},   {"Presidente Prudente", "190", "(18)"}};
  ProgramaNaPasta aberto(pasta_->caminho());
  for (const auto& [sTabela, todos] :
       {std::pair(std::string("Clientes"), 120), std::pair(std::string("Fornecedores"), 40)}) {
    int certos = 0;
    for (const Lugar& lugar : lugares)
      certos += std::stoi(aberto.valor("SELECT COUNT(" + sTabela + ".lCodigo) AS N FROM " + sTabela +
                                       " INNER JOIN Cidades ON " + sTabela +
                                       ".lCidade = Cidades.lCodigo WHERE Cidades.sNome = '" + lugar.sCidade +
                                       "' AND MID(sCEP, 1, " + std::to_string(lugar.sCEP.size()) + ") = '" +
                                       lugar.sCEP + "' AND MID(sTelefone, 1, 4) = '" + lugar.sDDD + "'"));
    EXPECT_EQ(certos, todos) << sTabela;
  }
}

using EscolhaDeLado = const Lado& (*)();

/// The year of sales and the year of purchases.
class Ano : public Demonstracao, public testing::WithParamInterface<EscolhaDeLado> {
 protected:
  int quantos(const std::string& sCondicao) { return aberto.contar(lado.sTitulos, sCondicao); }

  const Lado& lado = GetParam()();
  ProgramaNaPasta aberto{pasta_->caminho()};
};

TEST_P(Ano, ReachesUpToToday) {
  const int faturas = aberto.contar(lado.sFaturas);
  EXPECT_GT(faturas, 200);
  EXPECT_GT(aberto.contar(lado.sTitulos), 2 * faturas);
  EXPECT_EQ(aberto.valor("SELECT MIN(dtEmissao) AS N FROM " + lado.sFaturas).substr(3), "03/2025");
  EXPECT_EQ(aberto.valor("SELECT MAX(dtEmissao) AS N FROM " + lado.sFaturas).substr(3), "03/2026");
  EXPECT_EQ(aberto.contar(lado.sFaturas, "dtEmissao < #03/13/2025# OR dtEmissao > #03/13/2026#"), 0);
  EXPECT_EQ(quantos("fValorPago > 0 AND dtPagamento > #03/13/2026#"), 0);
}

TEST_P(Ano, ShowsEveryKindOfSettlement) {
  EXPECT_GT(quantos("fValorPago = fValor AND fJuros = 0"), 300);
  EXPECT_GT(quantos("fJuros > 0 AND fDesconto = 0"), 20);
  EXPECT_GT(quantos("fJuros > 0 AND fDesconto = fJuros"), 3);
  EXPECT_GT(quantos("MID(sCodigoInf, 8, 1) = 'R'"), 10);
  EXPECT_GT(quantos("fValorPago > fValor AND fJuros = 0"), 3);
}

TEST_P(Ano, LeavesTitlesOverdueDueTodayAndToCome) {
  EXPECT_GT(quantos("fValorPago <= 0 AND dtVencimento < #03/13/2026#"), 10);
  EXPECT_GE(quantos("fValorPago <= 0 AND dtVencimento = #03/13/2026#"), 3);
  EXPECT_GT(quantos("fValorPago <= 0 AND dtVencimento > #03/13/2026#"), 100);
}

TEST_P(Ano, WhatIsPaidAndWhatIsOpenMakesTheTotalOfEveryInvoice) {
  Recordset rs("SELECT lCodigo, fTotal FROM " + lado.sFaturas, aberto.programa.dbEmpresa().Dados());
  for (; !rs.eof(); rs.moveNext()) {
    const std::string sDaFatura =
        " FROM " + lado.sTitulos + " WHERE " + lado.sLigacao + " = " + rs.field("lCodigo").toText();
    const Recordset somas(
        "SELECT IIF(ISNULL(SUM(fValorPago)), 0, SUM(fValorPago)) AS Pago, IIF(ISNULL(SUM(fJuros)), 0, "
        "SUM(fJuros)) AS Juros, IIF(ISNULL(SUM(fDesconto)), 0, SUM(fDesconto)) AS Desconto" +
            sDaFatura,
        aberto.programa.dbEmpresa().Dados());
    const Recordset abertos(
        "SELECT IIF(ISNULL(SUM(fValor)), 0, SUM(fValor)) AS Aberto" + sDaFatura + " AND (fValorPago <= 0) ",
        aberto.programa.dbEmpresa().Dados());
    EXPECT_EQ((somas.field("Pago").toCurrency() - somas.field("Juros").toCurrency() +
               somas.field("Desconto").toCurrency() + abertos.field("Aberto").toCurrency())
                  .toDecimal(),
              rs.field("fTotal").toCurrency().toDecimal())
        << rs.field("lCodigo").toText();
  }
}

INSTANTIATE_TEST_SUITE_P(Lados, Ano, testing::Values(&ladoReceber, &ladoPagar),
                         [](const auto& caso) { return caso.param().sTitulos; });

TEST_F(Demonstracao, OnlyWhatIsPaidMayBearABranch) {
  ProgramaNaPasta aberto(pasta_->caminho());
  EXPECT_GT(aberto.contar("TitulosPagar", "sFilial = '001'"), 100);
  EXPECT_GT(aberto.contar("TitulosPagar", "sFilial = '002'"), 20);
  EXPECT_EQ(aberto.contar("TitulosPagar", "sFilial <> '' AND fValorPago <= 0"), 0);
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

TEST(FolderOfTheDemonstration, HasTitlesDueOnItsDayWhicheverItIs) {
  // The first is a Sunday, and one lies thirty days before the second.
  for (const Date dia : {makeDate(2026, 3, 15), makeDate(2026, 3, 17)}) {
    const PastaTemporaria pasta;
    ProcessoDeTeste processo;
    preencher({pasta.caminho(), dados, dia, processo});
    ProgramaNaPasta aberto(pasta.caminho());
    for (const Lado* lado : {&ladoReceber(), &ladoPagar()})
      EXPECT_GE(
          aberto.contar(lado->sTitulos, "fValorPago <= 0 AND dtVencimento = #" + Validacoes::sGetDataSQL(dia) + "#"), 3)
          << lado->sTitulos;
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
