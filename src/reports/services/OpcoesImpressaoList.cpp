#include "reports/services/OpcoesImpressaoList.h"

#include "platform/base/Error.h"

namespace fenvale {

const ListView& OpcoesImpressaoList::lstGetList() const {
  if (lstFonte == nullptr) throw Error(errors::objectNotSet, "Nenhuma lista foi indicada para a impressão.");
  return *lstFonte;
}

}  // namespace fenvale
