// What only the register of customers has.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Pessoas.h"
#include "registers/screens/frmCadastroClientes.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

class Clientes : public Pessoas {
 protected:
  frmCadastroClientes& abrirClientes() { return dynamic_cast<frmCadastroClientes&>(abrir("frmCadastroClientes")); }
  std::int32_t cliente(int iCodigo, const std::string& sNome) {
    return cadastrar("frmCadastroClientes", iCodigo, sNome);
  }
};

TEST_F(Clientes, ColumnsOfTheList) {
  auto& tela = abrirClientes();
  EXPECT_EQ(tela.title(), "Cadastro de clientes");
  std::vector<std::string> ocultas;
  for (const ListColumn& coluna : tela.lstLista.columns())
    if (coluna.width == 0) ocultas.push_back(coluna.heading);
  EXPECT_THAT(cabecalhos(tela.lstLista),
              ElementsAre("Código", "Código interno da categoria", "Categoria", "Nome", "Limite de crédito", "Endereço",
                          "Bairro", "Cidade", "UF", "CEP", "Telefone", "Fax", "Contato", "Código interno do vendedor",
                          "Vendedor", "RG", "CPF", "IE", "CNPJ", "Nascimento", "e-Mail", "Home Page", "Observação",
                          "Pai", "Mãe", "Endereço de entrega", "Bairro de entrega", "CEP de entrega",
                          "Cidade de entrega", "UF de entrega", "Endereço de cobrança", "Bairro de cobrança",
                          "CEP de cobrança", "Cidade de cobrança", "UF de cobrança"));
  EXPECT_THAT(ocultas, ElementsAre("Código interno da categoria", "Código interno do vendedor"));
}

TEST_F(Clientes, TheFormHasItsFieldsInTheirOrderAndPlaces) {
  EXPECT_THAT(
      formularioDe(abrirClientes()),
      ElementsAre("[Dados gerais]", "Código: txtCodigoInf <= 2147483647",
                  "Categoria: txtCategoria + cmdBuscarCategoria + cmdNovaCategoria", "Nome: txtNome 50",
                  "Limite de crédito: txtLimiteCredito", "Endereço: txtEndereco 100", "Bairro: txtBairro 50",
                  "Cidade: txtCidade + cmdBuscarCidade", "UF: txtUF", "CEP: txtCEP 00000-000",
                  "Telefone: txtTelefone (00) 0000-00009", "Fax: txtFax (00) 0000-00009", "Contato: txtContato 50",
                  "Vendedor: txtVendedor + cmdBuscarVendedor + cmdNovoVendedor", "RG: txtRG 255",
                  "CPF: txtCPF 000.000.000-00", "IE: txtIE AAAAAAAAAAAAAA", "CNPJ: txtCNPJ AA.AAA.AAA/AAAA-00",
                  "Nascimento: dtNascimento", "e-Mail: txtEMail 50", "Home Page: txtHomePage 50", "Observação: txtObs",
                  "[Filiação]", "Nome do pai: txtPai 50", "Nome da mãe: txtMae 50", "[Local de entrega]",
                  "Endereço: txtEnderecoEntrega 100", "Bairro: txtBairroEntrega 50",
                  "Cidade: txtCidadeEntrega + cmdBuscaCidadeEntrega", "UF: txtUFEntrega",
                  "CEP: txtCEPEntrega 00000-000", "[Local de cobrança]", "Endereço: txtEnderecoCobranca 100",
                  "Bairro: txtBairroCobranca 50", "Cidade: txtCidadeCobranca + cmdBuscaCidadeCobranca",
                  "UF: txtUFCobranca", "CEP: txtCEPCobranca 00000-000"));
}

TEST_F(Clientes, TheQueryOfTheList) {
  EXPECT_EQ(
      abrirClientes().sConsulta("WHERE lCodigoInf = 12 "),
      "SELECT Clientes.lCodigo, Clientes.lCodigoInf, Clientes.sNome, FORMAT(fLimiteCredito, '#,##0.00') AS "
      "LimiteCredito, sEndereco, sBairro, sCEP, sTelefone, sFax, sContato, sRG, sCPF, sIE, sCNPJ, sPai, sMae, sEmail, "
      "FORMAT(dtNascimento, 'dd/mm/yyyy') AS Nascimento, sHomePage, txtObs, sEnderecoEntrega, sBairroEntrega, "
      "sCEPEntrega, sEnderecoCobranca, sBairroCobranca, sCEPCobranca, lCategoria, (Categorias.btCodigoInf) AS "
      "Categoria, lCidade, (SELECT Cidades.sNome FROM Cidades WHERE lCidade = Cidades.lCodigo) AS Cidade, (SELECT "
      "Cidades.sUF FROM Cidades WHERE lCidade = Cidades.lCodigo) AS UF, lVendedor, (Vendedores.sNome) AS Vendedor, "
      "lCidadeEntrega, (SELECT Cidades.sNome FROM Cidades WHERE lCidadeEntrega = Cidades.lCodigo) AS CidEntrega, "
      "(SELECT Cidades.sUF FROM Cidades WHERE lCidadeEntrega = Cidades.lCodigo) AS UFEntrega, lCidadeCobranca, (SELECT "
      "Cidades.sNome FROM Cidades WHERE lCidadeCobranca = Cidades.lCodigo) AS CidCobranca, (SELECT Cidades.sUF FROM "
      "Cidades WHERE lCidadeCobranca = Cidades.lCodigo) AS UFCobranca FROM (Clientes INNER JOIN Categorias ON "
      "Clientes.lCategoria = Categorias.lCodigo) INNER JOIN Vendedores ON Clientes.lVendedor = Vendedores.lCodigo "
      "WHERE lCodigoInf = 12 ORDER BY Clientes.lCodigoInf, Clientes.sNome ");
}

TEST_F(Clientes, ANewRecordHasTodaysDateAndNoSalespersonNorPlaces) {
  cliente(41, "Álvaro Nunes");
  auto& tela = abrirClientes();
  tela.lstLista.userClickRow(0);
  tela.dtNascimento.userType("12/08/1975");
  tela.userKey(Key::f2);
  EXPECT_EQ(tela.dtNascimento.value(), programa.relogio().today());
  EXPECT_EQ(tela.vendedor.lCodigo, -1);
  EXPECT_EQ(tela.cidadeEntrega.lGetCodigo(), -1);
  EXPECT_EQ(tela.cidadeCobranca.lGetCodigo(), -1);
}

TEST_F(Clientes, StoresEveryBoxAndLoadsItBack) {
  const auto lCategoria = inserir("Categorias", "btCodigoInf, sNome", "3, 'Atacado'");
  const auto lVendedor = inserir("Vendedores", "lCodigoInf, sNome", "5, 'Maria Aparecida'");
  auto& tela = abrirClientes();
  tela.txtCodigoInf.userType("12");
  tela.vSetCategoria(lCategoria, "Atacado");
  EXPECT_EQ(tela.txtCategoria.text(), "Atacado");
  tela.txtNome.userType("Açougue São João Ltda.");
  tela.txtLimiteCredito.userType("5.000,50");
  tela.txtEndereco.userType("Rua Marechal Deodoro, 415");
  tela.txtBairro.userType("Centro");
  escolherCidade(tela.cidade.txtCidade, "Santa Bárbara d'Oeste");
  tela.txtCEP.userType("13450000");
  tela.txtTelefone.userType("1934551020");
  tela.txtFax.userType("19934551021");
  tela.txtContato.userType("João Batista");
  tela.vSetVendedor(lVendedor, "Maria Aparecida");
  tela.txtRG.userType("22.333.444-5");
  tela.txtCPF.userType("11144477735");
  tela.txtIE.userType("606.123.456.110");
  tela.txtCNPJ.userType("11444777000161");
  tela.dtNascimento.userType("12/08/1975");
  tela.txtEMail.userType("contato@acougue.com.br");
  tela.txtHomePage.userType("www.acougue.com.br");
  tela.txtObs.userType("Paga na segunda-feira");
  tela.txtPai.userType("Pedro Batista");
  tela.txtMae.userType("Glória D'Ávila");
  tela.txtEnderecoEntrega.userType("Rua 3, 100");
  tela.txtBairroEntrega.userType("Vila Rica");
  tela.txtCEPEntrega.userType("13451-000");
  tela.txtEnderecoCobranca.userType("Rua 4, 200");
  tela.txtBairroCobranca.userType("Jardim");
  tela.txtCEPCobranca.userType("13452000");
  escolherCidade(tela.cidadeCobranca.txtCidade, "Campinas");

  const std::string sChaves = std::to_string(lCategoria) + ", " + std::to_string(lSantaBarbara) + ", " +
                              std::to_string(lVendedor) + ", -1, " + std::to_string(lCampinas) + ")";
  EXPECT_EQ(tela.sInclusao(),
            "INSERT INTO Clientes (lCodigoInf, sNome, fLimiteCredito, sEndereco, sBairro, sCEP, sTelefone, sFax, "
            "sContato, sRG, sCPF, sIE, sCNPJ, sPai, sMae, sEmail, dtNascimento, sHomePage, txtObs, sEnderecoEntrega, "
            "sBairroEntrega, sCEPEntrega, sEnderecoCobranca, sBairroCobranca, sCEPCobranca, lCategoria, lCidade, "
            "lVendedor, lCidadeEntrega, lCidadeCobranca) VALUES (12, 'Açougue São João Ltda.', 5000.5, "
            "'Rua Marechal Deodoro, 415', 'Centro', '13450-000', '(19) 3455-1020', '(19) 9345-51021', 'João Batista', "
            "'22.333.444-5', '111.444.777-35', '606123456110', '11.444.777/0001-61', 'Pedro Batista', "
            "'Glória D''Ávila', 'contato@acougue.com.br', #08/12/1975#, 'www.acougue.com.br', 'Paga na segunda-feira', "
            "'Rua 3, 100', 'Vila Rica', '13451-000', 'Rua 4, 200', 'Jardim', '13452-000', " +
                sChaves);
  salvar(tela);

  ASSERT_THAT(
      listados(tela.lstLista),
      ElementsAre("12|" + std::to_string(lCategoria) +
                  "|3|Açougue São João Ltda.|5.000,50|Rua Marechal Deodoro, 415|Centro|Santa Bárbara d'Oeste|SP|"
                  "13450-000|(19) 3455-1020|(19) 9345-51021|João Batista|" +
                  std::to_string(lVendedor) +
                  "|Maria Aparecida|22.333.444-5|111.444.777-35|606123456110|11.444.777/0001-61|12/08/1975|"
                  "contato@acougue.com.br|www.acougue.com.br|Paga na segunda-feira|Pedro Batista|Glória D'Ávila|"
                  "Rua 3, 100|Vila Rica|13451-000|Santa Bárbara d'Oeste|SP|Rua 4, 200|Jardim|13452-000|Campinas|SP"));

  tela.lstLista.userClickRow(0);
  EXPECT_EQ(tela.categoria.lCodigo, lCategoria);
  EXPECT_EQ(tela.txtCategoria.text(), "3");
  EXPECT_EQ(tela.txtLimiteCredito.text(), "5.000,50");
  EXPECT_EQ(tela.cidade.lGetCodigo(), lSantaBarbara);
  EXPECT_EQ(tela.cidade.txtUF.text(), "SP");
  EXPECT_EQ(tela.cidadeEntrega.txtCidade.text(), "Santa Bárbara d'Oeste");
  EXPECT_EQ(tela.cidadeEntrega.lGetCodigo(), lSantaBarbara);
  EXPECT_EQ(tela.cidadeCobranca.lGetCodigo(), lCampinas);
  EXPECT_EQ(tela.vendedor.lCodigo, lVendedor);
  EXPECT_EQ(tela.txtVendedor.text(), "Maria Aparecida");
  EXPECT_EQ(formatDate(tela.dtNascimento.value()), "12/08/1975");
  EXPECT_EQ(tela.txtMae.text(), "Glória D'Ávila");
  EXPECT_EQ(tela.note(), "Editando o registro 12");
  EXPECT_EQ(
      tela.sAlteracao(),
      "UPDATE Clientes SET lCodigoInf = 12, sNome = 'Açougue São João Ltda.', fLimiteCredito = 5000.5, sEndereco = "
      "'Rua Marechal Deodoro, 415', sBairro = 'Centro', sCEP = '13450-000', sTelefone = '(19) 3455-1020', sFax = "
      "'(19) 9345-51021', sContato = 'João Batista', sRG = '22.333.444-5', sCPF = '111.444.777-35', sIE = "
      "'606123456110', sCNPJ = '11.444.777/0001-61', sPai = 'Pedro Batista', sMae = 'Glória D''Ávila', sEmail = "
      "'contato@acougue.com.br', dtNascimento = #08/12/1975#, sHomePage = 'www.acougue.com.br', txtObs = 'Paga na "
      "segunda-feira', sEnderecoEntrega = 'Rua 3, 100', sBairroEntrega = 'Centro', sCEPEntrega = '13451-000', "
      "sEnderecoCobranca = 'Rua 4, 200', sBairroCobranca = 'Jardim', sCEPCobranca = '13452-000', lCategoria = " +
          std::to_string(lCategoria) + ", lCidade = " + std::to_string(lSantaBarbara) +
          ", lVendedor = " + std::to_string(lVendedor) + ", lCidadeEntrega = " + std::to_string(lSantaBarbara) +
          ", lCidadeCobranca = " + std::to_string(lCampinas) + " WHERE lCodigo = " + std::to_string(tela.lGetCodigo()));
}

TEST_F(Clientes, ARowWithNothingInItLoadsAsEmptyBoxesAndTodaysDate) {
  const auto lCategoria = inserir("Categorias", "btCodigoInf, sNome", "3, 'Atacado'");
  const auto lVendedor = inserir("Vendedores", "lCodigoInf, sNome", "5, 'Maria'");
  const std::string sCampinas = std::to_string(lCampinas);
  inserir("Clientes", "lCategoria, lCidade, lVendedor, lCidadeEntrega, lCidadeCobranca",
          std::to_string(lCategoria) + ", " + sCampinas + ", " + std::to_string(lVendedor) + ", " + sCampinas + ", " +
              sCampinas);
  auto& tela = abrirClientes();
  tela.dtNascimento.userType("12/08/1975");
  tela.txtLimiteCredito.userType("10,00");
  tela.lstLista.userClickRow(0);
  EXPECT_GT(tela.lGetCodigo(), 0);
  EXPECT_TRUE(tela.txtCodigoInf.empty());
  EXPECT_TRUE(tela.txtNome.empty());
  EXPECT_EQ(tela.txtLimiteCredito.value(), Currency());
  EXPECT_EQ(tela.dtNascimento.value(), programa.relogio().today());
  EXPECT_EQ(tela.cidade.lGetCodigo(), lCampinas);
  tela.txtCodigoInf.userType("9");
  tela.txtNome.userType("Do console");
  salvar(tela);
  EXPECT_EQ(valor("SELECT lCodigoInf, sNome FROM Clientes"), "9|Do console");
}

TEST_F(Clientes, AnEditedCustomersDistrictOfDeliveryBecomesTheMainOne) {
  auto& tela = abrirClientes();
  preencher(tela, "Bar do Élio");
  tela.txtBairro.userType("Centro");
  tela.txtBairroEntrega.userType("Vila Rica");
  salvar(tela);
  EXPECT_EQ(valor("SELECT sBairroEntrega FROM Clientes"), "Vila Rica");
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(tela.txtBairroEntrega.text(), "Vila Rica");
  EXPECT_THAT(tela.sAlteracao(), testing::HasSubstr("sBairroEntrega = 'Centro', "));
  salvar(tela);
  EXPECT_EQ(valor("SELECT sBairroEntrega FROM Clientes"), "Centro");
}

TEST_F(Clientes, ChecksInTheirOrder) {
  auto& tela = abrirClientes();
  tela.txtCodigoInf.userType("");
  salvarRecusado(host, tela, aviso("Informe o código."), tela.txtCodigoInf);
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Categorias"), "0");

  tela.txtCodigoInf.userType("1");
  salvarRecusado(host, tela, aviso("Informe o nome."), tela.txtNome);
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Categorias"), "1") << "the hidden category comes before the name";
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Vendedores"), "0");

  tela.txtNome.userType("José Pereira");
  salvarRecusado(host, tela, aviso("Informe a cidade."), tela.cidade.txtCidade);
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Vendedores"), "0")
      << "the hidden salesperson comes after the city";
}

TEST_F(Clientes, TheQuestionsStandBetweenTheRefusals) {
  auto& tela = abrirClientes();
  const auto digitar = [&](const char* sRG, const char* sCPF, const char* sIE, const char* sCNPJ) {
    tela.txtRG.userType(sRG);
    tela.txtCPF.userType(sCPF);
    tela.txtIE.userType(sIE);
    tela.txtCNPJ.userType(sCNPJ);
  };
  const auto sCPFErrado = pergunta("O CPF informado é inválido.Deseja continuar?");
  const auto sCNPJErrado = pergunta("O CNPJ informado é inválido.Deseja continuar?");
  preencher(tela, "Primeiro");
  digitar("1", "11144477736", "6061", "11444777000162");
  host.expectBox(sCPFErrado, BoxAnswer::yes);
  host.expectBox(sCNPJErrado, BoxAnswer::yes);
  salvar(tela);
  executar("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (9, 'Maria')");
  executar("UPDATE Clientes SET lVendedor = 2");
  executar("DELETE * FROM Vendedores WHERE sNome = ''");

  preencher(tela, "Segundo");
  digitar("1", "11144477736", "6061", "11444777000162");
  salvarRecusado(host, tela, aviso("O RG informado já existe no sistema."), tela.txtRG);
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Vendedores WHERE sNome = ''"), "1")
      << "the hidden salesperson comes before the numbers";

  tela.txtRG.userType("2");
  salvarRecusado(host, tela, aviso("O CPF informado já existe no sistema."), tela.txtCPF);

  tela.txtCPF.userType("22244477736");
  host.expectBox(sCPFErrado, BoxAnswer::yes);
  salvarRecusado(host, tela, aviso("A IE informada já existe no sistema."), tela.txtIE);

  tela.txtIE.userType("6062");
  host.expectBox(sCPFErrado, BoxAnswer::yes);
  host.expectBox(aviso("O CNPJ informado já existe no sistema."));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.txtCNPJ.hasFocus()) << "the duplicate comes before the question";

  tela.txtCNPJ.userType("22444777000162");
  tela.txtNome.setFocus();
  host.expectBox(sCPFErrado, BoxAnswer::yes);
  host.expectBox(sCNPJErrado, BoxAnswer::no);
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.txtNome.hasFocus()) << "a no moves no focus";
  EXPECT_EQ(tela.cidadeEntrega.lGetCodigo(), -1) << "the main city stands in after all questions";
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Clientes"), "1");

  host.expectBox(sCPFErrado, BoxAnswer::yes);
  host.expectBox(sCNPJErrado, BoxAnswer::yes);
  salvar(tela);
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Clientes"), "2");
}

TEST_F(Clientes, AWrongCpfIsStoredOnTheUsersWord) {
  auto& tela = abrirClientes();
  preencher(tela, "Maria da Glória Silva");
  tela.txtCPF.userType("11144477736");
  tela.txtNome.setFocus();
  host.expectBox(pergunta("O CPF informado é inválido.Deseja continuar?"), BoxAnswer::no);
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.txtNome.hasFocus()) << "a no moves no focus";
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Clientes"), "0");

  host.expectBox(pergunta("O CPF informado é inválido.Deseja continuar?"), BoxAnswer::yes);
  salvar(tela);
  EXPECT_EQ(valor("SELECT sCPF FROM Clientes"), "111.444.777-36") << "the box's text, not the cleaned number";

  // For a second customer with it there is no question: the duplicate comes first.
  preencher(tela, "Outra");
  tela.txtCPF.userType("11144477736");
  host.expectBox(aviso("O CPF informado já existe no sistema."));
  tela.userKey(Key::f3);
}

TEST_F(Clientes, AWrongCnpjIsStoredOnTheUsersWord) {
  auto& tela = abrirClientes();
  preencher(tela, "Papelaria Zênite");
  tela.txtCNPJ.userType("11444777000162");
  host.expectBox(pergunta("O CNPJ informado é inválido.Deseja continuar?"), BoxAnswer::no);
  tela.userKey(Key::f3);
  host.expectBox(pergunta("O CNPJ informado é inválido.Deseja continuar?"), BoxAnswer::yes);
  salvar(tela);
  EXPECT_EQ(valor("SELECT sCNPJ FROM Clientes"), "11.444.777/0001-62");
}

TEST_F(Clientes, WithoutCategoryAndSalespersonTheHiddenRowsStand) {
  cliente(1, "José Pereira");
  EXPECT_EQ(valor("SELECT Categorias.sNome FROM Clientes INNER JOIN Categorias ON Clientes.lCategoria = "
                  "Categorias.lCodigo"),
            "");
  auto& tela = abrirClientes();
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(tela.txtCategoria.text(), "1") << "the code of the hidden category";
  EXPECT_EQ(tela.txtVendedor.text(), "");
  EXPECT_GT(tela.vendedor.lCodigo, 0);
}

TEST_F(Clientes, AnEmptyPlaceOfDeliveryIsTheMainCityOnlyInTheStore) {
  auto& tela = abrirClientes();
  preencher(tela, "José Pereira");
  const auto sDestino = [&] { return valor("SELECT lCidadeEntrega, lCidadeCobranca FROM Clientes"); };
  host.expectBox(informacao("Operação concluída."));
  host.then([&] { EXPECT_EQ(tela.cidadeEntrega.txtCidade.text(), ""); });
  tela.userKey(Key::f3);
  EXPECT_EQ(sDestino(), std::to_string(lCampinas) + "|" + std::to_string(lCampinas));
  EXPECT_EQ(valor("SELECT sEnderecoEntrega, sBairroCobranca FROM Clientes"), "|");
}

TEST_F(Clientes, ARepeatedCodeIsRefusedAndTheHiddenRowsStayChosen) {
  cliente(1, "Primeiro");
  auto& tela = abrirClientes();
  preencher(tela, "Segundo");
  tela.txtCodigoInf.userType("1");
  const auto lCategoria = valor("SELECT lCodigo FROM Categorias WHERE sNome = ''");
  const std::string sCampinas = std::to_string(lCampinas);
  const std::string sTexto = recusaDoBanco(
      "INSERT INTO Clientes (lCodigoInf, sNome, lCategoria, lCidade, lVendedor, lCidadeEntrega, lCidadeCobranca) "
      "VALUES (1, 'x', " +
      lCategoria + ", " + sCampinas + ", 1, " + sCampinas + ", " + sCampinas + ")");
  ASSERT_NE(sTexto, "");
  host.expectBox(critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + sTexto));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  EXPECT_EQ(std::to_string(tela.categoria.lCodigo), lCategoria);
  EXPECT_GT(tela.vendedor.lCodigo, 0);
  EXPECT_EQ(tela.txtNome.text(), "Segundo");
}

TEST_F(Clientes, TheSalespersonTakesNoTextButThreeKeys) {
  const auto lVendedor = inserir("Vendedores", "lCodigoInf, sNome", "5, 'Maria'");
  auto& tela = abrirClientes();
  EXPECT_FALSE(tela.txtVendedor.userType("Maria"));
  tela.txtVendedor.setFocus();
  host.expectScreen("frmLocalizarVendedoresRapido", [](Screen& busca) {
    auto& lst = dynamic_cast<ListView&>(*busca.control("lstLista"));
    lst.userClickRow(0);
    lst.userClickRow(0);
  });
  tela.userKey(Key::space);
  EXPECT_EQ(tela.vendedor.lCodigo, lVendedor);
  EXPECT_TRUE(tela.txtRG.hasFocus());

  tela.txtVendedor.setFocus();
  host.expectScreen("frmCadastroVendedores", [](Screen& cadastro) { cadastro.unload(); });
  tela.userKey(Key::insert);
  EXPECT_TRUE(tela.txtVendedor.hasFocus());
  EXPECT_EQ(tela.vendedor.lCodigo, lVendedor) << "the register fills nothing in";
  tela.userKey(Key::del);
  EXPECT_EQ(tela.vendedor.lCodigo, -1);
  EXPECT_EQ(tela.txtVendedor.text(), "");
  EXPECT_TRUE(tela.txtVendedor.hasFocus());
  tela.userKey(Key::home);
  EXPECT_EQ(tela.vendedor.lCodigo, -1);
}

TEST_F(Clientes, TheButtonOpensTheSalespeopleAndGivesTheFocusBack) {
  auto& tela = abrirClientes();
  host.expectScreen("frmCadastroVendedores", [](Screen& cadastro) { cadastro.unload(); });
  tela.cmdNovoVendedor.userClick();
  EXPECT_TRUE(tela.txtVendedor.hasFocus());
}

TEST_F(Clientes, AfterACityWasPickedTheFocusGoesOn) {
  auto& tela = abrirClientes();
  struct Caso {
    CampoCidade& local;
    Control* proximo;
  };
  for (const Caso& caso : {Caso{tela.cidade, &tela.txtCEP}, Caso{tela.cidadeEntrega, &tela.txtEnderecoCobranca},
                           Caso{tela.cidadeCobranca, nullptr}}) {
    for (TextControl* aberta : {&caso.local.txtCidade, &caso.local.txtUF}) {
      escolherCidade(*aberta, "Campinas");
      EXPECT_EQ(caso.local.lGetCodigo(), lCampinas);
      EXPECT_TRUE((caso.proximo == nullptr ? aberta : caso.proximo)->hasFocus());
      aberta->setFocus();
      tela.userKey(Key::del);
      EXPECT_EQ(caso.local.lGetCodigo(), -1);
      EXPECT_TRUE(aberta->hasFocus());
    }
  }
}

}  // namespace
}  // namespace fenvale
