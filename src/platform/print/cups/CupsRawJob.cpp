#include "platform/print/cups/CupsRawJob.h"

namespace fenvale {
namespace {

constexpr int patienceMilliseconds = 30000;

std::string reason() {
  switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_FOUND:
      return "a impressora não existe";
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
      return "a impressora não está aceitando trabalhos";
    case IPP_STATUS_ERROR_SERVICE_UNAVAILABLE:
      return "o serviço de impressão não responde";
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_CUPS_AUTHENTICATION_CANCELED:
      return "permissão negada";
    default: {
      std::string told = cupsLastErrorString() == nullptr ? "" : cupsLastErrorString();
      while (told.ends_with('.')) told.pop_back();
      return told.empty() ? "o serviço de impressão recusou o trabalho" : told;
    }
  }
}

[[noreturn]] void fail(const std::string& what, const std::string& queue, const std::string& why) {
  throw Error(errors::fileAccess, "Não foi possível " + what + " a impressora " + queue + ": " + why + ".");
}

CupsConnection connect() {
  return {httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC, cupsEncryption(), 1, patienceMilliseconds, nullptr),
          &httpClose};
}

using Destination = std::unique_ptr<cups_dest_t, void (*)(cups_dest_t*)>;

/// A queue by its name, which names one of its instances behind a "/".
Destination find(http_t* connection, const std::string& queue) {
  const std::size_t slash = queue.find('/');
  const std::string instance = slash == std::string::npos ? std::string() : queue.substr(slash + 1);
  return {cupsGetNamedDest(connection, queue.substr(0, slash).c_str(), instance.empty() ? nullptr : instance.c_str()),
          [](cups_dest_t* destination) { cupsFreeDests(1, destination); }};
}

}  // namespace

CupsRawJob::CupsRawJob(const std::string& queue, const std::string& title) : queue_(queue), connection_(connect()) {
  if (!connection_) fail("abrir", queue_, "o serviço de impressão não responde");
  const Destination destination =
      queue == pdfPrinterName ? Destination{nullptr, nullptr} : find(connection_.get(), queue);
  if (!destination) fail("abrir", queue_, "a impressora não existe");
  destination_ = destination->name;
  job_ = cupsCreateJob(connection_.get(), destination_.c_str(), title.c_str(), destination->num_options,
                       destination->options);
  if (job_ == 0) fail("abrir", queue_, reason());
  if (cupsStartDocument(connection_.get(), destination_.c_str(), job_, title.c_str(), CUPS_FORMAT_RAW, 1) !=
      HTTP_STATUS_CONTINUE) {
    const std::string why = reason();
    giveUp();
    fail("abrir", queue_, why);
  }
}

CupsRawJob::~CupsRawJob() { giveUp(); }

/// The connection hangs in the middle of a document: only another one can take the job back.
void CupsRawJob::giveUp() {
  connection_.reset();
  if (job_ == 0) return;
  if (const CupsConnection other = connect()) cupsCancelJob2(other.get(), destination_.c_str(), job_, 1);
  job_ = 0;
}

void CupsRawJob::write(std::string_view bytes) {
  if (bytes.empty()) return;
  if (job_ == 0) fail("enviar dados para", queue_, "o trabalho foi encerrado");
  if (cupsWriteRequestData(connection_.get(), bytes.data(), bytes.size()) != HTTP_STATUS_CONTINUE) {
    const std::string why = reason();
    giveUp();
    fail("enviar dados para", queue_, why);
  }
  written_ = true;
}

void CupsRawJob::finish() {
  if (job_ == 0) fail("enviar dados para", queue_, "o trabalho foi encerrado");
  // The server takes a document without a byte for a fault; there is nothing to print in it anyway.
  if (!written_) return giveUp();
  if (cupsFinishDocument(connection_.get(), destination_.c_str()) != IPP_STATUS_OK) {
    const std::string why = reason();
    giveUp();
    fail("enviar dados para", queue_, why);
  }
  connection_.reset();
  job_ = 0;
}

}  // namespace fenvale
