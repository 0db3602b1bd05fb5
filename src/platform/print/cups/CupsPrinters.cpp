#include "platform/print/cups/CupsPrinters.h"

#include <cups/cups.h>

#include <algorithm>

#include "platform/print/cups/CupsRawJob.h"

namespace fenvale {
namespace {

/// A printer that the network announces only now and then must not hold the screen up.
constexpr int patienceMilliseconds = 1500;

std::string nameOf(const cups_dest_t& queue) {
  return queue.instance == nullptr ? std::string(queue.name) : std::string(queue.name) + "/" + queue.instance;
}

int keepQueue(void* user, unsigned flags, cups_dest_t* queue) {
  auto& names = *static_cast<std::vector<std::string>*>(user);
  const std::string name = nameOf(*queue);
  if ((flags & CUPS_DEST_FLAGS_REMOVED) != 0) {
    std::erase(names, name);
  } else if (std::find(names.begin(), names.end(), name) == names.end()) {
    names.push_back(name);
  }
  return 1;
}

}  // namespace

std::vector<std::string> CupsPrinters::printers() {
  std::vector<std::string> names;
  cupsEnumDests(CUPS_DEST_FLAGS_NONE, patienceMilliseconds, nullptr, 0, 0, keepQueue, &names);
  std::sort(names.begin(), names.end());
  std::erase(names, pdfPrinterName);
  names.emplace_back(pdfPrinterName);
  return names;
}

std::string CupsPrinters::defaultPrinter() {
  cups_dest_t* queue = cupsGetNamedDest(CUPS_HTTP_DEFAULT, nullptr, nullptr);
  if (queue == nullptr) return {};
  std::string name = nameOf(*queue);
  cupsFreeDests(1, queue);
  return name;
}

std::unique_ptr<RawJob> CupsPrinters::openRaw(const std::string& queue, const std::string& title) {
  return std::make_unique<CupsRawJob>(queue, title);
}

}  // namespace fenvale
