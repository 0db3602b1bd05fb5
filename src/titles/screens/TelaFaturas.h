#pragma once
// The invoice screen, told by its side of the ledger: registers an invoice and, in the same transaction, turns it into
// titles by its payment condition. A save of an invoice that is there already works its titles over.

#include <optional>
#include <string>
#include <vector>

#include "registers/screens/TelaCadastro.h"
#include "titles/screens/CampoCondicao.h"
#include "titles/screens/EntidadesFatura.h"
#include "titles/screens/Transacao.h"
#include "titles/services/GeradorTitulos.h"
#include "titles/services/Titulos.h"

namespace fenvale {

struct Lado;

class TelaFaturas : public TelaCadastro,
                    public ReceptorCondicaoPagamento,
                    public ReceptorPortador,
                    public ReceptorCentroCusto {
 public:
  CodeBox txtNumeroFatura{*this, "txtNumeroFatura"};
  DatePicker dtEmissao{*this, "dtEmissao"};
  MoneyBox txtTotal{*this, "txtTotal"};
  MoneyBox txtEntrada{*this, "txtEntrada"};
  Button cmdNovaCondicaoPagamento{*this, "cmdNovaCondicaoPagamento", "", "mais"};

  EntidadesFatura entidades;
  CampoCondicao condicao;
  LookupBox& txtCondPagCodigoInf{condicao.txtCondPagCodigoInf};
  LookupBox& txtNumeroParcelas{condicao.txtNumeroParcelas};
  LookupBox& txtIntervalo{condicao.txtIntervalo};
  CheckBox& chkEntrada{condicao.chkEntrada};

  void vSetCondicaoPagamento(std::int32_t lChave, std::int32_t btCodigoInf, std::int32_t iNumeroParcelas,
                             std::int32_t iIntervalo, std::int32_t bitEntrada) override;
  void vSetPortador(std::int32_t lChave, const std::string& sNome) override;
  void vSetCentroCusto(std::int32_t lChave, const std::string& sDescricao) override;

 protected:
  TelaFaturas(Contexto& contexto, const Lado& lado);

  bool bVerificarDados() override;
  bool bGravar() override;
  void vDesfazer() override;

 private:
  std::vector<ColunaLista> colunasDaLista();
  void vMontarFormulario();
  bool bTestarPreenchimento();
  bool bTestarEntrada();
  /// False when the user kept the series that a change of condition would make anew.
  bool bTestarTrocaDeCondicao();
  void vGravarFatura();
  void vGravarTitulos();
  void vMostrarTitulos();
  DadosSerie serie();

  const Lado& lado_;
  Titulos titulos_;
  GeradorTitulos gerador_;
  Transacao transacao_;
  std::int32_t lCodigoAntes_ = -1;
  std::vector<std::int32_t> chavesAntes_;
};

}  // namespace fenvale
