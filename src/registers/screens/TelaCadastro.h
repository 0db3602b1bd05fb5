#pragma once
// The register screen: a form above a paged list of a table's rows, five commands with their keys, and one pair of
// operations that fill the list. A register is a description of this; what it does otherwise it overrides as one step.
//
//   frmCadastroPortadores::frmCadastroPortadores(Contexto& contexto) : TelaCadastro(contexto, "frmCadastroPortadores")
//   {
//     vDescrever({.sLegenda = "Portadores", .sTitulo = "Cadastro de portadores", .sTabela = "Portadores", ...});
//     vMontarTela({linha({campo("Código", txtCodigoInf, 3), campo("Nome", txtNome, cresce)})});
//   }

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ui/Boxes.h"
#include "registers/services/MenuTitulos.h"
#include "registers/services/TelaPaginada.h"
#include "shell/services/TelaComLista.h"

namespace fenvale {

class CampoBusca;
class CampoCidade;

/// A column that a save writes, in the order of the statement.
struct CampoCadastro {
  std::string sColuna;
  Ligacao valor;
  /// What is told when the box is empty ("Informe o nome."); none: it may be. The checks run in this order.
  std::string sExigencia{};
  /// Where an UPDATE takes the value from, when that is another place than the INSERT's.
  std::optional<Ligacao> naAlteracao{};
};

struct DescricaoCadastro {
  std::string sLegenda;
  std::string sTitulo;
  std::string sTabela;
  TextControl* codigo = nullptr;  ///< gets the focus for a new record and after a refusal
  std::string sCampoCodigo{};     ///< column whose next free code is proposed in `codigo`; none: nothing is proposed
  std::vector<CampoCadastro> campos{};
  std::vector<ColunaLista> colunas{};
  std::string sSelecao{};   ///< "SELECT lCodigo, btCodigoInf, sNome FROM Categorias "
  std::string sOrdem{};     ///< "ORDER BY btCodigoInf, sNome "
  std::string sCondicao{};  ///< keeps hidden rows out of the list, "sNome <> '' "; empty: there are none
  std::string sBusca{};     ///< full search that Localizar opens; the button is disabled while there is no such screen
  std::int16_t iColunasImpressao = 80;
  std::vector<CampoBusca*> buscas{};                ///< emptied for a new record
  std::vector<CampoCidade*> cidades{};              ///< emptied for a new record, looked up when a row is loaded
  std::optional<MenuTitulos::Descricao> titulos{};  ///< the pop-up menu of a right click
};

class TelaCadastro : public TelaPaginada, public virtual TelaComLista {
 public:
  Button cmdNovo{*this, "cmdNovo", "Novo", "novo", Key::f2};
  Button cmdSalvar{*this, "cmdSalvar", "Salvar", "salvar", Key::f3};
  Button cmdExcluir{*this, "cmdExcluir", "Excluir", "excluir", Key::f4};
  Button cmdEmitir{*this, "cmdEmitir", "Imprimir", "imprimir", Key::f5};
  Button cmdLocalizar{*this, "cmdLocalizar", "Localizar", "localizar", Key::f6};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};

  void vMontarLista(std::int16_t iInicio, const std::string& sWhere) override;

  void cmdNovo_Click();
  void cmdSalvar_Click();
  void cmdExcluir_Click();
  void cmdEmitir_Click();
  virtual void cmdLocalizar_Click();

  /// The record being edited; -1 for a new one.
  std::int32_t lGetCodigo() const { return lCodigo; }
  /// The statements as they are run.
  std::string sConsulta(const std::string& sWhere) const;
  std::string sInclusao() const;
  std::string sAlteracao() const;
  std::string sExclusao() const;

 protected:
  TelaCadastro(Contexto& contexto, std::string sNome);

  void vDescrever(DescricaoCadastro descricao);
  const DescricaoCadastro& descricao() const { return descricao_; }
  /// The form over the list, its pages and the foot; `outros` are further commands, after Localizar, and
  /// `abaixoDaLista` stands between the pages and the foot.
  void vMontarTela(std::vector<LayoutNode> formulario, const std::vector<Control*>& outros = {},
                   std::vector<LayoutNode> abaixoDaLista = {});

  // The steps that a register with rules of its own overrides.
  /// The clause of the list: the one that is asked for, and never the hidden rows.
  virtual std::string sFiltro(const std::string& sWhere) const;
  /// For a new record, after the boxes were emptied and before the list is filled.
  virtual void vAposNovo() {}
  /// Whether the form can be stored; it has told the user why not.
  virtual bool bVerificarDados();
  /// False, told to the user, when another row has the box's text in that column.
  bool bVerificarRepetido(TextControl& caixa, const std::string& sCampo, const std::string& sMensagem);
  /// Writes the record. False stops the command without a word.
  virtual bool bGravar();
  /// After "Operação concluída.".
  virtual void vAposGravar() { cmdNovo_Click(); }
  /// Asked of a stored record before the user is asked to confirm its removal.
  virtual bool bPodeExcluir() { return true; }
  virtual void vExcluir();
  virtual void vAposExcluir() { cmdNovo_Click(); }
  /// A save or a removal has failed: takes back what it has begun.
  virtual void vDesfazer() {}
  /// What the box says when the store refused a save or a removal.
  virtual std::string sRecusa(const std::string& sFrase, const Error& falha) const;
  /// After the cells of a row were copied into the boxes, in the order of the columns, and the cities looked up.
  virtual void vAposCarregar(const ListItem&) {}

  /// Loads a record from a row with this screen's columns, whichever list it stands in.
  void vCarregarLinha(const ListItem& item);
  /// The row of the record being edited, as long as the list holds it.
  std::shared_ptr<ListItem> itemSelecionado() const { return itemSelecionado_.lock(); }

  void onLoad() override;
  bool onUnload() override;
  void vMostrarAPartirDe(std::int16_t iInicio) override { vMontarLista(iInicio, {}); }
  void vClicarLinha(const std::shared_ptr<ListItem>& item) override;

  std::int32_t lCodigo = -1;

 private:
  void vRecusar(const Error& falha, const char* sFrase, const char* sProcedimento);

  DescricaoCadastro descricao_;
  std::optional<MenuTitulos> menuTitulos_;
  ListItemReference itemSelecionado_;
};

}  // namespace fenvale
