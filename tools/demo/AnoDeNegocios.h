#pragma once
// A year of sales and purchases, of money that came in and money that was paid, up to the morning of a day.

#include "platform/base/Date.h"

namespace fenvale {

class Contexto;

namespace demonstracao {

class Relogio;
struct Registros;

/// The year that ends with `hoje`, on which a few titles of each side fall due and are still open. The clock is the one
/// that the program asks; it is moved through the year and stands on the last day in the end.
void vViverUmAno(Contexto& contexto, const Registros& registros, Relogio& relogio, Date hoje);

}  // namespace demonstracao
}  // namespace fenvale
