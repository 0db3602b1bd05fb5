#include "registers/services/CampoCidade.h"

#include "platform/ui/Screen.h"
#include "registers/services/TeclasDeBusca.h"
#include "shell/services/Contexto.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"

namespace fenvale {
namespace {

std::unique_ptr<TextControl> caixa(Screen& tela, const std::string& sNome, CampoCidade::Modo modo,
                                   std::size_t comprimento) {
  if (modo == CampoCidade::Modo::digitado) return std::make_unique<TextBox>(tela, sNome, comprimento);
  auto busca = std::make_unique<LookupBox>(tela, sNome);
  busca->setToolTip(sDicaBusca);
  return busca;
}

}  // namespace

CampoCidade::CampoCidade(Screen& tela, Contexto& contexto, Modo modo, bool bEmpresa, const NomesCampoCidade& nomes)
    : caixaCidade_(caixa(tela, nomes.sCidade, modo, 255)),
      caixaUF_(caixa(tela, nomes.sUF, modo, 2)),
      txtCidade(*caixaCidade_),
      txtUF(*caixaUF_),
      cmdBuscarCidades(tela, nomes.sBotao, "", "lupa"),
      contexto_(contexto),
      bEmpresa_(bEmpresa) {
  cmdBuscarCidades.setLabel("Localizar cidade");
  cmdBuscarCidades.setToolTip("Localizar cidade");
  cmdBuscarCidades.onClick = [this] { vBuscar(); };
  for (TextControl* controle : {&txtCidade, &txtUF}) {
    if (modo == Modo::digitado) {
      controle->onLostFocus = [this] { vProcurarPar(); };
    } else {
      controle->onKeyDown = [this, controle](Key tecla) { return bTecla(*controle, tecla); };
    }
  }
}

void CampoCidade::vSetEstado(const Recordset& rs) {
  cidade_.vSetEstado(rs);
  vMostrar();
}

void CampoCidade::vSetEstado2(const std::string& sNome, const std::string& sUF) {
  cidade_.vSetEstado2(contexto_, sNome, sUF, bEmpresa_);
  txtCidade.setText(sNome);
  txtUF.setText(sUF);
}

void CampoCidade::vSetSomenteCidade(const Cidade& outra) {
  cidade_.vSetEstado2(contexto_, outra.sGetNome(), outra.sGetUF(), bEmpresa_);
}

void CampoCidade::vLimpar() {
  cidade_.vLimpar();
  vMostrar();
}

void CampoCidade::vBuscar() {
  // The search screen stays readable after it closed, until it is asked for anew.
  auto& busca = contexto_.telas().obter<BuscaCidade>("frmLocalizarCidades");
  busca.vCarregar(bEmpresa_);
  if (busca.cidade().lGetCodigo() < 0) return;
  cidade_ = busca.cidade();
  vMostrar();
}

bool CampoCidade::bTecla(TextControl& controle, Key tecla) {
  return bTeclaDeBusca(controle, tecla,
                       {.localizar =
                            [this] {
                              vBuscar();
                              if (aposBusca) aposBusca();
                            },
                        .limpar = [this] { vLimpar(); }});
}

void CampoCidade::vProcurarPar() {
  if (txtCidade.text() == cidade_.sGetNome() && txtUF.text() == cidade_.sGetUF()) return;
  cidade_.vSetEstado2(contexto_, txtCidade.text(), txtUF.text(), bEmpresa_);
}

void CampoCidade::vMostrar() {
  txtCidade.setText(cidade_.sGetNome());
  txtUF.setText(cidade_.sGetUF());
}

LayoutNode CampoCidade::campoNome(int largura, std::string sRotulo) {
  return campo(std::move(sRotulo), txtCidade, largura, {&cmdBuscarCidades});
}

LayoutNode CampoCidade::campoUF(int largura) { return campo("UF", txtUF, largura); }

}  // namespace fenvale
