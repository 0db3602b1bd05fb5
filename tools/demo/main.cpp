// fenvale-demo FOLDER: fills a folder without data with a year of business, ready to open.

#include <filesystem>
#include <iostream>

#include "demo/Demonstracao.h"
#include "platform/base/Error.h"
#include "platform/base/Format.h"
#include "platform/os/ApplicationPath.h"
#include "platform/os/Files.h"
#include "platform/os/System.h"

namespace {

using namespace fenvale;

/// A service that fails for good ends the program: what was made so far goes away with it.
class Processo final : public Process {
 public:
  explicit Processo(std::string sPasta) : sPasta_(std::move(sPasta)) {}
  [[noreturn]] void end(int) override {
    demonstracao::vDesfazer(sPasta_);
    SystemProcess().end(exitFailure);
  }

 private:
  std::string sPasta_;
};

/// Beside this program, or where a package puts them.
std::string sPastaArquivos() {
  const ProgramPlaces lugares = systemPlaces();
  for (const std::string& sPasta : lugares.shippedFolders)
    if (files::isFile(sPasta + "/SQL.xmlSQL")) return sPasta;
  return lugares.executableFolder;
}

}  // namespace

int main(int quantos, char** argumentos) try {
  if (quantos != 2 || *argumentos[1] == '\0') {
    std::cerr << "Uso: fenvale-demo PASTA\n";
    return 2;
  }
  const std::filesystem::path pasta = std::filesystem::absolute(argumentos[1]) / "";
  const std::string sPasta = pasta.lexically_normal().parent_path().string();
  Processo processo(sPasta);
  const demonstracao::Resumo resumo =
      demonstracao::preencher({sPasta, sPastaArquivos(), SystemClock().today(), processo});
  std::cout << "Demonstração pronta em " << sPasta << ": " << resumo.lClientes << " clientes, " << resumo.lFornecedores
            << " fornecedores, " << resumo.lFaturas << " faturas, "
            << formatNumber(std::int64_t{resumo.lTitulos}, "#,##0") << " títulos.\n";
  return 0;
} catch (const fenvale::Error& falha) {
  std::cerr << "fenvale-demo: " << falha.description << "\n";
  return 1;
}
