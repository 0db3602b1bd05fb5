// The backup of a large company, down to the disk and checked, against a plain copy of the same file.

#include <cstdlib>
#include <filesystem>

#include "medida/Acervo.h"
#include "medida/Medida.h"
#include "platform/base/Error.h"
#include "platform/sql/Store.h"

namespace fenvale::bancada {
namespace {

namespace fs = std::filesystem;

void vCopiarSemConferir(const std::string& sOrigem, const std::string& sDestino) {
  if (std::system(("cp '" + sOrigem + "' '" + sDestino + "'").c_str()) != 0)
    throw Error(errors::fileAccess, "cp could not copy the generated company.");
}

void medir(const Opcoes& opcoes, Relatorio& relatorio) {
  const std::string sOrigem = sEmpresaGerada(opcoes.bRapido ? volumePequeno : volumeGrande);
  const std::string sCopia = sOrigem + ".copia";
  const RelogioFixo relogio;
  const Comparacao comparacao = comparar(
      5,
      [&] {
        fs::remove(sCopia);
        copyStore(sOrigem, sCopia, StoreEnvironment{relogio});
      },
      [&] {
        fs::remove(sCopia);
        vCopiarSemConferir(sOrigem, sCopia);
      });
  fs::remove(sCopia);
  relatorio.vLinha("backup de uma empresa: tamanho", static_cast<double>(fs::file_size(sOrigem)) / 1e6, "MB");
  relatorio.vLinha("backup de uma empresa: copiado e conferido", comparacao.programa.count() / 1000, "s");
  relatorio.vLinha("backup de uma empresa: cp do mesmo arquivo, sem conferir", comparacao.referencia.count() / 1000,
                   "s");
}

}  // namespace
}  // namespace fenvale::bancada

int main(int quantos, char** argumentos) {
  return fenvale::bancada::executar(quantos, argumentos, fenvale::bancada::medir);
}
