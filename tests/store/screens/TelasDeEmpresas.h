#pragma once
// The screens of the companies, as a clerk uses them: what their tests share.

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/sql/Store.h"
#include "store/screens/frmLocalizarArquivo.h"
#include "store/services/DBConectar.h"
#include "support/Caixas.h"
#include "support/Gestos.h"
#include "support/TelasDoPrograma.h"

namespace fenvale {

class TelasDeEmpresas : public TelasDoPrograma {
 protected:
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
  /// A name and a folder for a new file are asked for, in this order; no file may be there. The name ends as "ja.MDB".
  template <typename T>
  void recusarNomeECaminho(T& t, const std::string& pastaComArquivo) {
    t.txtNomeArquivo.userType("  ");
    t.txtCaminho.userType(" ");
    salvarRecusado(host, t, aviso("Informe o nome do arquivo."), t.txtNomeArquivo);
    t.txtNomeArquivo.userType("ja");
    salvarRecusado(host, t, aviso("Informe o caminho onde será gravado o arquivo."), t.drvArvoreDiretorios);
    EXPECT_EQ("ja.MDB", t.txtNomeArquivo.text());
    t.txtCaminho.userType("/nada");
    salvarRecusado(host, t, aviso("O caminho informado \r\n\r\n/nada/\r\n\r\nnão existe."), t.drvArvoreDiretorios);
    EXPECT_EQ("/nada/", t.txtCaminho.text());
    t.txtCaminho.userType("\\nada\\");
    salvarRecusado(host, t, aviso("O caminho informado \r\n\r\n\\nada\\\r\n\r\nnão existe."), t.drvArvoreDiretorios);
    t.txtCaminho.userType(pastaComArquivo);
    salvarRecusado(host, t, aviso(pastaComArquivo + "/ja.MDB\r\n\r\nO arquivo já existe no local especificado."),
                   t.txtNomeArquivo);
  }
};

}  // namespace fenvale
