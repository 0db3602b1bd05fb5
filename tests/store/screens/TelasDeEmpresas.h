#pragma once
// The screens of the companies, as a clerk uses them: what their tests share.

#include <gtest/gtest.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/Registro.h"
#include "platform/sql/Store.h"
#include "shell/services/Telas.h"
#include "store/screens/frmLocalizarArquivo.h"
#include "store/services/DBConectar.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {

class TelasDeEmpresas : public testing::Test {
 protected:
  void SetUp() override { programa.abrirPrograma(); }

  template <typename T>
  std::optional<int> abrir(const char* nome, const std::function<void(T&)>& agir) {
    host.expectScreen(nome, [this, agir](Screen& tela) {
      agir(dynamic_cast<T&>(tela));
      host.verify();
      if (tela.state() == Screen::State::loaded) tela.userKey(Key::escape);
    });
    const auto codigo = programa.codigoDeSaida([this, nome] { host.showModal(programa.telas().obter(nome)); });
    host.verify();
    return codigo;
  }
  /// The file finder comes up and this file of that folder is picked; `depois` is done once it is.
  void esperarArquivo(const std::string& pasta, const std::string& arquivo, const std::string& padrao = "*.MDB",
                      const std::function<void()>& depois = {}) {
    host.expectScreen("frmLocalizarArquivo", [pasta, arquivo, padrao, depois](Screen& aberta) {
      auto& tela = dynamic_cast<frmLocalizarArquivo&>(aberta);
      EXPECT_EQ(padrao, tela.flstListaArquivos.pattern());
      tela.drvArvoreDiretorios.userChoose(pasta);
      tela.userKey(Key::f6);
      for (std::size_t i = 0; i < tela.lstLista.items().size(); ++i)
        if (tela.lstLista.item(i)->text() == pasta + "/" + arquivo) {
          tela.lstLista.userClickRow(i);
          if (depois) depois();
          return;
        }
      FAIL() << arquivo << " was not found";
    });
  }
  void esperarNenhumArquivo() {
    host.expectScreen("frmLocalizarArquivo", [](Screen& tela) { tela.userKey(Key::escape); });
  }
  void referencia(const std::string& nome, const std::string& pasta) {
    programa.executarPrograma("INSERT INTO Empresas (sNomeArquivo, sCaminho) VALUES ('" + nome + "', '" + pasta + "')");
  }
  auto referencias() { return programa.linhasPrograma("SELECT sNomeArquivo, sCaminho FROM Empresas ORDER BY lCodigo"); }
  std::string pasta() { return programa.pasta().caminho() + "/"; }
  static std::vector<std::string> linhas(const ListView& lista) {
    std::vector<std::string> textos;
    for (const auto& item : lista.items())
      textos.push_back(item->text() + " " + item->subItem(1) + " " + item->subItem(2));
    return textos;
  }

  ProgramaDeTeste programa{vRegistrarTelas};
  TestHost& host = programa.hostDeTeste();
};

}  // namespace fenvale
