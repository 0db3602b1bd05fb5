// Saving an invoice of 120 titles, down to the disk, against the same rows written by hand.

#include <filesystem>
#include <iostream>

#include "app/Programa.h"
#include "demo/Plataforma.h"
#include "gerador/Arquivo.h"
#include "medida/Acervo.h"
#include "medida/Medida.h"
#include "platform/base/Error.h"
#include "platform/os/System.h"
#include "platform/sql/Store.h"
#include "platform/xml/XmlDocument.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Validacoes.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "store/services/Sistema.h"
#include "titles/services/GeradorTitulos.h"
#include "titles/services/Lado.h"
#include "titles/services/Parcelas.h"

namespace fenvale::bancada {
namespace {

namespace fs = std::filesystem;

constexpr std::int16_t iParcelas = 120;
constexpr double barra = 1.3;

/// The program on a copy of the generated company.
class Escritorio {
 public:
  explicit Escritorio(const Volume& volume)
      : relogio_(RelogioFixo().today()),
        pasta_(sEmpresaGerada(volume) + ".gravacao"),
        programa_({pasta_, anfitriao_, relogio_, processo_, correio_, rede_, impressoras_}, nullptr) {
    fs::remove_all(pasta_);
    fs::create_directories(pasta_);
    const std::string sDados = std::string(FENVALE_SOURCE_DIR) + "/data/";
    for (const char* sNome : {"SQL.xmlSQL", "SQLEmpresas.xmlSQL", "Cidades.XML", "Bancos.XML"})
      fs::copy_file(sDados + sNome, pasta_ + "/" + sNome);
    fs::copy_file(sEmpresaGerada(volume), sGetEmpresa());
    createStore(pasta_ + "/Dados.MDB");
    programa_.dbConectar().Dados().open();
    for (const XmlElement& elemento : XmlDocument::load(sDados + "SQL.xmlSQL").elements("SQL"))
      const Recordset passo(elemento.children.at(0), programa_.dbConectar().Dados());
    if (!programa_.empresas().bSetEmpresa(1, "empresa.MDB", pasta_ + "/", false))
      throw Error(errors::storeNotOpened, "The generated company was not opened.");
    const Recordset condicao(
        "INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (200, " +
            std::to_string(iParcelas) + ", 30, 0)",
        programa_.dbEmpresa().Dados());
  }
  ~Escritorio() {
    std::error_code semImportancia;
    fs::remove_all(pasta_, semImportancia);
  }
  Escritorio(const Escritorio&) = delete;
  Escritorio& operator=(const Escritorio&) = delete;

  std::string sGetEmpresa() const { return pasta_ + "/empresa.MDB"; }
  Programa& programa() { return programa_; }

 private:
  demonstracao::Relogio relogio_;
  demonstracao::Anfitriao anfitriao_;
  SystemProcess processo_;
  demonstracao::Correio correio_;
  demonstracao::Rede rede_;
  demonstracao::Impressoras impressoras_;
  std::string pasta_;
  Programa programa_;
};

DadosSerie serie(Date hoje) { return {hoje, Currency::fromInteger(12345), Currency(), iParcelas, 30, false}; }

/// What the invoice screen does between the command and its box.
void vSalvarPelaTela(Programa& programa) {
  Connection& dados = programa.dbEmpresa().Dados();
  GeradorTitulos gerador(programa, ladoReceber());
  const DadosSerie novos = serie(programa.relogio().today());
  const std::string sNumero = Sistema(programa).sGetProximoCodigoNumerico("FaturasCliente", "lNumeroFatura", 0, true);
  dados.beginTrans();
  const Recordset inclusao(
      sComandoInclusao("FaturasCliente", {{"lNumeroFatura", sNumero},
                                          {"fTotal", Validacoes::sGetFloatSQL(novos.fTotal)},
                                          {"fEntrada", "0"},
                                          {"lCliente", "1"},
                                          {"lCondicoesPagamento", "1"},
                                          {"lPortador", "1"},
                                          {"lVendedor", "1"},
                                          {"lCentroCusto", "1"},
                                          {"dtEmissao", "#" + Validacoes::sGetDataSQL(novos.dtEmissao) + "#"}}),
      dados, CursorType::dynamic, LockType::pessimistic);
  std::int32_t lFatura = -1;
  gerador.fGetValorPago(lFatura);
  Titulos(programa).btGetOpcaoReparcelamento();
  gerador.vCriarTitulosFatura(lFatura, novos);
  dados.commitTrans();
}

class AMao {
 public:
  explicit AMao(const std::string& sArquivo)
      : arquivo_(ajustado(sArquivo)),
        iniciar_(arquivo_.preparar("BEGIN IMMEDIATE")),
        fatura_(arquivo_.preparar(
            "INSERT INTO FaturasCliente (lNumeroFatura, fTotal, fEntrada, lCliente, lCondicoesPagamento, lPortador, "
            "lVendedor, lCentroCusto, dtEmissao) VALUES ((SELECT MAX(lNumeroFatura) + 1 FROM FaturasCliente), ?, 0, "
            "1, 1, 1, 1, 1, ?) RETURNING lCodigo")),
        titulo_(arquivo_.preparar(
            "INSERT INTO TitulosReceber (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, "
            "fDesconto, lNF, sObs, lFaturaCliente) VALUES (?, ?, ?, ?, ?, 0, 0, 0, '', ?)")),
        concluir_(arquivo_.preparar("COMMIT")) {}

  void vSalvar(Date hoje) {
    const DadosSerie novos = serie(hoje);
    iniciar_.executar();
    fatura_.ligar(novos.fTotal.units(), formatDate(hoje, "yyyy-mm-dd")).proximo();
    const auto lFatura = static_cast<std::int32_t>(fatura_.inteiro(0));
    fatura_.encerrar();
    std::int32_t iParcela = 0;
    for (const TituloDaSerie& titulo : serieTitulos(novos)) {
      const std::string sDia = formatDate(titulo.dtVencimento, "yyyy-mm-dd");
      const std::string sCodigo = sCodigoTitulo(lFatura, ++iParcela);
      titulo_.ligar(sCodigo, sDia, titulo.fValor.units(), sDia, titulo.fValorPago.units(), lFatura).executar();
    }
    concluir_.executar();
  }

 private:
  static Arquivo ajustado(const std::string& sArquivo) {
    Arquivo arquivo(sArquivo);
    arquivo.executar("PRAGMA foreign_keys = ON; PRAGMA synchronous = FULL; PRAGMA cache_size = -16384");
    return arquivo;
  }

  Arquivo arquivo_;
  Comando iniciar_, fatura_, titulo_, concluir_;
};

int medir(const Opcoes& opcoes) {
  Relatorio relatorio;
  Escritorio escritorio(opcoes.bRapido ? volumePequeno : volumeGrande);
  AMao aMao(escritorio.sGetEmpresa());
  const Date hoje = RelogioFixo().today();
  const Comparacao comparacao = comparar(
      opcoes.bRapido ? 5 : 31, [&] { vSalvarPelaTela(escritorio.programa()); }, [&] { aMao.vSalvar(hoje); });
  relatorio.vLinhas("gravação de fatura de 120 títulos", comparacao, barra);
  return 0;
}

}  // namespace
}  // namespace fenvale::bancada

int main(int quantos, char** argumentos) try {
  return fenvale::bancada::medir(fenvale::bancada::lerOpcoes(quantos, argumentos));
} catch (const fenvale::Error& falha) {
  std::cerr << argumentos[0] << ": " << falha.description << "\n";
  return 1;
}
