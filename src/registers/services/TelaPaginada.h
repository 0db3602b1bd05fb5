#pragma once
// A screen with a list of which one page shows at a time: the list, its page selector and its progress line, told by a
// table of columns. Registers, quick searches and pickers stand on it.

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "registers/services/Ligacao.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Tela.h"

namespace fenvale {

class Connection;
class Permissoes;

struct ColunaLista {
  std::string sCabecalho;
  float fLargura = 1440;  ///< twips, as designed; 0 hides it
  Align alinhamento = Align::left;
  std::string sCampo;      ///< the query's column
  Ligacao destino{};       ///< what a click on a row copies the cell into
  std::string sMascara{};  ///< for whole numbers ("00000"); empty shows the field's text
};

class TelaPaginada : public Tela, public TelaListaPaginada {
 public:
  ListView lstLista;
  PageScroll scrPaginas;
  ProgressBar pbBarrra;

  Screen& telaDaLista() override { return *this; }
  ListView& lstDaLista() override { return lstLista; }
  ProgressBar& pbDaLista() override { return pbBarrra; }
  PageScroll& scrDaLista() override { return scrPaginas; }
  /// The row's key is that of its lCodigo; the cells follow the table of columns.
  bool bInserirLista(Recordset& rs) override;

 protected:
  TelaPaginada(Contexto& contexto, std::string sNome, ListView::CheckBoxes marcas = ListView::CheckBoxes::none);

  void vSetColunas(std::vector<ColunaLista> colunas);
  const std::vector<ColunaLista>& colunas() const { return colunas_; }
  Funcoes& funcoes();
  Permissoes& permissoes() const;
  /// The store of the rows: the company's, unless a screen says otherwise.
  virtual Connection& conexao() const;
  void vExecutar(const std::string& sSQL) const;

  /// Fills the list with the page that starts at the 0-based record `iInicio` of the query's rows.
  void vPreencherLista(std::int16_t iInicio, const std::string& sSQL);
  /// The page selector was moved: shows the page from that record on.
  virtual void vMostrarAPartirDe(std::int16_t iInicio) = 0;
  virtual void vClicarLinha(const std::shared_ptr<ListItem>& item) = 0;
  /// The name under which a row that cannot be read is reported.
  virtual const char* sNomeInserir() const { return "bInserirLista"; }

  // The widths that a user gave the columns, kept beside the program under the screen's name.
  void vRestaurarColunas();
  void vGuardarColunas();
  bool onUnload() override;
  /// A button of the screen that carries the key is pressed by it; any other key is Enter's test.
  bool onKeyDown(Key tecla) override;

  /// Whether the list can be printed at all, and the printing of what it holds, with the right to do so.
  bool bPodeEmitir() const;
  void vEmitirLista(const std::string& sTitulo, std::int16_t iColunas);

  MouseButton botaoDoMouse() const { return botaoDoMouse_; }
  void vEsquecerBotaoDoMouse() { botaoDoMouse_ = MouseButton::left; }

 private:
  void scrPaginas_Change();

  std::vector<ColunaLista> colunas_;
  std::optional<Funcoes> funcoes_;
  MouseButton botaoDoMouse_ = MouseButton::left;
  std::int16_t iPagina_ = 0;
};

}  // namespace fenvale
