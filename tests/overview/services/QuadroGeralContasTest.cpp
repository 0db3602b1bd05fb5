// Which lists of the accounts overview the firm's settings switch on.

#include "overview/services/QuadroGeralContas.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/base/Error.h"
#include "platform/sql/Store.h"
#include "store/services/DBConectar.h"
#include "support/ProgramaDeTeste.h"
#include "support/Rodada.h"

namespace fenvale {
namespace {

using testing::Each;
using testing::ElementsAre;

/// In the order of the tabs.
std::vector<bool> listas(const QuadroGeralContas& quadro) {
  return {quadro.bGetMostrarContasPagarDia(), quadro.bGetMostrarContasReceberDia(),
          quadro.bGetMostrarContasPagarVencidas(), quadro.bGetMostrarContasReceberVencidas()};
}

class QuadroGeralContasTest : public testing::Test {
 protected:
  void SetUp() override { programa.abrirPrograma(); }
  void ligar(const std::string& sColuna) {
    cadastrarFirma();
    programa.executarPrograma("UPDATE Sistema SET " + sColuna + " = -1");
  }
  void cadastrarFirma() { programa.executarPrograma("INSERT INTO Sistema (sNome, lCidade) VALUES ('Casa Aurora', 1)"); }
  QuadroGeralContas& quadro() { return programa.quadroGeralContas(); }

  ProgramaDeTeste programa;
};

TEST_F(QuadroGeralContasTest, WithoutSettingsNothingIsOn) {
  EXPECT_THAT(listas(quadro()), Each(false));
  EXPECT_FALSE(quadro().bGetMostrarTodas());
}

TEST_F(QuadroGeralContasTest, WithEverySettingOffNothingIsOn) {
  cadastrarFirma();
  EXPECT_THAT(listas(quadro()), Each(false));
  EXPECT_FALSE(quadro().bGetMostrarTodas());
}

struct Ligada {
  const char* sColuna;
  std::vector<bool> listas;
};

class UmaLigada : public QuadroGeralContasTest, public testing::WithParamInterface<Ligada> {};

TEST_P(UmaLigada, OneSettingAsksForTheOverviewAndOffersItsListOnly) {
  ligar(GetParam().sColuna);
  EXPECT_TRUE(quadro().bGetMostrarTodas());
  EXPECT_THAT(listas(quadro()), Each(true)) << "whoever shows the overview decides whether all are on offer";
  quadro().vSetMotrarTodas(false);
  EXPECT_EQ(listas(quadro()), GetParam().listas);
  EXPECT_FALSE(quadro().bGetMostrarTodas());
}

INSTANTIATE_TEST_SUITE_P(Colunas, UmaLigada,
                         testing::Values(Ligada{"bitMostrarContasPagarDia", {true, false, false, false}},
                                         Ligada{"bitMostrarContasReceberDia", {false, true, false, false}},
                                         Ligada{"bitMostrarContasVencidasPagar", {false, false, true, false}},
                                         Ligada{"bitMostrarContasVencidasReceber", {false, false, false, true}}),
                         [](const testing::TestParamInfo<Ligada>& caso) { return std::string(caso.param.sColuna); });

TEST_F(QuadroGeralContasTest, ThereIsOneForTheWholeProgramAndItReadsTheSettingsOnce) {
  ligar("bitMostrarContasPagarDia");
  QuadroGeralContas& primeiro = quadro();
  programa.executarPrograma("UPDATE Sistema SET bitMostrarContasPagarDia = 0, bitMostrarContasReceberDia = -1");
  EXPECT_EQ(&primeiro, &quadro());
  quadro().vSetMotrarTodas(false);
  EXPECT_THAT(listas(quadro()), ElementsAre(true, false, false, false));

  programa.dbConectar().Dados().close();
  Rodada proxima(programa.pasta(), nullptr);
  proxima.dbConectar().Dados().open();
  QuadroGeralContas& outro = proxima.quadroGeralContas();
  EXPECT_TRUE(outro.bGetMostrarTodas());
  outro.vSetMotrarTodas(false);
  EXPECT_THAT(listas(outro), ElementsAre(false, true, false, false));
}

TEST_F(QuadroGeralContasTest, AFirstUseThatFailsIsTriedAgain) {
  ligar("bitMostrarContasPagarDia");
  programa.dbConectar().Dados().close();
  EXPECT_THROW(quadro(), Error);
  programa.dbConectar().Dados().open();
  EXPECT_TRUE(quadro().bGetMostrarTodas());
}

}  // namespace
}  // namespace fenvale
