// The real fenvale-sql, run as its user runs it.

#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fenvale::test {
namespace {

namespace fs = std::filesystem;

struct Answer {
  int exitCode = -1;
  std::string out;
  std::string messages;
};

class Console : public ::testing::Test {
 protected:
  Console() {
    std::string pattern = (fs::temp_directory_path() / "fenvale-console-XXXXXX").string();
    folder = ::mkdtemp(pattern.data());
  }
  ~Console() override {
    std::error_code failure;
    fs::remove_all(folder, failure);
  }

  std::string path(const std::string& name) const { return folder + "/" + name; }
  static std::string read(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }

  Answer run(const std::string& options, const std::string& statements) const {
    std::ofstream(path("in"), std::ios::binary) << statements;
    const std::string command = "cd '" + folder + "' && '" FENVALE_CONSOLE "' " + options + " < in > out 2> err";
    const int status = std::system(command.c_str());
    return {WEXITSTATUS(status), read(path("out")), read(path("err"))};
  }

  std::string folder;
};

TEST_F(Console, AnswersInJson) {
  const Answer answer =
      run("--criar empresa --hoje 2026-03-15 --formato json loja.MDB",
          "INSERT INTO Cidades (sNome, sUF) VALUES ('Olho d''Água \"Novo\"', 'AL');\r\n"
          "-- um comentário\n"
          "\n"
          "SELECT lCodigo, sNome, DATE() AS hoje, ISNULL(sUF) AS semUF, NULL AS nada, 1.5 AS meio FROM Cidades ;\n"
          "CREATE TABLE Extra (f CURRENCY)\n"
          "INSERT INTO Extra (f) VALUES (1234.5)\n"
          "INSERT INTO Extra (f) VALUES (-0.1)\n"
          "SELECT f FROM Extra ORDER BY f\n"
          "UPDATE Extra SET f = 7\n");
  EXPECT_EQ(
      answer.out,
      "{\"afetadas\":1}\n"
      "{\"colunas\":[\"lCodigo\",\"sNome\",\"hoje\",\"semUF\",\"nada\",\"meio\"],\"tipos\":[\"inteiro\",\"texto\","
      "\"data\","
      "\"logico\",\"texto\",\"decimal\"],\"linhas\":[[1,\"Olho d'Água \\\"Novo\\\"\",\"2026-03-15\",false,null,1.5]]}\n"
      "{\"afetadas\":0}\n"
      "{\"afetadas\":1}\n"
      "{\"afetadas\":1}\n"
      "{\"colunas\":[\"f\"],\"tipos\":[\"moeda\"],\"linhas\":[[\"-0.1\"],[\"1234.5\"]]}\n"
      "{\"afetadas\":2}\n");
  EXPECT_EQ(answer.messages, "");
  EXPECT_EQ(answer.exitCode, 0);
}

TEST_F(Console, GoesOnAfterARefusal) {
  const std::string statements =
      "INSERT INTO Categorias (btCodigoInf, sNome) VALUES (1, 'a')\n"
      "INSERT INTO Categorias (btCodigoInf, sNome) VALUES (1, 'b')\n"
      "SELEC 1\n"
      "SELECT sNome FROM Categorias\n";
  const Answer json = run("--criar empresa --formato=json loja.MDB", statements);
  EXPECT_EQ(json.exitCode, 1);
  EXPECT_EQ(
      json.out,
      "{\"afetadas\":1}\n"
      "{\"erro\":-2147467259,\"descricao\":\"Já existe um registro em Categorias com o mesmo valor de btCodigoInf.\"}\n"
      "{\"erro\":-2147217900,\"descricao\":\"Erro de sintaxe perto de \\\"SELEC 1\\\", no caractere 1.\"}\n"
      "{\"colunas\":[\"sNome\"],\"tipos\":[\"texto\"],\"linhas\":[[\"a\"]]}\n");
  const Answer tsv = run("loja.MDB", statements);
  EXPECT_EQ(tsv.exitCode, 1);
  EXPECT_EQ(tsv.out, "sNome\na\n");
  EXPECT_THAT(tsv.messages, ::testing::HasSubstr("Linha 2: Já existe um registro"));
}

TEST_F(Console, ARowThatCannotBeReadLeavesNoHalfAnswer) {
  const Answer answer = run("--criar empresa --formato json loja.MDB",
                            "INSERT INTO Cidades (sNome, sUF) VALUES ('a', 'SP')\n"
                            "INSERT INTO Cidades (sNome, sUF) VALUES ('b', 'SP')\n"
                            "SELECT 1 / (lCodigo - 2) AS x FROM Cidades\n");
  EXPECT_EQ(answer.out, "{\"afetadas\":1}\n{\"afetadas\":1}\n{\"erro\":11,\"descricao\":\"Divisão por zero.\"}\n");
}

TEST_F(Console, WritesTabsWhenNobodyWatches) {
  const Answer answer = run("--criar programa Dados.MDB",
                            "INSERT INTO Empresas (sNomeArquivo, sCaminho) VALUES ('a\tb.MDB', 'C:\\Empresas\\')\n"
                            "INSERT INTO Empresas (sCaminho) VALUES ('')\n"
                            "SELECT sNomeArquivo, sCaminho, lCodigo FROM Empresas ORDER BY lCodigo\n");
  EXPECT_EQ(answer.out,
            "afetadas\n1\nafetadas\n1\nsNomeArquivo\tsCaminho\tlCodigo\na\\tb.MDB\tC:\\\\Empresas\\\\\t1\n\\N\t\t2\n");
  EXPECT_EQ(answer.exitCode, 0);
}

TEST_F(Console, DrawsATable) {
  const Answer answer = run("--criar programa --formato tabela Dados.MDB",
                            "INSERT INTO Cidades (sNome, sUF) VALUES ('São José', 'SP')\n"
                            "SELECT sNome, lCodigo FROM Cidades\n"
                            "SELECT sNome FROM Cidades WHERE lCodigo = 9\n");
  EXPECT_EQ(answer.out,
            "1 registro afetado\n\n"
            "sNome     lCodigo\n--------  -------\nSão José        1\n1 registro\n\n"
            "sNome\n-----\n0 registros\n\n");
}

TEST_F(Console, MakingAStoreTwiceChangesNothing) {
  EXPECT_EQ(run("--criar empresa loja.MDB", "INSERT INTO Cidades (sNome, sUF) VALUES ('a', 'SP')\n").exitCode, 0);
  const Answer again = run("--criar empresa LOJA.mdb", "SELECT COUNT(lCodigo) AS n FROM Cidades\n");
  EXPECT_EQ(again.out, "n\n1\n");
  EXPECT_EQ(again.exitCode, 0);
  EXPECT_FALSE(fs::exists(path("LOJA.mdb")));
}

TEST_F(Console, AStoreIsForOwnerAndGroupOnly) {
  run("--criar programa Dados.MDB", "");
  EXPECT_EQ(fs::status(path("Dados.MDB")).permissions() & fs::perms::others_all, fs::perms::none);
}

TEST_F(Console, WrongUseEndsWithTwo) {
  for (const char* options :
       {"", "--nada loja.MDB", "a.MDB b.MDB", "--criar", "--criar loja loja.MDB", "--hoje 15/03/2026 loja.MDB",
        "--hoje 2026-02-30 loja.MDB", "--formato xml loja.MDB", "--formato"}) {
    const Answer answer = run(options, "SELECT 1\n");
    EXPECT_EQ(answer.exitCode, 2) << options;
    EXPECT_EQ(answer.out, "") << options;
    EXPECT_THAT(answer.messages, ::testing::StartsWith("Uso: fenvale-sql ")) << options;
  }
}

TEST_F(Console, AFileThatIsNoStoreEndsWithTwo) {
  std::ofstream(path("texto.MDB")) << "nada disso";
  std::ofstream(path("vazio.MDB")).close();
  const Answer text = run("texto.MDB", "SELECT 1\n");
  EXPECT_EQ(text.exitCode, 2);
  EXPECT_EQ(text.messages, "O arquivo texto.MDB não é um banco de dados do sistema.\n");
  EXPECT_EQ(run("vazio.MDB", "SELECT 1\n").exitCode, 2);
  EXPECT_EQ(run("--criar empresa vazio.MDB", "SELECT 1\n").exitCode, 2);
  EXPECT_EQ(run("falta.MDB", "SELECT 1\n").messages, "O banco de dados falta.MDB não foi encontrado.\n");
  EXPECT_EQ(run("--criar empresa falta/loja.MDB", "").exitCode, 2);
  EXPECT_FALSE(fs::exists(path("falta.MDB")));
}

}  // namespace
}  // namespace fenvale::test
