#pragma once
// Asks for the place of the program's store when it is not where it should be.

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/Places.h"
#include "shell/services/Tela.h"

namespace fenvale {

class frmLocalizarBD final : public Tela {
 public:
  explicit frmLocalizarBD(Contexto& contexto);

  Label lblPrincipal{*this, "lblPrincipal", "Informações do caminho da base de dados", Label::Style::help};
  TextBox txtEnderecoAtual{*this, "txtEnderecoAtual"};
  DriveList drvlstListaDiretorios{*this, "drvlstListaDiretorios"};
  FolderTree drvArvoreDiretorios{*this, "drvArvoreDiretorios"};
  FileList flstListaBancoDados{*this, "flstListaBancoDados"};
  Button cmdTestarConexao{*this, "cmdTestarConexao", "&Testar conexão", "banco-dados"};
  Button cmdConfiguracaoOriginal{*this, "cmdConfiguracaoOriginal", "&Configuração original", "desfazer"};
  /// "&Sair", which ends the program, when there is no store to go on with; "&Fechar" otherwise.
  Button cmdFechar{*this, "cmdFechar", "&Fechar", "fechar"};

 protected:
  void onLoad() override;
  bool onKeyDown(Key tecla) override;

 private:
  void drvlstListaDiretorios_Change();
  void cmdTestarConexao_Click();
  void cmdConfiguracaoOriginal_Click();
  void cmdFechar_Click();

  std::string sCaminhoIni() const;
  void vArmazenar(const std::string& sCaminho);
  bool bHaBaseDeDados() const;
};

}  // namespace fenvale
