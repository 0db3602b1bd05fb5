#include "registers/services/Cidade.h"

#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Validacoes.h"
#include "store/services/DBConectar.h"

namespace fenvale {

void Cidade::vSetEstado(const Recordset& rs) {
  sNome = rs.field("CidadeNome").toText();
  sUF = rs.field("CidadeUF").toText();
  lCodigo = rs.field("CidadeCodigo").toLong();
}

void Cidade::vSetEstado2(Contexto& contexto, const std::string& sNomeCidade, const std::string& sUFCidade,
                         bool bEmpresa) {
  sNome = sNomeCidade;
  sUF = sUFCidade;
  lCodigo = -1;
  if (sNome.empty() && sUF.empty()) return;
  const Recordset rs("SELECT lCodigo FROM Cidades WHERE sNome = '" + Validacoes::sGetStringSQL(sNome) +
                         "' AND sUF = '" + Validacoes::sGetStringSQL(sUF) + "' ORDER BY lCodigo ",
                     bEmpresa ? contexto.dbEmpresa().Dados() : contexto.dbConectar().Dados(), CursorType::dynamic,
                     LockType::readOnly);
  if (!rs.eof()) lCodigo = rs.field("lCodigo").toLong();
}

void Cidade::vLimpar() { *this = Cidade(); }

void Banco::vSetEstado(const Recordset& rs) {
  lCodigo = rs.field("BancoCodigo").toLong();
  iCodigoInf = rs.field("BancoCodigoInf").toInteger();
  sNome = rs.field("BancoNome").toText();
}

void Banco::vSetEstado2(Contexto& contexto, const std::string& sNomeBanco) {
  sNome = sNomeBanco;
  iCodigoInf = 0;
  lCodigo = -1;
  if (sNome.empty()) return;
  const Recordset rs("SELECT lCodigo, iCodigoInf FROM Bancos WHERE sNome = '" + Validacoes::sGetStringSQL(sNome) +
                         "' ORDER BY lCodigo ",
                     contexto.dbEmpresa().Dados(), CursorType::dynamic, LockType::readOnly);
  if (rs.eof()) return;
  lCodigo = rs.field("lCodigo").toLong();
  iCodigoInf = rs.field("iCodigoInf").toInteger();
}

}  // namespace fenvale
