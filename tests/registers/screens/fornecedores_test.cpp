// What only the register of suppliers has.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Pessoas.h"
#include "registers/screens/frmCadastroFornecedores.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

class Fornecedores : public Pessoas {
 protected:
  frmCadastroFornecedores& abrirFornecedores() {
    return dynamic_cast<frmCadastroFornecedores&>(abrir("frmCadastroFornecedores"));
  }
  /// Opens the list of banks by what `abrir` does, and picks that row.
  void escolherBanco(std::size_t iLinha, const std::function<void()>& abrirLista) {
    host.expectScreen("frmLocalizarBancos", [iLinha](Screen& busca) {
      auto& lst = dynamic_cast<ListView&>(*busca.control("lstLista"));
      lst.userClickRow(iLinha);
      lst.userClickRow(iLinha);
    });
    abrirLista();
  }
};

TEST_F(Fornecedores, ColumnsOfTheList) {
  auto& tela = abrirFornecedores();
  EXPECT_EQ(tela.caption(), "Fornecedores");
  std::vector<std::string> ocultas;
  for (const ListColumn& coluna : tela.lstLista.columns())
    if (coluna.width == 0) ocultas.push_back(coluna.heading);
  EXPECT_THAT(cabecalhos(tela.lstLista),
              ElementsAre("Código", "Código interno da categoria", "Categoria", "Nome", "Endereço", "Cidade", "UF",
                          "CEP", "Telefone", "Fax", "Contato", "CPF", "IE", "CNPJ", "e-Mail", "Home Page", "Banco",
                          "Agência", "Conta", "Observação"));
  EXPECT_THAT(ocultas, ElementsAre("Código interno da categoria"));
}

TEST_F(Fornecedores, TheFormHasItsFieldsInTheirOrder) {
  EXPECT_THAT(formularioDe(abrirFornecedores()),
              ElementsAre("Código: txtCodigoInf <= 2147483647",
                          "Categoria: txtCategoria + cmdBuscarCategoria + cmdNovaCategoria", "Nome: txtNome 50",
                          "Endereço: txtEndereco 255", "Cidade: txtCidade + cmdBuscarCidade", "UF: txtUF",
                          "CEP: txtCEP 00000-000", "Telefone: txtTelefone (00) 0000-00009",
                          "Fax: txtFax (00) 0000-00009", "Contato: txtContato 50", "CPF: txtCPF 000.000.000-00",
                          "IE: txtIE AAAAAAAAAAAAAA", "CNPJ: txtCNPJ AA.AAA.AAA/AAAA-00", "e-Mail: txtEMail 50",
                          "Home Page: txtHomePage 50", "Observação: txtObs", "Banco: txtBanco + cmdBuscarBancos",
                          "Agência: txtAgencia 6", "Conta: txtConta 15"));
}

TEST_F(Fornecedores, HasNoneOfTheBoxesThatOnlyACustomerHas) {
  auto& tela = abrirFornecedores();
  for (const char* sCaixa : {"txtLimiteCredito",
                             "txtBairro",
                             "txtRG",
                             "dtNascimento",
                             "txtPai",
                             "txtMae",
                             "txtVendedor",
                             "cmdNovoVendedor",
                             "txtEnderecoEntrega",
                             "txtBairroEntrega",
                             "txtCidadeEntrega",
                             "txtUFEntrega",
                             "cmdBuscaCidadeEntrega",
                             "txtCEPEntrega",
                             "txtEnderecoCobranca",
                             "txtBairroCobranca",
                             "txtCidadeCobranca",
                             "txtUFCobranca",
                             "cmdBuscaCidadeCobranca",
                             "txtCEPCobranca"})
    EXPECT_EQ(tela.control(sCaixa), nullptr) << sCaixa;
  for (const char* sCaixa : {"txtBanco", "cmdBuscarBancos", "txtAgencia", "txtConta", "cmdBuscarCidade"})
    EXPECT_NE(tela.control(sCaixa), nullptr) << sCaixa;
}

TEST_F(Fornecedores, StoresEveryBoxAndLoadsItBack) {
  const auto lCategoria = lAtacado();
  auto& tela = abrirFornecedores();
  EXPECT_EQ(tela.sConsulta("WHERE lCodigoInf = 12 "),
            "SELECT Fornecedores.lCodigo, lCodigoInf, Fornecedores.sNome, sEndereco, sCEP, sTelefone, sFax, sContato, "
            "sCPF, sIE, sCNPJ, sEmail, sHomePage, sAgencia, sConta, txtObs, lCategoria, (Categorias.btCodigoInf) AS "
            "Categoria, (Cidades.sNome) AS Cidade, (Cidades.sUF) AS UF, (Bancos.sNome) AS Banco FROM ((Fornecedores "
            "INNER JOIN Cidades ON Fornecedores.lCidade = Cidades.lCodigo) INNER JOIN Bancos ON Bancos.lCodigo = "
            "Fornecedores.lBanco) INNER JOIN Categorias ON Categorias.lCodigo = Fornecedores.lCategoria WHERE "
            "lCodigoInf = 12 ORDER BY lCodigoInf, Fornecedores.sNome ");
  tela.txtCodigoInf.userType("12");
  tela.vSetCategoria(lCategoria, "Atacado");
  tela.txtNome.userType("Frigorífico D'Oeste S.A.");
  tela.txtEndereco.userType(std::string(300, 'x'));
  EXPECT_EQ(tela.txtEndereco.text().size(), 255u) << "longer than a customer's";
  tela.txtEndereco.userType("Rodovia SP-304, km 10");
  escolherCidade(tela.cidade.txtCidade, "Santa Bárbara d'Oeste");
  tela.txtCEP.userType("13450000");
  tela.txtTelefone.userType("1934551020");
  tela.txtFax.userType("1934551021");
  tela.txtContato.userType("João Batista");
  tela.txtCPF.userType("11144477735");
  tela.txtIE.userType("606.123.456.110");
  tela.txtCNPJ.userType("11444777000161");
  tela.txtEMail.userType("vendas@frigorifico.com.br");
  tela.txtHomePage.userType("www.frigorifico.com.br");
  tela.banco.vSetEstado2("Caixa Econômica Federal");
  tela.txtAgencia.userType("1234567");
  EXPECT_EQ(tela.txtAgencia.text(), "123456");
  tela.txtAgencia.userType("0296-8");
  tela.txtConta.userType("1234567890123456");
  EXPECT_EQ(tela.txtConta.text(), "123456789012345");
  tela.txtConta.userType("103.456-7");
  tela.txtObs.userType("Entrega na segunda-feira");

  const std::string sChaves = std::to_string(lCategoria) + ", " + std::to_string(lSantaBarbara) + ", 2)";
  EXPECT_EQ(tela.sInclusao(),
            "INSERT INTO Fornecedores (lCodigoInf, sNome, sEndereco, sCEP, sTelefone, sFax, sContato, sCPF, sIE, "
            "sCNPJ, sEmail, sHomePage, sAgencia, sConta, txtObs, lCategoria, lCidade, lBanco) VALUES (12, "
            "'Frigorífico D''Oeste S.A.', 'Rodovia SP-304, km 10', '13450-000', '(19) 3455-1020', '(19) 3455-1021', "
            "'João Batista', '111.444.777-35', '606123456110', '11.444.777/0001-61', 'vendas@frigorifico.com.br', "
            "'www.frigorifico.com.br', '0296-8', '103.456-7', 'Entrega na segunda-feira', " +
                sChaves);
  salvar(tela);
  EXPECT_EQ(tela.banco.txtBanco.text(), "");
  EXPECT_EQ(tela.banco.lGetCodigo(), -1) << "the next record has no bank yet";

  ASSERT_THAT(listados(tela.lstLista),
              ElementsAre("12|" + std::to_string(lCategoria) +
                          "|3|Frigorífico D'Oeste S.A.|Rodovia SP-304, km 10|Santa Bárbara d'Oeste|SP|13450-000|"
                          "(19) 3455-1020|(19) 3455-1021|João Batista|111.444.777-35|606123456110|"
                          "11.444.777/0001-61|vendas@frigorifico.com.br|www.frigorifico.com.br|"
                          "Caixa Econômica Federal|0296-8|103.456-7|Entrega na segunda-feira"));

  tela.lstLista.userClickRow(0);
  EXPECT_EQ(tela.categoria.lCodigo, lCategoria);
  EXPECT_EQ(tela.txtCategoria.text(), "3");
  EXPECT_EQ(tela.cidade.lGetCodigo(), lSantaBarbara);
  EXPECT_EQ(tela.cidade.txtUF.text(), "SP");
  EXPECT_EQ(tela.banco.lGetCodigo(), 2);
  EXPECT_EQ(tela.banco.txtBanco.text(), "Caixa Econômica Federal");
  EXPECT_EQ(tela.txtObs.text(), "Entrega na segunda-feira");
  EXPECT_EQ(tela.note(), "Editando o registro 12");
  EXPECT_EQ(tela.sAlteracao(),
            "UPDATE Fornecedores SET lCodigoInf = 12, sNome = 'Frigorífico D''Oeste S.A.', sEndereco = 'Rodovia "
            "SP-304, km 10', sCEP = '13450-000', sTelefone = '(19) 3455-1020', sFax = '(19) 3455-1021', sContato = "
            "'João Batista', sCPF = '111.444.777-35', sIE = '606123456110', sCNPJ = '11.444.777/0001-61', sEmail = "
            "'vendas@frigorifico.com.br', sHomePage = 'www.frigorifico.com.br', sAgencia = '0296-8', sConta = "
            "'103.456-7', txtObs = 'Entrega na segunda-feira', lCategoria = " +
                std::to_string(lCategoria) + ", lCidade = " + std::to_string(lSantaBarbara) +
                ", lBanco = 2 WHERE lCodigo = " + std::to_string(tela.lGetCodigo()));
  tela.txtNome.userType("Frigorífico do Oeste");
  salvar(tela);
  EXPECT_THAT(linhas("SELECT sNome, sConta, lBanco FROM Fornecedores"),
              ElementsAre("Frigorífico do Oeste|103.456-7|2"));
}

TEST_F(Fornecedores, ARowWithNothingInItLoadsAsEmptyBoxes) {
  inserir("Fornecedores", "lCategoria, lCidade, lBanco",
          std::to_string(lAtacado()) + ", " + std::to_string(lCampinas) + ", 1");
  auto& tela = abrirFornecedores();
  tela.txtNome.userType("Algo");
  tela.lstLista.userClickRow(0);
  EXPECT_GT(tela.lGetCodigo(), 0);
  EXPECT_TRUE(tela.txtCodigoInf.empty());
  EXPECT_TRUE(tela.txtNome.empty());
  EXPECT_EQ(tela.cidade.lGetCodigo(), lCampinas);
  EXPECT_EQ(tela.banco.lGetCodigo(), 1);
  tela.txtCodigoInf.userType("9");
  tela.txtNome.userType("Do console");
  salvar(tela);
  EXPECT_EQ(valor("SELECT lCodigoInf, sNome FROM Fornecedores"), "9|Do console");
}

TEST_F(Fornecedores, ChecksInTheirOrder) {
  cadastrar("frmCadastroFornecedores", 1, "Primeiro");
  executar("UPDATE Fornecedores SET sCPF = '111.444.777-35', sIE = '606', sCNPJ = '11.444.777/0001-61'");
  auto& tela = abrirFornecedores();
  const auto recusado = [&](const char* sMensagem, const Control& onde) {
    salvarRecusado(host, tela, aviso(sMensagem), onde);
  };
  tela.txtCPF.userType("11144477735");
  tela.txtIE.userType("606");
  tela.txtCNPJ.userType("11444777000161");
  tela.txtCodigoInf.userType("");
  recusado("Informe o código.", tela.txtCodigoInf);
  tela.txtCodigoInf.userType("2");
  recusado("Informe a categoria.", tela.txtCategoria);
  tela.vSetCategoria(lAtacado(), "Atacado");
  recusado("Informe o nome.", tela.txtNome);
  tela.txtNome.userType("Segundo");
  recusado("Informe a cidade.", tela.cidade.txtCidade);
  escolherCidade(tela.cidade.txtCidade, "Campinas");
  recusado("O CPF informado já existe no sistema.", tela.txtCPF);
  tela.txtCPF.userType("");
  recusado("A IE informada já existe no sistema.", tela.txtIE);
  tela.txtIE.userType("");
  recusado("O CNPJ informado já existe no sistema.", tela.txtCNPJ);
  tela.txtCNPJ.userType("");
  recusado("Informe o banco.", tela.banco.txtBanco);
  tela.banco.vSetEstado2("Banco Que Não Há");
  recusado("Informe o banco.", tela.banco.txtBanco);
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Categorias"), "1") << "no hidden category is made";
  tela.banco.vSetEstado2("Banco do Brasil S.A.");
  salvar(tela);
  EXPECT_EQ(valor("SELECT sNome, lBanco FROM Fornecedores WHERE lCodigoInf = 2"), "Segundo|1");
}

TEST_F(Fornecedores, NumbersWithWrongCheckDigitsAreStoredWithoutAQuestion) {
  auto& tela = abrirFornecedores();
  preencher(tela, "Papelaria Zênite");
  tela.txtCPF.userType("11144477736");
  tela.txtCNPJ.userType("11444777000162");
  salvar(tela);
  EXPECT_EQ(valor("SELECT sCPF, sCNPJ FROM Fornecedores"), "111.444.777-36|11.444.777/0001-62");
}

TEST_F(Fornecedores, TheBankIsPickedFromItsList) {
  auto& tela = abrirFornecedores();
  CampoBanco& banco = tela.banco;
  EXPECT_FALSE(banco.txtBanco.userType("Caixa"));
  banco.txtBanco.setFocus();
  escolherBanco(1, [&] { tela.userKey(Key::space); });
  EXPECT_EQ(banco.txtBanco.text(), "Caixa Econômica Federal");
  EXPECT_EQ(banco.lGetCodigo(), 2);
  EXPECT_TRUE(tela.txtAgencia.hasFocus());

  escolherBanco(0, [&] { banco.cmdBuscarBancos.userClick(); });
  EXPECT_EQ(banco.txtBanco.text(), "Banco do Brasil S.A.");
  EXPECT_EQ(banco.lGetCodigo(), 1);
  EXPECT_TRUE(banco.txtBanco.hasFocus());

  host.expectScreen("frmLocalizarBancos", [](Screen& busca) { busca.userKey(Key::escape); });
  tela.userKey(Key::space);
  EXPECT_EQ(banco.lGetCodigo(), 1) << "none picked: the one that there was stays";

  banco.txtBanco.setFocus();
  tela.userKey(Key::insert);
  EXPECT_EQ(banco.lGetCodigo(), 1) << "banks are not registered";
  tela.userKey(Key::del);
  EXPECT_EQ(banco.lGetCodigo(), -1);
  EXPECT_EQ(banco.txtBanco.text(), "");
  EXPECT_TRUE(banco.txtBanco.hasFocus());
}

TEST_F(Fornecedores, ABankThatIsNoLongerFoundIsAskedForAgain) {
  cadastrar("frmCadastroFornecedores", 1, "Primeiro");
  auto& tela = abrirFornecedores();
  executar("UPDATE Bancos SET sNome = 'Outro' WHERE lCodigo = 1");
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(tela.banco.txtBanco.text(), "Banco do Brasil S.A.");
  EXPECT_EQ(tela.banco.lGetCodigo(), -1);
  host.expectBox(aviso("Informe o banco."));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.banco.txtBanco.hasFocus());
}

TEST_F(Fornecedores, AfterACityWasPickedTheFocusStays) {
  auto& tela = abrirFornecedores();
  for (TextControl* aberta : {&tela.cidade.txtCidade, &tela.cidade.txtUF}) {
    escolherCidade(*aberta, "Campinas");
    EXPECT_TRUE(aberta->hasFocus());
  }
}

TEST_F(Fornecedores, ARepeatedCodeOfANewSupplierIsRefusedAndTheFormStays) {
  cadastrar("frmCadastroFornecedores", 1, "Primeiro");
  auto& tela = abrirFornecedores();
  preencher(tela, "Segundo");
  tela.txtCodigoInf.userType("1");
  const std::string sTexto = recusaDoBanco(tela.sInclusao());
  ASSERT_NE(sTexto, "");
  host.expectBox(critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + sTexto));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  EXPECT_EQ(tela.lGetCodigo(), -1);
  EXPECT_EQ(tela.banco.lGetCodigo(), 1);
  EXPECT_EQ(tela.txtNome.text(), "Segundo");
}

}  // namespace
}  // namespace fenvale
