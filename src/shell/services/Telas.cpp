#include "shell/services/Telas.h"

#include "platform/ui/Screen.h"

namespace fenvale {

Telas::Telas(Contexto& contexto) : contexto_(contexto) {}
Telas::~Telas() = default;

void Telas::registrar(std::string sNome, Fabrica fabrica) {
  entradas_.insert_or_assign(std::move(sNome), Entrada{std::move(fabrica), nullptr});
}

bool Telas::bExiste(std::string_view sNome) const { return entradas_.find(sNome) != entradas_.end(); }

std::vector<std::string> Telas::nomes() const {
  std::vector<std::string> lista;
  for (const auto& [sNome, entrada] : entradas_) lista.push_back(sNome);
  return lista;
}

Screen& Telas::obter(std::string_view sNome) {
  const auto encontrada = entradas_.find(sNome);
  if (encontrada == entradas_.end()) throw Error(errors::objectNotSet, "A tela " + std::string(sNome) + " não existe.");
  Entrada& entrada = encontrada->second;
  if (!entrada.tela || entrada.tela->state() == Screen::State::unloaded) entrada.tela = entrada.fabrica(contexto_);
  return *entrada.tela;
}

void Telas::descartar(std::string_view sNome) {
  const auto encontrada = entradas_.find(sNome);
  if (encontrada == entradas_.end()) return;
  std::unique_ptr<Screen>& tela = encontrada->second.tela;
  // One that is open below, as when its own lookup led here, is still in use.
  if (tela && tela->state() != Screen::State::loaded) tela.reset();
}

}  // namespace fenvale
