#pragma once
// The machine's printers.

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/Error.h"

namespace fenvale {

/// The entry that is always there: documents become PDF files in the folder "Impressos" of the application path.
inline constexpr const char* pdfPrinterName = "Arquivo PDF";

/// Bytes on their way to a printer, which gets them as they are. Destroyed before it is finished, a job is given up and
/// nothing of it is printed.
class RawJob {
 public:
  virtual ~RawJob() = default;
  /// Error 75 when the bytes cannot be handed over; the job is lost then.
  virtual void write(std::string_view bytes) = 0;
  /// Hands the job over to be printed; nothing is written afterwards. Error 75, and nothing is printed.
  virtual void finish() = 0;
};

class PrinterService {
 public:
  virtual ~PrinterService() = default;
  /// Every print queue of the machine, the built-in entry last.
  virtual std::vector<std::string> printers() = 0;
  /// The queue that the machine prints on when nobody chose one; empty when there is none.
  virtual std::string defaultPrinter() { return {}; }
  /// A job of raw bytes on a queue; `title` is what the queue's list shows. Error 75 when the queue cannot be opened,
  /// which is always so with the built-in entry.
  virtual std::unique_ptr<RawJob> openRaw(const std::string& queue, const std::string& title);
};

inline std::unique_ptr<RawJob> PrinterService::openRaw(const std::string& queue, const std::string& /*title*/) {
  throw Error(errors::fileAccess, "Não foi possível abrir a impressora " + queue + ": a impressora não existe.");
}

}  // namespace fenvale
