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
/// Space on a lookup box, the name, and two clicks on the row found.
void buscar(Guia& guia, const char* caixa, const char* busca, const char* campo, const char* texto, const char* volta);
/// The row of the company with that number in the list, and F3.
void abrirEmpresa(Guia& guia, const std::string& caminho, int linha = 0);
/// A record of a code and a name in a small register, and the list's rows after it.
void cadastrarNome(Guia& guia, const char* entrada, const char* tela, const char* campo, const char* nome,
                   const std::vector<std::string>& linhas);

}  // namespace passeio
}  // namespace fenvale
