// Saving an invoice of 120 titles, down to the disk, against the same rows written by hand.

#include "Escritorio.h"
#include "demo/Plataforma.h"
#include "gerador/Arquivo.h"
#include "medida/Medida.h"
#include "platform/sql/Store.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Validacoes.h"
#include "store/services/DBConectar.h"
#include "store/services/Sistema.h"
#include "titles/services/GeradorTitulos.h"
#include "titles/services/Lado.h"
#include "titles/services/Parcelas.h"

namespace fenvale::bancada {
namespace {

constexpr std::int16_t iParcelas = 120;
constexpr double barra = 1.3;

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
      : arquivo_(abrirComoOPrograma(sArquivo)),
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
  Arquivo arquivo_;
  Comando iniciar_, fatura_, titulo_, concluir_;
};

void medir(const Opcoes& opcoes, Relatorio& relatorio) {
  demonstracao::Anfitriao anfitriao;
  Escritorio escritorio(opcoes.bRapido ? volumePequeno : volumeGrande, anfitriao);
  const Recordset condicao(
      "INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (200, " +
          std::to_string(iParcelas) + ", 30, 0)",
      escritorio.programa().dbEmpresa().Dados());
  AMao aMao(escritorio.sGetEmpresa());
  const Date hoje = RelogioFixo().today();
  const Comparacao comparacao = comparar(
      opcoes.bRapido ? 5 : 31, [&] { vSalvarPelaTela(escritorio.programa()); }, [&] { aMao.vSalvar(hoje); });
  relatorio.vLinhas("gravação de fatura de 120 títulos", comparacao, barra);
}

}  // namespace
}  // namespace fenvale::bancada

int main(int quantos, char** argumentos) {
  return fenvale::bancada::executar(quantos, argumentos, fenvale::bancada::medir);
}
