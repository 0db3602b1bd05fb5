#pragma once
// Stand-ins of the platform's services: a clock that stands still, a process that throws instead of ending, a mailer, a
// network and printers that answer as they are told.

#include <optional>
#include <string>
#include <vector>

#include "platform/base/Date.h"
#include "platform/base/Error.h"
#include "platform/mail/Mailer.h"
#include "platform/os/Network.h"
#include "platform/os/Process.h"
#include "platform/print/PrinterService.h"

namespace fenvale {

class RelogioDeTeste final : public Clock {
 public:
  Date today() const override { return std::chrono::floor<std::chrono::days>(momento); }
  DateTime now() const override { return momento; }
  void setDia(int ano, unsigned mes, unsigned dia) { momento = DateTime(makeDate(ano, mes, dia)); }

  /// 15 March 2026, 14:32:07
  DateTime momento =
      DateTime(makeDate(2026, 3, 15)) + std::chrono::hours(14) + std::chrono::minutes(32) + std::chrono::seconds(7);
};

class ProcessoDeTeste final : public Process {
 public:
  [[noreturn]] void end(int exitCode) override { throw ProgramEnded{exitCode}; }
};

class CorreioDeTeste final : public Mailer {
 public:
  std::string send(const Mail& mail) override {
    enviados.push_back(mail);
    return falha;
  }
  std::string falha;  ///< the answer; empty is success
  std::vector<Mail> enviados;
};

class RedeDeTeste final : public Network {
 public:
  SocketLibrary start(std::uint16_t version) override {
    ++partidas;
    return biblioteca.value_or(SocketLibrary{0, version});
  }
  int stop() override {
    ++paradas;
    return falhaAoParar;
  }
  std::string hostName() override {
    if (nome.empty()) throw Error(10050, "A rede não responde.");
    return nome;
  }
  std::string address(const std::string&) override {
    if (endereco.empty()) throw Error(11001, "O nome não pôde ser resolvido.");
    return endereco;
  }
  std::string nome = "balcao";           ///< empty: cannot be told
  std::string endereco = "192.168.0.7";  ///< empty: cannot be resolved
  std::optional<SocketLibrary> biblioteca;
  int falhaAoParar = 0;
  int partidas = 0;
  int paradas = 0;
};

class ImpressorasDeTeste final : public PrinterService {
 public:
  std::vector<std::string> printers() override { return nomes; }
  std::vector<std::string> nomes = {"Laser do balcão", pdfPrinterName};
};

}  // namespace fenvale
