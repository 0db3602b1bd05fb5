#include "registers/screens/frmCadastroFornecedores.h"

namespace fenvale {

frmCadastroFornecedores::frmCadastroFornecedores(Contexto& contexto)
    : TelaCadastro(contexto, "frmCadastroFornecedores"), FormularioFornecedor(*this, contexto) {
  categoria.vSetCadastro("frmCadastroCategorias", "Cadastrar categoria", cmdNovaCategoria);
  vDescrever({
      .sLegenda = "Fornecedores",
      .sTitulo = "Cadastro de fornecedores",
      .sTabela = "Fornecedores",
      .codigo = &txtCodigoInf,
      .sCampoCodigo = "lCodigoInf",
      .campos = {{"lCodigoInf", txtCodigoInf},
                 {"sNome", txtNome},
                 {"sEndereco", txtEndereco},
                 {"sCEP", txtCEP},
                 {"sTelefone", txtTelefone},
                 {"sFax", txtFax},
                 {"sContato", txtContato},
                 {"sCPF", txtCPF},
                 {"sIE", txtIE},
                 {"sCNPJ", txtCNPJ},
                 {"sEmail", txtEMail},
                 {"sHomePage", txtHomePage},
                 {"sAgencia", txtAgencia},
                 {"sConta", txtConta},
                 {"txtObs", txtObs},
                 {"lCategoria", categoria.lCodigo},
                 {"lCidade", std::function<std::int32_t()>([this] { return cidade.lGetCodigo(); })},
                 {"lBanco", std::function<std::int32_t()>([this] { return banco.lGetCodigo(); })}},
      .colunas = {{"Código", 900, Align::right, "lCodigoInf", txtCodigoInf},
                  {"Código interno da categoria", 0, Align::left, "lCategoria", categoria.lCodigo},
                  {"Categoria", 1200, Align::left, "Categoria", txtCategoria},
                  {"Nome", 3500, Align::left, "sNome", txtNome},
                  {"Endereço", 3000, Align::left, "sEndereco", txtEndereco},
                  {"Cidade", 2400, Align::left, "Cidade", cidade.txtCidade},
                  {"UF", 700, Align::centre, "UF", cidade.txtUF},
                  {"CEP", 1300, Align::centre, "sCEP", txtCEP},
                  {"Telefone", 1800, Align::left, "sTelefone", txtTelefone},
                  {"Fax", 1800, Align::left, "sFax", txtFax},
                  {"Contato", 2000, Align::left, "sContato", txtContato},
                  {"CPF", 1500, Align::left, "sCPF", txtCPF},
                  {"IE", 1600, Align::left, "sIE", txtIE},
                  {"CNPJ", 1900, Align::left, "sCNPJ", txtCNPJ},
                  {"e-Mail", 2400, Align::left, "sEmail", txtEMail},
                  {"Home Page", 2400, Align::left, "sHomePage", txtHomePage},
                  {"Banco", 2400, Align::left, "Banco", banco.txtBanco},
                  {"Agência", 1000, Align::left, "sAgencia", txtAgencia},
                  {"Conta", 1600, Align::left, "sConta", txtConta},
                  {"Observação", 3000, Align::left, "txtObs", txtObs}},
      .sSelecao =
          "SELECT Fornecedores.lCodigo, lCodigoInf, Fornecedores.sNome, sEndereco, sCEP, sTelefone, sFax, sContato, "
          "sCPF, sIE, sCNPJ, sEmail, sHomePage, sAgencia, sConta, txtObs, lCategoria, (Categorias.btCodigoInf) AS "
          "Categoria, (Cidades.sNome) AS Cidade, (Cidades.sUF) AS UF, (Bancos.sNome) AS Banco FROM ((Fornecedores "
          "INNER JOIN Cidades ON Fornecedores.lCidade = Cidades.lCodigo) INNER JOIN Bancos ON Bancos.lCodigo = "
          "Fornecedores.lBanco) INNER JOIN Categorias ON Categorias.lCodigo = Fornecedores.lCategoria ",
      .sOrdem = "ORDER BY lCodigoInf, Fornecedores.sNome ",
      .sBusca = "frmLocalizarFornecedores",
      .iColunasImpressao = 130,
      .buscas = {&categoria},
      .cidades = {&cidade},
      .titulos = MenuTitulos::Descricao{"frmCadastroTitulosPagar", "FaturasFornecedor.lFornecedor"},
  });
  vMontarTela(linhas());
  setPreferredSize(24, 36);
}

void frmCadastroFornecedores::vAposCarregar(const ListItem&) { banco.vSetEstado2(banco.txtBanco.text()); }

bool frmCadastroFornecedores::bVerificarDados() {
  if (txtCodigoInf.empty()) return recusar("Informe o código.", txtCodigoInf);
  if (categoria.lCodigo == -1) return recusar("Informe a categoria.", txtCategoria);
  if (txtNome.empty()) return recusar("Informe o nome.", txtNome);
  if (cidade.lGetCodigo() < 1) return recusar("Informe a cidade.", cidade.txtCidade);
  if (!bVerificarRepetido(txtCPF, "sCPF", "O CPF informado já existe no sistema.")) return false;
  if (!bVerificarRepetido(txtIE, "sIE", "A IE informada já existe no sistema.")) return false;
  if (!bVerificarRepetido(txtCNPJ, "sCNPJ", "O CNPJ informado já existe no sistema.")) return false;
  // The list joins the bank: a supplier without one could never be seen again.
  if (banco.lGetCodigo() < 1) return recusar("Informe o banco.", banco.txtBanco);
  return true;
}

}  // namespace fenvale
