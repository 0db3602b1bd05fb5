#include "support/ProgramaDeTeste.h"

#include <stdlib.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "platform/sql/Store.h"
#include "platform/xml/XmlDocument.h"
#include "shell/services/Telas.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "support/Rodada.h"

namespace fenvale {
namespace {

namespace fs = std::filesystem;

const std::string pastaDeDados = std::string(FENVALE_SOURCE_DIR) + "/data/";

constexpr const char* cidadesPequenas =
    "<root>\r\n<Cid><uf>PR</uf><nome>Londrina</nome></Cid>\r\n"
    "<Cid><uf>SP</uf><nome>S&#227;o Paulo</nome></Cid>\r\n</root>\r\n";
constexpr const char* bancosPequenos =
    "<root>\r\n<bc><num>001</num><nome>Banco do Brasil S.A.</nome></bc>\r\n"
    "<bc><num>104</num><nome>Caixa Econ&#244;mica Federal</nome></bc>\r\n</root>\r\n";

std::string textoConexao(const std::string& caminho) {
  return "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=" + caminho;
}

void executarEm(Connection& conexao, const std::string& sql) { const Recordset rs(sql, conexao); }

/// Stores that are made once by the scripts and copied for every test.
class Modelos {
 public:
  static const Modelos& obter() {
    static const Modelos modelos;
    return modelos;
  }
  std::string programa() const { return pasta_.arquivo("programa.MDB"); }
  std::string empresa() const { return pasta_.arquivo("empresa.MDB"); }

 private:
  Modelos() {
    fazer(programa(), "SQL.xmlSQL", false);
    fazer(empresa(), "SQLEmpresas.xmlSQL", true);
  }

  static void fazer(const std::string& caminho, const std::string& roteiro, bool comBancos) {
    const RelogioDeTeste relogio;
    createStore(caminho);
    Connection conexao(StoreEnvironment{relogio});
    conexao.setConnectionString(textoConexao(caminho));
    conexao.open();
    const XmlDocument documento = XmlDocument::load(pastaDeDados + roteiro);
    if (!documento.sound()) throw std::runtime_error(roteiro + ": " + documento.parseError().reason);
    conexao.beginTrans();  // one write to the disk instead of one for each statement
    for (const XmlElement& elemento : documento.elements("SQL"))
      if (elemento.children.size() == 1) executarEm(conexao, elemento.children.front());
    executarEm(conexao, "INSERT INTO Cidades (sNome, sUF) VALUES ('Londrina', 'PR')");
    executarEm(conexao, "INSERT INTO Cidades (sNome, sUF) VALUES ('São Paulo', 'SP')");
    if (comBancos) {
      executarEm(conexao, "INSERT INTO Bancos (sNome, iCodigoInf) VALUES ('Banco do Brasil S.A.', '001')");
      executarEm(conexao, "INSERT INTO Bancos (sNome, iCodigoInf) VALUES ('Caixa Econômica Federal', '104')");
    }
    conexao.commitTrans();
    conexao.close();
  }

  PastaTemporaria pasta_;
};

std::vector<std::vector<std::string>> todasAsLinhas(const std::string& sql, Connection& conexao) {
  std::vector<std::vector<std::string>> linhas;
  Recordset rs(sql, conexao);
  const std::size_t campos = rs.fieldNames().size();
  for (; !rs.eof(); rs.moveNext()) {
    std::vector<std::string> linha;
    for (std::size_t campo = 0; campo < campos; ++campo) linha.push_back(rs.field(campo).toText());
    linhas.push_back(std::move(linha));
  }
  return linhas;
}

}  // namespace

PastaTemporaria::PastaTemporaria() {
  std::string modelo = (fs::temp_directory_path() / "fenvale-XXXXXX").string();
  if (::mkdtemp(modelo.data()) == nullptr) throw std::runtime_error("no temporary folder");
  caminho_ = modelo;
}

PastaTemporaria::~PastaTemporaria() {
  std::error_code ignorado;
  fs::permissions(caminho_, fs::perms::owner_all, ignorado);
  fs::remove_all(caminho_, ignorado);
}

void PastaTemporaria::gravar(const std::string& nome, const std::string& bytes) const {
  fs::create_directories(fs::path(arquivo(nome)).parent_path());
  std::ofstream(arquivo(nome), std::ios::binary) << bytes;
}

std::string PastaTemporaria::ler(const std::string& nome) const {
  std::ifstream entrada(arquivo(nome), std::ios::binary);
  return {std::istreambuf_iterator<char>(entrada), std::istreambuf_iterator<char>()};
}

bool PastaTemporaria::existe(const std::string& nome) const { return fs::exists(arquivo(nome)); }

std::vector<std::string> PastaTemporaria::nomes(const std::string& subpasta) const {
  std::vector<std::string> lista;
  for (const auto& entrada : fs::directory_iterator(arquivo(subpasta)))
    lista.push_back(entrada.path().filename().string());
  std::sort(lista.begin(), lista.end());
  return lista;
}

ProgramaDeTeste::ProgramaDeTeste(void (*registrar)(Telas&))
    : Programa({pastaDoPrograma.caminho(), hostDoTeste, relogioDoTeste, processoDoTeste, correioDoTeste, redeDoTeste,
                impressorasDoTeste},
               registrar) {
  if (!telas().bExiste("frmMDIPrincipal")) telas().registrar<JanelaDeTeste>("frmMDIPrincipal");
  vInstalarEm(pasta());
}

void vInstalarEm(const PastaTemporaria& pasta) {
  for (const char* roteiro : {"SQL.xmlSQL", "SQLEmpresas.xmlSQL"})
    if (fs::exists(pastaDeDados + roteiro)) fs::copy(pastaDeDados + roteiro, pasta.arquivo(roteiro));
  pasta.gravar("Cidades.XML", cidadesPequenas);
  pasta.gravar("Bancos.XML", bancosPequenos);
}

JanelaDeTeste& ProgramaDeTeste::janelaDeTeste() { return telas().obter<JanelaDeTeste>("frmMDIPrincipal"); }

void ProgramaDeTeste::abrirPrograma() {
  if (!pasta().existe("Dados.MDB")) fs::copy(Modelos::obter().programa(), pasta().arquivo("Dados.MDB"));
  if (!dbConectar().Dados().isOpen()) dbConectar().Dados().open();
}

std::string ProgramaDeTeste::criarEmpresa(const std::string& nome) {
  fs::copy(Modelos::obter().empresa(), pasta().arquivo(nome));
  return pasta().arquivo(nome);
}

void ProgramaDeTeste::abrirEmpresa(const std::string& nome) {
  abrirPrograma();
  criarEmpresa(nome);
  executarPrograma("INSERT INTO Empresas (sNomeArquivo, sCaminho) VALUES ('" + nome + "', '" + pasta().caminho() +
                   "/')");
  const auto chave = linhasPrograma("SELECT MAX(lCodigo) AS Valor FROM Empresas").at(0).at(0);
  if (!empresas().bSetEmpresa(std::stoi(chave), nome, pasta().caminho() + "/", false))
    throw std::runtime_error("the company " + nome + " was not opened");
}

void ProgramaDeTeste::executar(const std::string& sql) { executarEm(dbEmpresa().Dados(), sql); }
void ProgramaDeTeste::executarPrograma(const std::string& sql) { executarEm(dbConectar().Dados(), sql); }

std::vector<std::vector<std::string>> ProgramaDeTeste::linhas(const std::string& sql) {
  return todasAsLinhas(sql, dbEmpresa().Dados());
}

std::vector<std::vector<std::string>> ProgramaDeTeste::linhasPrograma(const std::string& sql) {
  return todasAsLinhas(sql, dbConectar().Dados());
}

std::string ProgramaDeTeste::valor(const std::string& sql) {
  const auto todas = linhas(sql);
  return todas.empty() ? "(nenhuma linha)" : todas.front().front();
}

std::optional<int> ProgramaDeTeste::codigoDeSaida(const std::function<void()>& acao) {
  try {
    acao();
  } catch (const ProgramEnded& fim) {
    return fim.exitCode;
  }
  return std::nullopt;
}

}  // namespace fenvale
