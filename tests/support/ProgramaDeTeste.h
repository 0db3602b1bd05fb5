#pragma once
// A whole program in a temporary folder of its own, operated by a TestHost, on a day that stands still.
//
//   ProgramaDeTeste programa(vRegistrarTelas);
//   programa.abrirEmpresa();
//   programa.executar("INSERT INTO Categorias (btCodigoInf, sNome) VALUES (1, 'Atacado')");
//   EXPECT_THAT(programa.linhas("SELECT sNome FROM Categorias"), ElementsAre(ElementsAre("Atacado")));

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "app/Programa.h"
#include "platform/ui/Screen.h"
#include "platform/ui/test/TestHost.h"
#include "shell/services/JanelaPrincipal.h"
#include "support/PlataformaDeTeste.h"

namespace fenvale {

class Connection;

/// A folder of its own below the machine's place for temporary files, gone with the object.
class PastaTemporaria {
 public:
  PastaTemporaria();
  ~PastaTemporaria();
  PastaTemporaria(const PastaTemporaria&) = delete;
  PastaTemporaria& operator=(const PastaTemporaria&) = delete;
  const std::string& caminho() const { return caminho_; }
  std::string arquivo(const std::string& nome) const { return caminho_ + "/" + nome; }
  void gravar(const std::string& nome, const std::string& bytes) const;
  /// All bytes; an empty text when the file is not there.
  std::string ler(const std::string& nome) const;
  bool existe(const std::string& nome) const;
  /// The names in a folder, sorted.
  std::vector<std::string> nomes(const std::string& subpasta = {}) const;

 private:
  std::string caminho_;
};

/// A main window that remembers what the services told it.
class JanelaDeTeste final : public Screen, public JanelaPrincipal {
 public:
  explicit JanelaDeTeste(Contexto& contexto) : Screen(contexto.host(), "frmMDIPrincipal", ScreenStyle::mainWindow) {}
  std::string sGetLegenda() const override { return caption(); }
  void vSetLegenda(std::string sLegenda) override {
    legendas.push_back(sLegenda);
    setCaption(std::move(sLegenda));
  }
  void vSetDireitoMenu(std::string_view sEntrada, bool bDireito) override {
    ordemMenu.emplace_back(sEntrada);
    menu.insert_or_assign(std::string(sEntrada), bDireito);
  }
  void vSetDireitoBotao(int iLugar, bool bDireito) override { botoes[iLugar] = bDireito; }
  void vHabilitar(bool bHabilitar) override { setEnabled(bHabilitar); }
  void vSetFiguraFundo(std::string sCaminho) override { setBackground(std::move(sCaminho)); }
  void vAtualizarBarraEstado() override { ++barrasAtualizadas; }

  std::vector<std::string> legendas;
  std::vector<std::string> ordemMenu;
  std::map<std::string, bool> menu;
  std::map<int, bool> botoes;
  int barrasAtualizadas = 0;
};

/// What the program stands on in a test; made before it and gone after it.
struct AmbienteDeTeste {
  PastaTemporaria pastaDoPrograma;
  TestHost hostDoTeste;
  RelogioDeTeste relogioDoTeste;
  ProcessoDeTeste processoDoTeste;
  CorreioDeTeste correioDoTeste;
  RedeDeTeste redeDoTeste;
  ImpressorasDeTeste impressorasDoTeste;
};

class ProgramaDeTeste final : private AmbienteDeTeste, public Programa {
 public:
  /// With the update scripts and two small seed files in its folder; no store is there yet. Without `registrar`, or
  /// when it enters no main window, that is a JanelaDeTeste.
  explicit ProgramaDeTeste(void (*registrar)(Telas&) = nullptr);

  TestHost& hostDeTeste() { return hostDoTeste; }
  RelogioDeTeste& relogioDeTeste() { return relogioDoTeste; }
  ProcessoDeTeste& processoDeTeste() { return processoDoTeste; }
  CorreioDeTeste& correioDeTeste() { return correioDoTeste; }
  RedeDeTeste& redeDeTeste() { return redeDoTeste; }
  ImpressorasDeTeste& impressorasDeTeste() { return impressorasDoTeste; }
  JanelaDeTeste& janelaDeTeste();
  const PastaTemporaria& pasta() const { return pastaDoPrograma; }

  /// The program's store, up to date, with two cities and nothing else, open.
  void abrirPrograma();
  /// A company's store, up to date, with two cities and two banks, open; the program's store too.
  void abrirEmpresa(const std::string& nome = "loja.MDB");
  /// The file of such a company in the program's folder, not opened. Its whole path.
  std::string criarEmpresa(const std::string& nome);

  // On the company's store.
  void executar(const std::string& sql);
  /// The rows of a query, every field as text; NULL is an empty text.
  std::vector<std::vector<std::string>> linhas(const std::string& sql);
  /// The first field of the first row; "(nenhuma linha)" when there is none.
  std::string valor(const std::string& sql);
  // On the program's store.
  void executarPrograma(const std::string& sql);
  std::vector<std::vector<std::string>> linhasPrograma(const std::string& sql);

  /// The exit code with which `acao` ends the program; nothing when it goes on.
  static std::optional<int> codigoDeSaida(const std::function<void()>& acao);
};

}  // namespace fenvale
