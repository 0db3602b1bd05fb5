// A generated company: a store that the program opens, whose rows obey the program's own rules.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "gerador/Arquivo.h"
#include "gerador/Empresa.h"
#include "platform/base/Error.h"
#include "platform/sql/Store.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale::bancada {
namespace {

constexpr Volume volume{40, 300, 1200};
const Date hoje = makeDate(2026, 3, 15);
const std::string pastaDados = std::string(FENVALE_SOURCE_DIR) + "/data";

/// The generated file lies in the program's folder, made once for all tests.
class EmpresaGerada : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    pasta_ = std::make_unique<PastaTemporaria>();
    gerarEmpresa({pasta_->arquivo("gerada.MDB"), pastaDados, volume, hoje});
  }
  static void TearDownTestSuite() { pasta_.reset(); }

  Arquivo arquivo{pasta_->arquivo("gerada.MDB")};
  static std::unique_ptr<PastaTemporaria> pasta_;
};
std::unique_ptr<PastaTemporaria> EmpresaGerada::pasta_;

TEST_F(EmpresaGerada, IsSoundAndEveryReferenceIsMet) {
  EXPECT_EQ(arquivo.texto("PRAGMA integrity_check"), "ok");
  EXPECT_EQ(arquivo.texto("PRAGMA foreign_key_check"), "");
  EXPECT_EQ(arquivo.texto("PRAGMA journal_mode"), "delete");
}

TEST_F(EmpresaGerada, HoldsAsManyRowsAsAskedFor) {
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM Clientes"), volume.clientes);
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM FaturasCliente"), volume.faturas);
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM TitulosReceber"), volume.titulos);
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM Cidades"), 5571);
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM Bancos"), 463);
}

TEST_F(EmpresaGerada, TheTitlesOfEveryInvoiceAddUpToItsTotal) {
  // A complement repeats what a partly paid title still owes.
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM FaturasCliente f WHERE f.fTotal <> (SELECT SUM(fValor) FROM "
                            "TitulosReceber WHERE lFaturaCliente = f.lCodigo AND substr(sCodigoInf, 8, 1) <> 'R')"),
            0);
}

TEST_F(EmpresaGerada, SharesAreEqualButForTheLast) {
  EXPECT_EQ(arquivo.inteiro(
                "SELECT COUNT(*) FROM (SELECT t.lFaturaCliente FROM TitulosReceber t JOIN FaturasCliente f ON "
                "f.lCodigo = t.lFaturaCliente JOIN CondicoesPagamento p ON p.lCodigo = f.lCondicoesPagamento WHERE "
                "CAST(substr(t.sCodigoInf, 8) AS INTEGER) BETWEEN 1 - p.bitEntrada AND p.iNumeroParcelas - 1 "
                "GROUP BY t.lFaturaCliente HAVING MIN(t.fValor) <> MAX(t.fValor))"),
            0);
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM TitulosReceber WHERE fValor <= 0 OR fValor % 100 <> 0"), 0);
}

TEST_F(EmpresaGerada, AnEntryIsPaidWhenItIsMade) {
  EXPECT_GT(arquivo.inteiro("SELECT COUNT(*) FROM FaturasCliente WHERE fEntrada > 0"), 20);
  EXPECT_EQ(arquivo.inteiro(
                "SELECT COUNT(*) FROM FaturasCliente f JOIN CondicoesPagamento p ON p.lCodigo = f.lCondicoesPagamento "
                "WHERE (f.fEntrada > 0) <> (p.bitEntrada <> 0)"),
            0);
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM FaturasCliente f JOIN TitulosReceber t ON t.lFaturaCliente = "
                            "f.lCodigo AND t.sCodigoInf LIKE '%/001' WHERE f.fEntrada > 0 AND (t.fValor <> f.fEntrada "
                            "OR t.fValorPago <> f.fEntrada OR t.dtVencimento <> f.dtEmissao)"),
            0);
}

TEST_F(EmpresaGerada, AboutSeventyPerCentArePaidAndMostOfTheOthersOverdue) {
  const std::int64_t pagos = arquivo.inteiro("SELECT COUNT(*) FROM TitulosReceber WHERE fValorPago > 0");
  EXPECT_THAT(pagos, testing::AllOf(testing::Ge(volume.titulos * 65 / 100), testing::Le(volume.titulos * 75 / 100)));
  const std::int64_t vencidos =
      arquivo.inteiro("SELECT COUNT(*) FROM TitulosReceber WHERE fValorPago <= 0 AND dtVencimento < '2026-03-15'");
  EXPECT_GT(vencidos, volume.titulos / 20);
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM TitulosReceber WHERE fValorPago > 0 AND dtPagamento > '2026-03-15' "
                            "AND fJuros > 0"),
            0);
}

TEST_F(EmpresaGerada, APartialPaymentHasItsComplement) {
  const std::int64_t complementos =
      arquivo.inteiro("SELECT COUNT(*) FROM TitulosReceber WHERE substr(sCodigoInf, 8, 1) = 'R'");
  EXPECT_EQ(complementos, volume.titulos / 200);
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM TitulosReceber c JOIN TitulosReceber t ON t.lFaturaCliente = "
                            "c.lFaturaCliente AND t.fValor - t.fValorPago = c.fValor AND t.fValorPago > 0 AND "
                            "t.dtVencimento = c.dtVencimento WHERE substr(c.sCodigoInf, 8, 1) = 'R'"),
            complementos);
}

TEST_F(EmpresaGerada, CodesNameTheInvoiceAndThePlace) {
  EXPECT_EQ(arquivo.inteiro("SELECT COUNT(*) FROM TitulosReceber WHERE sCodigoInf NOT LIKE '%/R%' AND "
                            "substr(sCodigoInf, 1, 7) <> printf('%06d/', lFaturaCliente)"),
            0);
  EXPECT_EQ(arquivo.texto("SELECT sCodigoInf FROM TitulosReceber ORDER BY lCodigo LIMIT 1"), "000001/001");
}

TEST_F(EmpresaGerada, OpensInTheProgramWithoutAnUpdate) {
  ProgramaDeTeste programa;
  programa.abrirPrograma();
  // An update would end the program after its box, which the host does not expect.
  ASSERT_TRUE(programa.empresas().bSetEmpresa(1, "gerada.MDB", pasta_->caminho() + "/", false));
  EXPECT_EQ(programa.valor("SELECT COUNT(lCodigo) AS Quantos FROM TitulosReceber"), std::to_string(volume.titulos));
  programa.dbEmpresa().Dados().close();
}

TEST(GerarEmpresa, MakesTheSameFileEveryTime) {
  const PastaTemporaria pasta;
  const Volume pouco{10, 30, 100};
  gerarEmpresa({pasta.arquivo("a.MDB"), pastaDados, pouco, hoje});
  gerarEmpresa({pasta.arquivo("b.MDB"), pastaDados, pouco, hoje});
  EXPECT_TRUE(pasta.ler("a.MDB") == pasta.ler("b.MDB"));
}

TEST(GerarEmpresa, LeavesAsManyTitlesOverdueAsAskedForAndTheOthersPaidOnTheirDay) {
  const PastaTemporaria pasta;
  const std::string sTodos = pasta.arquivo("todos.MDB"), sAlguns = pasta.arquivo("alguns.MDB");
  gerarEmpresa({sTodos, pastaDados, volume, hoje});
  gerarEmpresa({sAlguns, pastaDados, volume, hoje, 1, 40});
  Arquivo todos(sTodos), alguns(sAlguns);
  const std::string sVencidos =
      "SELECT COUNT(*) FROM TitulosReceber WHERE fValorPago <= 0 AND dtVencimento < '2026-03-15'";
  EXPECT_GT(todos.inteiro(sVencidos), 40);
  EXPECT_EQ(alguns.inteiro(sVencidos), 40);
  EXPECT_GT(alguns.inteiro("SELECT COUNT(DISTINCT dtVencimento) FROM TitulosReceber WHERE fValorPago <= 0 AND "
                           "dtVencimento < '2026-03-15'"),
            20)
      << "of days apart";
  EXPECT_EQ(
      alguns.inteiro("SELECT COUNT(*) FROM TitulosReceber WHERE fValorPago > 0 AND (dtPagamento <> dtVencimento "
                     "OR fValorPago <> fValor)"),
      todos.inteiro("SELECT COUNT(*) FROM TitulosReceber WHERE fValorPago > 0 AND (dtPagamento <> dtVencimento OR "
                    "fValorPago <> fValor)"));
  const std::string sEmDia = "SELECT COUNT(*) FROM TitulosReceber WHERE fValorPago > 0";
  EXPECT_EQ(alguns.inteiro(sEmDia), todos.inteiro(sEmDia) + todos.inteiro(sVencidos) - 40);
}

TEST(GerarEmpresa, LeavesAFileThatIsThereAlone) {
  const PastaTemporaria pasta;
  pasta.gravar("a.MDB", "algo");
  EXPECT_THROW(gerarEmpresa({pasta.arquivo("a.MDB"), pastaDados, {10, 30, 100}, hoje}), Error);
  EXPECT_EQ(pasta.ler("a.MDB"), "algo");
}

TEST(GerarEmpresa, LeavesNoFileWhenItCannotFinish) {
  const PastaTemporaria pasta;
  EXPECT_THROW(gerarEmpresa({pasta.arquivo("a.MDB"), pasta.arquivo("sem dados"), {10, 30, 100}, hoje}), Error);
  EXPECT_THROW(gerarEmpresa({pasta.arquivo("b.MDB"), pastaDados, {10, 30, 500}, hoje}), Error);
  EXPECT_FALSE(pasta.existe("a.MDB"));
  EXPECT_FALSE(pasta.existe("b.MDB"));
}

}  // namespace
}  // namespace fenvale::bancada
