#include "titles/services/ZeramentoTitulos.h"

#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Validacoes.h"
#include "store/services/DBConectar.h"
#include "titles/services/Lado.h"

namespace fenvale {

ZeramentoTitulos::ZeramentoTitulos(Contexto& contexto, Progresso progresso)
    : contexto_(contexto), progresso_(std::move(progresso)) {}

void ZeramentoTitulos::vZerar(Escolha escolha, Date dtInicial, Date dtFinal) {
  const auto vZerarLado = [&](const Lado& lado) {
    vApagarTitulos(lado.sTitulos, dtInicial, dtFinal);
    vApagarFaturasSemTitulos(lado.sLigacao, lado.sTitulos, lado.sFaturas);
  };
  if (escolha != Escolha::recebidos) vZerarLado(ladoPagar());
  if (escolha != Escolha::pagos) vZerarLado(ladoReceber());
}

void ZeramentoTitulos::vApagarTitulos(const std::string& sTabela, Date dtInicial, Date dtFinal) {
  Recordset rs;
  rs.open("DELETE * FROM " + sTabela + " WHERE dtPagamento BETWEEN #" + Validacoes::sGetDataSQL(dtInicial) + "# AND #" +
              Validacoes::sGetDataSQL(dtFinal) + "# AND (fValorPago > 0) ",
          contexto_.dbEmpresa().Dados(), CursorType::dynamic, LockType::pessimistic);
}

void ZeramentoTitulos::vApagarFaturasSemTitulos(const std::string& sCampo, const std::string& sTabela,
                                                const std::string& sFatura) {
  Connection& dados = contexto_.dbEmpresa().Dados();
  Recordset rs("SELECT lCodigo, (SELECT " + sCampo + " FROM " + sTabela + " WHERE " + sCampo + " = " + sFatura +
                   ".lCodigo GROUP BY " + sCampo + ") AS Existe FROM " + sFatura,
               dados, CursorType::dynamic, LockType::pessimistic);
  const std::int32_t lFaturas = rs.recordCount();
  if (lFaturas == 0) return;
  progresso_(0, lFaturas);
  rs.moveFirst();
  Recordset rsExcluir;
  for (std::int32_t lVistas = 1; !rs.eof(); rs.moveNext(), ++lVistas) {
    if (rs.field("Existe").isNull()) {
      rsExcluir.closeIfOpen();
      rsExcluir.open("DELETE * FROM " + sFatura + " WHERE lCodigo = " + rs.field("lCodigo").toText(), dados,
                     CursorType::dynamic, LockType::pessimistic);
    }
    progresso_(lVistas, lFaturas);
  }
  progresso_(0, lFaturas);
}

}  // namespace fenvale
