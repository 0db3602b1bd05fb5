// fenvale-sql: statements for a store, for its owner.

#include <unistd.h>

#include <iostream>

#include "platform/base/Error.h"
#include "platform/os/System.h"
#include "sql/Console.h"

namespace {

using namespace fenvale;
using namespace fenvale::console;

constexpr int allRan = 0;
constexpr int someRefused = 1;
constexpr int wrongUse = 2;

class ChosenDay final : public Clock {
 public:
  ChosenDay(const Clock& machine, std::optional<Date> day) : machine_(machine), day_(day) {}
  Date today() const override { return day_ ? *day_ : machine_.today(); }
  DateTime now() const override { return day_ ? DateTime(*day_) : machine_.now(); }

 private:
  const Clock& machine_;
  std::optional<Date> day_;
};

/// Nobody sits at a console to give a wait up: it ends by itself.
class Patience final : public LockWait {
 public:
  bool keepWaiting(std::chrono::milliseconds waited) override { return waited < std::chrono::seconds(10); }
};

}  // namespace

int main(int count, char** arguments) {
  const auto options = readOptions({arguments + 1, arguments + count});
  if (!options) {
    std::cerr << usage;
    return wrongUse;
  }
  std::ios::sync_with_stdio(false);
  const SystemClock machine;
  const ChosenDay clock(machine, options->today);
  Patience patience;
  Connection store({clock, &patience});
  try {
    prepareStore(*options, store);
  } catch (const Error& failure) {
    std::cerr << failure.description << '\n';
    return wrongUse;
  }
  const Format usual = isatty(STDOUT_FILENO) != 0 ? Format::table : Format::tsv;
  const auto output = makeOutput(options->format.value_or(usual), std::cout, std::cerr);
  return runStatements(std::cin, store, *output) ? allRan : someRefused;
}
