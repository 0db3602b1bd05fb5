#pragma once
// One document on its way to the print server.

#include <cups/cups.h>

#include <memory>
#include <string>
#include <string_view>

#include "platform/print/PrinterService.h"

namespace fenvale {

/// A connection of its own: the library's shared one is not free while a document is under way.
using CupsConnection = std::unique_ptr<http_t, decltype(&httpClose)>;

class CupsRawJob final : public RawJob {
 public:
  /// Error 75 without a server, and when it takes no job for the queue.
  CupsRawJob(const std::string& queue, const std::string& title);
  ~CupsRawJob() override;
  CupsRawJob(const CupsRawJob&) = delete;
  CupsRawJob& operator=(const CupsRawJob&) = delete;

  void write(std::string_view bytes) override;
  void finish() override;

 private:
  void giveUp();

  std::string queue_;
  std::string destination_;  ///< the queue's name at the server, without an instance
  CupsConnection connection_;
  int job_ = 0;
  bool written_ = false;
};

}  // namespace fenvale
