#pragma once
// The machine's print queues, by its print server.

#include "platform/print/PrinterService.h"

namespace fenvale {

class CupsPrinters final : public PrinterService {
 public:
  /// Without a print server, or without queues, the built-in entry stands alone.
  std::vector<std::string> printers() override;
};

}  // namespace fenvale
