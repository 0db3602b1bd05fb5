// The register of customers.

#include "Cadastros.h"
#include "registers/screens/frmCadastroClientes.h"
#include "shell/services/Contexto.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

/// Picks the city that it is told to.
struct BuscaCidadeFalsa : Screen, BuscaCidade {
  explicit BuscaCidadeFalsa(Contexto& contexto, std::string sNome) : Screen(contexto.host(), "frmLocalizarCidades") {
    escolhida.vSetEstado2(contexto, sNome, "SP", true);
  }
  void vCarregar(bool) override { host().showModal(*this); }
  const Cidade& cidade() const override { return escolhida; }
  Cidade escolhida;
};

/// Remembers what it was asked to list.
struct TitulosFalsos : Screen, TelaComLista {
  TitulosFalsos(Contexto& contexto, std::vector<std::string>& clausulas)
      : Screen(contexto.host(), "frmCadastroTitulosReceber"), pedidas(clausulas) {}
  void vMontarLista(std::int16_t iInicio, const std::string& sWhere) override {
    pedidas.push_back(std::to_string(iInicio) + "|" + sWhere);
  }
  std::vector<std::string>& pedidas;
};

class Clientes : public Cadastros {
 protected:
  Clientes() {
    lCampinas = cidade("Campinas", "SP");
    lSantaBarbara = cidade("Santa Bárbara d'Oeste", "SP");
    programa.telas().registrar("frmLocalizarCidades", [this](Contexto& contexto) -> std::unique_ptr<Screen> {
      return std::make_unique<BuscaCidadeFalsa>(contexto, sCidadeEscolhida);
    });
  }

  frmCadastroClientes& abrirClientes() { return dynamic_cast<frmCadastroClientes&>(abrir("frmCadastroClientes")); }

  /// Space in a city box, and that city picked.
  void escolherCidade(TextControl& caixaCidade, const std::string& sNome) {
    sCidadeEscolhida = sNome;
    caixaCidade.setFocus();
    host.expectScreen("frmLocalizarCidades", [](Screen& busca) { busca.unload(); });
    caixaCidade.screen().userKey(Key::space);
  }

  /// What every customer needs.
  void preencher(frmCadastroClientes& tela, const std::string& sNome) {
    tela.txtNome.userType(sNome);
    escolherCidade(tela.cidade.txtCidade, "Campinas");
  }

  void salvar(TelaCadastro& tela) {
    host.expectBox(informacao("Operação concluída."));
    tela.userKey(Key::f3);
  }

  std::int32_t cliente(int iCodigo, const std::string& sNome) {
    auto& tela = abrirClientes();
    tela.txtCodigoInf.userType(std::to_string(iCodigo));
    preencher(tela, sNome);
    salvar(tela);
    fechar(tela);
    return std::stoi(valor("SELECT MAX(lCodigo) AS Valor FROM Clientes"));
  }

  std::int32_t lCampinas = 0, lSantaBarbara = 0;
  std::string sCidadeEscolhida;
};

TEST_F(Clientes, ColumnsOfTheList) {
  auto& tela = abrirClientes();
  EXPECT_EQ(tela.title(), "Cadastro de clientes");
  std::vector<std::string> cabecalhos;
  std::vector<std::string> ocultas;
  for (const ListColumn& coluna : tela.lstLista.columns()) {
    cabecalhos.push_back(coluna.heading);
    if (coluna.width == 0) ocultas.push_back(coluna.heading);
  }
  EXPECT_THAT(cabecalhos,
              ElementsAre("Código", "Código interno da categoria", "Categoria", "Nome", "Limite de crédito", "Endereço",
                          "Bairro", "Cidade", "UF", "CEP", "Telefone", "Fax", "Contato", "Código interno do vendedor",
                          "Vendedor", "RG", "CPF", "IE", "CNPJ", "Nascimento", "e-Mail", "Home Page", "Observação",
                          "Pai", "Mãe", "Endereço de entrega", "Bairro de entrega", "CEP de entrega",
                          "Cidade de entrega", "UF de entrega", "Endereço de cobrança", "Bairro de cobrança",
                          "CEP de cobrança", "Cidade de cobrança", "UF de cobrança"));
  EXPECT_THAT(ocultas, ElementsAre("Código interno da categoria", "Código interno do vendedor"));
}

TEST_F(Clientes, ANewRecordHasTheNextCodeTodaysDateAndNothingElse) {
  cliente(41, "Álvaro Nunes");
  auto& tela = abrirClientes();
  EXPECT_EQ(tela.txtCodigoInf.text(), "42");
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  EXPECT_EQ(tela.dtNascimento.value(), programa.relogio().today());
  EXPECT_EQ(tela.categoria.lCodigo, -1);
  EXPECT_EQ(tela.vendedor.lCodigo, -1);
  EXPECT_EQ(tela.cidade.lGetCodigo(), -1);
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

TEST_F(Clientes, ACityThatIsNoLongerFoundIsAskedForAgain) {
  cliente(1, "José Pereira");
  auto& tela = abrirClientes();
  executar("UPDATE Cidades SET sNome = 'Outra' WHERE lCodigo = " + std::to_string(lCampinas));
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(tela.cidade.txtCidade.text(), "Campinas");
  EXPECT_EQ(tela.cidade.lGetCodigo(), -1);
  host.expectBox(aviso("Informe a cidade."));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.cidade.txtCidade.hasFocus());
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
  host.expectBox(aviso("Informe o código."));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Categorias"), "0");

  tela.txtCodigoInf.userType("1");
  host.expectBox(aviso("Informe o nome."));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.txtNome.hasFocus());
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Categorias"), "1") << "the hidden category comes before the name";
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Vendedores"), "0");

  tela.txtNome.userType("José Pereira");
  host.expectBox(aviso("Informe a cidade."));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.cidade.txtCidade.hasFocus());
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Vendedores"), "0")
      << "the hidden salesperson comes after the city";
}

TEST_F(Clientes, TheNumbersOfOthersAreRefusedInTheirOrder) {
  auto& tela = abrirClientes();
  preencher(tela, "Primeiro");
  tela.txtRG.userType("1");
  tela.txtCPF.userType("11144477735");
  tela.txtIE.userType("606123456110");
  tela.txtCNPJ.userType("11444777000161");
  salvar(tela);

  preencher(tela, "Segundo");
  tela.txtRG.userType("1");
  tela.txtCPF.userType("11144477735");
  tela.txtIE.userType("606123456110");
  tela.txtCNPJ.userType("11444777000161");
  struct Passo {
    const char* sMensagem;
    TextControl& caixa;
  };
  for (const Passo& passo : {Passo{"O RG informado já existe no sistema.", tela.txtRG},
                             Passo{"O CPF informado já existe no sistema.", tela.txtCPF},
                             Passo{"A IE informada já existe no sistema.", tela.txtIE},
                             Passo{"O CNPJ informado já existe no sistema.", tela.txtCNPJ}}) {
    host.expectBox(aviso(passo.sMensagem));
    tela.userKey(Key::f3);
    EXPECT_TRUE(passo.caixa.hasFocus()) << passo.sMensagem;
    passo.caixa.userType("");
  }
  salvar(tela);
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Clientes"), "2");
}

TEST_F(Clientes, OnesOwnNumbersAreNoDuplicates) {
  auto& tela = abrirClientes();
  preencher(tela, "Primeiro");
  tela.txtRG.userType("1");
  tela.txtCPF.userType("11144477735");
  salvar(tela);
  tela.lstLista.userClickRow(0);
  salvar(tela);
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Clientes"), "1");
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
  std::string sTexto;
  const auto lCategoria = valor("SELECT lCodigo FROM Categorias WHERE sNome = ''");
  try {
    executar(
        "INSERT INTO Clientes (lCodigoInf, sNome, lCategoria, lCidade, lVendedor, lCidadeEntrega, "
        "lCidadeCobranca) VALUES (1, 'x', " +
        lCategoria + ", " + std::to_string(lCampinas) + ", 1, " + std::to_string(lCampinas) + ", " +
        std::to_string(lCampinas) + ")");
  } catch (const Error& recusa) {
    sTexto = recusa.description;
  }
  ASSERT_NE(sTexto, "");
  host.expectBox(critica("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: \r\n\r\n" + sTexto));
  tela.userKey(Key::f3);
  EXPECT_TRUE(tela.txtCodigoInf.hasFocus());
  EXPECT_EQ(std::to_string(tela.categoria.lCodigo), lCategoria);
  EXPECT_GT(tela.vendedor.lCodigo, 0);
  EXPECT_EQ(tela.txtNome.text(), "Segundo");
}

TEST_F(Clientes, ACustomerWithInvoicesStays) {
  programaComFatura();
  auto& tela = abrirClientes();
  tela.lstLista.userClickRow(0);
  std::string sTexto;
  try {
    executar(tela.sExclusao());
  } catch (const Error& recusa) {
    sTexto = recusa.description;
  }
  host.expectBox(pergunta("Confirma a remoção do registro?"), BoxAnswer::yes);
  host.expectBox(critica("O registro não pode ser excluído.\r\n\r\nInformação detalhada: \r\n\r\n" + sTexto));
  tela.userKey(Key::f4);
  EXPECT_EQ(valor("SELECT COUNT(lCodigo) AS Cont FROM Clientes"), "1");
}

TEST_F(Clientes, LookupBoxesTakeNoTextButThreeKeys) {
  const auto lCategoria = inserir("Categorias", "btCodigoInf, sNome", "3, 'Atacado'");
  const auto lVendedor = inserir("Vendedores", "lCodigoInf, sNome", "5, 'Maria'");
  auto& tela = abrirClientes();
  EXPECT_FALSE(tela.txtCategoria.userType("Atacado"));

  const auto escolherPrimeira = [](Screen& busca) {
    auto& lst = dynamic_cast<ListView&>(*busca.control("lstLista"));
    lst.userClickRow(0);
    lst.userClickRow(0);
  };
  tela.txtCategoria.setFocus();
  host.expectScreen("frmLocalizarCategoriasRapido", escolherPrimeira);
  tela.userKey(Key::space);
  EXPECT_EQ(tela.categoria.lCodigo, lCategoria);
  EXPECT_EQ(tela.txtCategoria.text(), "Atacado");
  EXPECT_TRUE(tela.txtNome.hasFocus());

  tela.txtVendedor.setFocus();
  host.expectScreen("frmLocalizarVendedoresRapido", escolherPrimeira);
  tela.userKey(Key::space);
  EXPECT_EQ(tela.vendedor.lCodigo, lVendedor);
  EXPECT_TRUE(tela.txtRG.hasFocus());

  for (auto [busca, sCaixa, sTela] : {std::tuple{&tela.categoria, &tela.txtCategoria, "frmCadastroCategorias"},
                                      std::tuple{&tela.vendedor, &tela.txtVendedor, "frmCadastroVendedores"}}) {
    sCaixa->setFocus();
    host.expectScreen(sTela, [](Screen& cadastro) { cadastro.unload(); });
    tela.userKey(Key::insert);
    EXPECT_TRUE(sCaixa->hasFocus());
    EXPECT_GT(busca->lCodigo, 0) << "the register fills nothing in";
    tela.userKey(Key::del);
    EXPECT_EQ(busca->lCodigo, -1);
    EXPECT_EQ(sCaixa->text(), "");
    EXPECT_TRUE(sCaixa->hasFocus());
    tela.userKey(Key::home);
    EXPECT_EQ(busca->lCodigo, -1);
  }
}

TEST_F(Clientes, TheButtonsOpenTheRegistersAndGiveTheFocusBack) {
  auto& tela = abrirClientes();
  host.expectScreen("frmCadastroCategorias", [](Screen& cadastro) { cadastro.unload(); });
  tela.cmdNovaCategoria.userClick();
  EXPECT_TRUE(tela.txtCategoria.hasFocus());
  host.expectScreen("frmCadastroVendedores", [](Screen& cadastro) { cadastro.unload(); });
  tela.cmdNovoVendedor.userClick();
  EXPECT_TRUE(tela.txtVendedor.hasFocus());
}

TEST_F(Clientes, CityBoxesSearchAndEmptyThemselves) {
  auto& tela = abrirClientes();
  struct Caso {
    CampoCidade& local;
    Control* proximo;
  };
  for (const Caso& caso : {Caso{tela.cidade, &tela.txtCEP}, Caso{tela.cidadeEntrega, &tela.txtEnderecoCobranca},
                           Caso{tela.cidadeCobranca, nullptr}}) {
    for (TextControl* aberta : {&caso.local.txtCidade, &caso.local.txtUF}) {
      escolherCidade(*aberta, "Campinas");
      EXPECT_EQ(caso.local.txtCidade.text(), "Campinas");
      EXPECT_EQ(caso.local.txtUF.text(), "SP");
      EXPECT_EQ(caso.local.lGetCodigo(), lCampinas);
      EXPECT_TRUE((caso.proximo == nullptr ? aberta : caso.proximo)->hasFocus());
      aberta->setFocus();
      tela.userKey(Key::insert);
      EXPECT_EQ(caso.local.lGetCodigo(), lCampinas);
      tela.userKey(Key::del);
      EXPECT_EQ(caso.local.lGetCodigo(), -1);
      EXPECT_EQ(caso.local.txtCidade.text() + caso.local.txtUF.text(), "");
      EXPECT_TRUE(aberta->hasFocus());
    }
  }
}

class MenuDeClientes : public Clientes {
 protected:
  MenuDeClientes() {
    programa.telas().registrar("frmCadastroTitulosReceber", [this](Contexto& contexto) -> std::unique_ptr<Screen> {
      return std::make_unique<TitulosFalsos>(contexto, pedidas);
    });
  }
  std::vector<std::string> pedidas;
};

TEST_F(MenuDeClientes, ARightClickLoadsTheRowAndThenOffersItsTitles) {
  const std::string sChave = std::to_string(cliente(7, "Zulmira Antunes"));
  auto& tela = abrirClientes();
  for (const char* sEntrada : {"mnuVerificarTitulos", "mnuMostrarPagos", "mnuMostrarNaoPagos"}) {
    host.then([&] { EXPECT_EQ(tela.txtNome.text(), "Zulmira Antunes"); });
    host.expectPopup("mnuPopUp", sEntrada);
    host.expectScreen("frmCadastroTitulosReceber", [](Screen& titulos) { titulos.unload(); });
    tela.lstLista.userClickRow(0, MouseButton::right);
    EXPECT_EQ(tela.lGetCodigo(), -1) << "the form is cleared when the titles close";
    EXPECT_EQ(tela.txtNome.text(), "");
  }
  EXPECT_THAT(pedidas, ElementsAre("0|WHERE FaturasCliente.lCliente = " + sChave + " ",
                                   "0|WHERE FaturasCliente.lCliente = " + sChave + " AND (fValorPago > 0) ",
                                   "0|WHERE FaturasCliente.lCliente = " + sChave + " AND (fValorPago <= 0) "));
}

TEST_F(MenuDeClientes, ALeftClickOpensNoMenu) {
  cliente(7, "Zulmira Antunes");
  auto& tela = abrirClientes();
  host.expectPopup("mnuPopUp", "");
  tela.lstLista.userClickRow(0, MouseButton::right);
  tela.lstLista.userClickRow(0);
  EXPECT_EQ(tela.txtNome.text(), "Zulmira Antunes");
  const auto& itens = dynamic_cast<PopupMenu&>(*tela.control("mnuPopUp")).items();
  EXPECT_THAT((std::vector<std::string>{itens[0].caption, itens[1].caption, itens[2].caption}),
              ElementsAre("Mostrar todos os títulos", "Mostrar somente os títulos pagos",
                          "Mostrar somente os títulos não pagos"));
}

TEST_F(Clientes, WithoutATitleScreenTheMenuCannotBeChosenFrom) {
  cliente(7, "Zulmira Antunes");
  auto& tela = abrirClientes();
  host.expectPopup("mnuPopUp", "");
  tela.lstLista.userClickRow(0, MouseButton::right);
  EXPECT_FALSE(dynamic_cast<PopupMenu&>(*tela.control("mnuPopUp")).reachable("mnuVerificarTitulos"));
}

}  // namespace
}  // namespace fenvale
