#pragma once
// The machine's print queues, by its print server.

#include "platform/print/PrinterService.h"

namespace fenvale {

class CupsPrinters final : public PrinterService {
 public:
  /// Without a print server, or without queues, the built-in entry stands alone.
  std::vector<std::string> printers() override;
  std::string defaultPrinter() override;
  /// The bytes go to the server as they are written; nothing is gathered here.
  std::unique_ptr<RawJob> openRaw(const std::string& queue, const std::string& title) override;
};

}  // namespace fenvale
