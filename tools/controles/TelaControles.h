#pragma once
// Every kind of control in every state, on one screen: for looking at, and for the window tests.

#include <memory>
#include <vector>

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "platform/ui/Menu.h"
#include "platform/ui/Places.h"
#include "platform/ui/Screen.h"
#include "platform/ui/TreeView.h"

namespace fenvale {

class TelaControles final : public Screen {
 public:
  explicit TelaControles(UiHost& host);

  TextBox txtTexto{*this, "txtTexto", 30};
  TextBox txtSenha{*this, "txtSenha", 10, TextBox::Style::password};
  TextBox txtTravado{*this, "txtTravado"};
  TextBox txtDesabilitado{*this, "txtDesabilitado"};
  TextBox txtErrado{*this, "txtErrado"};
  TextBox txtLinhas{*this, "txtLinhas", 200, TextBox::Style::multiLine};
  CodeBox txtCodigo{*this, "txtCodigo", 255};
  NumberBox txtNumero{*this, "txtNumero", 99999};
  MaskBox txtCNPJ{*this, "txtCNPJ", masks::cnpj};
  MaskBox txtTelefone{*this, "txtTelefone", masks::telefone};
  MaskBox txtCEP{*this, "txtCEP", masks::cep};
  LookupBox txtCidade{*this, "txtCidade"};
  Button cmdLocalizarCidade{*this, "cmdLocalizarCidade", "Localizar cidade", "lupa"};
  Button cmdNovaCidade{*this, "cmdNovaCidade", "Cadastrar cidade", "mais"};
  MoneyBox txtValor{*this, "txtValor"};
  MoneyBox txtValorTravado{*this, "txtValorTravado"};
  DatePicker dtVencimento{*this, "dtVencimento"};
  ComboBox cmbMes{*this, "cmbMes"};
  CheckBox chkManter{*this, "chkManter", "Manter os títulos da fatura atual"};
  CheckBox chkMarcado{*this, "chkMarcado", "Marcado"};
  CheckBox chkDesabilitado{*this, "chkDesabilitado", "Desabilitado"};
  OptionButton optTodos{*this, "optTodos", "Todos"};
  OptionButton optPagos{*this, "optPagos", "&Pagos"};
  OptionButton optAbertos{*this, "optAbertos", "Em &aberto"};
  Label lblAjuda{*this, "lblAjuda",
                 "Texto de ajuda, que explica em uma ou duas linhas o que se faz aqui e quebra onde a "
                 "linha termina.",
                 Label::Style::help};
  Label lblTotal{*this, "lblTotal", "Total R$ 4.566,66", Label::Style::title};
  Image imgFigura{*this, "imgFigura"};
  ProgressBar pbImpressao{*this, "pbImpressao"};
  ListView lstLista{*this,
                    "lstLista",
                    {{"Chave", 0},
                     {"Código", 1000, Align::right},
                     {"Vencimento", 1500, Align::centre},
                     {"Nome", 4200},
                     {"Valor", 1800, Align::right},
                     {"Cidade", 2600}}};
  ListView lstMarcas{
      *this, "lstMarcas", {{"Título", 2200}, {"Valor", 1500, Align::right}}, ListView::CheckBoxes::perRow};
  ListView lstVazia{*this, "lstVazia", {{"Código", 1200}, {"Nome", 3000}}};
  PageScroll scrPaginas{*this, "scrPaginas"};
  ProgressBar pbBarrra{*this, "pbBarrra"};
  TreeView trwDireitos{*this, "trwDireitos", true};
  DriveList drvDiscos{*this, "drvDiscos"};
  FolderTree drvPastas{*this, "drvPastas"};
  FileList flstArquivos{*this, "flstArquivos", "*.*"};
  PopupMenu mnuLista{*this, "mnuLista"};
  Timer tmpPisca{*this, "tmpPisca"};
  Button cmdNovo{*this, "cmdNovo", "&Novo", "novo", Key::f2};
  Button cmdSalvar{*this, "cmdSalvar", "&Salvar", "salvar", Key::f3};
  Button cmdExcluir{*this, "cmdExcluir", "&Excluir", "excluir", Key::f4};
  Button cmdImprimir{*this, "cmdImprimir", "&Imprimir", "imprimir", Key::f5};
  Button cmdLocalizar{*this, "cmdLocalizar", "&Localizar", "localizar", Key::f6};
  Button cmdFechar{*this, "cmdFechar", "&Fechar", "fechar", Key::escape};

  /// The keys that the screen saw before any control.
  std::vector<Key> teclas;
  void preencherLista(int linhas);

 protected:
  bool onKeyDown(Key key) override;

 private:
  void preencher();
  void dispor();
};

}  // namespace fenvale
