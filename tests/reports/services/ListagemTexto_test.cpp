// The grid of a printed list: byte for byte against files, and each tool with its limits.

#include "reports/services/ListagemTexto.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "reports/services/ColunasImpressaoList.h"
#include "reports/services/ListaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::StartsWith;

constexpr std::int16_t porCabecalho = 0;
constexpr std::int16_t porLista = 1;

std::string ouro(const std::string& nome) {
  return files::read(std::string(FENVALE_SOURCE_DIR) + "/tests/reports/services/ouro/" + nome + ".txt");
}

const std::vector<ListColumn> categorias{{"Código", 1000}, {"Nome", 6000}};
const ListaDeTeste::Linhas duasCategorias{{"1", "Revenda"}, {"2", "Consumidor"}};

const std::vector<ListColumn> clientes{{"Código", 800},     {"Nome", 5000},     {"lCategoria", 0},
                                       {"Categoria", 1500}, {"Telefone", 1700}, {"Limite de crédito", 1600},
                                       {"Cidade", 2500},    {"UF", 600},        {"lCidade", 0}};
const ListaDeTeste::Linhas tresClientes{
    {"1", "Açougue São João Ltda.", "7", "Atacado", "(43) 3322-1000", "1.500,00", "Londrina", "PR", "1"},
    {"2", "Bar do Élio, antigo Empório da Praça da Matriz", "8", "Varejo"},
    {"3", "Zulmira", "8", "Varejo", "", "0,00", "São Paulo", "SP", "2"}};

ListaDeTeste trintaECinco(std::size_t registros) {
  std::vector<ListColumn> colunas;
  ListaDeTeste::Linhas linhas(registros);
  for (int c = 1; c <= 35; ++c) {
    colunas.push_back({"C" + std::to_string(c), 1000});
    for (std::size_t r = 0; r < registros; ++r) linhas[r].push_back(std::to_string(r + 1) + "." + std::to_string(c));
  }
  return ListaDeTeste(std::move(colunas), linhas);
}

std::vector<std::string> linhasDe(const std::string& bytes) { return files::lines(fromWindows1252(bytes)); }

std::int32_t numeroDaFalha(const std::function<void()>& acao) {
  try {
    acao();
  } catch (const Error& falha) {
    return falha.number;
  }
  return 0;
}

TEST(Listagem, TwoColumnsByHeadingsShareTheLine) {
  EXPECT_EQ(ListaDeTeste(categorias, duasCategorias).imprimir(80, porCabecalho), ouro("cabecalho-80"));
}

TEST(Listagem, TwoColumnsByTheListsWidths) {
  EXPECT_EQ(ListaDeTeste(categorias, duasCategorias).imprimir(80, porLista), ouro("lista-80"));
}

TEST(Listagem, ByHeadingsHiddenColumnsPrintAndARecordTakesSeveralLines) {
  const ListaDeTeste lista(clientes, tresClientes);
  EXPECT_EQ(lista.imprimir(80, porCabecalho, "Clientes"), ouro("cabecalho-80-varias-linhas"));
}

TEST(Listagem, ByTheListsWidthsHiddenColumnsStayOutAndHeadingsAheadBreakTheLine) {
  const ListaDeTeste lista(clientes, tresClientes);
  EXPECT_EQ(lista.imprimir(80, porLista, "Clientes"), ouro("lista-80-varias-linhas"));
}

TEST(Listagem, LinesOf130AreWrappedInTheCharactersOfCondensedMode) {
  const ListaDeTeste lista(clientes, tresClientes);
  const std::string bytes = lista.imprimir(130, porLista, "Cadastro de clientes");
  EXPECT_EQ(bytes, ouro("lista-130"));
  EXPECT_THAT(bytes, StartsWith("\x0F+---"));
  EXPECT_TRUE(bytes.ends_with("---+\r\n\x12"));
  const std::string estreita = lista.imprimir(80, porLista);
  EXPECT_EQ(estreita.find_first_of("\x0F\x12"), std::string::npos) << "80 sends no control character";
}

TEST(Listagem, OnlyLinesOfExactly130AreCondensed) {
  const ListaDeTeste lista(categorias, duasCategorias);
  for (const std::int16_t iColunas : std::initializer_list<std::int16_t>{79, 81, 100, 129, 131, 132}) {
    const std::string bytes = lista.imprimir(iColunas, porLista);
    EXPECT_EQ(bytes.find_first_of("\x0F\x12"), std::string::npos) << iColunas;
    EXPECT_THAT(files::lines(bytes), testing::Each(testing::SizeIs(iColunas)));
  }
}

TEST(Listagem, AnyOptionButZeroMeansTheListsWidths) {
  const ListaDeTeste lista(clientes, tresClientes);
  for (const std::int16_t iOpcao : std::initializer_list<std::int16_t>{2, -1})
    EXPECT_EQ(lista.imprimir(80, iOpcao, "Clientes"), ouro("lista-80-varias-linhas"));
}

TEST(Listagem, RecordsBelowAHeadingOfNoLineAreApartToo) {
  const ListaDeTeste lista({}, {{"1"}, {"2"}});
  const std::string regua = "+" + std::string(78, '-') + "+";
  const std::string titulo = "|" + std::string(39, ' ') + "Sem" + std::string(36, ' ') + "|";
  EXPECT_THAT(linhasDe(lista.imprimir(80, porLista, "Sem")), ElementsAre(regua, titulo, regua, regua, regua, regua));
}

TEST(Listagem, ARecordOfOneColumnMoreThanTheLineHoldsHasNoRuleBehindIt) {
  const std::vector<ListColumn> tres(clientes.begin(), clientes.begin() + 3);
  const ListaDeTeste lista(tres, {{"1", "Açougue São João Ltda.", "7"},
                                  {"2", "Bar do Élio, antigo Empório da Praça da Matriz", "8"},
                                  {"3", "Zulmira", "8"}});
  EXPECT_EQ(lista.imprimir(130, porCabecalho, "Cadastro de clientes"), ouro("cabecalho-130"));
}

TEST(Listagem, ThirtyFiveColumnsTakeSeveralLinesWithARuleBetweenTheRecords) {
  const ListaDeTeste lista = trintaECinco(3);
  EXPECT_EQ(lista.imprimir(130, porCabecalho, "Trinta e cinco colunas"), ouro("cabecalho-130-35-colunas"));
  EXPECT_EQ(lista.imprimir(130, porLista, "Trinta e cinco colunas"), ouro("lista-130-35-colunas"));
}

TEST(Listagem, AListWithoutRowsPrintsItsHeadingAndTheClosingRule) {
  const ListaDeTeste lista(categorias);
  EXPECT_EQ(lista.imprimir(80, porCabecalho, "Sem registros"), ouro("cabecalho-80-vazia"));
  EXPECT_EQ(lista.imprimir(80, porLista, "Sem registros"), ouro("lista-80-vazia"));
}

TEST(Listagem, BackslashesBecomeDashesAndCharactersWithoutAPlaceQuestionMarks) {
  const ListaDeTeste lista({{"Nome\\Apelido", 2150}, {"Observação", 2150}},
                           {{"C:\\Dados\\Loja.MDB", "15\\03\\2026"}, {"Ω日本 – “aspas”", "ção"}});
  EXPECT_EQ(lista.imprimir(80, porLista, "Relação A\\B: \"Ω\" e €"), ouro("caracteres"));
}

TEST(Listagem, ATitleAsLongAsTheLineHasOneBlankBeforeIt) {
  std::string titulo;
  for (int i = 0; i < 8; ++i) titulo += "1234567890";
  EXPECT_EQ(ListaDeTeste(categorias, {{"1", "Revenda"}}).imprimir(80, porLista, titulo), ouro("titulo-inteiro"));
}

TEST(Listagem, AColumnIsHiddenWhenItPrintsZeroCharactersWideEvenIfTheListShowsIt) {
  // 53 twips are 0.49 characters. The hidden last column's heading would not fit behind the name, so the line is
  // printed before it and the column itself closes an empty one.
  const ListaDeTeste lista({{"lCodigo", 50}, {"Código", 1075}, {"Nome", 6880}, {"lCidade", 53}},
                           {{"9", "1", "Ana", "5"}, {"8", "2", "Bia", "6"}});
  EXPECT_EQ(lista.imprimir(80, porLista, "Escondidas"), ouro("lista-80-escondida-no-fim"));
}

TEST(Listagem, AWidthIsRoundedToTheNearestCharacterATieToTheEvenOne) {
  // 53.75 twips are half a character, 161.25 one and a half, 268.75 two and a half.
  const ListaDeTeste lista({{"a", 53.75F}, {"b", 161.25F}, {"c", 268.75F}, {"d", 161}, {"e", 269}},
                           {{"11111", "22222", "33333", "44444", "55555"}});
  EXPECT_EQ(linhasDe(lista.imprimir(80, porLista)).at(5), "|22|33|4|555" + std::string(67, ' ') + "|");
}

TEST(Listagem, MissingSubItemsAreEmptyAndAdditionalOnesStayOut) {
  const ListaDeTeste lista({{"A", 537.5F}, {"B", 537.5F}}, {{"1"}, {"2", "b", "c"}, {}});
  const auto linhas = linhasDe(lista.imprimir(80, porLista));
  const std::string resto(66, ' ');
  EXPECT_THAT(std::vector<std::string>(linhas.begin() + 5, linhas.begin() + 8),
              ElementsAre("|1    |     " + resto + " |", "|2    |b    " + resto + " |", "|     |     " + resto + " |"));
}

TEST(Listagem, ACellIsCutAtItsColumnInCharacters) {
  const ListaDeTeste lista({{"A", 537.5F}, {"B", 537.5F}}, {{"ÁÉÍÓÚÀÇ", "12345"}});
  EXPECT_EQ(linhasDe(lista.imprimir(80, porLista)).at(5), "|ÁÉÍÓÚ|12345" + std::string(67, ' ') + "|");
}

TEST(Listagem, TheHeadingAheadCountsItsTextWithoutABar) {
  // Behind "|" and a column of 69 stand 71 characters: 8 more leave the line at 79, 9 would fill it.
  for (const auto& [cabecalho, linhas] : {std::pair{"12345678", 1}, std::pair{"123456789", 2}}) {
    const ListaDeTeste lista({{"A", 7417.5F}, {cabecalho, 107.5F}});
    EXPECT_EQ(linhasDe(lista.imprimir(80, porLista)).size(), static_cast<std::size_t>(3 + linhas + 2)) << cabecalho;
  }
}

TEST(Listagem, AColumnThatFitsOnNoLineEndsInAFailure) {
  // 78 characters and two bars are a whole line, and a line that a column brings to its end counts as too long.
  EXPECT_EQ(numeroDaFalha([] { (void)ListaDeTeste({{"A", 78 * 107.5F}}).imprimir(80, porLista); }), errors::overflow);
  EXPECT_EQ(numeroDaFalha([] {
              (void)ListaDeTeste({{"A", 1075}, {"B", 20000}}).imprimir(80, porLista);
            }),
            errors::overflow);
  EXPECT_EQ(linhasDe(ListaDeTeste({{"A", 77 * 107.5F}}).imprimir(80, porLista)).at(3),
            "|A" + std::string(77, ' ') + "|");
  EXPECT_EQ(numeroDaFalha([] { (void)ListaDeTeste({{"A", 4e6F}}).imprimir(80, porLista); }), errors::overflow);
}

TEST(Listagem, AHeadingThatFitsOnNoLineEndsInAFailure) {
  for (const std::size_t tamanho : {77U, 78U, 200U}) {
    const ListaDeTeste lista({{std::string(tamanho, 'x'), 1000}, {"B", 1000}});
    EXPECT_EQ(numeroDaFalha([&] { (void)lista.imprimir(80, porCabecalho); }), tamanho < 78 ? 0 : errors::overflow);
  }
  EXPECT_EQ(numeroDaFalha([] {
              (void)ListaDeTeste({{"A", 1000}}).imprimir(80, porCabecalho);
            }),
            errors::overflow)
      << "a single column is as wide as the line itself";
}

TEST(Listagem, TheStepThatFailedLeavesItsName) {
  const auto passo = [](const OpcoesImpressaoList& opcoes, const ListagemTexto::Saida& saida) {
    ColunasImpressaoList colunas;
    colunas.vDimensionarColunas(opcoes.iGetColunas(), opcoes.lstGetList(), opcoes.iGetOpcaoDimensionamento());
    ListagemTexto texto(opcoes, colunas, saida);
    EXPECT_THROW(texto.vImprimir(), Error);
    return std::string(texto.sGetProcedimento());
  };
  const auto descartar = [](std::string_view) {};
  const ListaDeTeste larga({{"A", 20000}});
  EXPECT_EQ(passo(larga.opcoes(80, porLista), descartar), "vMontarCabecalho_1");
  const ListaDeTeste duas(categorias);
  EXPECT_EQ(passo(duas.opcoes(2, porLista), descartar), "vMontarCabecalho_1");
  EXPECT_EQ(passo(duas.opcoes(1, porLista), descartar), "vImprimirLinha") << "a rule has two ends at least";
  const auto falhar = [](std::string_view) { throw Error(61, "O disco está cheio."); };
  EXPECT_EQ(passo(duas.opcoes(80, porLista), falhar), "vContruirArquivoImpressao");
  const ListaDeTeste longa = trintaECinco(500);
  EXPECT_EQ(passo(longa.opcoes(130, porLista), falhar), "vImprimirLinha");
}

TEST(Listagem, TheBytesLeaveInBlocksHoweverLongTheListIs) {
  const ListaDeTeste lista = trintaECinco(2000);
  std::size_t maior = 0, total = 0;
  vGerarListagem(lista.opcoes(130, porLista), [&](std::string_view bloco) {
    maior = std::max(maior, bloco.size());
    total += bloco.size();
  });
  EXPECT_EQ(total, 132U * (4 + 3 + 2000 * 3 + 1999 + 1) + 2);
  EXPECT_LE(maior, 66000U);
}

/// Letters only, so that nothing but them tells a cell from the grid.
std::string sPalavra(std::mt19937& sorte, std::size_t maximo) {
  std::string sTexto(sorte() % (maximo + 1), 'a');
  for (char& letra : sTexto) letra = static_cast<char>('a' + sorte() % 26);
  return sTexto;
}

/// What is left of a listing without its grid.
std::string semGrade(const std::string& sTexto) { return without(sTexto, "|+- \r\n\x0F\x12"); }

TEST(Listagem, OfAnyListIsAGridThatLosesNothing) {
  std::mt19937 sorte(11);
  int iCabem = 0;
  for (int vez = 0; vez < 400; ++vez) {
    const std::int16_t iColunas = vez % 2 == 0 ? 80 : 130;
    const bool bPelaLista = vez % 4 < 2;
    std::vector<ListColumn> colunas(1 + sorte() % 40);
    std::size_t maior = 0;
    for (ListColumn& coluna : colunas) {
      coluna = {sPalavra(sorte, 20), sorte() % 4 == 0 ? 0.0F : static_cast<float>(sorte() % 5000)};
      maior = std::max(maior, coluna.heading.size());
    }
    // By the widths of the list a text is cut at its column; by the headings nothing is, up to the longest heading.
    const auto sNaGrade = [&](std::size_t coluna, const std::string& sTexto) {
      return bPelaLista ? sTexto.substr(0, static_cast<std::size_t>(std::nearbyint(colunas[coluna].width / 107.5)))
                        : sTexto;
    };
    std::string sEsperado = "titulo";
    for (std::size_t c = 0; c < colunas.size(); ++c) sEsperado += sNaGrade(c, colunas[c].heading);
    ListaDeTeste::Linhas linhas(sorte() % 5);
    for (auto& linha : linhas) {
      for (std::size_t c = 0; c < colunas.size(); ++c) {
        linha.push_back(sPalavra(sorte, bPelaLista ? 30 : maior));
        sEsperado += sNaGrade(c, linha.back());
      }
    }
    std::string sTexto;
    try {
      sTexto = ListaDeTeste(colunas, linhas).imprimir(iColunas, bPelaLista ? porLista : porCabecalho, "titulo");
    } catch (const Error& falha) {
      ASSERT_EQ(falha.number, errors::overflow);
      continue;
    }
    ++iCabem;
    EXPECT_EQ(semGrade(sTexto), sEsperado) << "seed 11, turn " << vez;
    std::vector<std::string> grade = files::lines(without(sTexto, "\x0F\x12"));
    const std::string sRegua = "+" + std::string(static_cast<std::size_t>(iColunas - 2), '-') + "+";
    for (const std::string& sLinha : grade) {
      ASSERT_EQ(sLinha.size(), static_cast<std::size_t>(iColunas)) << "seed 11, turn " << vez;
      // A line without a column has its one bar at the end.
      const bool bVazia = sLinha.find_first_not_of(' ') == sLinha.size() - 1;
      EXPECT_TRUE(sLinha == sRegua || (sLinha.back() == '|' && (sLinha.front() == '|' || bVazia))) << sLinha;
    }
    EXPECT_EQ(grade.front(), sRegua);
    EXPECT_EQ(grade.back(), sRegua);
  }
  EXPECT_GE(iCabem, 350);
}

TEST(FerramentasDaListagem, ATextIsCutOrPaddedAndClosed) {
  EXPECT_EQ(ListagemTexto::sGetString("abcdef", 4, ' ', true), "abcd|");
  EXPECT_EQ(ListagemTexto::sGetString("ab", 4, '.', true), "ab..|");
  EXPECT_EQ(ListagemTexto::sGetString("ab", 4, ' ', false), "ab   ");
  EXPECT_EQ(ListagemTexto::sGetString("ab", 0, ' ', true), "|");
  EXPECT_EQ(ListagemTexto::sGetString("ab", -3, ' ', false), " ");
}

TEST(FerramentasDaListagem, ARuleEndsInACross) {
  EXPECT_EQ(ListagemTexto::sCriarLinha('-', 6, true), "+----+");
  EXPECT_EQ(ListagemTexto::sCriarLinha('-', 6, false), "-----+");
  EXPECT_EQ(ListagemTexto::sCriarLinha('=', 2, true), "++");
  EXPECT_EQ(ListagemTexto::sCriarLinha('=', 1, false), "+");
}

TEST(FerramentasDaListagem, ATextIsCentredBehindOneBlankMoreThanItsMargin) {
  EXPECT_EQ(ListagemTexto::sCentralizarString("ab", 6), "   ab");
  EXPECT_EQ(ListagemTexto::sCentralizarString("abc", 6), "   abc") << "1.5 goes to 2";
  EXPECT_EQ(ListagemTexto::sCentralizarString("a", 6), "   a") << "2.5 goes to 2";
  EXPECT_EQ(ListagemTexto::sCentralizarString("abcdef", 6), " abcdef");
  EXPECT_EQ(ListagemTexto::sCentralizarString("abcdefgh", 6), " abcdefgh");
}

TEST(FerramentasDaListagem, ALineIsMadeToMeasureBeforeItsLastCharacter) {
  const ListaDeTeste lista(categorias);
  const OpcoesImpressaoList opcoes = lista.opcoes(80, porLista);
  const ColunasImpressaoList colunas;
  std::string bytes;
  ListagemTexto texto(opcoes, colunas, [&bytes](std::string_view bloco) { bytes += bloco; });
  texto.vImprimirLinha("|a\\b|", 8, '+');
  texto.vImprimirLinha("|", 4, '|');
  texto.vImprimirLinha("", 4, '|');
  texto.vImprimirLinha("12345678", 8, '|');
  EXPECT_EQ(numeroDaFalha([&] { texto.vImprimirLinha("123456789", 8, '|'); }), errors::overflow);
  EXPECT_EQ(bytes, "") << "a block that is not full waits";
  texto.vDescarregar();
  EXPECT_EQ(bytes, "|a-b   +\r\n   |\r\n1234567|\r\n");
}

TEST(ColunasDaListagem, TwoShortColumnsOf80LeaveOneCharacterToTheLast) {
  ColunasImpressaoList colunas;
  colunas.vDimensionarColunas(80, ListaDeTeste(categorias).lst, porCabecalho);
  EXPECT_EQ(colunas.iGetTamanhoPadrao(), 38);
  EXPECT_EQ(colunas.iGetNumColLinha(), 2);
  EXPECT_EQ(colunas.iGetUltimaColuna(), 39);
}

TEST(ColunasDaListagem, TheLongestHeadingWidensAllAndSpareCharactersAreShared) {
  ColunasImpressaoList colunas;
  colunas.vDimensionarColunas(
      80, ListaDeTeste({{"Código", 1}, {"Limite de crédito", 1}, {"A", 1}, {"B", 1}, {"C", 1}}).lst, porCabecalho);
  EXPECT_EQ(colunas.iGetNumColLinha(), 4) << "4 x 17 + 5 are 73";
  EXPECT_EQ(colunas.iGetTamanhoPadrao(), 18) << "7 are spare: one for each, 3 for the last";
  EXPECT_EQ(colunas.iGetUltimaColuna(), 21);
}

TEST(ColunasDaListagem, AHeadingIsAsLongAsItsCharacters) {
  ColunasImpressaoList colunas;
  colunas.vDimensionarColunas(80, ListaDeTeste({{"ÁÉÍÓÚáéíóúÃÕãõÇçÔ", 1}, {"A", 1}, {"B", 1}, {"C", 1}, {"D", 1}}).lst,
                              porCabecalho);
  EXPECT_EQ(colunas.iGetNumColLinha(), 4);
  EXPECT_EQ(colunas.iGetTamanhoPadrao(), 18);
}

TEST(ColunasDaListagem, ALineThatWouldBeExactlyFullTakesOneColumnLess) {
  ColunasImpressaoList colunas;
  colunas.vDimensionarColunas(130, ListaDeTeste({{"A", 1}, {"B", 1}, {"C", 1}}).lst, porCabecalho);
  EXPECT_EQ(colunas.iGetNumColLinha(), 2) << "3 x 42 + 4 are 130";
  EXPECT_EQ(colunas.iGetTamanhoPadrao(), 63);
  EXPECT_EQ(colunas.iGetUltimaColuna(), 64);
}

TEST(ColunasDaListagem, NothingIsMeasuredByTheListsWidths) {
  ColunasImpressaoList colunas;
  colunas.vDimensionarColunas(80, ListaDeTeste({{std::string(500, 'x'), 1}}).lst, porLista);
  EXPECT_EQ(colunas.iGetNumColLinha(), 0);
  EXPECT_EQ(colunas.iGetTamanhoPadrao(), 0);
}

TEST(ColunasDaListagem, AListWithoutColumnsCannotBeMeasured) {
  ColunasImpressaoList colunas;
  EXPECT_EQ(numeroDaFalha([&] { colunas.vDimensionarColunas(80, ListaDeTeste({}).lst, porCabecalho); }),
            errors::divisionByZero);
}

TEST(OpcoesDaListagem, StartAsATextOf130ByTheListsWidths) {
  const OpcoesImpressaoList opcoes;
  EXPECT_EQ(opcoes.iGetColunas(), 130);
  EXPECT_EQ(opcoes.sGetTitulo(), "");
  EXPECT_EQ(opcoes.iGetOpcaoDimensionamento(), 1);
  EXPECT_EQ(opcoes.sGetCaminhoArquivo(), "");
  EXPECT_EQ(opcoes.iGetOpcaoSaida(), 1);
  EXPECT_EQ(numeroDaFalha([&] { (void)opcoes.lstGetList(); }), errors::objectNotSet);
}

}  // namespace
}  // namespace fenvale
