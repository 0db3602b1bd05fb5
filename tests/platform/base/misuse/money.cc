// One misuse of money at a time, chosen by a definition; without one the file compiles.
#include "platform/base/Currency.h"

int main() {
  const fenvale::Currency ten = fenvale::Currency::fromInteger(10);
#ifdef CASE_fromNumber
  const fenvale::Currency price = 12.5;
#endif
#ifdef CASE_toNumber
  const double price = ten;
#endif
#ifdef CASE_timesMoney
  const auto square = ten * ten;
#endif
#ifdef CASE_plusNumber
  const auto more = ten + 1;
#endif
#ifdef CASE_comparedWithNumber
  const bool positive = ten > 0;
#endif
  return ten.units() == 100000 ? 0 : 1;
}
