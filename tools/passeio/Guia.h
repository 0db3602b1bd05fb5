#pragma once
// The person at the windows. The tour is told line by line on a thread of its own; what it does, it does as events on
// the thread of the windows, and only while the program waits for input: never in the middle of one of its own
// commands.

#include <chrono>
#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/ui/UiHost.h"

namespace fenvale {

namespace qt {
class QtHost;
}
class Screen;

namespace passeio {

/// The first difference between what the tour expects and what the program shows. It ends the tour.
struct Diferenca {
  std::string texto;
};

/// What stands before the person now.
struct Visto {
  std::string tela;     ///< name of the screen on top
  std::string legenda;  ///< its window's caption
  std::string foco;     ///< name of the control with the focus
  std::optional<MessageBox> caixa;
  std::uint64_t janela = 0;  ///< tells the window on top from any other that was there before
};

class Guia {
 public:
  /// Pictures go to `pasta`, numbered from `primeira`.
  Guia(qt::QtHost& host, std::string pasta, int primeira) : host_(host), pasta_(std::move(pasta)), numero_(primeira) {}

  // Expectations: each waits for what it names and fails when something else comes or nothing does.
  void tela(const std::string& nome);
  /// Answers by the key of the button: Enter for OK, "s" or "n".
  void caixa(BoxStyle estilo, const std::string& texto, const std::string& titulo = "Norvane Sistemas");
  void pergunta(const std::string& texto, bool sim, BoxStyle estilo = BoxStyle::question);
  /// A box whose answer ends the program with this exit code.
  void caixaFinal(BoxStyle estilo, const std::string& texto, int saida);
  void legenda(const std::string& esperada);
  /// The cells of the visible columns of every row of a list, joined by " | ".
  void linhas(const std::string& lista, const std::vector<std::string>& esperadas);
  void conteudo(const std::string& controle, const std::string& esperado);

  // Actions.
  void tecla(int tecla);
  void digitar(std::string_view texto);
  /// Goes to the control by Tab, as often as needed.
  void ir(const std::string& controle);
  /// Goes to each box by Tab and types its content over what is there.
  void preencher(std::initializer_list<std::pair<const char*, const char*>> campos);
  /// Ticks or unticks the box by Space.
  void marcar(const std::string& controle);
  /// The entry of a combo that begins so, typed.
  void escolher(const std::string& combo, std::string_view inicio);
  void clicarLinha(const std::string& lista, int linha);
  /// The same by the keyboard: Tab to the list, the arrows, and Space as often as told.
  void teclarLinha(const std::string& lista, int linha, int vezes = 1);
  /// A command of the main window by its menu, opened and walked by the keyboard.
  void menu(const std::string& entrada);
  /// The program is expected to end with this exit code at the next step.
  void espereFim(int saida) { saidaEsperada_ = saida; }
  std::optional<int> saidaEsperada() const { return saidaEsperada_; }

  void fotografar(const std::string& nome);
  /// Runs on the thread of the windows, while the program waits for input, and waits for it.
  void la(const std::function<void()>& acao);

  [[noreturn]] void falhar(const std::string& texto);
  int proximaFoto() const { return numero_; }

 private:
  Visto olhar();
  Visto esperar(const std::string& oque, const std::function<bool(const Visto&)>& chegou);
  void fazer(std::function<void()> acao);
  void responder(const MessageBox& esperada, int tecla);
  static std::string descrito(const Visto& visto);

  qt::QtHost& host_;
  std::string pasta_;
  int numero_;
  std::optional<int> saidaEsperada_;
};

}  // namespace passeio
}  // namespace fenvale
