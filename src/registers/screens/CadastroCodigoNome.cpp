#include "registers/screens/CadastroCodigoNome.h"

namespace fenvale {
namespace {

constexpr std::int32_t lMaiorByte = 255;
constexpr std::int32_t lMaiorLongo = 2147483647;
constexpr std::size_t iTamanhoNome = 50;

}  // namespace

const std::vector<DescricaoCodigoNome>& cadastrosCodigoNome() {
  static const std::vector<DescricaoCodigoNome> cadastros{
      {"frmCadastroCategorias", "Categorias", "Cadastro de categorias", "Categorias", "btCodigoInf", lMaiorByte,
       "sNome", "txtNome", "Nome", "Informe o nome.", true, "frmLocalizarCategorias"},
      {"frmCadastroVendedores", "Vendedores", "Cadastro de vendedores", "Vendedores", "lCodigoInf", lMaiorLongo,
       "sNome", "txtNome", "Nome", "Informe o nome.", true, "frmLocalizarVendedor"},
      {"frmCadastroPortadores", "Portadores", "Cadastro de portadores", "Portadores", "btCodigoInf", lMaiorByte,
       "sNome", "txtNome", "Nome", "Informe o nome.", false, "frmLocalizarPortadores"},
      {"frmCadastroCentroCusto", "Centros de custo", "Cadastro de centros de custo", "CentroCusto", "btCodigoInf",
       lMaiorByte, "sDescricao", "txtDescricao", "Descrição", "Informe a descrição.", true, "frmLocalizarCentroCusto"},
  };
  return cadastros;
}

CadastroCodigoNome::CadastroCodigoNome(Contexto& contexto, const DescricaoCodigoNome& d)
    : TelaCadastro(contexto, d.sNome),
      txtCodigoInf(*this, "txtCodigoInf", d.lMaiorCodigo),
      txtNome(*this, d.sCaixaTexto, iTamanhoNome) {
  vDescrever({
      .sLegenda = d.sLegenda,
      .sTitulo = d.sTitulo,
      .sTabela = d.sTabela,
      .codigo = &txtCodigoInf,
      .sCampoCodigo = d.sCampoCodigo,
      .campos = {{d.sCampoCodigo, txtCodigoInf, "Informe o código."}, {d.sCampoTexto, txtNome, d.sExigencia}},
      .colunas = {{"Código", 1000, Align::right, d.sCampoCodigo, txtCodigoInf},
                  {d.sRotulo, 7200, Align::left, d.sCampoTexto, txtNome}},
      .sSelecao = "SELECT lCodigo, " + d.sCampoCodigo + ", " + d.sCampoTexto + " FROM " + d.sTabela + " ",
      .sOrdem = "ORDER BY " + d.sCampoCodigo + ", " + d.sCampoTexto + " ",
      .sCondicao = d.bLinhaPadrao ? d.sCampoTexto + " <> '' " : "",
      .sBusca = d.sBusca,
  });
  vMontarTela({linha({campo("&Código", txtCodigoInf, 3), campo("&" + d.sRotulo, txtNome, cresce)})});
  setPreferredSize(20, 24);
}

}  // namespace fenvale
