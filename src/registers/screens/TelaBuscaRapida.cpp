#include "registers/screens/TelaBuscaRapida.h"

#include <algorithm>

#include "platform/sql/Store.h"
#include "registers/screens/TelaBuscaCompleta.h"
#include "shell/services/Telas.h"

namespace fenvale {
namespace {

template <typename Receptor>
Receptor& receptor(Screen& chamador) {
  if (auto* quem = dynamic_cast<Receptor*>(&chamador)) return *quem;
  throw Error(Telas::operacaoInexistente, chamador.sGetName() + " não recebe o registro escolhido.");
}

/// Hands over the key and one text.
template <typename Receptor>
std::function<void(Screen&, const Recordset&)> entregar(void (Receptor::*vSet)(std::int32_t, const std::string&),
                                                        const std::string& sCampoTexto) {
  return [vSet, sCampoTexto](Screen& chamador, const Recordset& rs) {
    (receptor<Receptor>(chamador).*vSet)(rs["lCodigo"].toLong(), rs[sCampoTexto].toText());
  };
}

void vEntregarCondicao(Screen& chamador, const Recordset& rs) {
  receptor<ReceptorCondicaoPagamento>(chamador).vSetCondicaoPagamento(
      rs["lCodigo"].toLong(), rs["btCodigoInf"].toLong(), rs["iNumeroParcelas"].toLong(), rs["iIntervalo"].toLong(),
      rs["bitEntrada"].toLong());
}

/// A search by the beginning of a name, over a list of code and name.
template <typename Receptor>
DescricaoBuscaRapida porNome(std::string sNome, std::string sLegenda, std::string sTabela, const std::string& sCodigo,
                             const std::string& sTexto, bool bLinhaPadrao,
                             void (Receptor::*vSet)(std::int32_t, const std::string&)) {
  return {std::move(sNome),
          std::move(sLegenda),
          std::move(sTabela),
          sCodigo,
          sTexto,
          bLinhaPadrao,
          {{"Código", 1000, Align::right, sCodigo},
           {sTexto == "sDescricao" ? "Descrição" : "Nome", 8500, Align::left, sTexto}},
          "lCodigo, " + sCodigo + ", " + sTexto,
          entregar(vSet, sTexto)};
}

}  // namespace

const std::vector<DescricaoBuscaRapida>& buscasRapidas() {
  static const std::vector<DescricaoBuscaRapida> buscas{
      porNome("frmLocalizarCategoriasRapido", "Localizar categoria", "Categorias", "btCodigoInf", "sNome", true,
              &ReceptorCategoria::vSetCategoria),
      porNome("frmLocalizarVendedoresRapido", "Localizar vendedores", "Vendedores", "lCodigoInf", "sNome", true,
              &ReceptorVendedor::vSetVendedor),
      porNome("frmLocalizarClientesRapido", "Localizar clientes", "Clientes", "lCodigoInf", "sNome", false,
              &ReceptorCliente::vSetCliente),
      porNome("frmLocalizarPortadoresRapido", "Localizar portadores", "Portadores", "btCodigoInf", "sNome", false,
              &ReceptorPortador::vSetPortador),
      porNome("frmLocalizarFornecedoresRapido", "Localizar fornecedores", "Fornecedores", "lCodigoInf", "sNome", false,
              &ReceptorFornecedor::vSetFornecedor),
      porNome("frmLocalizarCentroCustoRapido", "Localizar centros de custo", "CentroCusto", "btCodigoInf", "sDescricao",
              true, &ReceptorCentroCusto::vSetCentroCusto),
      {"frmLocalizarCondicoesPagamentoRapido",
       "Localizar condições de pagamento",
       "CondicoesPagamento",
       "btCodigoInf",
       "",
       false,
       {{"Código", 1000, Align::right, "btCodigoInf"},
        {"Número de parcelas", 2800, Align::right, "iNumeroParcelas"},
        {"Intervalo de vecimento", 3000, Align::right, "iIntervalo"},
        {"Com entrada", 2400, Align::centre, "ComEntrada"}},
       "lCodigo, btCodigoInf, iNumeroParcelas, iIntervalo, IIF(bitEntrada = 0, 'Não', 'Sim') AS ComEntrada",
       vEntregarCondicao},
  };
  return buscas;
}

const DescricaoBuscaRapida& buscaRapida(std::string_view sNome) {
  const auto& buscas = buscasRapidas();
  return *std::find_if(buscas.begin(), buscas.end(), [&](const auto& busca) { return busca.sNome == sNome; });
}

TelaBuscaRapida::TelaBuscaRapida(Contexto& contexto, const DescricaoBuscaRapida& descricao)
    : TelaEscolha(contexto, descricao.sNome, descricao.sLegenda), descricao_(descricao) {
  vSetColunas(descricao.colunas);
  if (bPorCodigo()) {
    caixa_ = std::make_unique<CodeBox>(*this, "txtCodigoInf", 255);
  } else {
    caixa_ = std::make_unique<TextBox>(*this, "txtNome", 50);
  }
  const std::string& sRotulo = bPorCodigo() ? "Código" : descricao.colunas.back().sCabecalho;
  vMontarTela({linha({campo("&" + sRotulo, *caixa_, bPorCodigo() ? 4 : cresce)})}, {&cmdLocalizar});
}

void TelaBuscaRapida::vLocalizar(Screen& chamador) {
  vAbrirPara([this, &chamador](const Recordset& rs) { descricao_.vDevolver(chamador, rs); });
}

void TelaBuscaRapida::vAbrirPara(std::function<void(const Recordset& rs)> vReceber) {
  vReceber_ = std::move(vReceber);
  vAbrir();
}

std::string TelaBuscaRapida::sConsulta() const {
  const std::string sInicio = "SELECT " + descricao_.sSelecao + " FROM " + descricao_.sTabela + " ";
  const std::string& sCodigo = descricao_.sCampoCodigo;
  if (bPorCodigo())
    return sInicio + (caixa_->empty() ? "" : "WHERE " + sCodigo + " = " + caixa_->text() + " ") + "ORDER BY " +
           sCodigo + " ";
  const std::string& sTexto = descricao_.sCampoTexto;
  return sInicio + "WHERE " + sPrefixo(sTexto, *caixa_) + (descricao_.bLinhaPadrao ? "AND " + sTexto + " <> '' " : "") +
         "ORDER BY " + sCodigo + ", " + sTexto + " ";
}

void TelaBuscaRapida::vEscolher(std::int32_t lChave) {
  if (!vReceber_) throw Error(errors::objectNotSet, sGetName() + " foi aberta sem a tela que usa a busca.");
  const Recordset rs("SELECT * FROM " + descricao_.sTabela + " WHERE lCodigo = " + std::to_string(lChave), conexao(),
                     CursorType::dynamic, LockType::readOnly);
  vReceber_(rs);
}

}  // namespace fenvale
