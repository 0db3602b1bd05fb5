#include "demo/Demonstracao.h"

#include "app/Programa.h"
#include "demo/AnoDeNegocios.h"
#include "demo/Cadastros.h"
#include "demo/Plataforma.h"
#include "platform/base/Error.h"
#include "platform/os/Files.h"
#include "platform/sql/Store.h"
#include "platform/xml/XmlDocument.h"
#include "store/services/BancoDados.h"
#include "store/services/DBConectar.h"
#include "store/services/Empresas.h"
#include "store/services/Sistema.h"
#include "store/services/XML.h"

namespace fenvale::demonstracao {
namespace {

constexpr const char* sArquivoPrograma = "Dados.MDB";
constexpr const char* sArquivoEmpresa = "Comercial Fenvale.MDB";
constexpr const char* sUltimaEmpresa = "Empresa.XML";

std::string sNaPasta(const std::string& sPasta, const std::string& sNome) { return sPasta + files::separator + sNome; }

void vExigirPastaSemDados(const std::string& sPasta) {
  const bool bOcupada = !files::withEnding(sPasta, ".MDB").empty() || files::isFile(sNaPasta(sPasta, "init.ini")) ||
                        files::isFile(sNaPasta(sPasta, sUltimaEmpresa));
  if (bOcupada) throw Error(errors::fileAccess, "A pasta " + sPasta + " já contém dados. Nada foi alterado.");
}

void vTrazerArquivos(const Pedido& pedido) {
  files::createFolder(pedido.sPasta);
  for (const char* sNome : {"SQL.xmlSQL", "SQLEmpresas.xmlSQL", "Cidades.XML", "Bancos.XML"}) {
    const std::string sDestino = sNaPasta(pedido.sPasta, sNome);
    if (!files::isFile(sDestino)) files::write(sDestino, files::read(sNaPasta(pedido.sPastaArquivos, sNome)));
  }
}

class Obra {
 public:
  explicit Obra(const Pedido& pedido)
      : pedido_(pedido),
        relogio_(pedido.hoje),
        programa_({pedido.sPasta, anfitriao_, relogio_, pedido.processo, correio_, rede_, impressoras_}, nullptr) {}

  Resumo fazer() {
    vFazerBanco(sArquivoPrograma, "SQL.xmlSQL");
    programa_.dbConectar().Dados().open();
    Sistema(programa_).vPovoarRelacaoCidades(sNaPasta(pedido_.sPasta, "Cidades.XML"), false);
    vCadastrarPrograma(programa_);

    vFazerBanco(sArquivoEmpresa, "SQLEmpresas.xmlSQL");
    vAbrirEmpresa();
    vFazerNegocios();
    programa_.empresas().vSetUltimaEmpresaSelecionada();
    return {lContar("Clientes"), lContar("Fornecedores"), lContar("FaturasCliente") + lContar("FaturasFornecedor"),
            lContar("TitulosReceber") + lContar("TitulosPagar")};
  }

 private:
  /// A store that is up to date already: its first opening by the program then changes nothing and ends no run.
  void vFazerBanco(const char* sArquivo, const char* sRoteiro) {
    const std::string sCaminho = sNaPasta(pedido_.sPasta, sArquivo);
    BancoDados(programa_).bCriarArquivoMDB(sCaminho);
    Connection conexao({relogio_, nullptr});
    conexao.setConnectionString("Provider=Microsoft.Jet.OLEDB.4.0;Data Source=" + sCaminho);
    conexao.open();
    conexao.beginTrans();
    const XmlDocument documento = XML(programa_).docPrepararArquivoXML(sNaPasta(pedido_.sPasta, sRoteiro));
    for (const XmlElement& elemento : documento.elements("SQL"))
      if (elemento.children.size() == 1) vExecutar(conexao, elemento.children.front());
    conexao.commitTrans();
    conexao.close();
  }

  void vAbrirEmpresa() {
    const std::string sPasta = pedido_.sPasta + files::separator;
    Connection& doPrograma = programa_.dbConectar().Dados();
    vExecutar(doPrograma, "INSERT INTO Empresas (sNomeArquivo, sCaminho) VALUES (" + sTexto(sArquivoEmpresa) + ", " +
                              sTexto(sPasta) + ")");
    const Recordset rs("SELECT MAX(lCodigo) AS Valor FROM Empresas", doPrograma);
    if (!programa_.empresas().bSetEmpresa(rs.field("Valor").toLong(), sArquivoEmpresa, sPasta, false))
      throw Error(errors::storeNotOpened, "A empresa da demonstração não pôde ser aberta.");
  }

  void vFazerNegocios() {
    Connection& daEmpresa = programa_.dbEmpresa().Dados();
    daEmpresa.beginTrans();
    vCadastrarDadosEmpresa(programa_);
    const Registros registros = cadastrarEmpresa(programa_);
    vViverUmAno(programa_, registros, relogio_, pedido_.hoje);
    daEmpresa.commitTrans();
  }

  std::int32_t lContar(const char* sTabela) {
    const Recordset rs(std::string("SELECT COUNT(lCodigo) AS Valor FROM ") + sTabela, programa_.dbEmpresa().Dados());
    return rs.field("Valor").toLong();
  }

  const Pedido& pedido_;
  Anfitriao anfitriao_;
  Relogio relogio_;
  Correio correio_;
  Rede rede_;
  Impressoras impressoras_;
  Programa programa_;
};

}  // namespace

void vDesfazer(const std::string& sPasta) {
  for (const char* sArquivo : {sArquivoPrograma, sArquivoEmpresa, sUltimaEmpresa}) {
    files::remove(sNaPasta(sPasta, sArquivo));
    files::remove(sNaPasta(sPasta, std::string(sArquivo) + "-journal"));
  }
}

Resumo preencher(const Pedido& pedido) {
  vExigirPastaSemDados(pedido.sPasta);
  try {
    vTrazerArquivos(pedido);
    return Obra(pedido).fazer();
  } catch (const Error&) {
    vDesfazer(pedido.sPasta);
    throw;
  }
}

}  // namespace fenvale::demonstracao
