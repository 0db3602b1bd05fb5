#include "registers/screens/frmLocalizarBancos.h"

#include "platform/base/Text.h"
#include "platform/sql/Store.h"
#include "registers/services/Cidade.h"
#include "shell/services/Validacoes.h"

namespace fenvale {

frmLocalizarBancos::frmLocalizarBancos(Contexto& contexto)
    : TelaEscolha(contexto, "frmLocalizarBancos", "Localizar bancos") {
  vSetColunas({{"Código", 1000, Align::right, "iCodigoInf"}, {"Nome", 7200, Align::left, "sNome"}});
  cmdEmitir.onClick = [this] { vEmitirLista("Cadastro de Bancos", 80); };
  vMontarTela({linha({campo("&Nome", txtNome, cresce)})}, {&cmdLocalizar, &cmdEmitir});
}

void frmLocalizarBancos::onLoad() {
  TelaEscolha::onLoad();
  cmdEmitir.setEnabled(bPodeEmitir());
  cmdLocalizar_Click();
}

void frmLocalizarBancos::vLocalizarBanco(Screen&, Banco& banco, TextControl& txtNomeDestino) {
  banco_ = &banco;
  txtNomeDestino_ = &txtNomeDestino;
  vMostrarFormModal(*this);
}

std::string frmLocalizarBancos::sConsulta() const {
  return "SELECT lCodigo, iCodigoInf, sNome FROM Bancos WHERE Mid$(sNome, 1, " +
         std::to_string(length(txtNome.text())) + ") = '" + Validacoes::sGetStringSQL(txtNome.text()) +
         "' ORDER BY iCodigoInf, sNome ";
}

void frmLocalizarBancos::vEscolher(std::int32_t lChave) {
  if (banco_ == nullptr) return;  // opened to be looked at
  const Recordset rs(
      "SELECT (lCodigo) AS BancoCodigo, (sNome) AS BancoNome, (iCodigoInf) AS BancoCodigoInf FROM Bancos "
      "WHERE lCodigo = " +
          std::to_string(lChave),
      conexao(), CursorType::dynamic, LockType::readOnly);
  banco_->vSetEstado(rs);
  txtNomeDestino_->setText(banco_->sGetNome());
}

}  // namespace fenvale
