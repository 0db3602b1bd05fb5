#pragma once
// Walks a folder and all folders below it.

#include <string>

namespace fenvale {

class Contexto;

class ArvoreDiretorios {
 public:
  explicit ArvoreDiretorios(Contexto& contexto) : contexto_(contexto) {}
  static const char* sGetName() { return "ArvoreDiretorios"; }

  /// Writes the root and all folders below it to subDir.txt in the application path: one path per line, depth first,
  /// parents first. Folders that cannot be read count as empty; links to folders are not followed.
  void vMontarArvoreTotal(const std::string& sRaiz);
  /// The work file's path.
  std::string sGetArquivo() const;

 private:
  void vListarArvoreDiretorios(const std::string& sPasta, std::string& sLinhas);

  Contexto& contexto_;
};

}  // namespace fenvale
