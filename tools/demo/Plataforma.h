#pragma once
// What the program stands on while it fills a folder with nobody in front of it.

#include <string>
#include <vector>

#include "platform/base/Date.h"
#include "platform/mail/Mailer.h"
#include "platform/os/Network.h"
#include "platform/print/PrinterService.h"
#include "platform/ui/UiHost.h"

namespace fenvale::demonstracao {

/// Goes through the year day by day.
class Relogio final : public Clock {
 public:
  explicit Relogio(Date hoje) : dia(hoje) {}
  Date today() const override { return dia; }
  DateTime now() const override { return DateTime(dia) + std::chrono::hours(10); }
  Date dia;
};

/// Shows nothing. Information needs no reader; any other box is a failure, told on standard error, and a question is
/// answered by no.
class Anfitriao final : public UiHost {
 public:
  BoxAnswer messageBox(const MessageBox& box) override;
  void showModal(Screen&) override {}
  void show(Screen&) override {}
  void close(Screen&) override {}
  Screen* activeScreen() const override { return nullptr; }
  void popupMenu(PopupMenu&) override {}
  void focusChanged(Control&) override {}
  void screenChanged(Screen&) override {}
  void doEvents() override {}
  void sleep(std::chrono::milliseconds) override {}
  std::chrono::milliseconds elapsed() const override { return {}; }
  void setPointer(Pointer pointer) override { pointer_ = pointer; }
  Pointer pointer() const override { return pointer_; }
  Size monitorSize() const override { return {1024, 768}; }

 private:
  Pointer pointer_ = Pointer::normal;
};

class Correio final : public Mailer {
 public:
  std::string send(const Mail&) override { return "A demonstração não envia correio."; }
};

class Rede final : public Network {
 public:
  std::string hostName() override { return "demonstracao"; }
  std::string address(const std::string&) override { return "127.0.0.1"; }
};

class Impressoras final : public PrinterService {
 public:
  std::vector<std::string> printers() override { return {pdfPrinterName}; }
};

}  // namespace fenvale::demonstracao
