#pragma once
// The machine's printers.

#include <string>
#include <vector>

namespace fenvale {

/// The entry that is always there: documents become PDF files in the folder "Impressos" of the application path.
inline constexpr const char* pdfPrinterName = "Arquivo PDF";

class PrinterService {
 public:
  virtual ~PrinterService() = default;
  /// Every print queue of the machine, the built-in entry last.
  virtual std::vector<std::string> printers() = 0;
};

}  // namespace fenvale
