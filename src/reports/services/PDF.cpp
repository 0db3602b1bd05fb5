#include "reports/services/PDF.h"

#include <algorithm>

#include "platform/base/Checked.h"
#include "platform/base/Date.h"
#include "platform/base/Error.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "shell/services/Tela.h"

namespace fenvale {
namespace {

constexpr double pontosPorPolegada = 72;
constexpr std::int32_t lMargens = 72;
constexpr std::size_t tamanhoBuffer = 32000;
constexpr char avancoDePagina = '\f';

/// A value as the system's regional setting writes it.
std::string sValor(Currency valor) {
  std::string sTexto = valor.toDecimal();
  std::replace(sTexto.begin(), sTexto.end(), '.', ',');
  return sTexto;
}

std::string sReferencia(std::int32_t lObjeto) { return std::to_string(lObjeto) + " 0 R"; }
std::string sObjeto(std::int32_t lObjeto) { return std::to_string(lObjeto) + " 0 obj"; }

double dividir(double dividendo, Currency divisor) {
  if (divisor == Currency()) throw Error(errors::divisionByZero, "Divisão por zero.");
  return dividendo / divisor.toDouble();
}

/// How many characters of the part stay on its line: up to the last good place for a break in its second half.
std::size_t quebra(std::string_view sParte) {
  constexpr std::string_view sQuebras = "*&^%$#,. ;<=>[])}!\"";
  for (std::size_t iPos = sParte.size(); iPos >= std::max<std::size_t>(sParte.size() / 2, 1); --iPos)
    if (sQuebras.find(sParte[iPos - 1]) != std::string_view::npos) return iPos;
  return sParte.size();
}

}  // namespace

struct PDF::Pedido {
  const std::string& sOrigem;
  const std::string& sDestino;
  const std::string& sAutor;
  const std::string& sCriador;
  const std::string& sPalavrasChave;
  const std::string& sAssunto;
  const std::string& sTitulo;
  const std::string& sFonte;
  std::int16_t iTamanho;
  std::int16_t iRotacao;
  float sngLargura;
  float sngAltura;
};

void PDF::vGerarPDF(const std::string& sOrigem, const std::string& sDestino, const std::string& sAutor,
                    const std::string& sCriador, const std::string& sPalavrasChave, const std::string& sAssunto,
                    const std::string& sTitulo, const std::string& sFonte, std::int16_t iTamanho, std::int16_t iRotacao,
                    float sngLargura, float sngAltura) {
  const Pedido pedido{sOrigem, sDestino, sAutor,   sCriador, sPalavrasChave, sAssunto,
                      sTitulo, sFonte,   iTamanho, iRotacao, sngLargura,     sngAltura};
  if (bValidarArquivos(pedido)) vGerar(pedido);
}

bool PDF::bValidarArquivos(const Pedido& pedido) const {
  if (pedido.sOrigem.empty()) {
    Caixas(host_).avisar("Informe o arquivo de origem.");
    return false;
  }
  if (pedido.sDestino.empty()) {
    Caixas(host_).avisar("Informe o arquivo de saída.");
    return false;
  }
  return true;
}

void PDF::vGerar(const Pedido& pedido) try {
  if (!bExisteArquivo(pedido.sOrigem)) {
    Caixas(host_).avisar("Arquivo '" + pedido.sOrigem + "' não existe.");
    return;
  }
  if (bExisteArquivo(pedido.sDestino)) files::remove(pedido.sDestino);
  vConfigurar(pedido);
  vEscreverCabecalho();
  vEscreverObjetos();
  vEscreverPaginas();
  vEscreverFinal();
} catch (const Error& falha) {
  sBuffer_.clear();
  Caixas(host_).criticar(falha.description);
}

void PDF::vConfigurar(const Pedido& pedido) {
  lAltura_ = roundToInt32(double{pedido.sngAltura} * pontosPorPolegada);
  lLargura_ = roundToInt32(double{pedido.sngLargura} * pontosPorPolegada);
  sFonte_ = toWindows1252(pedido.sFonte);
  crcTamanho_ = Currency::fromInteger(pedido.iTamanho);
  crcEntrelinha_ = Currency::fromDouble(pedido.iTamanho * 1.2);
  lLinhasPagina_ = roundToInt32(dividir(static_cast<double>(lAltura_) - lMargens, crcEntrelinha_));
  const std::string sNome = toLower(pedido.sFonte);
  const double caracteresPorPonto = sNome == "courier" ? 1.5 : sNome == "arial" ? 2 : 2.2;
  lColunasLinha_ = roundToInt32(dividir(lLargura_ * caracteresPorPonto, crcTamanho_));
  iRotacao_ = pedido.iRotacao;
  lObjetos_ = 0;
  lNumeroPaginas_ = 0;
  lPosicao_ = 0;
  lRodape_ = 25;
  dblCentro_ = lLargura_ / 2.0;
  sBuffer_.clear();

  sAutor_ = toWindows1252(pedido.sAutor);
  sCriador_ = toWindows1252(pedido.sCriador);
  sPalavrasChave_ = toWindows1252(pedido.sPalavrasChave);
  sAssunto_ = toWindows1252(pedido.sAssunto);
  sTitulo_ = toWindows1252(pedido.sTitulo);
  sOrigem_ = pedido.sOrigem;
  sDestino_ = pedido.sDestino;
}

void PDF::vGravarLinha(std::string_view sLinha, bool bForcar) {
  lPosicao_ = toInt32(std::int64_t{lPosicao_} + static_cast<std::int64_t>(sLinha.size()));
  sBuffer_ += sLinha;
  sBuffer_ += '\r';
  if (sBuffer_.size() <= tamanhoBuffer && !bForcar) return;
  files::append(sDestino_, sBuffer_);
  sBuffer_.clear();
}

void PDF::vGravarLinhas(std::initializer_list<std::string_view> linhas) {
  for (const std::string_view sLinha : linhas) vGravarLinha(sLinha);
}

void PDF::vRegistrarPosicao(std::int32_t lObjeto) {
  if (lObjeto > lMaximoObjetos) {
    throw Error(errors::indexOutOfRange,
                "O texto é longo demais para um arquivo PDF, que comporta 1664 páginas. Imprima menos registros.");
  }
  aPosicoes_[static_cast<std::size_t>(lObjeto - 1)] = lPosicao_;
}

void PDF::vEscreverCabecalho() { vGravarLinhas({"%PDF-1.2", "%\xE2\xE3\xCF\xD3"}); }

void PDF::vEscreverObjetos() {
  lObjetoInfo_ = ++lObjetos_;
  vRegistrarPosicao(lObjetoInfo_);
  vGravarLinhas({sObjeto(lObjetoInfo_), "<<", "/Author (" + sAutor_ + ")",
                 "/CreationDate (D:" + formatMoment(relogio_.now(), "yyyymmddhhnnss") + ")",
                 "/Creator (" + sCriador_ + ")", "/Producer (Gerador de PDF Norvane)", "/Title (" + sTitulo_ + ")",
                 "/Subject (" + sAssunto_ + ")", "/Keywords (" + sPalavrasChave_ + ")", ">>", "endobj"});

  // These two are written last: they name all pages.
  lObjetoCatalogo_ = ++lObjetos_;
  lObjetoPaginas_ = ++lObjetos_;

  const std::int32_t lObjetoFonte = ++lObjetos_;
  lObjetoCodificacao_ = ++lObjetos_;
  vRegistrarPosicao(lObjetoFonte);
  vGravarLinhas({sObjeto(lObjetoFonte), "<<", "/Type /Font", "/Subtype /Type1", "/Name /F1",
                 "/Encoding " + sReferencia(lObjetoCodificacao_), "/BaseFont /" + sFonte_, ">>", "endobj"});
  vRegistrarPosicao(lObjetoCodificacao_);
  vGravarLinhas(
      {sObjeto(lObjetoCodificacao_), "<<", "/Type /Encoding", "/BaseEncoding /WinAnsiEncoding", ">>", "endobj"});

  lObjetoRecursos_ = ++lObjetos_;
  vRegistrarPosicao(lObjetoRecursos_);
  vGravarLinhas({sObjeto(lObjetoRecursos_), "<<", "  /Font << /F1 " + sReferencia(lObjetoFonte) + " >>",
                 "  /ProcSet [ /PDF /Text ]", ">>", "endobj"});
}

std::string PDF::sAbrirPagina() {
  const std::int32_t lPagina = ++lObjetos_;
  vRegistrarPosicao(lPagina);
  aPaginas_[static_cast<std::size_t>(lNumeroPaginas_++)] = lPagina;
  vGravarLinhas({sObjeto(lPagina), "<<", "/Type /Page", "/Parent " + sReferencia(lObjetoPaginas_),
                 "/Resources " + sReferencia(lObjetoRecursos_), "/Contents " + sReferencia(lPagina + 1),
                 "/Rotate " + std::to_string(iRotacao_), ">>", "endobj"});

  const std::int32_t lConteudo = ++lObjetos_;
  vRegistrarPosicao(lConteudo);
  vGravarLinhas({sObjeto(lConteudo), "<<", "/Length " + sReferencia(lConteudo + 1), ">>", "stream"});
  std::string sInicio = std::to_string(lPosicao_);
  vGravarLinhas({"BT", "/F1 " + sValor(crcTamanho_) + " Tf", "1 0 0 1 50 " + std::to_string(lAltura_ - 40) + " Tm",
                 sValor(crcEntrelinha_) + " TL"});
  return sInicio;
}

void PDF::vFecharPagina(std::int32_t lInicio) {
  vGravarLinha("ET");
  const std::int32_t lFim = lPosicao_;
  vGravarLinhas({"endstream", "endobj"});
  const std::int32_t lTamanho = ++lObjetos_;
  vRegistrarPosicao(lTamanho);
  vGravarLinhas({sObjeto(lTamanho), std::to_string(lFim - lInicio), "endobj"});
  lLinhaAtual_ = 0;
}

void PDF::vNumerarPagina() {
  vGravarLinhas({"1 0 0 1 " + sValor(Currency::fromDouble(dblCentro_)) + " " + std::to_string(lRodape_) + " Tm",
                 "(" + std::to_string(lNumeroPaginas_) + ") Tj", "/F1 " + sValor(crcTamanho_) + " Tf"});
}

void PDF::vMudarPagina(std::string& sInicio) {
  vNumerarPagina();
  vFecharPagina(readInt32(sInicio));
  sInicio = sAbrirPagina();
}

void PDF::vEscreverTexto(std::string_view sTexto) {
  // The line end belongs to the string, and to what is measured.
  std::string sLinha = "T* (";
  sLinha += sTexto;
  sLinha += lineBreak;
  sLinha += ") Tj";
  vGravarLinha(sLinha);
}

void PDF::vQuebrarTexto(std::string_view sTexto, std::string& sInicio) {
  const auto colunas = static_cast<std::size_t>(std::max(lColunasLinha_, 0));
  if (colunas == 0) throw Error(errors::invalidCall, "A página é estreita demais para o texto.");
  const std::size_t ultimoAvanco = sTexto.rfind(avancoDePagina);
  std::size_t lugar = 0;
  while (sTexto.size() - lugar > colunas) {
    const std::size_t parte = quebra(sTexto.substr(lugar, colunas));
    vEscreverTexto(sTexto.substr(lugar, parte));
    lugar += parte;
    ++lLinhaAtual_;
    const bool bAvanco = ultimoAvanco != std::string_view::npos && ultimoAvanco >= lugar;
    if (lLinhaAtual_ >= lLinhasPagina_ || bAvanco) vMudarPagina(sInicio);
  }
  // The rest counts once more than it takes, and begins no page.
  ++lLinhaAtual_;
  vEscreverTexto(sTexto.substr(lugar));
}

void PDF::vEscreverPaginas() {
  files::LineReader origem(sOrigem_);
  std::string sInicio = sAbrirPagina();
  lLinhaAtual_ = -1;
  for (std::string sLinha; origem.next(sLinha);) {
    ++lLinhaAtual_;
    if (lLinhaAtual_ >= lLinhasPagina_ || sLinha.find(avancoDePagina) != std::string::npos) vMudarPagina(sInicio);
    sLinha = trim(sSubstituir(sSubstituir(sLinha, "(", "\\("), ")", "\\)"));
    if (static_cast<std::int64_t>(sLinha.size()) > lColunasLinha_) {
      vQuebrarTexto(sLinha, sInicio);
    } else {
      vEscreverTexto(sLinha);
    }
  }
  vNumerarPagina();
  vFecharPagina(readInt32(sInicio));
}

void PDF::vEscreverFinal() {
  vRegistrarPosicao(lObjetoCatalogo_);
  vGravarLinhas(
      {sObjeto(lObjetoCatalogo_), "<<", "/Type /Catalog", "/Pages " + sReferencia(lObjetoPaginas_), ">>", "endobj"});
  vRegistrarPosicao(lObjetoPaginas_);
  std::string sFilhos = "/Kids [ ";
  for (std::int32_t i = 0; i < lNumeroPaginas_; ++i)
    sFilhos += sReferencia(aPaginas_[static_cast<std::size_t>(i)]) + " ";
  vGravarLinhas({sObjeto(lObjetoPaginas_), "<<", "/Type /Pages", "/Count " + std::to_string(lNumeroPaginas_),
                 "/MediaBox [ 0 0 " + std::to_string(lLargura_) + " " + std::to_string(lAltura_) + " ]", sFilhos + "]",
                 ">>", "endobj"});

  const std::string sTabela = std::to_string(lPosicao_);
  const std::string sQuantos = std::to_string(lObjetos_ + 1);
  vGravarLinhas({"0 " + sQuantos, "0000000000 65535 f "});
  for (std::int32_t i = 0; i < lObjetos_; ++i)
    vGravarLinha(formatNumber(std::int64_t{aPosicoes_[static_cast<std::size_t>(i)]}, "0000000000") + " 00000 n ");
  vGravarLinhas({"trailer", "<<", "/Size " + sQuantos, "/Root " + sReferencia(lObjetoCatalogo_),
                 "/Info " + sReferencia(lObjetoInfo_), ">>", "startxref", sTabela});
  vGravarLinha("%%EOF", true);
}

bool PDF::bExisteArquivo(const std::string& sArquivo) {
  try {
    return files::size(sArquivo) > 0;
  } catch (const Error&) {
    return false;  // what cannot be read counts as missing
  }
}

std::string PDF::sSubstituir(std::string_view sTexto, std::string_view sProcurar, std::string_view sNovo) {
  std::string sResultado;
  std::size_t lugar = 0;
  for (std::size_t achado = 0; (achado = sTexto.find(sProcurar, lugar)) != std::string_view::npos;
       lugar = achado + sProcurar.size()) {
    sResultado += sTexto.substr(lugar, achado - lugar);
    sResultado += sNovo;
  }
  sResultado += sTexto.substr(lugar);
  return sResultado;
}

}  // namespace fenvale
