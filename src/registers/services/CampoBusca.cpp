#include "registers/services/CampoBusca.h"

#include "platform/ui/Boxes.h"
#include "platform/ui/Screen.h"
#include "platform/ui/UiHost.h"
#include "registers/services/TeclasDeBusca.h"
#include "registers/services/Vendedor.h"
#include "shell/services/Contexto.h"
#include "shell/services/Funcoes.h"
#include "shell/services/TelaComLista.h"
#include "shell/services/Telas.h"

namespace fenvale {

CampoBusca::CampoBusca(Screen& tela, Contexto& contexto, std::vector<Control*> caixas, Descricao descricao)
    : cmdBuscar(tela, descricao.sBotao, "", "lupa"),
      tela_(tela),
      contexto_(contexto),
      caixas_(std::move(caixas)),
      descricao_(std::move(descricao)) {
  cmdBuscar.setLabel(descricao_.sRotulo);
  cmdBuscar.setToolTip(descricao_.sRotulo);
  cmdBuscar.onClick = [this] {
    vBuscar();
    if (descricao_.proximo != nullptr) descricao_.proximo->setFocus();
  };
  for (Control* caixa : caixas_) caixa->onKeyDown = [this, caixa](Key tecla) { return bTecla(*caixa, tecla); };
  if (caixas_.front()->kind() == ControlKind::lookupBox) caixas_.front()->setToolTip(sDicaBusca);
}

void CampoBusca::vSetCadastro(std::string sTela, const std::string& sRotulo, Button& botao) {
  sCadastro_ = std::move(sTela);
  cmdCadastro_ = &botao;
  botao.setLabel(sRotulo);
  botao.setToolTip(sRotulo);
  botao.setEnabled(contexto_.telas().bExiste(sCadastro_));
  botao.onClick = [this] { vCadastrar(*caixas_.front()); };
  caixas_.front()->setToolTip(sDicaBuscaECadastro);
}

void CampoBusca::vSet(std::int32_t lChave, const std::string& sTexto) {
  lCodigo = lChave;
  caixaPrincipal().setText(sTexto);
}

TextControl& CampoBusca::caixaPrincipal() const { return static_cast<TextControl&>(*caixas_.front()); }

void CampoBusca::vLimpar() {
  lCodigo = -1;
  if (descricao_.vendedor != nullptr) descricao_.vendedor->vSetEstado(-1, "");
  for (Control* caixa : caixas_) caixa->reset({});
}

void CampoBusca::vBuscar() {
  Telas& telas = contexto_.telas();
  if (descricao_.vendedor == nullptr) return telas.obter<TelaBusca>(descricao_.sBusca).vLocalizar(tela_);
  telas.obter<TelaBuscaVendedores>(descricao_.sBusca).vLocalizarOBJ(*descricao_.vendedor, caixaPrincipal());
}

void CampoBusca::vCadastrar(Control& caixa) {
  Funcoes(contexto_).vMostrarFormModal(sCadastro_);
  caixa.setFocus();
}

bool CampoBusca::bTecla(Control& caixa, Key tecla) {
  return bTeclaDeBusca(caixa, tecla,
                       {.localizar = [this] { cmdBuscar.userClick(); },
                        .limpar = [this] { vLimpar(); },
                        .cadastrar =
                            [this, &caixa] {
                              if (cmdCadastro_ != nullptr && cmdCadastro_->enabled()) vCadastrar(caixa);
                            }});
}

LayoutNode CampoBusca::campoPrincipal(const std::string& sRotulo, int largura) {
  std::vector<Control*> botoesAoLado{&cmdBuscar};
  if (cmdCadastro_ != nullptr) botoesAoLado.push_back(cmdCadastro_);
  return campo(sRotulo, *caixas_.front(), largura, botoesAoLado);
}

}  // namespace fenvale
