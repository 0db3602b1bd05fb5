#include "app/Programa.h"

#include <utility>

#include "access/services/Permissoes.h"
#include "overview/services/QuadroGeralContas.h"
#include "platform/ui/Screen.h"
#include "shell/services/JanelaPrincipal.h"
#include "shell/services/Telas.h"
#include "shell/services/TratadorExcessoes.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"

namespace fenvale {
namespace {

constexpr const char* sJanelaPrincipal = "frmMDIPrincipal";

/// Stands in where a program runs without its main window: it remembers its caption and nothing else.
class JanelaAusente final : public JanelaPrincipal {
 public:
  std::string sGetLegenda() const override { return sLegenda_; }
  void vSetLegenda(std::string sLegenda) override { sLegenda_ = std::move(sLegenda); }
  void vSetDireitoMenu(std::string_view, bool) override {}
  void vSetDireitoBotao(int, bool) override {}
  void vHabilitar(bool) override {}
  void vSetFiguraFundo(std::string) override {}
  void vAtualizarBarraEstado() override {}

 private:
  std::string sLegenda_;
};

}  // namespace

Programa::Programa(Plataforma plataforma, void (*registrar)(Telas&))
    : plataforma_(std::move(plataforma)), telas_(std::make_unique<Telas>(*this)) {
  if (registrar != nullptr) registrar(*telas_);
}

Programa::~Programa() = default;

template <typename T, typename... Argumentos>
T& Programa::criado(std::unique_ptr<T>& objeto, Argumentos&&... argumentos) {
  if (!objeto) objeto = std::make_unique<T>(std::forward<Argumentos>(argumentos)...);
  return *objeto;
}

DBConectar& Programa::dbConectar() {
  return criado(dbConectar_, *this, StoreEnvironment{plataforma_.relogio, plataforma_.espera});
}

DBEmpresa& Programa::dbEmpresa() {
  return criado(dbEmpresa_, *this, StoreEnvironment{plataforma_.relogio, plataforma_.espera});
}

Empresas& Programa::empresas() { return criado(empresas_, *this); }
Permissoes& Programa::permissoes() { return criado(permissoes_, *this); }
TratadorExcessoes& Programa::tratadorExcessoes() { return criado(tratadorExcessoes_, *this); }
ConfiguracoesPrograma& Programa::configuracoes() { return criado(configuracoes_); }

QuadroGeralContas& Programa::quadroGeralContas() { return criado(quadroGeralContas_, *this); }

JanelaPrincipal& Programa::janelaPrincipal() {
  if (telas_->bExiste(sJanelaPrincipal)) return telas_->obter<JanelaPrincipal>(sJanelaPrincipal);
  if (!janelaAusente_) janelaAusente_ = std::make_unique<JanelaAusente>();
  return *janelaAusente_;
}

Telas& Programa::telas() { return *telas_; }

}  // namespace fenvale
