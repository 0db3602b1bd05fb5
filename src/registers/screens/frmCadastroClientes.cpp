#include "registers/screens/frmCadastroClientes.h"

#include "shell/services/Validacoes.h"
#include "store/services/Sistema.h"

namespace fenvale {
namespace {

constexpr const char* sSelecao =
    "SELECT Clientes.lCodigo, Clientes.lCodigoInf, Clientes.sNome, FORMAT(fLimiteCredito, '#,##0.00') AS "
    "LimiteCredito, sEndereco, sBairro, sCEP, sTelefone, sFax, sContato, sRG, sCPF, sIE, sCNPJ, sPai, sMae, sEmail, "
    "FORMAT(dtNascimento, 'dd/mm/yyyy') AS Nascimento, sHomePage, txtObs, sEnderecoEntrega, sBairroEntrega, "
    "sCEPEntrega, sEnderecoCobranca, sBairroCobranca, sCEPCobranca, lCategoria, (Categorias.btCodigoInf) AS Categoria, "
    "lCidade, (SELECT Cidades.sNome FROM Cidades WHERE lCidade = Cidades.lCodigo) AS Cidade, (SELECT Cidades.sUF FROM "
    "Cidades WHERE lCidade = Cidades.lCodigo) AS UF, lVendedor, (Vendedores.sNome) AS Vendedor, lCidadeEntrega, "
    "(SELECT Cidades.sNome FROM Cidades WHERE lCidadeEntrega = Cidades.lCodigo) AS CidEntrega, (SELECT Cidades.sUF "
    "FROM "
    "Cidades WHERE lCidadeEntrega = Cidades.lCodigo) AS UFEntrega, lCidadeCobranca, (SELECT Cidades.sNome FROM Cidades "
    "WHERE lCidadeCobranca = Cidades.lCodigo) AS CidCobranca, (SELECT Cidades.sUF FROM Cidades WHERE lCidadeCobranca = "
    "Cidades.lCodigo) AS UFCobranca FROM (Clientes INNER JOIN Categorias ON Clientes.lCategoria = Categorias.lCodigo) "
    "INNER JOIN Vendedores ON Clientes.lVendedor = Vendedores.lCodigo ";

}  // namespace

frmCadastroClientes::frmCadastroClientes(Contexto& contexto)
    : TelaCadastro(contexto, "frmCadastroClientes"), FormularioCliente(*this, contexto) {
  categoria.vSetCadastro("frmCadastroCategorias", "Cadastrar categoria", cmdNovaCategoria);
  vendedor.vSetCadastro("frmCadastroVendedores", "Cadastrar vendedor", cmdNovoVendedor);

  const auto chave = [](const CampoCidade& local) {
    return std::function<std::int32_t()>([&local] { return local.lGetCodigo(); });
  };
  vDescrever({
      .sLegenda = "Clientes",
      .sTitulo = "Cadastro de clientes",
      .sTabela = "Clientes",
      .codigo = &txtCodigoInf,
      .sCampoCodigo = "lCodigoInf",
      .campos = {{"lCodigoInf", txtCodigoInf},
                 {"sNome", txtNome},
                 {"fLimiteCredito", txtLimiteCredito},
                 {"sEndereco", txtEndereco},
                 {"sBairro", txtBairro},
                 {"sCEP", txtCEP},
                 {"sTelefone", txtTelefone},
                 {"sFax", txtFax},
                 {"sContato", txtContato},
                 {"sRG", txtRG},
                 {"sCPF", txtCPF},
                 {"sIE", txtIE},
                 {"sCNPJ", txtCNPJ},
                 {"sPai", txtPai},
                 {"sMae", txtMae},
                 {"sEmail", txtEMail},
                 {"dtNascimento", dtNascimento},
                 {"sHomePage", txtHomePage},
                 {"txtObs", txtObs},
                 {"sEnderecoEntrega", txtEnderecoEntrega},
                 // An edited customer's goods go to the main district, whatever the delivery's own box says.
                 {.sColuna = "sBairroEntrega", .valor = txtBairroEntrega, .naAlteracao = txtBairro},
                 {"sCEPEntrega", txtCEPEntrega},
                 {"sEnderecoCobranca", txtEnderecoCobranca},
                 {"sBairroCobranca", txtBairroCobranca},
                 {"sCEPCobranca", txtCEPCobranca},
                 {"lCategoria", categoria.lCodigo},
                 {"lCidade", chave(cidade)},
                 {"lVendedor", vendedor.lCodigo},
                 {"lCidadeEntrega", chave(cidadeEntrega)},
                 {"lCidadeCobranca", chave(cidadeCobranca)}},
      .colunas = {{"Código", 900, Align::right, "lCodigoInf", txtCodigoInf},
                  {"Código interno da categoria", 0, Align::left, "lCategoria", categoria.lCodigo},
                  {"Categoria", 1200, Align::left, "Categoria", txtCategoria},
                  {"Nome", 3500, Align::left, "sNome", txtNome},
                  {"Limite de crédito", 1900, Align::right, "LimiteCredito", txtLimiteCredito},
                  {"Endereço", 3000, Align::left, "sEndereco", txtEndereco},
                  {"Bairro", 1700, Align::left, "sBairro", txtBairro},
                  {"Cidade", 2400, Align::left, "Cidade", cidade.txtCidade},
                  {"UF", 700, Align::centre, "UF", cidade.txtUF},
                  {"CEP", 1300, Align::centre, "sCEP", txtCEP},
                  {"Telefone", 1800, Align::left, "sTelefone", txtTelefone},
                  {"Fax", 1800, Align::left, "sFax", txtFax},
                  {"Contato", 2000, Align::left, "sContato", txtContato},
                  {"Código interno do vendedor", 0, Align::left, "lVendedor", vendedor.lCodigo},
                  {"Vendedor", 2000, Align::left, "Vendedor", txtVendedor},
                  {"RG", 1500, Align::left, "sRG", txtRG},
                  {"CPF", 1500, Align::left, "sCPF", txtCPF},
                  {"IE", 1600, Align::left, "sIE", txtIE},
                  {"CNPJ", 1900, Align::left, "sCNPJ", txtCNPJ},
                  {"Nascimento", 1200, Align::centre, "Nascimento", dtNascimento},
                  {"e-Mail", 2400, Align::left, "sEmail", txtEMail},
                  {"Home Page", 2400, Align::left, "sHomePage", txtHomePage},
                  {"Observação", 3000, Align::left, "txtObs", txtObs},
                  {"Pai", 2400, Align::left, "sPai", txtPai},
                  {"Mãe", 2400, Align::left, "sMae", txtMae},
                  {"Endereço de entrega", 3000, Align::left, "sEnderecoEntrega", txtEnderecoEntrega},
                  {"Bairro de entrega", 1800, Align::left, "sBairroEntrega", txtBairroEntrega},
                  {"CEP de entrega", 1500, Align::centre, "sCEPEntrega", txtCEPEntrega},
                  {"Cidade de entrega", 2400, Align::left, "CidEntrega", cidadeEntrega.txtCidade},
                  {"UF de entrega", 1500, Align::centre, "UFEntrega", cidadeEntrega.txtUF},
                  {"Endereço de cobrança", 3000, Align::left, "sEnderecoCobranca", txtEnderecoCobranca},
                  {"Bairro de cobrança", 2000, Align::left, "sBairroCobranca", txtBairroCobranca},
                  {"CEP de cobrança", 1700, Align::centre, "sCEPCobranca", txtCEPCobranca},
                  {"Cidade de cobrança", 2400, Align::left, "CidCobranca", cidadeCobranca.txtCidade},
                  {"UF de cobrança", 1600, Align::centre, "UFCobranca", cidadeCobranca.txtUF}},
      .sSelecao = sSelecao,
      .sOrdem = "ORDER BY Clientes.lCodigoInf, Clientes.sNome ",
      .sBusca = "frmLocalizarClientes",
      .iColunasImpressao = 130,
      .buscas = {&categoria, &vendedor},
      .cidades = {&cidade, &cidadeEntrega, &cidadeCobranca},
      .titulos = MenuTitulos::Descricao{"frmCadastroTitulosReceber", "FaturasCliente.lCliente"},
  });
  vMontarFormulario();
}

void frmCadastroClientes::vMontarFormulario() {
  vMontarTela(abas({campo("&Limite de crédito", txtLimiteCredito, 4)}, {campo("N&ascimento", dtNascimento, 4)},
                   {linha({campo("e-&Mail", txtEMail, 7), campo("&Home Page", txtHomePage, 7),
                           campo("Ob&servação", txtObs, cresce)})}));
  setPreferredSize(24, 36);
}

bool frmCadastroClientes::bVerificarDados() {
  Sistema sistema(contexto());
  if (txtCodigoInf.empty()) return recusar("Informe o código.", txtCodigoInf);
  if (categoria.lCodigo == -1) categoria.lCodigo = sistema.lGetCategoriaPadrao();
  if (txtNome.empty()) return recusar("Informe o nome.", txtNome);
  if (cidade.lGetCodigo() < 1) return recusar("Informe a cidade.", cidade.txtCidade);
  if (vendedor.lCodigo == -1) vendedor.lCodigo = sistema.lGetVendedorPadrao();

  if (!bVerificarRepetido(txtRG, "sRG", "O RG informado já existe no sistema.")) return false;
  if (!txtCPF.empty()) {
    if (!bVerificarRepetido(txtCPF, "sCPF", "O CPF informado já existe no sistema.")) return false;
    std::string sCPF = txtCPF.text();
    if (!Validacoes::bValidarCPF(sCPF) && !perguntar("O CPF informado é inválido.Deseja continuar?")) return false;
  }
  if (!bVerificarRepetido(txtIE, "sIE", "A IE informada já existe no sistema.")) return false;
  if (!txtCNPJ.empty()) {
    if (!bVerificarRepetido(txtCNPJ, "sCNPJ", "O CNPJ informado já existe no sistema.")) return false;
    std::string sCNPJ = txtCNPJ.text();
    if (!Validacoes::bValidarCNPJ(sCNPJ) && !perguntar("O CNPJ informado é inválido.Deseja continuar?")) return false;
  }
  // An empty place of delivery or billing is the main city; its boxes stay as they are until the row is loaded again.
  if (cidadeEntrega.lGetCodigo() < 1) cidadeEntrega.vSetSomenteCidade(cidade.cidade());
  if (cidadeCobranca.lGetCodigo() < 1) cidadeCobranca.vSetSomenteCidade(cidade.cidade());
  return true;
}

}  // namespace fenvale
