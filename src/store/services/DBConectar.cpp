#include "store/services/DBConectar.h"

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "shell/services/Contexto.h"
#include "shell/services/Funcoes.h"
#include "shell/services/Tela.h"
#include "shell/services/TratadorExcessoes.h"
#include "store/services/BancoDados.h"
#include "store/services/Empresas.h"
#include "store/services/Sistema.h"

namespace fenvale {
namespace {

std::string sTextoConexao(const std::string& sCaminho) {
  return "Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=" + sCaminho;
}

}  // namespace

DBConectar::DBConectar(Contexto& contexto, StoreEnvironment ambiente) : contexto_(contexto), conexao_(ambiente) {}

Connection& DBConectar::Dados() {
  if (!bIniciado) {
    bIniciado = true;
    DataEnvironment_Initialize();
  }
  return conexao_;
}

void DBConectar::DataEnvironment_Initialize() try {
  if (conexao_.isOpen()) return;
  const std::string sPasta = contexto_.sGetCaminhoAplicacao() + files::separator;
  const std::string sIni = sPasta + "init.ini";
  for (;;) {
    sNomeBD = BancoDados::sGetNomeBD();
    if (files::isFile(sIni)) {
      sCaminhoBD = sVerificarConteudoIni();
    } else if (files::isFile(sPasta + sNomeBD)) {
      sCaminhoBD = files::nativePath(sPasta + sNomeBD);
    } else {
      Funcoes(contexto_).vMostrarFormModal("frmLocalizarBD");
      sCaminhoBD = sVerificarConteudoIni();
    }
    if (files::isFile(sCaminhoBD)) break;
    files::remove(sIni);
  }
  conexao_.setConnectionString(sTextoConexao(files::nativePath(sCaminhoBD)));
} catch (const Error& falha) {
  if (falha.number != errors::objectNotSet)
    contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "DataEnviroment_Initialize");
}

std::string DBConectar::sVerificarConteudoIni() try {
  const auto linhas = files::lines(files::read(contexto_.sGetCaminhoAplicacao() + files::separator + "init.ini"));
  return linhas.empty() ? std::string() : linhas.front();
} catch (const Error& falha) {
  if (falha.number != errors::fileNotFound)
    contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "sVerificarConteudoIni");
  return {};
}

DBEmpresa::DBEmpresa(Contexto& contexto, StoreEnvironment ambiente)
    : contexto_(contexto), ambiente_(ambiente), conexao_(ambiente) {}

Connection& DBEmpresa::Dados() {
  if (!bIniciado) bSetEmpresa(false);
  return conexao_;
}

bool DBEmpresa::bSetEmpresa(bool bMensagem) {
  bIniciado = true;
  const Empresas& empresas = contexto_.empresas();
  const std::string sArquivo = empresas.sGetCaminho() + empresas.sGetNomeArquivo();
  const auto recusar = [&](const std::string& sCausa) {
    const std::string quebra(lineBreak);
    if (bMensagem) Caixas(contexto_.host()).avisar(sArquivo + quebra + quebra + sCausa);
    return false;
  };
  if (!files::isFile(sArquivo)) return recusar("O arquivo não foi localizado.");
  if (conexao_.isOpen()) conexao_.close();
  conexao_.setConnectionString(sTextoConexao(files::nativePath(sArquivo)));
  try {
    // A trial: what cannot be opened at all is told as a missing file is. The script's first statement opens it to
    // stay.
    conexao_.open();
    conexao_.close();
  } catch (const Error& falha) {
    if (conexao_.isOpen()) conexao_.close();
    return recusar(falha.description);
  }
  BancoDados(contexto_).vAtualizarBD(contexto_.sGetCaminhoAplicacao() + files::separator + "SQLEmpresas.xmlSQL", true);
  Sistema sistema(contexto_);
  sistema.vCadastrarCidades(true, false);
  sistema.vCadastrarBancos();
  return true;
}

}  // namespace fenvale
