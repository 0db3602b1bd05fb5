#include "registers/screens/TelaBuscaCompleta.h"

#include "access/services/Permissoes.h"
#include "platform/base/Text.h"
#include "registers/services/BotaoOcupado.h"
#include "shell/services/Contexto.h"
#include "shell/services/Teclas.h"
#include "shell/services/Telas.h"
#include "shell/services/Validacoes.h"

namespace fenvale {

std::string sClausula(const std::vector<Criterio>& criterios) {
  std::string sTexto;
  for (const Criterio& criterio : criterios)
    if (const std::string sCondicao = criterio(); !sCondicao.empty())
      sTexto += (sTexto.empty() ? "WHERE " : "AND ") + sCondicao;
  return sTexto;
}

std::string sPrefixo(const std::string& sCampo, const TextControl& caixa) {
  return "MID(" + sCampo + ", 1, " + std::to_string(length(caixa.text())) + ") = '" +
         Validacoes::sGetStringSQL(caixa.text()) + "' ";
}

Criterio prefixo(std::string sCampo, const TextControl& caixa) {
  return [sCampo = std::move(sCampo), &caixa] { return caixa.empty() ? std::string() : sPrefixo(sCampo, caixa); };
}

Criterio igual(std::string sCampo, const TextControl& caixa) {
  return [sCampo = std::move(sCampo), &caixa] {
    return caixa.empty() ? std::string() : sCampo + " = " + caixa.text() + " ";
  };
}

Criterio acimaDeZero(std::string sCampo, const NumberBox& caixa) {
  return [sCampo = std::move(sCampo), &caixa] {
    return caixa.value() > 0 ? sCampo + " = " + std::to_string(caixa.value()) + " " : std::string();
  };
}

Criterio chave(std::string sCampo, std::function<std::int32_t()> lChave) {
  return [sCampo = std::move(sCampo), lChave = std::move(lChave)] {
    return lChave() == -1 ? std::string() : sCampo + " = " + std::to_string(lChave()) + " ";
  };
}

Criterio periodo(std::string sCampo, const CheckBox& chk, const DatePicker& dtInicial, const DatePicker& dtFinal) {
  return [sCampo = std::move(sCampo), &chk, &dtInicial, &dtFinal] {
    return chk.checked() ? sCampo + " BETWEEN #" + Validacoes::sGetDataSQL(dtInicial.value()) + "# AND #" +
                               Validacoes::sGetDataSQL(dtFinal.value()) + "# "
                         : std::string();
  };
}

TelaBuscaCompleta::TelaBuscaCompleta(Contexto& contexto, std::string sNome, std::string sLegenda)
    : Tela(contexto, std::move(sNome)) {
  setCaption(sLegenda);
  setTitle(std::move(sLegenda));
  cmdLocalizar.setPrimary();
  cmdLocalizar.onClick = [this] { cmdLocalizar_Click(); };
  cmdFechar.onClick = [this] { unload(); };
}

void TelaBuscaCompleta::vMontarTela(std::vector<LayoutNode> formulario) {
  std::vector<LayoutNode> nos = std::move(formulario);
  nos.push_back(botoes({&cmdLocalizar}, {&cmdFechar}));
  setLayout(std::move(nos));
}

void TelaBuscaCompleta::vLocalizar(Screen& chamador) {
  chamador_ = &chamador;
  ensureLoaded();
  vAoAbrir();
  vMostrarFormModal(*this);
}

void TelaBuscaCompleta::cmdLocalizar_Click() try {
  if (!contexto().permissoes().bGetPesquisar()) return;
  const BotaoOcupado ocupado(cmdLocalizar);
  if (chamador_ == nullptr) throw Error(errors::objectNotSet, sGetName() + " foi aberta sem a tela que usa a busca.");
  auto* lista = dynamic_cast<TelaComLista*>(chamador_);
  if (lista == nullptr) throw Error(Telas::operacaoInexistente, chamador_->sGetName() + " não tem lista.");
  lista->vMontarLista(0, sClausula());
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdLocalizar_Click", 2);
}

bool TelaBuscaCompleta::onKeyDown(Key tecla) { return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla); }

}  // namespace fenvale
