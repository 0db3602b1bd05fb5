#include "platform/sql/StoreFixture.h"

#include <unistd.h>

#include "platform/xml/XmlDocument.h"

namespace fenvale::test {
namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
  std::string pattern = (fs::temp_directory_path() / "fenvale-sql-XXXXXX").string();
  path_ = ::mkdtemp(pattern.data());
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code failure;
  fs::remove_all(path_, failure);
}

std::vector<std::string> scriptStatements(const std::string& name) {
  std::vector<std::string> statements;
  for (const XmlElement& element : XmlDocument::load(std::string(FENVALE_SOURCE_DIR) + "/data/" + name).elements("SQL"))
    statements.push_back(element.children.at(0));
  return statements;
}

const FixedClock& TestStore::clock() {
  static const FixedClock day(makeDate(2026, 3, 15));
  return day;
}

TestStore::TestStore(const std::string& path, LockWait* wait) : connection({clock(), wait}) {
  connection.setConnectionString("Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=" + path);
  connection.open();
}

void TestStore::create(const std::string& path, const std::string& script) {
  createStore(path);
  TestStore store(path);
  store.connection.beginTrans();
  for (const std::string& statement : scriptStatements(script)) store.run(statement);
  store.connection.commitTrans();
}

std::vector<std::string> TestStore::rows(std::string_view statement) {
  std::vector<std::string> result;
  Recordset rows(statement, connection, CursorType::dynamic, LockType::readOnly);
  const std::size_t fields = rows.fieldNames().size();
  for (; !rows.eof(); rows.moveNext()) {
    std::string line;
    for (std::size_t place = 0; place < fields; ++place) {
      const Value value = rows.field(place);
      line += (place > 0 ? "|" : "") + (value.isNull() ? std::string("NULL") : value.toText());
    }
    result.push_back(line);
  }
  return result;
}

std::string TestStore::value(std::string_view statement) {
  Recordset rows(statement, connection);
  if (rows.eof()) return "(nada)";
  const Value value = rows.field(std::size_t{0});
  return value.isNull() ? "NULL" : value.toText();
}

std::int64_t TestStore::run(std::string_view statement) {
  Recordset rows(statement, connection);
  return rows.affectedRows();
}

std::int32_t numberOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& failure) {
    return failure.number;
  }
  return 0;
}

std::string descriptionOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& failure) {
    return failure.description;
  }
  return {};
}

CompanyStore::CompanyStore() {
  TestStore::create(path(), companyScript);
  store = std::make_unique<TestStore>(path());
  store->connection.beginTrans();
  for (const char* statement : {
           "INSERT INTO Cidades (sNome, sUF) VALUES ('Vila Nova', 'SP')",
           "INSERT INTO Cidades (sNome, sUF) VALUES ('Açude', 'CE')",
           "INSERT INTO Cidades (sNome, sUF) VALUES ('Acari', 'RN')",
           "INSERT INTO Bancos (iCodigoInf, sNome) VALUES (1, 'Banco do Norte')",
           "INSERT INTO Categorias (btCodigoInf, sNome) VALUES (1, '')",
           "INSERT INTO Categorias (btCodigoInf, sNome) VALUES (2, 'Varejo')",
           "INSERT INTO CentroCusto (btCodigoInf, sDescricao) VALUES (1, 'Loja')",
           "INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (1, 'Ana')",
           "INSERT INTO Portadores (btCodigoInf, sNome) VALUES (1, 'Carteira')",
           "INSERT INTO CondicoesPagamento (btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada) VALUES (1, 3, 30, 0)",
           "INSERT INTO Clientes (lCodigoInf, sNome, fLimiteCredito, sEndereco, dtNascimento, lCategoria, lCidade, "
           "lVendedor, "
           "lCidadeEntrega, lCidadeCobranca) VALUES (10, 'Maria', 1500.5, 'Rua A', #2/29/1980#, 2, 1, 1, 1, 1)",
           "INSERT INTO Clientes (lCodigoInf, sNome, fLimiteCredito, dtNascimento, lCategoria, lCidade, lVendedor, "
           "lCidadeEntrega, "
           "lCidadeCobranca) VALUES (11, 'Zé', 0, #12/31/1999#, 1, 2, 1, 2, 2)",
           "INSERT INTO Fornecedores (lCodigoInf, sNome, lCategoria, lCidade, lBanco) VALUES (1, 'Papel SA', 2, 1, 1)",
           "INSERT INTO FaturasCliente (lNumeroFatura, fTotal, fEntrada, lCliente, lCondicoesPagamento, lPortador, "
           "lVendedor, "
           "lCentroCusto, dtEmissao) VALUES (1, 300, 0, 1, 1, 1, 1, 1, #3/1/2026#)",
           "INSERT INTO FaturasCliente (lNumeroFatura, fTotal, fEntrada, lCliente, lCondicoesPagamento, lPortador, "
           "lVendedor, "
           "lCentroCusto, dtEmissao) VALUES (2, 100.1, 0, 2, 1, 1, 1, 1, #3/2/2026#)",
           "INSERT INTO FaturasFornecedor (lNumeroFatura, fTotal, fEntrada, lFornecedor, lCondicoesPagamento, "
           "lPortador, "
           "lCentroCusto, dtEmissao) VALUES (7, 50, 0, 1, 1, 1, 1, #3/3/2026#)",
           "INSERT INTO TitulosReceber (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, "
           "lNF, sObs, "
           "lFaturaCliente) VALUES ('000001/001', #3/31/2026#, 100, #3/31/2026#, 100, 0, 0, 0, '', 1)",
           "INSERT INTO TitulosReceber (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, "
           "lNF, sObs, "
           "lFaturaCliente) VALUES ('000001/002', #4/30/2026#, 200, #4/30/2026#, 0, 0, 0, 0, '', 1)",
           "INSERT INTO TitulosReceber (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, "
           "lNF, sObs, "
           "lFaturaCliente) VALUES ('000002/R01', #3/15/2026#, 100.1, #3/15/2026#, 0, 0, 0, 0, '', 2)",
           "INSERT INTO TitulosPagar (sCodigoInf, dtVencimento, fValor, dtPagamento, fValorPago, fJuros, fDesconto, "
           "lNF, sObs, "
           "lFaturaFornecedor, sFilial) VALUES ('000001/001', #5/2/2026#, 50, #5/2/2026#, 0, 0, 0, 0, '', 1, 'A')",
           "INSERT INTO DadosEmpresa (sNome, sEndereco, sBairro, sCEP, lCidade, sCNPJ, sTelefone, sFax, sEMail, "
           "txtCaminhoFigura, "
           "txtFiguraPromissoria, sCPF) VALUES ('Loja', 'Rua B', 'Centro', '1', 1, '', '', '', '', '', '', '')",
       })
    store->run(statement);
  store->connection.commitTrans();
}

}  // namespace fenvale::test
