#pragma once
// The toolbox that every screen holds an instance of: files, combos, numbers, and the engine of the paged lists.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/Currency.h"
#include "platform/ui/Keys.h"

namespace fenvale {

struct Error;
class ComboBox;
class Contexto;
class Control;
class ListItem;
class ListView;
class MoneyBox;
class PageScroll;
class ProgressBar;
class Recordset;
class Screen;

/// What the paging engine reaches on a screen: the controls of the list and the operation that adds one row.
class TelaListaPaginada {
 public:
  virtual ~TelaListaPaginada() = default;
  virtual Screen& telaDaLista() = 0;
  virtual ListView& lstDaLista() = 0;
  virtual ProgressBar& pbDaLista() = 0;
  virtual PageScroll& scrDaLista() = 0;
  /// Adds the recordset's current row. False, in silence, when there is no current row.
  virtual bool bInserirLista(Recordset& rs) = 0;
};

class Funcoes {
 public:
  explicit Funcoes(Contexto& contexto);
  static const char* sGetName() { return "Funcoes"; }

  // Files and folders. Paths may be written with "\" or "/".
  bool bExisteDiretorio(const std::string& sCaminho) const;
  void vVerificarCriarDiretorio(const std::string& sCaminho) const;
  /// False on any failure. The file's own name is matched without case.
  bool bVerificarArquivo(const std::string& sCaminho) const;
  static std::string sGetNomeArquivoCaminho(std::string_view sCaminho);
  /// Up to and including the last separator.
  static std::string sGetPathCaminho(std::string_view sCaminho);

  // Screens.
  void vMostrarFormModal(Screen& frm);
  void vMostrarFormModal(std::string_view sTela);
  /// True gives the normal pointer back, false the hourglass. Answers its argument.
  bool bSetAmpulhetaMouse(bool bLivre);
  /// Sends a Tab to the screen on top for the key code 13 and answers true; false for any other key.
  bool bTestarTecla(std::int16_t iTecla);
  void vColocarFiguraFundo();
  /// The text colour of an amount: 192 below zero, else 0.
  static std::int32_t lGetCor(Currency fValor) { return fValor < Currency() ? 192 : 0; }

  // Combos.
  void vMontarCombo(ComboBox& cmb, Recordset& rs, std::string_view sCampoChave, std::string_view sCampoTexto);
  /// The text of two fields joined by " - ".
  void vMontarComboCustomizado(ComboBox& cmb, Recordset& rs, std::string_view sCampoChave,
                               std::string_view sCampoTexto1, std::string_view sCampoTexto2);
  void vMontarComboSemChave(ComboBox& cmb, Recordset& rs, std::string_view sCampoTexto);
  void vMontarComboMeses(ComboBox& cmb);
  void vMontarComboDiasMes(ComboBox& cmb);
  /// Chooses the entry that equals the text (without case, as the system's own search). False when there is none.
  bool bLookCombo(ComboBox& cmb, std::string_view sTexto);
  /// Completion while typing, from a combo's key-press handler. True when an entry was found and chosen.
  bool vComboMagico(ComboBox& cmb, std::string_view sCaractere);

  // Texts and numbers.
  static std::string sGetMes(std::int16_t iMes);
  static std::int16_t iArrendondarValor_UP(Currency fValor);
  static std::int16_t iArrendondarValor_DOWN(Currency fValor);
  static std::string sFormatarTempo(std::int32_t lMilissegundos);
  static std::string sRetirarCaracterInvalido(std::string_view sTexto, bool bEspacos);

  // Printing.
  std::string sGetNomeImpressora();
  void vHabilitarFormImpressao(Screen& frm, bool bHabilitar);
  /// Tells what the report control reported.
  void Rpx_MsgErro(std::int32_t lErro);

  // Lists.
  /// Fills the screen's list with one page of `rs`, from the 0-based record `iInicio`.
  void vMontarLista(TelaListaPaginada& frm, std::int16_t iInicio, Recordset& rs);
  std::int32_t lVerificarTamanhoPagina();
  /// Sorts by the 1-based column, ascending and descending in turn, whichever column it is.
  void vOrdenarListView(ListView& lst, std::size_t coluna);
  /// Nothing happens when there is no item (the first click of a screen).
  static void vSelecionarItem(bool bSelecionar, ListItem* item);
  void vSetTamanhoColunasList(ListView& lst, const std::string& sNome);
  void vGetTamanhoColunasList(ListView& lst, const std::string& sNome);
  /// For a screen with a check box chkFiltrar: the commands that store are there while it is off; the list is refilled.
  void vHabilitarModuloConsultaFiltragem(Screen& frm);
  void vLimparTudo(const std::vector<Control*>& controles);

 private:
  void vPreencherPagina(TelaListaPaginada& frm, std::int16_t iInicio, Recordset& rs);
  void vRegistrarFalha(const Error& falha, const char* sProcedimento, int iOpcao = 1) const;

  Contexto& contexto_;
  int iOrdem_ = 0;
};

/// The key of a list row, "00000" and the digits of lCodigo, and the number read back from it.
std::string sChaveLista(std::int32_t lCodigo);
std::int32_t lCodigoDaChave(std::string_view sChave);

}  // namespace fenvale
