#include "reports/services/ListagemTexto.h"

#include <algorithm>
#include <utility>

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/ui/ListView.h"
#include "reports/services/ColunasImpressaoList.h"
#include "reports/services/OpcoesImpressaoList.h"

namespace fenvale {
namespace {

constexpr double twipsPorCaractere = 107.5;
/// Lines of this width are for matrix printers in condensed mode, which these two characters begin and end.
constexpr std::int64_t iColunasCondensado = 130;
constexpr std::string_view inicioCondensado = "\x0F";
constexpr std::string_view fimCondensado = "\x12";
constexpr std::size_t tamanhoBloco = 65536;

std::string sLinhaVazia() { return "|"; }

[[noreturn]] void vSemEspaco(const std::string& sQue, std::int64_t iTamanho) {
  throw Error(errors::overflow,
              sQue + " da listagem não cabe em uma linha de " + std::to_string(iTamanho) + " caracteres.");
}

}  // namespace

ListagemTexto::ListagemTexto(const OpcoesImpressaoList& opcoes, const ColunasImpressaoList& colunas, Saida saida)
    : opcoes_(opcoes), colunas_(colunas), saida_(std::move(saida)), iColunas_(opcoes.iGetColunas()) {
  for (const ListColumn& coluna : opcoes_.lstGetList().columns()) cabecalhos_.push_back(toWindows1252(coluna.heading));
}

/// A step that fails leaves its name behind.
template <typename Acao>
void ListagemTexto::vPasso(const char* sNome, Acao acao) {
  const char* const sAnterior = std::exchange(sProcedimento_, sNome);
  acao();
  sProcedimento_ = sAnterior;
}

void ListagemTexto::vImprimir() {
  const bool bPelaLista = opcoes_.iGetOpcaoDimensionamento() != 0;
  vIniciarImpressao();
  vMontarCabecalho();
  if (bPelaLista)
    vImprimirList_1();
  else
    vImprimirList_0();
  vImprimirRegua();
  vTerminarImpressao();
  vDescarregar();
}

void ListagemTexto::vIniciarImpressao() {
  vPasso("vIniciarImpressao", [this] {
    if (iColunas_ == iColunasCondensado) vEscrever(inicioCondensado);
  });
}

void ListagemTexto::vTerminarImpressao() {
  vPasso("vTerminarImpressao", [this] {
    if (iColunas_ == iColunasCondensado) vEscrever(fimCondensado);
  });
}

void ListagemTexto::vMontarCabecalho() {
  vPasso("vMontarCabecalho", [this] {
    vImprimirRegua();
    const std::string sTitulo = sCentralizarString(toWindows1252(opcoes_.sGetTitulo()), iColunas_ - 2);
    vImprimirLinha(sLinhaVazia() + sGetString(sTitulo, iColunas_ - 2, ' ', false), iColunas_, '|');
    vImprimirRegua();
    if (opcoes_.iGetOpcaoDimensionamento() != 0)
      vMontarCabecalho_1();
    else
      vMontarCabecalho_0();
    vImprimirRegua();
  });
}

void ListagemTexto::vMontarCabecalho_0() {
  vPasso("vMontarCabecalho_0",
         [this] { vMontarLinhas_0([this](std::size_t coluna) { return cabecalhos_[coluna]; }, false); });
}

void ListagemTexto::vMontarCabecalho_1() {
  vPasso("vMontarCabecalho_1", [this] {
    vMedirColunas();
    iLinhasCabecalho_ = iMontarLinhas_1([this](std::size_t coluna) { return cabecalhos_[coluna]; });
  });
}

void ListagemTexto::vMedirColunas() {
  larguras_.clear();
  for (const ListColumn& coluna : opcoes_.lstGetList().columns())
    larguras_.push_back(roundToInt16(static_cast<double>(coluna.width) / twipsPorCaractere));
}

void ListagemTexto::vImprimirList_0() {
  vPasso("vImprimirList_0", [this] {
    const bool bRegua = static_cast<std::int64_t>(cabecalhos_.size()) - 1 > colunas_.iGetNumColLinha();
    vImprimirRegistros(bRegua, [this](const Celula& celula) { vMontarLinhas_0(celula, true); });
  });
}

void ListagemTexto::vImprimirList_1() {
  vPasso("vImprimirList_1", [this] {
    vImprimirRegistros(iLinhasCabecalho_ != 1, [this](const Celula& celula) { iMontarLinhas_1(celula); });
  });
}

template <typename Montar>
void ListagemTexto::vImprimirRegistros(bool bRegua, Montar montar) {
  const auto& itens = opcoes_.lstGetList().items();
  for (std::size_t linha = 0; linha < itens.size(); ++linha) {
    const ListItem& item = *itens[linha];
    montar([&item](std::size_t coluna) { return toWindows1252(coluna == 0 ? item.text() : item.subItem(coluna)); });
    if (bRegua && linha + 1 < itens.size()) vImprimirRegua();
  }
}

void ListagemTexto::vMontarLinhas_0(const Celula& celula, bool bRegistro) {
  const std::size_t ultima = cabecalhos_.size() - 1;
  const std::size_t porLinha = static_cast<std::size_t>(colunas_.iGetNumColLinha());
  const auto iTamanho = [&](std::size_t coluna, std::size_t posicao, std::size_t usados) -> std::int64_t {
    if (coluna == ultima && cabecalhos_.size() % porLinha != 0)
      return iColunas_ - static_cast<std::int64_t>(usados) - 1;
    // A record's first column is an ordinary one even where it is the only one of its line.
    const bool bFimDaLinha = posicao + 1 == porLinha && !(bRegistro && coluna == 0);
    return bFimDaLinha || coluna == ultima ? colunas_.iGetUltimaColuna() : colunas_.iGetTamanhoPadrao();
  };
  std::string sLinha = sLinhaVazia();
  std::size_t posicao = 0;
  for (std::size_t coluna = 0; coluna <= ultima; ++coluna) {
    sLinha += sGetString(celula(coluna), iTamanho(coluna, posicao, sLinha.size()), ' ', true);
    if (++posicao < porLinha && coluna < ultima) continue;
    vImprimirLinha(std::exchange(sLinha, sLinhaVazia()), iColunas_, '|');
    posicao = 0;
  }
}

std::int16_t ListagemTexto::iMontarLinhas_1(const Celula& celula) {
  std::string sLinha = sLinhaVazia();
  std::int64_t iLinhas = 0;
  const auto vFecharLinha = [&] {
    vImprimirLinha(std::exchange(sLinha, sLinhaVazia()), iColunas_, '|');
    ++iLinhas;
  };
  const auto bCheia = [&](std::size_t mais) { return static_cast<std::int64_t>(sLinha.size() + mais) >= iColunas_; };
  const std::size_t colunas = larguras_.size();
  for (std::size_t coluna = 0; coluna < colunas; ++coluna) {
    if (larguras_[coluna] > 0) {
      const std::string sCelula = sGetString(celula(coluna), larguras_[coluna], ' ', true);
      if (bCheia(sCelula.size())) {
        vFecharLinha();
        // On an empty line it has all the room there is: no further line would take it.
        if (bCheia(sCelula.size())) vSemEspaco("A coluna \"" + fromWindows1252(cabecalhos_[coluna]) + "\"", iColunas_);
      }
      sLinha += sCelula;
    }
    if (coluna + 1 == colunas || bCheia(cabecalhos_[coluna + 1].size())) vFecharLinha();
  }
  return toInt16(iLinhas);
}

void ListagemTexto::vImprimirRegua() { vImprimirLinha(sCriarLinha('-', iColunas_, true), iColunas_, '+'); }

std::string ListagemTexto::sGetString(std::string_view s, std::int64_t iTamanho, char preenchimento, bool bBarra) {
  const auto tamanho = static_cast<std::size_t>(std::max<std::int64_t>(iTamanho, 0));
  std::string sTexto;
  sTexto.reserve(tamanho + 1);
  sTexto = s.substr(0, tamanho);
  sTexto.resize(tamanho, preenchimento);
  sTexto += bBarra ? '|' : ' ';
  return sTexto;
}

std::string ListagemTexto::sCriarLinha(char sCaractere, std::int64_t iTamanho, bool bInicio) {
  std::string sLinha(bInicio ? "+" : "");
  sLinha.resize(std::max(sLinha.size(), static_cast<std::size_t>(std::max<std::int64_t>(iTamanho - 1, 0))), sCaractere);
  return sLinha + "+";
}

std::string ListagemTexto::sCentralizarString(std::string_view s, std::int64_t iTamanho) {
  const double fMargem = static_cast<double>(iTamanho - static_cast<std::int64_t>(s.size())) / 2;
  return sGetString("", static_cast<std::int64_t>(roundHalfEven(fMargem)), ' ', false).append(s);
}

void ListagemTexto::vImprimirLinha(std::string s, std::int64_t iTamanho, char sFim) {
  if (s.empty()) return;
  vPasso("vImprimirLinha", [&] {
    std::replace(s.begin(), s.end(), '\\', '-');
    s.back() = sFim;
    const auto iFalta = iTamanho - static_cast<std::int64_t>(s.size());
    if (iFalta < 0) vSemEspaco("Uma linha", iTamanho);
    s.insert(s.size() - 1, static_cast<std::size_t>(iFalta), ' ');
    vEscrever(s.append(lineBreak));
  });
}

void ListagemTexto::vEscrever(std::string_view bytes) {
  sBloco_ += bytes;
  if (sBloco_.size() >= tamanhoBloco) vDescarregar();
}

void ListagemTexto::vDescarregar() {
  if (sBloco_.empty()) return;
  saida_(sBloco_);
  sBloco_.clear();
}

void vGerarListagem(const OpcoesImpressaoList& opcoes, ListagemTexto::Saida saida) {
  ColunasImpressaoList colunas;
  colunas.vDimensionarColunas(opcoes.iGetColunas(), opcoes.lstGetList(), opcoes.iGetOpcaoDimensionamento());
  ListagemTexto(opcoes, colunas, std::move(saida)).vImprimir();
}

}  // namespace fenvale
