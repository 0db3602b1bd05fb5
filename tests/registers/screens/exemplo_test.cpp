// The worked example of docs/architecture.md, word for word: a register that is added by describing it.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <fstream>

#include "Cadastros.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

class frmCadastroTransportadoras final : public TelaCadastro {
 public:
  explicit frmCadastroTransportadoras(Contexto& contexto) : TelaCadastro(contexto, "frmCadastroTransportadoras") {
    vDescrever({
        .sLegenda = "Transportadoras",
        .sTitulo = "Cadastro de transportadoras",
        .sTabela = "Transportadoras",
        .codigo = &txtCodigoInf,
        .sCampoCodigo = "btCodigoInf",
        .campos = {{"btCodigoInf", txtCodigoInf, "Informe o código."},
                   {"sNome", txtNome, "Informe o nome."},
                   {"fFrete", txtFrete}},
        .colunas = {{"Código", 1000, Align::right, "btCodigoInf", txtCodigoInf},
                    {"Nome", 6000, Align::left, "sNome", txtNome},
                    {"Frete", 1700, Align::right, "Frete", txtFrete}},
        .sSelecao = "SELECT lCodigo, btCodigoInf, sNome, FORMAT(fFrete, '#,##0.00') AS Frete FROM Transportadoras ",
        .sOrdem = "ORDER BY btCodigoInf, sNome ",
        .sBusca = "frmLocalizarTransportadoras",
    });
    vMontarTela(
        {linha({campo("&Código", txtCodigoInf, 3), campo("&Nome", txtNome, cresce), campo("&Frete", txtFrete, 4)})});
  }

  CodeBox txtCodigoInf{*this, "txtCodigoInf", 255};
  TextBox txtNome{*this, "txtNome", 50};
  MoneyBox txtFrete{*this, "txtFrete"};
};

constexpr const char* roteiro[] = {
    "CREATE TABLE Transportadoras (lCodigo COUNTER CONSTRAINT PK_Transportadoras PRIMARY KEY, btCodigoInf BYTE, sNome "
    "TEXT(50), fFrete CURRENCY)",
    "CREATE UNIQUE INDEX UX_Transportadoras_btCodigoInf ON Transportadoras (btCodigoInf)",
};

class Exemplo : public Cadastros {
 protected:
  Exemplo() {
    for (const char* sInstrucao : roteiro) executar(sInstrucao);
    programa.telas().registrar<frmCadastroTransportadoras>("frmCadastroTransportadoras");
  }
};

TEST_F(Exemplo, ARegisterIsItsDescription) {
  auto& tela = dynamic_cast<frmCadastroTransportadoras&>(abrir("frmCadastroTransportadoras"));
  EXPECT_FALSE(tela.cmdLocalizar.enabled()) << "its search is not written yet";
  host.expectBox(aviso("Informe o nome."));
  tela.userKey(Key::f3);

  tela.txtNome.userType("Expresso D'Oeste");
  tela.txtFrete.userType("1.250,00");
  host.expectBox(informacao("Operação concluída."));
  tela.userKey(Key::f3);
  EXPECT_THAT(listados(tela.lstLista), ElementsAre("1|Expresso D'Oeste|1.250,00"));
  EXPECT_EQ(tela.txtCodigoInf.text(), "2");

  tela.lstLista.userClickRow(0);
  tela.txtFrete.userType("980,5");
  host.expectBox(informacao("Operação concluída."));
  tela.userKey(Key::f3);
  EXPECT_THAT(linhas("SELECT btCodigoInf, sNome, fFrete FROM Transportadoras"),
              ElementsAre("1|Expresso D'Oeste|980.5"));

  tela.lstLista.userClickRow(0);
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  tela.userKey(Key::f4);
  EXPECT_THAT(listados(tela.lstLista), ElementsAre());
}

/// A file of the tree without its blanks and line breaks.
std::string semBrancos(const std::string& sArquivo) {
  std::ifstream arquivo(std::string(FENVALE_SOURCE_DIR) + "/" + sArquivo);
  std::string sTexto, sPalavra;
  while (arquivo >> sPalavra) sTexto += sPalavra;
  return sTexto;
}

TEST(ExemploDoManual, IsTheOneThatIsRunHere) {
  const std::string sManual = semBrancos("docs/architecture.md");
  const std::string sTeste = semBrancos("tests/registers/screens/exemplo_test.cpp");
  const std::size_t inicio = sTeste.find("classfrmCadastroTransportadorasfinal");
  const std::size_t fim = sTeste.find("constexprconstchar*roteiro");
  ASSERT_NE(inicio, std::string::npos);
  EXPECT_NE(sManual.find(sTeste.substr(inicio, fim - inicio)), std::string::npos);
  for (std::string sInstrucao : roteiro) {
    std::erase(sInstrucao, ' ');
    EXPECT_NE(sManual.find(sInstrucao), std::string::npos);
  }
}

}  // namespace
}  // namespace fenvale
