#pragma once
// The title screen, told by its side of the ledger: the one place where a title is settled. A settlement is a save that
// puts a positive amount paid on an open title; what it means for the invoice's other titles happens inside the same
// transaction. The screen also edits, adds and deletes titles.

#include <memory>
#include <string>
#include <vector>

#include "registers/screens/TelaCadastro.h"
#include "titles/screens/EntidadesFatura.h"
#include "titles/screens/Transacao.h"
#include "titles/services/GeradorTitulos.h"
#include "titles/services/Titulos.h"

namespace fenvale {

struct Lado;

class TelaTitulosCadastro : public TelaCadastro,
                            public TelaTitulos,
                            public ReceptorPortador,
                            public ReceptorCentroCusto {
 public:
  DatePicker dtEmissao{*this, "dtEmissao"};
  MoneyBox txtTotal{*this, "txtTotal"};
  TextBox txtCodigoInf{*this, "txtCodigoInf", 15};
  DatePicker dtVencimento{*this, "dtVencimento"};
  MoneyBox txtValor{*this, "txtValor"};
  NumberBox txtNF{*this, "txtNF"};
  TextBox txtObs{*this, "txtObs", 255};
  DatePicker dtPagamento{*this, "dtPagamento"};
  MoneyBox txtJuros{*this, "txtJuros"};
  MoneyBox txtDesconto{*this, "txtDesconto"};
  MoneyBox txtValorPago{*this, "txtValorPago"};
  CheckBox chkManterFatura{*this, "chkManterFatura", "Após salvar ou excluir, &manter os títulos da fatura atual"};
  Button cmdLocalizarBaixa{*this, "cmdLocalizarBaixa", "Baixa", "baixa", Key::f7};
  const std::unique_ptr<TextBox> txtFilial;        ///< on the side with branches
  const std::unique_ptr<Button> cmdCalcularJuros;  ///< on the side with interest

  EntidadesFatura entidades;

  void vSetFaturaPreview(std::int32_t lChave) override { lFaturaPreview = lChave; }
  void vSetPortador(std::int32_t lChave, const std::string& sNome) override;
  void vSetCentroCusto(std::int32_t lChave, const std::string& sDescricao) override;

  void cmdCalcularJuros_Click();
  void cmdLocalizarBaixa_Click();

 protected:
  TelaTitulosCadastro(Contexto& contexto, const Lado& lado);

  /// Loads a title from a row with this screen's columns, of its own list or of a search.
  void vSetTituloBaixa(const ListItem& item);

  void onLoad() override;
  /// Without a clause the open titles.
  std::string sFiltro(const std::string& sWhere) const override;
  void vAposNovo() override;
  void vAposCarregar(const ListItem& item) override;
  bool bVerificarDados() override;
  bool bGravar() override;
  void vAposGravar() override;
  bool bPodeExcluir() override;
  void vExcluir() override;
  void vAposExcluir() override;
  void vDesfazer() override;

 private:
  std::vector<ColunaLista> colunasDaLista();
  void vMontarFormulario();

  bool bTestarPreenchimento();
  /// Whether the title was paid when it was loaded.
  bool bTituloPago() const;
  bool bVerificarTituloJaPago(bool bPago);
  bool bVerificarAcaoPagamentoAlteracaoValor();
  bool bTestarFatura();
  bool bTestarValores();
  bool bTestarPagamento();
  bool bTestarExcesso();
  /// Asks; a no is told as a cancelled operation.
  bool bConfirmar(const std::string& sPergunta);

  void vSalvarFaturaTitulo();
  void vSalvarTitulo();
  bool bReajustarTitulos();
  void vNovoMantendoFatura();
  std::string sFiltroDaFatura(std::int32_t lChave) const;
  Currency fValorGuardado() const;

  const Lado& lado_;
  Titulos titulos_;
  GeradorTitulos gerador_;
  Transacao transacao_;

  std::int32_t lFatura = -1;
  std::int32_t lFaturaPreview = 0;
  bool bPagarFatura = false;
  bool bAbaterTitulos = false;
  // Of the row that was loaded last, as its list showed them.
  std::string sValorGuardado_;
  std::string sPagoGuardado_;

  std::int32_t lFaturaLembrada_ = -1;
  std::int32_t lFaturaAntes_ = -1;
  std::vector<std::int32_t> chavesAntes_;
};

}  // namespace fenvale
