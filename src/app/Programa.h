#pragma once
// The one object that holds the program together: the platform that was handed in, and the program-wide objects, each
// made when it is first asked for.

#include <memory>
#include <string>

#include "shell/services/Contexto.h"

namespace fenvale {

class LockWait;

/// What the program stands on. All but the path outlive the program.
struct Plataforma {
  std::string sCaminhoAplicacao;  ///< without a separator at its end
  UiHost& host;
  const Clock& relogio;
  Process& processo;
  Mailer& correio;
  Network& rede;
  PrinterService& impressoras;
  LockWait* espera = nullptr;  ///< told while a statement waits for another program's lock
};

class Programa : public Contexto {
 public:
  /// `registrar` enters the screens; the main window is the screen "frmMDIPrincipal" among them. Without that screen
  /// what the services tell the main window goes nowhere.
  Programa(Plataforma plataforma, void (*registrar)(Telas&));
  ~Programa() override;

  const std::string& sGetCaminhoAplicacao() const override { return plataforma_.sCaminhoAplicacao; }
  UiHost& host() override { return plataforma_.host; }
  const Clock& relogio() const override { return plataforma_.relogio; }
  Process& processo() override { return plataforma_.processo; }
  Mailer& correio() override { return plataforma_.correio; }
  Network& rede() override { return plataforma_.rede; }
  PrinterService& impressoras() override { return plataforma_.impressoras; }

  DBConectar& dbConectar() override;
  DBEmpresa& dbEmpresa() override;
  Empresas& empresas() override;
  Permissoes& permissoes() override;
  TratadorExcessoes& tratadorExcessoes() override;
  ConfiguracoesPrograma& configuracoes() override;
  QuadroGeralContas& quadroGeralContas() override;
  JanelaPrincipal& janelaPrincipal() override;
  Telas& telas() override;

 private:
  template <typename T, typename... Argumentos>
  T& criado(std::unique_ptr<T>& objeto, Argumentos&&... argumentos);

  Plataforma plataforma_;
  // What stands below is dropped first: the screens, then the services, the stores last.
  std::unique_ptr<DBConectar> dbConectar_;
  std::unique_ptr<DBEmpresa> dbEmpresa_;
  std::unique_ptr<ConfiguracoesPrograma> configuracoes_;
  std::unique_ptr<QuadroGeralContas> quadroGeralContas_;
  std::unique_ptr<TratadorExcessoes> tratadorExcessoes_;
  std::unique_ptr<Empresas> empresas_;
  std::unique_ptr<Permissoes> permissoes_;
  std::unique_ptr<JanelaPrincipal> janelaAusente_;
  std::unique_ptr<Telas> telas_;
};

}  // namespace fenvale
