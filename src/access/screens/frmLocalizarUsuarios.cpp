#include "access/screens/frmLocalizarUsuarios.h"

#include "shell/services/Contexto.h"
#include "store/services/DBConectar.h"

namespace fenvale {

frmLocalizarUsuarios::frmLocalizarUsuarios(Contexto& contexto)
    : TelaBuscaLista(contexto, "frmLocalizarUsuarios", "Cadastro de Usuários") {
  setCaption("Localizar usuário");
  setTitle("Localizar usuário");
  vSetColunas({
      {.sCabecalho = "Código", .fLargura = 1000, .sCampo = "lCodigo", .sMascara = "00000"},
      {.sCabecalho = "Nome", .fLargura = 4200, .sCampo = "sNomeUsuario"},
      {.sCabecalho = "Login", .fLargura = 2200, .sCampo = "sLogin"},
  });
}

std::int32_t frmLocalizarUsuarios::lLocalizar() {
  vBuscarEMostrar();
  return lEscolhido_;
}

std::string frmLocalizarUsuarios::sConsulta(const std::string& sPrefixo) const {
  return "SELECT * FROM Usuarios WHERE " + (sPrefixo.empty() ? std::string() : sPrefixo + "AND ") +
         "sNomeUsuario <> 'ADMINISTRADOR' ORDER BY sNomeUsuario";
}

Connection& frmLocalizarUsuarios::conexao() const { return contexto().dbConectar().Dados(); }

void frmLocalizarUsuarios::vEscolher(std::int32_t lCodigo) {
  lEscolhido_ = lCodigo;
  unload();
}

}  // namespace fenvale
