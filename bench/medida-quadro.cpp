// The accounts overview over a million titles, 40,000 of them overdue: opening it in a real window, its rows against
// the same rows by a statement written by hand, and one step of scrolling.

#include <unistd.h>

#include <QApplication>
#include <algorithm>
#include <filesystem>

#include "Consultas.h"
#include "JanelasOcultas.h"
#include "app/Programa.h"
#include "app/Registro.h"
#include "demo/Demonstracao.h"
#include "demo/Plataforma.h"
#include "gerador/Arquivo.h"
#include "medida/Acervo.h"
#include "medida/Medida.h"
#include "overview/screens/frmMostrarContas.h"
#include "overview/services/QuadroGeralContas.h"
#include "platform/base/Error.h"
#include "platform/base/Format.h"
#include "platform/os/System.h"
#include "platform/sql/Store.h"
#include "platform/ui/qt/Probe.h"
#include "shell/services/Telas.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"

namespace fenvale::bancada {
namespace {

namespace fs = std::filesystem;

constexpr double barraAbertura = 1000;
/// Not a page but the whole list, its formats included.
constexpr double barraLinhas = 2;
/// A step that takes longer than one picture of sixty in a second is seen.
constexpr double barraPasso = 16;

using Linhas = std::vector<std::vector<std::string>>;

/// The cells of the overdue receivables in the order of their columns, asked of SQLite.
class AMao {
 public:
  explicit AMao(Arquivo& arquivo)
      : comando_(arquivo.preparar(
            "SELECT t.sCodigoInf, f.dtEmissao, t.dtVencimento, c.sNome, p.sNome, cc.sDescricao, v.sNome, f.fTotal, "
            "t.fValor, t.lNF, t.sObs, f.lNumeroFatura FROM TitulosReceber t JOIN FaturasCliente f ON f.lCodigo = "
            "t.lFaturaCliente JOIN Clientes c ON c.lCodigo = f.lCliente JOIN Portadores p ON p.lCodigo = f.lPortador "
            "JOIN Vendedores v ON v.lCodigo = f.lVendedor JOIN CentroCusto cc ON cc.lCodigo = f.lCentroCusto WHERE "
            "t.dtVencimento < ?1 AND t.fValorPago <= 0 ORDER BY t.sCodigoInf")) {}

  Linhas linhas(const std::string& sHoje) {
    Linhas linhas;
    comando_.ligar(sHoje);
    while (comando_.proximo()) linhas.push_back(linhaMostrada(comando_, "tddttttmmttt"));
    return linhas;
  }

 private:
  Comando comando_;
};

/// What the overview does with its recordset.
Linhas pelaTela(Connection& conexao, const ListaDoQuadro& lista) {
  Linhas linhas;
  Recordset rs(lista.sConsulta, conexao, CursorType::forwardOnly, LockType::readOnly);
  for (; !rs.eof(); rs.moveNext()) {
    auto& linha = linhas.emplace_back();
    linha.reserve(lista.colunas.size());
    for (const ColunaLista& coluna : lista.colunas) linha.push_back(rs.field(coluna.sCampo).toText());
  }
  return linhas;
}

/// The program in a folder of its own, with the generated company open.
class Bancada {
 public:
  Bancada(const fs::path& pasta, const std::string& sEmpresa)
      : programa({pasta, host, relogio_, processo_, correio_, rede_, impressoras_}, vRegistrarTelas) {
    programa.dbConectar().Dados().open();
    const fs::path empresa = sEmpresa;
    if (!programa.empresas().bSetEmpresa(1, empresa.filename(), empresa.parent_path().string() + "/", false))
      throw Error(errors::storeNotOpened, "A empresa gerada não pôde ser aberta.");
    programa.quadroGeralContas().vSetMotrarTodas(true);
  }

  /// Open, on the tab of the overdue receivables, painted.
  frmMostrarContas& abrir() {
    auto& quadro = programa.telas().obter<frmMostrarContas>("frmMostrarContas");
    host.show(quadro);
    quadro.lstReceberVencidas.setFocus();
    host.doEvents();
    return quadro;
  }

  qt::QtHost host{janelasOcultas()};

 private:
  RelogioFixo relogio_;
  SystemProcess processo_;
  demonstracao::Correio correio_;
  demonstracao::Rede rede_;
  demonstracao::Impressoras impressoras_;

 public:
  Programa programa;
};

void medirLinhas(Relatorio& relatorio, Bancada& bancada, const std::string& sEmpresa, std::uint32_t vencidos) {
  Arquivo arquivo(sEmpresa);
  AMao aMao(arquivo);
  const std::string sHoje = formatDate(RelogioFixo().today(), "yyyy-mm-dd");
  Connection& conexao = bancada.programa.dbEmpresa().Dados();
  const ListaDoQuadro& lista = listasDoQuadro()[3];
  // Both ways must give the same rows, or the figures say nothing.
  const Linhas linhas = pelaTela(conexao, lista);
  if (linhas.size() != vencidos || linhas != aMao.linhas(sHoje))
    throw Error(errors::invalidCall, "The two ways of reading the overdue titles differ.");
  relatorio.vLinhas("quadro: linhas de " + std::to_string(vencidos) + " títulos vencidos",
                    comparar(
                        7, [&] { pelaTela(conexao, lista); }, [&] { aMao.linhas(sHoje); }),
                    barraLinhas);
}

void medirJanela(Relatorio& relatorio, Bancada& bancada, const std::string& sEmpresa, int vezes) {
  std::vector<Duracao> aberturas;
  for (int i = 0; i < vezes; ++i) {
    aberturas.push_back(cronometrar([&] { bancada.abrir(); }));
    bancada.programa.telas().obter("frmMostrarContas").unload();
    bancada.host.doEvents();
  }
  relatorio.vLinha("quadro: primeira abertura", aberturas.front().count(), "ms", barraAbertura);
  relatorio.vLinha("quadro: abertura", meio(aberturas).count(), "ms", barraAbertura);

  frmMostrarContas& quadro = bancada.abrir();
  const std::int64_t soma =
      Arquivo(sEmpresa).inteiro("SELECT SUM(fValor) FROM TitulosReceber WHERE fValorPago <= 0 AND dtVencimento < '" +
                                formatDate(RelogioFixo().today(), "yyyy-mm-dd") + "'");
  if (quadro.lblContasReceberVencidas.caption() != "Total R$ " + formatNumber(Currency::fromUnits(soma)))
    throw Error(errors::invalidCall, "The overview's total is not that of its rows.");

  std::vector<Duracao> passos;
  for (const int iTecla : {Qt::Key_PageDown, Qt::Key_Down})
    for (int i = 0; i < 200; ++i) passos.push_back(cronometrar([&] { qt::press(bancada.host, iTecla); }));
  relatorio.vLinha("quadro: um passo na lista", meio(passos).count(), "ms", barraPasso);
  relatorio.vLinha("quadro: o passo mais lento de " + std::to_string(passos.size()), std::ranges::max(passos).count(),
                   "ms");
  quadro.unload();
}

void medir(const Opcoes& opcoes, Relatorio& relatorio) {
  const Volume volume = opcoes.bRapido ? volumePequeno : volumeGrande;
  const std::uint32_t vencidos = volume.titulos / 25;
  const std::string sEmpresa = sEmpresaGerada(volume, vencidos);
  const fs::path pasta = fs::path(sEmpresa).parent_path() / ("quadro." + std::to_string(getpid()));
  fs::remove_all(pasta);
  SystemProcess processo;
  demonstracao::preencher({pasta, std::string(FENVALE_SOURCE_DIR) + "/data", RelogioFixo().today(), processo});
  {
    Bancada bancada(pasta, sEmpresa);
    medirJanela(relatorio, bancada, sEmpresa, opcoes.bRapido ? 1 : 7);
    medirLinhas(relatorio, bancada, sEmpresa, vencidos);
  }
  fs::remove_all(pasta);
}

}  // namespace
}  // namespace fenvale::bancada

int main(int quantos, char** argumentos) {
  using namespace fenvale::bancada;
  return executar(quantos, argumentos, [&](const Opcoes& opcoes, Relatorio& relatorio) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication aplicacao(quantos, argumentos);
    medir(opcoes, relatorio);
  });
}
