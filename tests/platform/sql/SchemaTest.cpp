// The tables that the two scripts make: limits of texts, unique codes, required references.

#include "platform/sql/StoreFixture.h"
#include "platform/sql/dialect/Catalog.h"
#include "platform/sql/dialect/Parser.h"

namespace fenvale::test {
namespace {

using sql::Catalog;
using sql::ColumnKind;

Catalog catalogOf(const char* script) {
  Catalog catalog;
  for (const std::string& statement : scriptStatements(script)) catalog.apply(sql::parse(statement));
  return catalog;
}

struct Limit {
  std::size_t characters;
  const char* script;
  const char* table;
  std::vector<const char*> columns;
};

TEST(Schema, TextsHoldWhatTheBoxesTake) {
  const std::vector<Limit> limits = {
      {150, programScript, "Sistema", {"sNome", "sEndereco", "sBairro"}},
      {150, companyScript, "DadosEmpresa", {"sNome", "sEndereco", "sBairro"}},
      {150, programScript, "Configuracoes", {"sSMTP", "sEmailRementente"}},
      {100, companyScript, "Clientes", {"sEndereco", "sEnderecoEntrega", "sEnderecoCobranca"}},
      {60, programScript, "Usuarios", {"sNomeUsuario"}},
      {20, programScript, "Usuarios", {"sLogin"}},
      {255, programScript, "Empresas", {"sNomeArquivo", "sCaminho"}},
      {50, companyScript, "Categorias", {"sNome"}},
      {50, companyScript, "Vendedores", {"sNome"}},
      {50, companyScript, "Portadores", {"sNome"}},
      {50, companyScript, "CentroCusto", {"sDescricao"}},
      {50,
       companyScript,
       "Clientes",
       {"sNome", "sBairro", "sContato", "sPai", "sMae", "sEmail", "sHomePage", "sBairroEntrega", "sBairroCobranca"}},
      {50, companyScript, "Fornecedores", {"sNome", "sContato", "sEmail", "sHomePage"}},
      {15, companyScript, "Fornecedores", {"sConta"}},
      {6, companyScript, "Fornecedores", {"sAgencia"}},
      {15, companyScript, "TitulosReceber", {"sCodigoInf"}},
      {15, companyScript, "TitulosPagar", {"sCodigoInf"}},
      {3, companyScript, "TitulosPagar", {"sFilial"}},
      {255, companyScript, "TitulosReceber", {"sObs"}},
      {255, companyScript, "TitulosPagar", {"sObs"}},
  };
  for (const Limit& limit : limits) {
    const auto table = catalogOf(limit.script).get(limit.table);
    for (const char* column : limit.columns) {
      ASSERT_NE(table->find(column), sql::TableDescription::none) << limit.table << "." << column;
      EXPECT_EQ(table->columns[table->find(column)].type, (sql::ColumnType{ColumnKind::text, limit.characters}))
          << limit.table << "." << column;
    }
  }
}

TEST(Schema, CodesAreUniqueAndInvoiceNumbersAreNot) {
  const Catalog company = catalogOf(companyScript);
  for (const auto& [table, column] :
       std::initializer_list<std::pair<const char*, const char*>>{{"Clientes", "lCodigoInf"},
                                                                  {"Fornecedores", "lCodigoInf"},
                                                                  {"Vendedores", "lCodigoInf"},
                                                                  {"Categorias", "btCodigoInf"},
                                                                  {"Portadores", "btCodigoInf"},
                                                                  {"CondicoesPagamento", "btCodigoInf"},
                                                                  {"CentroCusto", "btCodigoInf"},
                                                                  {"Bancos", "iCodigoInf"},
                                                                  {"TitulosReceber", "sCodigoInf"},
                                                                  {"TitulosPagar", "sCodigoInf"}})
    EXPECT_TRUE(company.get(table)->isUnique(column)) << table;
  EXPECT_FALSE(company.get("FaturasCliente")->isUnique("lNumeroFatura"));
  EXPECT_FALSE(company.get("FaturasFornecedor")->isUnique("lNumeroFatura"));

  TemporaryFolder folder;
  TestStore::create(folder.path("Dados.MDB"), programScript);
  TestStore program(folder.path("Dados.MDB"));
  program.run("INSERT INTO Usuarios (sLogin) VALUES ('ana')");
  EXPECT_EQ(numberOf([&] { program.run("INSERT INTO Usuarios (sLogin) VALUES ('ANA')"); }), errors::refused);
  program.run("INSERT INTO Empresas (sNomeArquivo, sCaminho) VALUES ('a.MDB', 'C:\\')");
  program.run("INSERT INTO Empresas (sNomeArquivo, sCaminho) VALUES ('a.MDB', 'D:\\')");
  EXPECT_EQ(numberOf([&] { program.run("INSERT INTO Empresas (sNomeArquivo, sCaminho) VALUES ('A.mdb', 'd:\\')"); }),
            errors::refused);
}

TEST(Schema, EveryReferenceIsRequiredEnforcedAndHasAnIndex) {
  const Catalog company = catalogOf(companyScript);
  std::size_t references = 0;
  for (const std::string& name : company.tableNames()) {
    const auto table = company.get(name);
    for (const sql::ColumnDefinition& column : table->columns) {
      const bool code = column.name == "lCodigo" || column.name == "lCodigoInf" || column.name == "lNumeroFatura" ||
                        column.name == "lNF";
      if (column.name[0] != 'l' || code) continue;
      ++references;
      EXPECT_TRUE(column.required) << name << "." << column.name;
      EXPECT_TRUE(std::any_of(table->relations.begin(), table->relations.end(),
                              [&](const auto& relation) { return relation.columns[0] == column.name; }))
          << name << "." << column.name;
      if (name == "DadosEmpresa") continue;  // one row
      EXPECT_TRUE(std::any_of(table->indexes.begin(), table->indexes.end(),
                              [&](const auto& index) { return index.columns[0].name == column.name; }))
          << name << "." << column.name;
    }
  }
  EXPECT_EQ(references, 20u);
}

TEST(Schema, OnlyTitlesGoWithTheirInvoice) {
  const Catalog company = catalogOf(companyScript);
  for (const std::string& name : company.tableNames())
    for (const sql::RelationDescription& relation : company.get(name)->relations) {
      EXPECT_EQ(relation.cascade, name.starts_with("Titulos")) << relation.name;
      EXPECT_EQ(relation.refusal, relation.cascade ? "A fatura tem títulos pagos." : "");
    }
}

}  // namespace
}  // namespace fenvale::test
