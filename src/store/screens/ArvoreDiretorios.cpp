#include "store/screens/ArvoreDiretorios.h"

#include <algorithm>
#include <filesystem>
#include <vector>

#include "platform/os/Files.h"
#include "platform/ui/UiHost.h"
#include "shell/services/Contexto.h"

namespace fenvale {

std::string ArvoreDiretorios::sGetArquivo() const { return contexto_.sGetCaminhoAplicacao() + "/subDir.txt"; }

void ArvoreDiretorios::vMontarArvoreTotal(const std::string& sRaiz) {
  std::string sLinhas;
  vListarArvoreDiretorios(sRaiz, sLinhas);
  files::write(sGetArquivo(), sLinhas);
}

void ArvoreDiretorios::vListarArvoreDiretorios(const std::string& sPasta, std::string& sLinhas) {
  sLinhas += sPasta + "\r\n";
  contexto_.host().doEvents();
  std::vector<std::string> pastas;
  std::error_code falha;
  for (const auto& entrada : std::filesystem::directory_iterator(sPasta, falha)) {
    std::error_code ilegivel;
    if (entrada.is_directory(ilegivel) && !entrada.is_symlink(ilegivel)) pastas.push_back(entrada.path().string());
  }
  std::sort(pastas.begin(), pastas.end());
  for (const std::string& sAbaixo : pastas) vListarArvoreDiretorios(sAbaixo, sLinhas);
}

}  // namespace fenvale
