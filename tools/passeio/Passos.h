#pragma once
// Steps that more than one run of the tour takes.

#include <string>
#include <vector>

#include "platform/ui/UiHost.h"

namespace fenvale {
class Contexto;

namespace passeio {

class Guia;

inline constexpr auto aviso = BoxStyle::exclamation;
inline constexpr auto informacao = BoxStyle::information;
inline constexpr const char* concluida = "Operação concluída.";
inline constexpr const char* senha = "d'água";

/// The main window's caption with the tour's company open.
std::string legendaDaEmpresa(const Contexto& programa);

void entrar(Guia& guia);
void sair(Guia& guia);
/// Esc, back to the main window.
void fechar(Guia& guia);
/// F3, the word of success, and what the list then holds.
void salvar(Guia& guia, const char* retrato, const std::vector<std::string>& linhas);

/// What is looked up for a box of a screen: the search, what is typed there, and Space on the first row found.
struct Procura {
  const char* caixa;
  const char* busca;
  const char* texto;
  const char* campo = "txtNome";
  int vezes = 2;                  ///< how often Space, until the row is taken
  const char* retrato = nullptr;  ///< of the search, when it is wanted
};
/// Each box by Space, and back on the screen.
void buscar(Guia& guia, const char* tela, const std::vector<Procura>& procuras);

/// An invoice of the payment condition 1, with what is told apart on the two sides of the business.
struct Fatura {
  const char* menu;
  const char* tela;
  const char* titulos;  ///< the screen of its titles
  std::vector<Procura> procuras;
};
Fatura faturaDeCliente();
Fatura faturaDeFornecedor();
/// What is typed, and the pictures that are wanted; the titles are looked at for the sake of theirs.
struct Lancamento {
  const char* numero;
  const char* total;
  const char* entrada;
  const char* retrato = nullptr;
  const char* retratoDosTitulos = nullptr;
};
/// From the menu to the saved invoice on its screen.
void lancar(Guia& guia, const Fatura& fatura, const Lancamento& lancamento);

/// The row of the company with that number in the list, and F3.
void abrirEmpresa(Guia& guia, const std::string& caminho, int linha = 0);
/// A record of a code and a name in a small register, and the list's rows after it.
void cadastrarNome(Guia& guia, const char* entrada, const char* tela, const char* campo, const char* nome,
                   const std::vector<std::string>& linhas);

}  // namespace passeio
}  // namespace fenvale
