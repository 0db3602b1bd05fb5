#include "passeio/Guia.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QWidget>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <thread>

#include "platform/base/Text.h"
#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "platform/ui/Menu.h"
#include "platform/ui/Screen.h"
#include "platform/ui/qt/Probe.h"
#include "platform/ui/qt/QtHost.h"
#include "platform/ui/qt/Strings.h"

namespace fenvale::passeio {
namespace {

using namespace std::chrono_literals;

// How long the person waits for the program before giving up: for a slow machine, not for the program.
constexpr auto paciencia = 60s;

constexpr int tecladasAteOControle = 80;

std::string semMarca(std::string_view legenda) { return without(legenda, "&"); }

std::string conteudoDe(const Control& controle) {
  switch (controle.kind()) {
    case ControlKind::moneyBox:
      return static_cast<const MoneyBox&>(controle).text();
    case ControlKind::datePicker:
      return formatDate(static_cast<const DatePicker&>(controle).value());
    case ControlKind::comboBox:
      return static_cast<const ComboBox&>(controle).text();
    case ControlKind::label:
      return static_cast<const Label&>(controle).caption();
    case ControlKind::checkBox:
      return static_cast<const CheckBox&>(controle).checked() ? "sim" : "não";
    default:
      break;
  }
  const auto* texto = dynamic_cast<const TextControl*>(&controle);
  return texto == nullptr ? std::string() : texto->text();
}

std::vector<std::string> linhasDe(const ListView& lista) {
  std::vector<std::string> linhas;
  for (const auto& item : lista.items()) {
    std::string linha;
    for (std::size_t coluna = 0; coluna < lista.columns().size(); ++coluna) {
      if (lista.columns()[coluna].width <= 0) continue;
      linha += (linha.empty() ? "" : " | ") + (coluna == 0 ? item->text() : item->subItem(coluna));
    }
    linhas.push_back(std::move(linha));
  }
  return linhas;
}

std::string diferencaNaLinha(std::size_t numero, const std::string& lista, const std::string& esperada,
                             const std::string& vista) {
  return "linha " + std::to_string(numero) + " de " + lista + ": esperava \"" + esperada + "\", mas há \"" + vista +
         "\"";
}

}  // namespace

void Guia::falhar(const std::string& texto) { throw Diferenca{texto}; }

void Guia::fazer(std::function<void()> acao) {
  // While the program lets events through in the middle of a command, the person has nothing to do yet.
  const auto tentar = std::make_shared<std::function<void()>>();
  *tentar = [this, tentar, acao = std::move(acao)] {
    if (host_.letsEventsThrough()) {
      QTimer::singleShot(1, &host_, *tentar);
      return;
    }
    acao();
    *tentar = nullptr;
  };
  QMetaObject::invokeMethod(
      &host_, [tentar] { (*tentar)(); }, Qt::QueuedConnection);
}

void Guia::la(const std::function<void()>& acao) {
  // Shared: should the person lose patience, the action may still come, and must find what it reports to.
  struct Recado {
    std::mutex trava;
    std::condition_variable aviso;
    bool pronto = false;
  };
  const auto recado = std::make_shared<Recado>();
  fazer([acao, recado] {
    acao();
    const std::lock_guard guarda(recado->trava);
    recado->pronto = true;
    recado->aviso.notify_one();
  });
  std::unique_lock guarda(recado->trava);
  if (!recado->aviso.wait_for(guarda, paciencia, [&] { return recado->pronto; }))
    falhar("o programa não voltou a esperar pelo usuário");
}

Visto Guia::olhar() {
  const auto visto = std::make_shared<Visto>();
  la([this, visto] {
    const QWidget* const janela = host_.topWindow();
    if (janela == nullptr || !janela->isVisible()) return;
    visto->janela = static_cast<std::uint64_t>(janela->winId());
    if (const MessageBox* caixa = host_.openBox()) visto->caixa = *caixa;
    if (const Screen* tela = host_.activeScreen()) {
      visto->tela = tela->sGetName();
      visto->legenda = tela->caption();
      if (tela->focused() != nullptr) visto->foco = tela->focused()->name();
    }
  });
  return *visto;
}

std::string Guia::descrito(const Visto& visto) {
  if (visto.caixa) return "a caixa \"" + visto.caixa->title + "\": \"" + visto.caixa->text + "\"";
  return visto.tela.empty() ? "nenhuma janela" : "a tela " + visto.tela + " (foco em " + visto.foco + ")";
}

Visto Guia::esperar(const std::string& oque, const std::function<bool(const Visto&)>& chegou) {
  const auto limite = std::chrono::steady_clock::now() + paciencia;
  for (;;) {
    Visto visto = olhar();
    if (chegou(visto)) return visto;
    if (visto.caixa || std::chrono::steady_clock::now() > limite)
      falhar("esperava " + oque + ", mas há " + descrito(visto));
    std::this_thread::sleep_for(2ms);
  }
}

void Guia::tela(const std::string& nome) {
  esperar("a tela " + nome, [&](const Visto& visto) { return !visto.caixa && visto.tela == nome; });
}

void Guia::responder(const MessageBox& esperada, int resposta) {
  const Visto visto =
      esperar("a caixa \"" + esperada.text + "\"", [](const Visto& agora) { return agora.caixa.has_value(); });
  if (!(*visto.caixa == esperada))
    falhar("esperava a caixa \"" + esperada.title + "\": \"" + esperada.text + "\", mas há " + descrito(visto));
  fotografar("caixa");
  tecla(resposta);
  if (saidaEsperada_) return;
  const auto limite = std::chrono::steady_clock::now() + paciencia;
  while (olhar().janela == visto.janela)
    if (std::chrono::steady_clock::now() > limite) falhar("a caixa \"" + esperada.text + "\" não se fechou");
}

void Guia::caixa(BoxStyle estilo, const std::string& texto, const std::string& titulo) {
  responder({estilo, BoxButtons::ok, titulo, texto}, Qt::Key_Return);
}

void Guia::pergunta(const std::string& texto, bool sim, BoxStyle estilo) {
  responder({estilo, BoxButtons::yesNo, "Norvane Sistemas", texto}, sim ? Qt::Key_S : Qt::Key_N);
}

void Guia::caixaFinal(BoxStyle estilo, const std::string& texto, int saida) {
  esperar("a caixa \"" + texto + "\"", [](const Visto& agora) { return agora.caixa.has_value(); });
  espereFim(saida);
  caixa(estilo, texto);
}

void Guia::legenda(const std::string& esperada) {
  if (const Visto visto = olhar(); visto.legenda != esperada)
    falhar("esperava a legenda \"" + esperada + "\", mas há \"" + visto.legenda + "\"");
}

void Guia::conteudo(const std::string& controle, const std::string& esperado) {
  std::string visto;
  la([&] {
    const Screen* const tela = host_.activeScreen();
    const Control* const achado = tela == nullptr ? nullptr : tela->control(controle);
    visto = achado == nullptr ? "(não existe)" : conteudoDe(*achado);
  });
  if (visto != esperado) falhar("esperava em " + controle + " \"" + esperado + "\", mas há \"" + visto + "\"");
}

void Guia::linhas(const std::string& lista, const std::vector<std::string>& esperadas) {
  std::vector<std::string> vistas;
  la([&] {
    const auto* const achada = dynamic_cast<const ListView*>(host_.activeScreen()->control(lista));
    if (achada != nullptr) vistas = linhasDe(*achada);
  });
  for (std::size_t linha = 0; linha < std::max(vistas.size(), esperadas.size()); ++linha) {
    const std::string vista = linha < vistas.size() ? vistas[linha] : "(nenhuma)";
    const std::string esperada = linha < esperadas.size() ? esperadas[linha] : "(nenhuma)";
    if (vista != esperada) falhar(diferencaNaLinha(linha + 1, lista, esperada, vista));
  }
}

void Guia::tecla(int qual) {
  fazer([this, qual] { qt::press(host_, qual); });
}

void Guia::digitar(std::string_view texto) {
  la([this, texto = std::string(texto)] { qt::type(host_, texto); });
}

void Guia::ir(const std::string& controle) {
  for (int vez = 0; vez < tecladasAteOControle; ++vez) {
    const Visto visto = olhar();
    if (visto.caixa) falhar("esperava chegar a " + controle + ", mas há " + descrito(visto));
    if (visto.foco == controle) return;
    la([this] { qt::press(host_, Qt::Key_Tab); });
  }
  falhar("o Tab não chega a " + controle);
}

void Guia::preencher(std::initializer_list<std::pair<const char*, const char*>> campos) {
  for (const auto& [controle, texto] : campos) {
    ir(controle);
    la([this] { qt::press(host_, Qt::Key_A, Qt::ControlModifier); });
    digitar(texto);
  }
}

void Guia::marcar(const std::string& controle) {
  ir(controle);
  la([this] { qt::press(host_, Qt::Key_Space, {}, " "); });
}

void Guia::escolher(const std::string& combo, std::string_view inicio) {
  ir(combo);
  digitar(inicio);
}

void Guia::clicarLinha(const std::string& lista, int linha) {
  fazer([this, lista, linha] {
    if (Control* const achada = host_.activeScreen()->control(lista)) qt::clickRow(*achada, linha);
  });
}

void Guia::teclarLinha(const std::string& lista, int linha, int vezes) {
  ir(lista);
  la([this] { qt::press(host_, Qt::Key_Home); });
  for (int passo = 0; passo < linha; ++passo) la([this] { qt::press(host_, Qt::Key_Down); });
  for (int vez = 0; vez < vezes; ++vez) fazer([this] { qt::press(host_, Qt::Key_Space, {}, " "); });
}

void Guia::menu(const std::string& entrada) {
  // Alt and the arrows, until the entry is the one under the cursor.
  std::vector<std::string> caminho;
  la([&] {
    const auto* const barra = dynamic_cast<const Menu*>(host_.activeScreen()->control("mnuPrincipal"));
    if (barra == nullptr) return;
    const std::function<bool(const std::vector<MenuItem>&)> achar = [&](const std::vector<MenuItem>& itens) {
      for (const MenuItem& item : itens) {
        caminho.push_back(item.caption);
        if (item.name == entrada || achar(item.children)) return true;
        caminho.pop_back();
      }
      return false;
    };
    achar(barra->items());
  });
  if (caminho.empty()) falhar("o menu não tem " + entrada);
  la([this, topo = caminho.front()] {
    auto* const barra = host_.topWindow()->findChild<QMenuBar*>();
    for (QAction* acao : barra == nullptr ? QList<QAction*>() : barra->actions()) {
      if (semMarca(qt::fromQt(acao->text())) != semMarca(topo)) continue;
      barra->setActiveAction(acao);
    }
  });
  for (std::size_t nivel = 1; nivel < caminho.size(); ++nivel) {
    for (int vez = 0;; ++vez) {
      std::string atual;
      la([&] {
        const auto* const aberto = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        if (aberto != nullptr && aberto->activeAction() != nullptr) atual = qt::fromQt(aberto->activeAction()->text());
      });
      if (semMarca(atual) == semMarca(caminho[nivel])) break;
      if (vez == tecladasAteOControle) falhar("o menu não chega a " + entrada);
      la([this] { qt::press(host_, Qt::Key_Down); });
    }
    nivel + 1 == caminho.size() ? tecla(Qt::Key_Return) : la([this] { qt::press(host_, Qt::Key_Right); });
  }
}

void Guia::fotografar(const std::string& nome) {
  const std::string numero = (numero_ < 10 ? "0" : "") + std::to_string(numero_);
  ++numero_;
  bool feita = false;
  const std::string arquivo = pasta_ + "/" + numero + "-" + nome + ".png";
  la([&] { feita = qt::grab(host_, arquivo); });
  if (!feita) falhar("a figura " + arquivo + " não pôde ser gravada");
}

}  // namespace fenvale::passeio
