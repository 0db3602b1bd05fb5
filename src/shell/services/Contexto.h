#pragma once
// The program-wide objects, made on first use and owned by the one Programa. Who receives a Contexto includes only the
// headers of what it asks for.

#include <string>

namespace fenvale {

class Clock;
class ConfiguracoesPrograma;
class DBConectar;
class DBEmpresa;
class Empresas;
class JanelaPrincipal;
class Mailer;
class Network;
class Permissoes;
class PrinterService;
class Process;
class QuadroGeralContas;
class Telas;
class TratadorExcessoes;
class UiHost;

class Contexto {
 public:
  virtual ~Contexto() = default;

  /// The folder of the program's files, without a separator at its end.
  virtual const std::string& sGetCaminhoAplicacao() const = 0;

  virtual UiHost& host() = 0;
  virtual const Clock& relogio() const = 0;
  virtual Process& processo() = 0;
  virtual Mailer& correio() = 0;
  virtual Network& rede() = 0;
  virtual PrinterService& impressoras() = 0;

  virtual DBConectar& dbConectar() = 0;
  virtual DBEmpresa& dbEmpresa() = 0;
  virtual Empresas& empresas() = 0;
  virtual Permissoes& permissoes() = 0;
  virtual TratadorExcessoes& tratadorExcessoes() = 0;
  virtual ConfiguracoesPrograma& configuracoes() = 0;
  virtual QuadroGeralContas& quadroGeralContas() = 0;
  virtual JanelaPrincipal& janelaPrincipal() = 0;
  virtual Telas& telas() = 0;
};

}  // namespace fenvale
