#include "gerador/Empresa.h"

#include <array>
#include <filesystem>
#include <vector>

#include "exemplo/Pessoas.h"
#include "gerador/Arquivo.h"
#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/sql/Store.h"
#include "platform/xml/XmlDocument.h"

namespace fenvale::bancada {
namespace {

constexpr std::array<std::string_view, 9> categorias{
    "",           "Consumidor final",      "Comércio varejista", "Comércio atacadista",
    "Indústria",  "Prestador de serviços", "Órgão público",      "Produtor rural",
    "Construtora"};
constexpr std::array<std::string_view, 7> centrosCusto{
    "", "Loja", "Oficina", "Vendas externas", "Atacado", "Locação", "Assistência técnica"};
constexpr std::array<std::string_view, 6> portadores{"Carteira", "Banco do Brasil",  "Caixa Econômica", "Bradesco",
                                                     "Itaú",     "Factoring Central"};
constexpr std::uint32_t vendedores = 25;  ///< besides the hidden one

class Clock final : public fenvale::Clock {
 public:
  explicit Clock(Date hoje) : hoje_(hoje) {}
  Date today() const override { return hoje_; }
  DateTime now() const override { return hoje_; }

 private:
  Date hoje_;
};

std::string sSQL(std::string_view texto) { return "'" + replaceAll(std::string(texto), "'", "''") + "'"; }

XmlDocument lerDocumento(const std::string& sCaminho) {
  XmlDocument documento = XmlDocument::load(sCaminho);
  if (!documento.sound()) throw Error(errors::objectNotSet, sCaminho + ": " + documento.parseError().reason);
  return documento;
}

/// What is too little to hurry: the tables, the seeds, the small registers.
class Fundacao {
 public:
  Fundacao(const PedidoEmpresa& pedido, Connection& conexao) : pedido_(pedido), conexao_(conexao) {}

  void vFazer() {
    for (const XmlElement& elemento : documento("SQLEmpresas.xmlSQL").elements("SQL")) {
      if (elemento.children.size() == 1) vExecutar(elemento.children.front());
    }
    conexao_.beginTrans();
    vSemear();
    vCadastrar();
    conexao_.commitTrans();
  }

 private:
  XmlDocument documento(const char* sNome) const { return lerDocumento(pedido_.sPastaDados + "/" + sNome); }
  void vExecutar(const std::string& sTexto) { Recordset(sTexto, conexao_); }

  void vSemear() {
    for (const XmlElement& cidade : documento("Cidades.XML").elements("Cid"))
      vExecutar("INSERT INTO Cidades (sNome, sUF) VALUES (" + sSQL(cidade.children.at(1)) + ", " +
                sSQL(cidade.children.at(0)) + ")");
    for (const XmlElement& banco : documento("Bancos.XML").elements("bc"))
      vExecutar("INSERT INTO Bancos (sNome, iCodigoInf) VALUES (" + sSQL(banco.children.at(1)) + ", " +
                sSQL(banco.children.at(0)) + ")");
  }

  template <std::size_t N>
  void vCadastrar(const char* sTabela, const char* sCampo, const std::array<std::string_view, N>& nomes) {
    for (std::size_t i = 0; i < N; ++i)
      vExecutar(std::string("INSERT INTO ") + sTabela + " (btCodigoInf, " + sCampo + ") VALUES (" +
                std::to_string(i + 1) + ", " + sSQL(nomes[i]) + ")");
  }

  void vCadastrar() {
    vCadastrar("Categorias", "sNome", categorias);
    vCadastrar("CentroCusto", "sDescricao", centrosCusto);
    vCadastrar("Portadores", "sNome", portadores);
    for (std::uint32_t i = 0; i <= vendedores; ++i)
      vExecutar("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (" + std::to_string(i + 1) + ", " +
                sSQL(i == 0 ? std::string() : exemplo::sNomePessoa(pedido_.semente, i)) + ")");
    int iCodigo = 0;
    for (const Condicao& condicao : condicoes())
      vExecutar("INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (" +
                std::to_string(++iCodigo) + ", " + std::to_string(condicao.iNumeroParcelas) + ", " +
                std::to_string(condicao.iIntervalo) + ", " + (condicao.bEntrada ? "-1" : "0") + ")");
    vExecutar(
        "INSERT INTO DadosEmpresa (sNome, sEndereco, sBairro, sCEP, lCidade, sCNPJ, sTelefone, sFax, sEMail, "
        "txtCaminhoFigura, txtFiguraPromissoria, sCPF) VALUES ('Comercial Fenvale Ltda', 'Rua das Acácias, 120', "
        "'Centro', '01001-000', 1, '" +
        exemplo::sCNPJCom(11222333) + "', '', '', '', '', '', '')");
  }

  const PedidoEmpresa& pedido_;
  Connection& conexao_;
};

/// What has so many rows that it goes past the program.
class Volumes {
 public:
  explicit Volumes(const PedidoEmpresa& pedido) : pedido_(pedido), arquivo_(pedido.sArquivo) {}

  void vFazer() {
    // Whatever breaks here, the file is thrown away: nothing need be safe on the disk before the end.
    arquivo_.executar("PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF; PRAGMA cache_size=-262144; BEGIN");
    vInserirClientes();
    vInserirFaturas();
    if (pedido_.vencidos) vPagarVencidos(*pedido_.vencidos);
    arquivo_.executar("COMMIT; PRAGMA synchronous=FULL; PRAGMA journal_mode=DELETE");
  }

 private:
  void vInserirClientes() {
    const std::int64_t cidades = arquivo_.inteiro("SELECT MAX(lCodigo) FROM Cidades");
    Comando inserir = arquivo_.preparar(
        "INSERT INTO Clientes (lCodigoInf, sNome, fLimiteCredito, sEndereco, sBairro, sCEP, sTelefone, sFax, "
        "sContato, sRG, sCPF, sIE, sCNPJ, sPai, sMae, sEmail, dtNascimento, sHomePage, txtObs, sEnderecoEntrega, "
        "sBairroEntrega, sCEPEntrega, sEnderecoCobranca, sBairroCobranca, sCEPCobranca, lCategoria, lCidade, "
        "lVendedor, lCidadeEntrega, lCidadeCobranca) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
        "?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    for (std::uint32_t i = 0; i < pedido_.volume.clientes; ++i) {
      const exemplo::Cliente c = exemplo::cliente(pedido_.semente, i);
      exemplo::Sorteio sorteio(pedido_.semente, 12, i);
      // The first rows of categories and salespeople are the hidden ones, of those who left the box empty.
      const std::int64_t categoria = sorteio.entre(1, static_cast<int>(categorias.size()));
      const std::int64_t vendedor = sorteio.entre(1, static_cast<int>(vendedores) + 1);
      const std::int64_t cidade = 1 + sorteio.ate(static_cast<std::uint32_t>(cidades));
      inserir
          .ligar(i + 1, c.sNome, c.fLimiteCredito.units(), c.sEndereco, c.sBairro, c.sCEP, c.sTelefone, c.sFax,
                 c.sContato, c.sRG, c.sCPF, c.sIE, c.sCNPJ, c.sPai, c.sMae, c.sEmail, sDia(c.dtNascimento), c.sHomePage,
                 c.txtObs, c.sEnderecoEntrega, c.sBairroEntrega, c.sCEPEntrega, c.sEnderecoCobranca, c.sBairroCobranca,
                 c.sCEPCobranca, categoria, cidade, vendedor, cidade, cidade)
          .executar();
    }
  }

  void vInserirFaturas() {
    const Negocios negocios(
        pedido_.semente, pedido_.hoje, pedido_.volume,
        {vendedores, static_cast<std::uint32_t>(portadores.size()), static_cast<std::uint32_t>(centrosCusto.size())});
    Comando fatura = arquivo_.preparar(
        "INSERT INTO FaturasCliente (lNumeroFatura, fTotal, fEntrada, lCliente, lCondicoesPagamento, lPortador, "
        "lVendedor, lCentroCusto, dtEmissao) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)");
    Comando titulo = arquivo_.preparar(
        "INSERT INTO TitulosReceber (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, "
        "lNF, sObs, lFaturaCliente) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
    for (std::uint32_t i = 0; i < pedido_.volume.faturas; ++i) {
      const auto lCodigo = static_cast<std::int32_t>(i + 1);
      const Fatura f = negocios.fatura(i, lCodigo);
      fatura
          .ligar(lCodigo, f.fTotal.units(), f.fEntrada.units(), f.cliente + 1,
                 static_cast<std::int64_t>(f.condicao + 1), f.portador + 1, f.vendedor + 2, f.centroCusto + 1,
                 sDia(f.dtEmissao))
          .executar();
      for (const Titulo& t : f.titulos)
        titulo
            .ligar(t.sCodigoInf, sDia(t.dtVencimento), t.fValor.units(), sDia(t.dtPagamento), t.fValorPago.units(),
                   t.fJuros.units(), t.fDesconto.units(), t.lNF, t.sObs, lCodigo)
            .executar();
    }
  }

  /// Those that stay are of all customers and all days: the order has no pattern, yet it is the same every time.
  void vPagarVencidos(std::uint32_t restam) {
    arquivo_.executar(
        "UPDATE TitulosReceber SET fValorPago = fValor, dtPagamento = dtVencimento WHERE lCodigo IN (SELECT lCodigo "
        "FROM TitulosReceber WHERE fValorPago <= 0 AND dtVencimento < '" +
        sDia(pedido_.hoje) + "' ORDER BY lCodigo * 7919 % 1000003, lCodigo LIMIT -1 OFFSET " + std::to_string(restam) +
        ")");
  }

  static std::string sDia(Date dia) { return formatDate(dia, "yyyy-mm-dd"); }

  const PedidoEmpresa& pedido_;
  Arquivo arquivo_;
};

}  // namespace

void gerarEmpresa(const PedidoEmpresa& pedido) {
  createStore(pedido.sArquivo);
  try {
    const Clock relogio(pedido.hoje);
    Connection conexao({relogio, nullptr});
    conexao.setConnectionString("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + pedido.sArquivo);
    conexao.open();
    Fundacao(pedido, conexao).vFazer();
    conexao.close();
    Volumes(pedido).vFazer();
  } catch (const Error&) {
    std::filesystem::remove(pedido.sArquivo);
    throw;
  }
}

}  // namespace fenvale::bancada
