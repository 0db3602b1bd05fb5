#pragma once
// Stand-ins of the platform's services: a clock that stands still, a process that throws instead of ending, a mailer, a
// network and printers that answer as they are told.

#include <algorithm>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
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
  void openFile(const std::string& path) override {
    if (!abreArquivos) Process::openFile(path);
    abertos.push_back(path);
  }
  bool abreArquivos = true;  ///< false: no program is there for any kind of file
  std::vector<std::string> abertos;
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

/// What a queue was given: `terminado` once it is to be printed, `desistido` when it was given up.
struct TrabalhoDeTeste {
  std::string fila;
  std::string titulo;
  std::string bytes;
  bool terminado = false;
  bool desistido = false;
};

class ImpressorasDeTeste final : public PrinterService {
 public:
  std::vector<std::string> printers() override { return nomes; }
  std::string defaultPrinter() override { return verdadeiras != nullptr ? verdadeiras->defaultPrinter() : padrao; }
  /// Any name but those of `nomes` is a queue that the machine does not have.
  std::unique_ptr<RawJob> openRaw(const std::string& queue, const std::string& title) override {
    if (verdadeiras != nullptr) return verdadeiras->openRaw(queue, title);
    if (queue == pdfPrinterName || std::find(nomes.begin(), nomes.end(), queue) == nomes.end())
      return PrinterService::openRaw(queue, title);
    trabalhos.push_back(std::make_shared<TrabalhoDeTeste>(TrabalhoDeTeste{queue, title, {}}));
    return std::make_unique<Trabalho>(trabalhos.back(), limite);
  }
  std::vector<std::string> nomes = {"Laser do balcão", pdfPrinterName};
  std::string padrao;                      ///< empty: the machine has none
  std::size_t limite = std::string::npos;  ///< bytes that a queue takes before it fails
  PrinterService* verdadeiras = nullptr;   ///< real queues, which take the jobs instead
  std::vector<std::shared_ptr<TrabalhoDeTeste>> trabalhos;

 private:
  class Trabalho final : public RawJob {
   public:
    Trabalho(std::shared_ptr<TrabalhoDeTeste> destino, std::size_t cabem)
        : destino_(std::move(destino)), cabem_(cabem) {}
    ~Trabalho() override { destino_->desistido = !destino_->terminado; }
    Trabalho(const Trabalho&) = delete;
    Trabalho& operator=(const Trabalho&) = delete;
    void write(std::string_view bytes) override {
      if (destino_->bytes.size() + bytes.size() > cabem_)
        throw Error(errors::fileAccess, "A impressora " + destino_->fila + " parou.");
      destino_->bytes += bytes;
    }
    void finish() override { destino_->terminado = true; }

   private:
    std::shared_ptr<TrabalhoDeTeste> destino_;
    std::size_t cabem_;
  };
};

}  // namespace fenvale
