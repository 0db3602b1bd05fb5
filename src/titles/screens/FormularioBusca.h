#pragma once
// The boxes by which invoices and titles are searched for, told by the side of the ledger, and the conditions that they
// make. What both searches ask for comes first, then what only the titles and what only the invoices have.

#include <vector>

#include "platform/ui/Boxes.h"
#include "registers/screens/TelaBuscaCompleta.h"
#include "shell/services/TelaComLista.h"
#include "titles/screens/CampoCondicao.h"
#include "titles/screens/EntidadesFatura.h"
#include "titles/screens/PeriodoBusca.h"
#include "titles/services/Lado.h"

namespace fenvale {

class FormularioBuscaLado : public ReceptorCliente,
                            public ReceptorFornecedor,
                            public ReceptorPortador,
                            public ReceptorVendedor,
                            public ReceptorCentroCusto {
 protected:
  const Lado& lado_;

 public:
  NumberBox txtNumeroFatura;
  EntidadesFatura entidades;
  PeriodoBusca emissao;

  void vSetCliente(std::int32_t lChave, const std::string& sNome) override;
  void vSetFornecedor(std::int32_t lChave, const std::string& sNome) override;
  void vSetPortador(std::int32_t lChave, const std::string& sNome) override;
  void vSetVendedor(std::int32_t lChave, const std::string& sNome) override;
  void vSetCentroCusto(std::int32_t lChave, const std::string& sDescricao) override;

 protected:
  FormularioBuscaLado(Screen& tela, Contexto& contexto, const Lado& lado);

  /// "<campo> = <n> " when a row was chosen.
  static Criterio escolhida(std::string sCampo, const CampoBusca& busca);
  /// Behind customer or supplier: bearer, salesperson, cost centre.
  std::vector<Criterio> criteriosDasOutras() const;
};

class FormularioBuscaTitulos : public FormularioBuscaLado {
 public:
  TextBox txtCodigoInf;
  MoneyBox txtNF;
  CheckBox chkPago;
  PeriodoBusca vencimento;
  PeriodoBusca pagamento;

 protected:
  FormularioBuscaTitulos(Screen& tela, Contexto& contexto, const Lado& lado);

  void vIniciarPeriodos(Date dtHoje);
  /// What the filter searches ask for: paid titles or open ones by chkPago.
  std::vector<Criterio> criterios() const;
  /// What the searches for settlement ask for: open titles, whatever chkPago says.
  std::vector<Criterio> criteriosDeAbertos() const;
  std::vector<LayoutNode> linhas(std::vector<LayoutNode> aposNotaFiscal = {});

 private:
  std::vector<Criterio> criteriosCom(Criterio situacao) const;
};

class FormularioBuscaFaturas : public FormularioBuscaLado, public ReceptorCondicaoPagamento {
 public:
  MoneyBox txtTotal;
  MoneyBox txtEntrada;
  CampoCondicao condicao;

  void vSetCondicaoPagamento(std::int32_t lChave, std::int32_t btCodigoInf, std::int32_t iNumeroParcelas,
                             std::int32_t iIntervalo, std::int32_t bitEntrada) override;

 protected:
  FormularioBuscaFaturas(Screen& tela, Contexto& contexto, const Lado& lado);

  void vIniciarPeriodos(Date dtHoje) { emissao.vIniciar(dtHoje); }
  std::vector<Criterio> criterios() const;
  std::vector<LayoutNode> linhas();
};

}  // namespace fenvale
