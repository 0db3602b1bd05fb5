// Pages of the lists of customers and of titles, against the same pages by statements written by hand.

#include <cstdint>

#include "Consultas.h"
#include "gerador/Arquivo.h"
#include "medida/Acervo.h"
#include "medida/Medida.h"
#include "platform/base/Error.h"
#include "platform/sql/Store.h"

namespace fenvale::bancada {
namespace {

constexpr std::int32_t linhasPorPagina = 100;
/// The page selector gives its offset as a 16-bit number.
constexpr std::int32_t maiorDeslocamento = 32767;

using Linha = std::vector<std::string>;
using Pagina = std::vector<Linha>;

struct Resultado {
  std::int64_t linhas = 0;
  Pagina pagina;
  bool operator==(const Resultado&) const = default;
};

/// What the paged list does with a recordset.
Resultado pelaTela(Connection& conexao, const Consulta& consulta, std::int32_t inicio, bool bContar) {
  Resultado resultado;
  Recordset rs(consulta.sPrograma, conexao, CursorType::dynamic, LockType::readOnly);
  if (bContar) resultado.linhas = rs.recordCount();
  rs.moveFromFirst(inicio);
  const std::size_t campos = consulta.sFormas.size();
  for (std::int32_t i = 0; i < linhasPorPagina && !rs.eof(); ++i, rs.moveNext()) {
    Linha& linha = resultado.pagina.emplace_back();
    linha.reserve(campos);
    for (std::size_t campo = 0; campo < campos; ++campo) linha.push_back(rs.field(campo).toText());
  }
  rs.close();
  return resultado;
}

class AMao {
 public:
  AMao(Arquivo& arquivo, const Consulta& consulta)
      : formas_(consulta.sFormas),
        iniciar_(arquivo.preparar("BEGIN")),
        contar_(arquivo.preparar(consulta.sContagem)),
        chaves_(arquivo.preparar(consulta.sChaves)),
        linha_(arquivo.preparar(consulta.sLinha)),
        concluir_(arquivo.preparar("COMMIT")) {}

  Resultado resultado(std::int32_t inicio, bool bContar) {
    Resultado resultado;
    iniciar_.executar();
    if (bContar) resultado.linhas = lContar();
    chaves_.ligar(linhasPorPagina, inicio);
    while (chaves_.proximo()) resultado.pagina.push_back(linha(chaves_.inteiro(0)));
    concluir_.executar();
    return resultado;
  }

 private:
  std::int64_t lContar() {
    contar_.proximo();
    const std::int64_t linhas = contar_.inteiro(0);
    contar_.encerrar();
    return linhas;
  }

  Linha linha(std::int64_t chave) {
    linha_.ligar(chave).proximo();
    Linha linha = linhaMostrada(linha_, formas_);
    linha_.encerrar();
    return linha;
  }

  std::string formas_;
  Comando iniciar_, contar_, chaves_, linha_, concluir_;
};

class Listas {
 public:
  Listas(Relatorio& relatorio, const Volume& volume)
      : relatorio_(relatorio), conexao_({relogio_, nullptr}), arquivo_(sEmpresaGerada(volume)) {
    conexao_.setConnectionString("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + sEmpresaGerada(volume));
    conexao_.open();
  }

  Comparacao pagina(const Consulta& consulta, std::int32_t inicio, bool bContar = true) {
    AMao aMao(arquivo_, consulta);
    // Both ways must show the same rows, or the figures say nothing.
    if (pelaTela(conexao_, consulta, inicio, bContar) != aMao.resultado(inicio, bContar))
      throw Error(errors::invalidCall, "The two ways of reading a page differ: " + consulta.sChaves);
    return comparar(
        vezes, [&] { pelaTela(conexao_, consulta, inicio, bContar); }, [&] { aMao.resultado(inicio, bContar); });
  }

  /// The first page when the count that was kept no longer holds.
  Duracao paginaDepoisDeGravar(const Consulta& consulta) {
    const std::string sMarca = "UPDATE Portadores SET sNome = 'Carteira' WHERE lCodigo = 1";
    return mediana(vezes,
                   [&] {
                     const Recordset marca(sMarca, conexao_);
                     pelaTela(conexao_, consulta, 0, true);
                   }) -
           mediana(vezes, [&] { Recordset(sMarca, conexao_); });
  }

  void vPaginas(const std::string& sLista, const Consulta& consulta, std::int32_t linhas) {
    const std::int32_t maior = std::min(linhas, maiorDeslocamento);
    const std::int32_t ultima = (maior - 1) / linhasPorPagina * linhasPorPagina;
    const std::int32_t meio = ultima / 2 / linhasPorPagina * linhasPorPagina;
    relatorio_.vLinhas(sLista + ": primeira página", pagina(consulta, 0), barra);
    relatorio_.vLinhas(sLista + ": página do meio", pagina(consulta, meio), barra);
    relatorio_.vLinhas(sLista + ": última página alcançável", pagina(consulta, ultima), barra);
  }

  std::int32_t lContar(const Consulta& consulta) {
    return static_cast<std::int32_t>(arquivo_.inteiro(consulta.sContagem));
  }

  static constexpr double barra = 1.5;

 private:
  static constexpr int vezes = 51;
  Relatorio& relatorio_;
  RelogioFixo relogio_;
  Connection conexao_;
  Arquivo arquivo_;
};

void medir(const Opcoes& opcoes, Relatorio& relatorio) {
  const Volume volume = opcoes.bRapido ? volumePequeno : volumeGrande;
  Listas grande(relatorio, volume);
  const Consulta clientes = consultaClientes();
  const Consulta abertos = consultaTitulosAbertos();
  grande.vPaginas("clientes", clientes, grande.lContar(clientes));
  grande.vPaginas("títulos abertos", abertos, grande.lContar(abertos));
  const Consulta baixa = consultaBuscaBaixa();
  grande.vPaginas("busca de títulos para baixa", baixa, grande.lContar(baixa));
  const std::int32_t salto = static_cast<std::int32_t>(volume.titulos / 10 * 9);
  relatorio.vLinhas("títulos: salto à linha " + std::to_string(salto), grande.pagina(consultaTitulos(), salto, false),
                    Listas::barra);

  relatorio.vLinha("títulos abertos: primeira página depois de uma gravação",
                   grande.paginaDepoisDeGravar(abertos).count(), "ms");

  Listas pequena(relatorio, volumePequeno);
  const Duracao comMilhao = grande.pagina(abertos, 0).programa;
  const Duracao comDezMil = pequena.pagina(abertos, 0).programa;
  relatorio.vLinha("títulos abertos: primeira página, " + std::to_string(volume.titulos) + " títulos contra " +
                       std::to_string(volumePequeno.titulos),
                   comMilhao / comDezMil, "vezes", 2);
  relatorio.vLinha("títulos abertos: primeira página de " + std::to_string(volumePequeno.titulos) + " títulos",
                   comDezMil.count(), "ms");
}

}  // namespace
}  // namespace fenvale::bancada

int main(int quantos, char** argumentos) {
  return fenvale::bancada::executar(quantos, argumentos, fenvale::bancada::medir);
}
