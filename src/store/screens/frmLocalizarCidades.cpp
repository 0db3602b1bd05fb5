#include "store/screens/frmLocalizarCidades.h"

#include "shell/services/Contexto.h"
#include "store/services/DBConectar.h"

namespace fenvale {

frmLocalizarCidades::frmLocalizarCidades(Contexto& contexto)
    : TelaBuscaLista(contexto, "frmLocalizarCidades", "Cadastro de Cidades") {
  setCaption("Localizar cidade");
  setTitle("Localizar cidade");
  vSetColunas({
      {.sCabecalho = "Código", .fLargura = 1000, .sCampo = "lCodigo", .sMascara = "00000"},
      {.sCabecalho = "UF", .fLargura = 800, .sCampo = "sUF"},
      {.sCabecalho = "Nome", .fLargura = 5200, .sCampo = "sNome"},
  });
}

void frmLocalizarCidades::vCarregar(bool bEmpresa) {
  bEmpresa_ = bEmpresa;
  vBuscarEMostrar();
}

std::string frmLocalizarCidades::sConsulta(const std::string& sPrefixo) const {
  return "SELECT lCodigo, sUF, sNome FROM Cidades " + (sPrefixo.empty() ? std::string() : "WHERE " + sPrefixo) +
         "ORDER BY sUF, sNome";
}

Connection& frmLocalizarCidades::conexao() const {
  return bEmpresa_ ? contexto().dbEmpresa().Dados() : contexto().dbConectar().Dados();
}

void frmLocalizarCidades::vEscolher(std::int32_t lCodigo) try {
  Recordset rs(
      "SELECT (lCodigo) AS CidadeCodigo, (sNome) AS CidadeNome, (sUF) AS CidadeUF FROM Cidades WHERE lCodigo = " +
          std::to_string(lCodigo),
      conexao(), CursorType::keyset, LockType::optimistic);
  cidade_.vSetEstado(rs);
  rs.closeIfOpen();
  unload();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "lstLista_ItemClick");
}

}  // namespace fenvale
