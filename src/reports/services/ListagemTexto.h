#pragma once
// A list as a grid of characters drawn with "+", "-" and "|", one record on one or several lines. The texts are
// Windows-1252 from the start, so a character is a byte, and the bytes leave block by block: a listing of any length
// needs no more memory than a short one.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace fenvale {

class ColunasImpressaoList;
class OpcoesImpressaoList;

class ListagemTexto {
 public:
  /// Where the bytes go.
  using Saida = std::function<void(std::string_view)>;

  /// `colunas` were measured for these options. All three are used as long as the object lives.
  ListagemTexto(const OpcoesImpressaoList& opcoes, const ColunasImpressaoList& colunas, Saida saida);

  /// The whole printout. Error 6 when a column or a line is wider than the line has room for; what the output throws
  /// goes on to the caller.
  void vImprimir();
  /// The step that runs, or in which it failed.
  const char* sGetProcedimento() const { return sProcedimento_; }

  // The steps, in their order.
  void vIniciarImpressao();
  void vMontarCabecalho();
  void vImprimirList_0();
  void vImprimirList_1();
  void vTerminarImpressao();
  /// Hands on what is still waiting for its block to be full.
  void vDescarregar();

  // The tools. Sizes below 0 count as 0.
  /// The text cut or padded to `iTamanho` characters, and a bar or a blank behind it.
  static std::string sGetString(std::string_view s, std::int64_t iTamanho, char preenchimento, bool bBarra);
  /// A rule of `iTamanho` characters that ends in "+", and starts with it when `bInicio`.
  static std::string sCriarLinha(char sCaractere, std::int64_t iTamanho, bool bInicio);
  /// The text behind half of the blanks that `iTamanho` leaves, and one more.
  static std::string sCentralizarString(std::string_view s, std::int64_t iTamanho);
  /// Prints a line of exactly `iTamanho` characters: "\" becomes "-", the last character becomes `sFim`, and what is
  /// missing goes before it. An empty text prints nothing.
  void vImprimirLinha(std::string s, std::int64_t iTamanho, char sFim);

 private:
  /// The text of the 0-based column of a heading or of a record.
  using Celula = std::function<std::string(std::size_t)>;

  void vMontarCabecalho_0();
  void vMontarCabecalho_1();
  void vMontarLinhas_0(const Celula& celula, bool bRegistro);
  /// How many lines it took.
  std::int16_t iMontarLinhas_1(const Celula& celula);
  /// `montar` prints the lines of one record; with `bRegua` a rule follows each but the last.
  template <typename Montar>
  void vImprimirRegistros(bool bRegua, Montar montar);
  void vImprimirRegua();
  void vMedirColunas();
  void vEscrever(std::string_view bytes);
  template <typename Acao>
  void vPasso(const char* sNome, Acao acao);

  const OpcoesImpressaoList& opcoes_;
  const ColunasImpressaoList& colunas_;
  Saida saida_;
  std::int64_t iColunas_;
  std::vector<std::string> cabecalhos_;
  std::vector<std::int64_t> larguras_;  ///< in characters, of the columns by the list's widths; 0 is hidden
  std::int16_t iLinhasCabecalho_ = 0;
  std::string sBloco_;
  const char* sProcedimento_ = "vContruirArquivoImpressao";
};

/// Measures the columns and prints: the same bytes as a listing in a file has.
void vGerarListagem(const OpcoesImpressaoList& opcoes, ListagemTexto::Saida saida);

}  // namespace fenvale
