#pragma once
// A main window and a splash with the parts that only they have.

#include "platform/ui/Choices.h"
#include "platform/ui/Menu.h"
#include "platform/ui/Screen.h"

namespace fenvale {

class JanelaExemplo final : public Screen {
 public:
  JanelaExemplo(UiHost& host, std::string figura);

  MenuBar mnuBarra{*this, "mnuBarra"};
  ToolBar Toolbar1;
  Label lblAviso{*this, "lblAviso", "Nenhuma empresa aberta. Abra uma em Cadastros, Abrir Empresa.",
                 Label::Style::muted};
  StatusBar sttStatusBar{*this,
                         "sttStatusBar",
                         {{"usuario", "Usuário: MARIA"},
                          {"empresa", "Empresa: Loja.MDB"},
                          {"base", "Dados.MDB"},
                          {"data", "sexta-feira, 20/11/2026"}}};
  std::string escolhido;
};

class AberturaExemplo final : public Screen {
 public:
  explicit AberturaExemplo(UiHost& host);

  Label lblNomePrograma{*this, "lblNomePrograma", "Gestor Fenvale", Label::Style::title};
  Label lblVersao{*this, "lblVersao", "Versão 1.0.0", Label::Style::muted};
  Label lblMensagem{*this, "lblMensagem", "Abrindo a empresa "};
};

}  // namespace fenvale
