// Raw jobs on queues of a print server of our own, whose printer is a port of this machine.
#include "platform/print/cups/CupsRawJob.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <functional>

#include "platform/print/PrintServer.h"
#include "platform/print/cups/CupsPrinters.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// "name: title" of every job that the server knows, done or not.
std::vector<std::string> jobs() {
  cups_job_t* list = nullptr;
  const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &list, nullptr, 0, CUPS_WHICHJOBS_ALL);
  std::vector<std::string> result;
  result.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) result.push_back(std::string(list[i].dest) + ": " + list[i].title);
  cupsFreeJobs(count, list);
  return result;
}

/// Every byte there is, in an order that no filter would leave alone.
std::string everyByte(std::size_t count) {
  std::string bytes;
  for (std::size_t i = 0; i < count; ++i) bytes += static_cast<char>((i * 7 + i / 256) % 256);
  return bytes;
}

/// "number: description" of the failure that `action` ends with.
std::string failureOf(const std::function<void()>& action) {
  try {
    action();
    return "nenhuma";
  } catch (const Error& failure) {
    return std::to_string(failure.number) + ": " + failure.description;
  }
}

TEST(RawJobs, TheBytesThatWereWrittenArriveAsTheyAre) {
  NetworkPrinter printer;
  const PrintServer server(queueAt("Matricial", printer.address()));
  const std::string bytes = "\x0F+--+\r\n|\xC9 %!PS|\r\n\f\x12" + everyByte(300000);
  std::vector<std::string> listed;
  server.serve([&] {
    const auto job = CupsPrinters().openRaw("Matricial", "Cadastro de clientes");
    job->write("");
    for (std::size_t place = 0; place < bytes.size(); place += 1000)
      job->write(std::string_view(bytes).substr(place, 1000));
    job->finish();
    listed = jobs();
  });
  EXPECT_TRUE(printer.prints(1) == std::vector{bytes});
  EXPECT_THAT(listed, ElementsAre("Matricial: Cadastro de clientes"));
}

/// A printer that the server would draw pages for.
constexpr const char* pageDriver =
    "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
    "*LanguageEncoding: ISOLatin1\n*PCFileName: \"PAGES.PPD\"\n*Manufacturer: \"Pages\"\n*Product: \"(Pages)\"\n"
    "*ModelName: \"Pages\"\n*ShortNickName: \"Pages\"\n*NickName: \"Pages\"\n*PSVersion: \"(3010.000) 0\"\n"
    "*LanguageLevel: \"3\"\n*ColorDevice: False\n*DefaultColorSpace: Gray\n*FileSystem: False\n*Throughput: \"1\"\n"
    "*OpenUI *PageSize/Page: PickOne\n*DefaultPageSize: A4\n*PageSize A4/A4: \"\"\n*CloseUI: *PageSize\n"
    "*OpenUI *PageRegion/Page: PickOne\n*DefaultPageRegion: A4\n*PageRegion A4/A4: \"\"\n*CloseUI: *PageRegion\n"
    "*DefaultImageableArea: A4\n*ImageableArea A4/A4: \"0 0 595 842\"\n"
    "*DefaultPaperDimension: A4\n*PaperDimension A4/A4: \"595 842\"\n";

TEST(RawJobs, TheDriverOfAQueueLeavesTheBytesAlone) {
  NetworkPrinter printer;
  const PrintServer server(queueAt("Matricial", printer.address()), {{"Matricial", pageDriver}});
  const std::string bytes = "\x0F+--+\r\n|\xC9|\r\n+--+\r\n\x12";
  server.serve([&] {
    const auto job = CupsPrinters().openRaw("Matricial", "Cadastro de clientes");
    job->write(bytes);
    job->finish();
  });
  EXPECT_THAT(printer.prints(1), ElementsAre(bytes));
}

TEST(RawJobs, AJobThatIsNotFinishedIsTakenBackAndPrintsNothing) {
  NetworkPrinter printer;
  const PrintServer server(queueAt("Matricial", printer.address()));
  std::vector<std::string> listed;
  server.serve([&] {
    CupsPrinters printers;
    printers.openRaw("Matricial", "desistido")->write(everyByte(100000));
    listed = jobs();
    const auto job = printers.openRaw("Matricial", "segundo");
    job->write("depois");
    job->finish();
  });
  EXPECT_THAT(listed, IsEmpty());
  EXPECT_THAT(printer.prints(1), ElementsAre("depois"));
}

TEST(RawJobs, AJobWithoutAByteIsNoJob) {
  const PrintServer server(queueAt("Matricial", "socket://127.0.0.1:9"));
  std::vector<std::string> listed;
  server.serve([&] {
    CupsPrinters().openRaw("Matricial", "vazio")->finish();
    listed = jobs();
  });
  EXPECT_THAT(listed, IsEmpty());
}

TEST(RawJobs, AFinishedJobTakesNothingMore) {
  NetworkPrinter printer;
  const PrintServer server(queueAt("Matricial", printer.address()));
  server.serve([&] {
    const auto job = CupsPrinters().openRaw("Matricial", "x");
    job->write("tudo");
    job->finish();
    const std::string ended =
        "75: Não foi possível enviar dados para a impressora Matricial: o trabalho foi encerrado.";
    EXPECT_EQ(failureOf([&] { job->write("mais"); }), ended);
    EXPECT_EQ(failureOf([&] { job->finish(); }), ended);
  });
  EXPECT_THAT(printer.prints(1), ElementsAre("tudo"));
}

TEST(RawJobs, WhatCannotBeOpenedTellsWhy) {
  const PrintServer server(queueAt("Parada", "socket://127.0.0.1:9", "No"));
  server.serve([] {
    CupsPrinters printers;
    EXPECT_EQ(failureOf([&] { printers.openRaw("Nenhuma", "x"); }),
              "75: Não foi possível abrir a impressora Nenhuma: a impressora não existe.");
    EXPECT_EQ(failureOf([&] { printers.openRaw(pdfPrinterName, "x"); }),
              "75: Não foi possível abrir a impressora Arquivo PDF: a impressora não existe.");
    EXPECT_EQ(failureOf([&] { printers.openRaw("Parada", "x"); }),
              "75: Não foi possível abrir a impressora Parada: a impressora não está aceitando trabalhos.");
  });
}

TEST(RawJobs, WithoutAPrintServerNothingOpens) {
  const PastaTemporaria folder;
  PrintServer::serve(folder.arquivo("nada.sock"), [] {
    EXPECT_EQ(failureOf([] { CupsPrinters().openRaw("Matricial", "x"); }),
              "75: Não foi possível abrir a impressora Matricial: o serviço de impressão não responde.");
  });
}

TEST(RawJobs, AServerThatDiesInTheMiddleOfAJobIsAFailure) {
  PrintServer server(queueAt("Matricial", "socket://127.0.0.1:9"));
  server.serve([&] {
    const auto job = CupsPrinters().openRaw("Matricial", "x");
    job->write(everyByte(1000));
    server.stop();
    EXPECT_THAT(failureOf([&] {
                  job->write(everyByte(10000000));
                  job->finish();
                }),
                testing::StartsWith("75: Não foi possível enviar dados para a impressora Matricial: "));
  });
}

TEST(RawJobs, NothingIsGatheredOnTheWay) {
  NetworkPrinter printer;
  const PrintServer server(queueAt("Matricial", "socket://127.0.0.1:9"));
  server.serve([] {
    const auto peak = [] {
      rusage usage{};
      ::getrusage(RUSAGE_SELF, &usage);
      return usage.ru_maxrss;
    };
    const std::string block = everyByte(100000);
    const auto job = CupsPrinters().openRaw("Matricial", "x");
    job->write(block);
    const long before = peak();
    for (int i = 0; i < 400; ++i) job->write(block);
    EXPECT_LT(peak() - before, 4000);
  });
}

TEST(RawJobs, TheMachinesDefaultQueue) {
  const PrintServer server(queueAt("Laser", "file:///dev/null") +
                           "<DefaultPrinter Matricial>\nDeviceURI file:///dev/null\nState Idle\nAccepting Yes\n"
                           "Shared No\n</Printer>\n");
  server.serve([] { EXPECT_EQ(CupsPrinters().defaultPrinter(), "Matricial"); });
}

TEST(RawJobs, AMachineMayHaveNoDefaultQueue) {
  const PrintServer server(queueAt("Laser", "file:///dev/null"));
  server.serve([] { EXPECT_EQ(CupsPrinters().defaultPrinter(), ""); });
  const PastaTemporaria folder;
  PrintServer::serve(folder.arquivo("nada.sock"), [] { EXPECT_EQ(CupsPrinters().defaultPrinter(), ""); });
}

}  // namespace
}  // namespace fenvale
