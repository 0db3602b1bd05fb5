// The readers that people have open our files: they repair what departs from the format and show all pages and text.

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <memory>

#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/ui/test/TestHost.h"
#include "reports/services/PDF.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::HasSubstr;

struct Resposta {
  int codigo = -1;
  std::string sSaida;
};

/// Runs a reader; both of its outputs are the answer.
Resposta chamar(const std::string& sComando) {
  struct Fim {
    void operator()(std::FILE* cano) const { ::pclose(cano); }
  };
  std::unique_ptr<std::FILE, Fim> cano(::popen((sComando + " 2>&1").c_str(), "r"));
  Resposta resposta;
  std::string sBloco(65536, '\0');
  for (std::size_t lidos = 0; (lidos = std::fread(sBloco.data(), 1, sBloco.size(), cano.get())) > 0;)
    resposta.sSaida.append(sBloco, 0, lidos);
  const int estado = ::pclose(cano.release());
  resposta.codigo = WIFEXITED(estado) ? WEXITSTATUS(estado) : -1;
  return resposta;
}

/// A line as a person reads it: what a reader shows for a control character is not compared, nor how wide a gap is.
std::string sLegivel(const std::string& sLinha) {
  std::string sResultado;
  for (std::size_t lugar = 0; lugar < sLinha.size();) {
    const auto [codigo, bytes] = decodeUtf8(sLinha, lugar);
    const bool bVazio = codigo <= U' ' || codigo == 0xA0;
    if (bVazio && !sResultado.empty() && sResultado.back() != ' ') sResultado += ' ';
    if (!bVazio && codigo != 0xFFFD && codigo != 0x2022) sResultado += sLinha.substr(lugar, bytes);
    lugar += bytes;
  }
  return trim(sResultado);
}

/// The lines that say something, of every page.
std::vector<std::vector<std::string>> paginas(const std::string& sTexto) {
  std::vector<std::vector<std::string>> todas;
  for (std::size_t lugar = 0; lugar < sTexto.size();) {
    const std::size_t fim = std::min(sTexto.find('\f', lugar), sTexto.size());
    todas.emplace_back();
    for (const std::string& sLinha : files::lines(std::string_view(sTexto).substr(lugar, fim - lugar)))
      if (std::string sTudo = sLegivel(sLinha); !sTudo.empty()) todas.back().push_back(std::move(sTudo));
    lugar = fim + 1;
  }
  // Some break behind the last page, too, and end that line.
  if (!todas.empty() && todas.back().empty()) todas.pop_back();
  return todas;
}

/// The first line that is not as expected; empty when all are.
std::string sDiferenca(const std::string& sTexto, const std::vector<std::vector<std::string>>& esperadas) {
  const std::vector<std::vector<std::string>> vistas = paginas(sTexto);
  for (std::size_t pagina = 0; pagina < std::min(vistas.size(), esperadas.size()); ++pagina) {
    const auto [vista, esperada] =
        std::mismatch(vistas[pagina].begin(), vistas[pagina].end(), esperadas[pagina].begin(), esperadas[pagina].end());
    if (vista != vistas[pagina].end() || esperada != esperadas[pagina].end())
      return "page " + std::to_string(pagina + 1) + "\nshows    " + (vista == vistas[pagina].end() ? "" : *vista) +
             "\nexpected " + (esperada == esperadas[pagina].end() ? "" : *esperada);
  }
  return vistas.size() == esperadas.size() ? "" : std::to_string(vistas.size()) + " pages";
}

/// Dark points of a picture as pdftoppm and mutool write it in grey ("P5"), and its size.
struct Figura {
  int iLargura = 0;
  int iAltura = 0;
  std::ptrdiff_t escuros = 0;
};
Figura lerFigura(const std::string& sArquivo) {
  const std::string sBytes = files::read(sArquivo);
  Figura figura;
  int iMaior = 0;
  int iInicio = 0;
  EXPECT_EQ(std::sscanf(sBytes.c_str(), "P5 %d %d %d%n", &figura.iLargura, &figura.iAltura, &iMaior, &iInicio), 3);
  figura.escuros = std::count_if(sBytes.begin() + iInicio + 1, sBytes.end(),
                                 [](char ponto) { return static_cast<unsigned char>(ponto) < 128; });
  return figura;
}

class LeitoresDePDF : public testing::Test {
 protected:
  /// A list of 150 customers in 130 columns, as the list engine prints it: three pages.
  LeitoresDePDF() {
    const std::string sRegua = "+" + std::string(128, '-') + "+";
    std::vector<std::string> linhas{
        "\x0F" + sRegua, "|" + std::string(54, ' ') + "Cadastro de clientes (São Paulo)" + std::string(42, ' ') + "|",
        sRegua};
    for (int i = 1; i <= 150; ++i) {
      std::string sLinha = "|" + std::to_string(i) + " |Açougue [" + std::to_string(i * 37 % 100) +
                           "] São João & Cia. Ltda. #1 <50%> {a} *b* \"c\" '~' " + "(43) 3322-10" + "|1.500,00 |";
      sLinha.insert(sLinha.size() - 1, 130 - length(sLinha), ' ');
      linhas.push_back(sLinha);
    }
    linhas.push_back(sRegua);
    std::string sTexto;
    std::size_t naPagina = 0;
    esperadas.emplace_back();
    for (const std::string& sLinha : linhas) {
      sTexto += toWindows1252(sLinha) + "\r\n";
      if (naPagina++ == 60) {
        esperadas.back().push_back(std::to_string(esperadas.size()));
        esperadas.emplace_back();
        naPagina = 1;
      }
      esperadas.back().push_back(sLegivel(sLinha));
    }
    // The end of the condensed print stands on a line of its own.
    esperadas.back().push_back(std::to_string(esperadas.size()));
    pasta.gravar("lista.txt", sTexto + "\x12");
    TestHost host;
    const RelogioDeTeste relogio;
    PDF(host, relogio)
        .vGerarPDF(pasta.arquivo("lista.txt"), sArquivo, "Norvane Sistemas", "", "", "", "", "Courier", 10, 0, 13.0F,
                   11.0F);
  }

  PastaTemporaria pasta;
  std::string sArquivo = pasta.arquivo("lista.PDF");
  std::vector<std::vector<std::string>> esperadas;
};

TEST_F(LeitoresDePDF, PopplerTellsTheDocument) {
  const Resposta resposta = chamar("pdfinfo '" + sArquivo + "'");
  EXPECT_EQ(resposta.codigo, 0);
  const std::string sDito = sLegivel(resposta.sSaida);
  EXPECT_THAT(sDito, HasSubstr("Pages: 3 "));
  EXPECT_THAT(sDito, HasSubstr("Page size: 936 x 792 pts "));
  EXPECT_THAT(sDito, HasSubstr("Author: Norvane Sistemas "));
  EXPECT_THAT(sDito, HasSubstr("Producer: Gerador de PDF Norvane "));
  EXPECT_THAT(sDito, HasSubstr("PDF version: 1.2"));
}

TEST_F(LeitoresDePDF, PopplerShowsAllText) {
  const Resposta resposta = chamar("pdftotext -q -layout -enc UTF-8 '" + sArquivo + "' - 2>/dev/null");
  EXPECT_EQ(resposta.codigo, 0);
  EXPECT_EQ(sDiferenca(resposta.sSaida, esperadas), "");
}

TEST_F(LeitoresDePDF, PopplerDrawsAllPages) {
  EXPECT_EQ(chamar("pdftoppm -q -gray -r 72 '" + sArquivo + "' '" + pasta.arquivo("p") + "'").codigo, 0);
  for (int i = 1; i <= 3; ++i) {
    const Figura figura = lerFigura(pasta.arquivo("p-" + std::to_string(i) + ".pgm"));
    EXPECT_EQ(figura.iLargura, 936);
    EXPECT_EQ(figura.iAltura, 792);
    EXPECT_GT(figura.escuros, 1000) << i;
  }
  EXPECT_FALSE(pasta.existe("p-4.pgm"));
}

TEST_F(LeitoresDePDF, MupdfShowsAllText) {
  const std::string sTexto = pasta.arquivo("texto");
  EXPECT_EQ(chamar("mutool draw -q -F txt -o '" + sTexto + "' '" + sArquivo + "'").codigo, 0);
  EXPECT_EQ(sDiferenca(files::read(sTexto), esperadas), "");
}

TEST_F(LeitoresDePDF, MupdfDrawsAllPages) {
  EXPECT_EQ(chamar("mutool draw -q -c gray -r 72 -o '" + pasta.arquivo("m-%d.pgm") + "' '" + sArquivo + "'").codigo, 0);
  for (int i = 1; i <= 3; ++i)
    EXPECT_GT(lerFigura(pasta.arquivo("m-" + std::to_string(i) + ".pgm")).escuros, 1000) << i;
  EXPECT_FALSE(pasta.existe("m-4.pgm"));
}

TEST_F(LeitoresDePDF, QpdfRepairsTheFileWithWarnings) {
  constexpr int comAvisos = 3;
  const Resposta paginasDoArquivo = chamar("qpdf --no-warn --show-npages '" + sArquivo + "'");
  EXPECT_EQ(paginasDoArquivo.sSaida, "3\n");
  const std::string sReparado = pasta.arquivo("reparado.pdf");
  const Resposta reparo = chamar("qpdf '" + sArquivo + "' '" + sReparado + "'");
  EXPECT_EQ(reparo.codigo, comAvisos);
  EXPECT_THAT(reparo.sSaida, HasSubstr("xref not found"));
  EXPECT_THAT(reparo.sSaida, HasSubstr("operation succeeded with warnings"));
  EXPECT_EQ(chamar("qpdf --check '" + sReparado + "'").codigo, 0) << "the repaired file is sound";
  EXPECT_EQ(sDiferenca(chamar("pdftotext -layout -enc UTF-8 '" + sReparado + "' -").sSaida, esperadas), "");
}

}  // namespace
}  // namespace fenvale
