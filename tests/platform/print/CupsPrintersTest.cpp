#include "platform/print/cups/CupsPrinters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/print/PrintServer.h"

namespace fenvale {
namespace {

using testing::ElementsAre;

std::vector<std::string> printersOf(const std::string& server) {
  std::vector<std::string> names;
  PrintServer::serve(server, [&names] { names = CupsPrinters().printers(); });
  return names;
}

std::string queue(const std::string& name) {
  return "<Printer " + name + ">\nDeviceURI file:///dev/null\nState Idle\nAccepting Yes\nShared No\n</Printer>\n";
}

TEST(Printers, EveryQueueOfTheMachineAndTheBuiltInEntryLast) {
  const PrintServer server(queue("Recibos") + queue("Laser_do_balcao"));
  EXPECT_THAT(printersOf(server.socket()), ElementsAre("Laser_do_balcao", "Recibos", "Arquivo PDF"));
}

TEST(Printers, AMachineWithoutQueuesHasTheBuiltInEntry) {
  const PrintServer server("");
  EXPECT_THAT(printersOf(server.socket()), ElementsAre("Arquivo PDF"));
}

TEST(Printers, AMachineWithoutAPrintServerHasTheBuiltInEntry) {
  const PastaTemporaria folder;
  EXPECT_THAT(printersOf(folder.arquivo("nada.sock")), ElementsAre("Arquivo PDF"));
}

}  // namespace
}  // namespace fenvale
