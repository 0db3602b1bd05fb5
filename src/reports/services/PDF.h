#pragma once
// A text file made into a PDF file: its lines wrapped, broken into numbered pages, and written in one base font. Source
// and result are Windows-1252, and neither is ever whole in memory.
//
// The files depart from the letter of the format in ways that are this system's own and stay: positions and stream
// lengths count no line ends but those inside of a string, the word ahead of the table of positions is missing,
// fractions have a decimal comma, and a backslash of the source is not escaped. Readers repair such files as they open
// them.

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>

#include "platform/base/Currency.h"

namespace fenvale {

class Clock;
class UiHost;

class PDF {
 public:
  PDF(UiHost& host, const Clock& relogio) : host_(host), relogio_(relogio) {}
  static const char* sGetName() { return "PDF"; }

  /// The size of the page in inches; any font but "Courier" and "Arial" is taken for one of narrow characters. What is
  /// at `sDestino` is deleted first. Everything is told in boxes, failures too, and ends the run: what had been written
  /// by then stays. A file has no more than 5000 objects, three of them to a page.
  void vGerarPDF(const std::string& sOrigem, const std::string& sDestino, const std::string& sAutor,
                 const std::string& sCriador, const std::string& sPalavrasChave, const std::string& sAssunto,
                 const std::string& sTitulo, const std::string& sFonte, std::int16_t iTamanho, std::int16_t iRotacao,
                 float sngLargura, float sngAltura);

 private:
  struct Pedido;
  static constexpr std::int32_t lMaximoObjetos = 5000;

  bool bValidarArquivos(const Pedido& pedido) const;
  void vGerar(const Pedido& pedido);
  void vConfigurar(const Pedido& pedido);
  void vGravarLinha(std::string_view sLinha, bool bForcar = false);
  void vEscreverCabecalho();
  void vEscreverObjetos();
  void vEscreverPaginas();
  /// The position at which the page's stream begins.
  std::string sAbrirPagina();
  void vFecharPagina(std::int32_t lInicio);
  void vEscreverFinal();
  static bool bExisteArquivo(const std::string& sArquivo);
  static std::string sSubstituir(std::string_view sTexto, std::string_view sProcurar, std::string_view sNovo);

  void vRegistrarPosicao(std::int32_t lObjeto);
  void vGravarLinhas(std::initializer_list<std::string_view> linhas);
  void vEscreverTexto(std::string_view sTexto);
  void vQuebrarTexto(std::string_view sTexto, std::string& sInicio);
  void vNumerarPagina();
  void vMudarPagina(std::string& sInicio);

  UiHost& host_;
  const Clock& relogio_;

  std::int32_t lPosicao_ = 0;  ///< of the text of all lines so far, without what ends them
  std::int32_t lNumeroPaginas_ = 0;
  std::int32_t lLinhaAtual_ = 0;  ///< of the page; -1 before the first one
  std::int32_t lAltura_ = 0;
  std::int32_t lLargura_ = 0;
  std::array<std::int32_t, lMaximoObjetos> aPosicoes_{};  ///< by object, from 1
  std::array<std::int32_t, lMaximoObjetos> aPaginas_{};   ///< the object of each page, from 1
  std::int32_t lLinhasPagina_ = 0;
  std::int32_t lColunasLinha_ = 0;
  std::int32_t lObjetos_ = 0;  ///< the last one that was handed out
  std::int32_t lObjetoInfo_ = 0;
  std::int32_t lObjetoCatalogo_ = 0;
  std::int32_t lObjetoPaginas_ = 0;
  std::int32_t lObjetoCodificacao_ = 0;
  std::int32_t lObjetoRecursos_ = 0;
  std::string sAutor_;
  std::string sCriador_;
  std::string sPalavrasChave_;
  std::string sAssunto_;
  std::string sTitulo_;
  std::string sFonte_;
  Currency crcTamanho_;
  Currency crcEntrelinha_;
  std::int16_t iRotacao_ = 0;
  double dblCentro_ = 0;
  std::int32_t lRodape_ = 0;
  std::string sOrigem_;
  std::string sDestino_;
  std::string sBuffer_;
};

}  // namespace fenvale
