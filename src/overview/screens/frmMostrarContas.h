#pragma once
// The accounts overview: what falls due today and what is overdue, on both sides of the ledger, each list with its
// total. It writes nothing.

#include <array>
#include <cstdint>
#include <string>

#include "overview/services/ListasDoQuadro.h"
#include "platform/base/Currency.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "platform/ui/Menu.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Tela.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {

class Recordset;

class frmMostrarContas final : public Tela, public TelaQuadroGeral {
 public:
  explicit frmMostrarContas(Contexto& contexto);

  /// One of the four lists, with what stands around it on its tab.
  struct Quadro {
    Quadro(Screen& tela, const ListaDoQuadro& lista);
    const ListaDoQuadro& descricao;
    ListView lst;
    Label lblContas;
    Button cmdEmitir;
    Currency crcTotal;
  };
  /// In the order of the tabs.
  std::array<Quadro, 4> quadros;

  ListView& lstPagarDia{quadros[0].lst};
  ListView& lstReceberDia{quadros[1].lst};
  ListView& lstPagarVencidas{quadros[2].lst};
  ListView& lstReceberVencidas{quadros[3].lst};
  Label& lblContasPagarDia{quadros[0].lblContas};
  Label& lblContasReceberDia{quadros[1].lblContas};
  Label& lblContasPagarVencidas{quadros[2].lblContas};
  Label& lblContasReceberVencidas{quadros[3].lblContas};
  Button& cmdEmitirPagarDia{quadros[0].cmdEmitir};
  Button& cmdEmitirReceberDia{quadros[1].cmdEmitir};
  Button& cmdEmitirPagarVencidas{quadros[2].cmdEmitir};
  Button& cmdEmitirReceberVencidas{quadros[3].cmdEmitir};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};
  PopupMenu mnuPopUp{*this, "mnuPopUp"};

  bool bGetMostrarTodas() override;
  void vSetMotrarTodas(bool bTodas) override;

 protected:
  void onLoad() override;
  bool onUnload() override;
  bool onKeyDown(Key tecla) override;

 private:
  void vMontarLista(Quadro& quadro);
  void vInserirLista(Quadro& quadro, const Recordset& rs) const;
  void vClicarItem(const Quadro& quadro, const std::shared_ptr<ListItem>& item);
  void vSelecionarItem(const std::shared_ptr<ListItem>& item);
  void mnuMotrarTitulo_Click();
  void vEmitir(Quadro& quadro);
  void vLimparListas();
  Quadro& quadroAtual();

  Funcoes funcoes_;
  std::int16_t iBotaoMouse = 0;
  std::int16_t iListaAtual = 0;
  ListItemReference itemAtual;
};

}  // namespace fenvale
