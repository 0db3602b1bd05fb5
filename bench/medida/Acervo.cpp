#include "medida/Acervo.h"

#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <iterator>

#include "gerador/Empresa.h"
#include "medida/Medida.h"

namespace fenvale::bancada {
namespace {

namespace fs = std::filesystem;

/// To be raised whenever the generator makes other rows than before.
constexpr int edicaoDoGerador = 1;

std::string sConteudo(const fs::path& arquivo) {
  std::ifstream entrada(arquivo, std::ios::binary);
  return {std::istreambuf_iterator<char>(entrada), {}};
}

fs::path pastaDoPrograma() { return fs::read_symlink("/proc/self/exe").parent_path(); }

}  // namespace

std::string sEmpresaGerada(const Volume& volume, std::optional<std::uint32_t> vencidos) {
  const std::string sDados = std::string(FENVALE_SOURCE_DIR) + "/data";
  const std::size_t script = std::hash<std::string>()(sConteudo(sDados + "/SQLEmpresas.xmlSQL"));
  const fs::path pasta = pastaDoPrograma() / "dados";
  const fs::path arquivo = pasta / ("empresa-" + std::to_string(volume.titulos) + "-" +
                                    (vencidos ? std::to_string(*vencidos) + "-vencidos-" : std::string()) +
                                    std::to_string(edicaoDoGerador) + "-" + std::to_string(script) + ".MDB");
  if (fs::exists(arquivo)) return arquivo;
  fs::create_directories(pasta);
  const fs::path emObras = arquivo.string() + "." + std::to_string(getpid());
  const auto inicio = std::chrono::steady_clock::now();
  gerarEmpresa({emObras, sDados, volume, RelogioFixo().today(), 1, vencidos});
  fs::rename(emObras, arquivo);
  const std::chrono::duration<double> tempo = std::chrono::steady_clock::now() - inicio;
  std::cerr << "Empresa de " << volume.titulos << " títulos gerada em " << sNumero(tempo.count()) << " s\n";
  return arquivo;
}

}  // namespace fenvale::bancada
