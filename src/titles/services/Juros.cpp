#include "titles/services/Juros.h"

#include <string>

#include "platform/base/Checked.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Tela.h"
#include "store/services/DBConectar.h"

namespace fenvale {

Juros::Juros(Contexto& contexto) : contexto_(contexto) {}

Currency Juros::fCalcularJuros(Currency fValor, Date dtVencimento, Currency fJuros) {
  if (dias(dtVencimento) <= 0) {
    Caixas(contexto_.host()).avisar("Este título ainda não venceu, portanto os juros não podem ser calculados.");
    return fJuros;
  }
  const Currency fJurosDia = Currency::fromDouble(fCalcularJurosDia(fValor, dtVencimento));
  return Currency::fromDouble(fCalcularJurosMes(fJurosDia, dtVencimento, fValor));
}

double Juros::fCalcularJurosDia(Currency fValor, Date dtVencimento) {
  const double d = fGetPercentualJurosDia();
  return d > 0 ? fValor.toDouble() * (d / 100) * dias(dtVencimento) : 0;
}

double Juros::fCalcularJurosMes(Currency fJurosDia, Date dtVencimento, Currency fValor) {
  const std::int16_t n = roundToInt16(dias(dtVencimento) / 30);
  const double jd = fJurosDia.toDouble();
  if (n == 0) return jd;
  const double m = fGetPercentualJurosMes();
  if (m <= 0) return jd;
  const Currency s = fValor + fJurosDia;
  return jd + s.toDouble() * (m / 100) * n;
}

double Juros::fGetPercentualJurosDia() { return fGetPercentual("fPercentualJurosDia"); }
double Juros::fGetPercentualJurosMes() { return fGetPercentual("fPercentualJurosMes"); }

double Juros::dias(Date dtVencimento) const { return daysBetween(dtVencimento, contexto_.relogio().today()); }

double Juros::fGetPercentual(const char* sCampo) {
  const Recordset rs(std::string("SELECT ") + sCampo + " FROM Sistema ", contexto_.dbConectar().Dados());
  if (rs.eof()) return 0;
  const Value fPercentual = rs.field(sCampo);
  return fPercentual.isNull() ? 0 : fPercentual.toDouble();
}

}  // namespace fenvale
