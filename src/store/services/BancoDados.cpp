#include "store/services/BancoDados.h"

#include <cstdlib>

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/os/Process.h"
#include "shell/services/Contexto.h"
#include "shell/services/Tela.h"
#include "shell/services/TratadorExcessoes.h"
#include "store/services/DBConectar.h"
#include "store/services/XML.h"

namespace fenvale {
namespace {

/// What an engine says to a table or field that exists already, and to a statement that does not apply.
bool bJaAplicada(std::int32_t numero) {
  return numero == errors::refused || numero == errors::columnExists || numero == errors::syntax;
}

bool bConexaoFechada(std::int32_t numero) {
  return numero == errors::objectClosed || numero == errors::connectionClosed;
}

/// A store that cannot be opened at all.
bool bArquivoInacessivel(std::int32_t numero) {
  switch (numero) {
    case errors::fileNotStore:
    case errors::storeDamaged:
    case errors::storeNotFound:
    case errors::storeNotOpened:
    case errors::storeReadOnly:
    case errors::storeLocked:
    case errors::diskFull:
      return true;
    default:
      return false;
  }
}

}  // namespace

BancoDados::BancoDados(Contexto& contexto) : contexto_(contexto) {}

bool BancoDados::bCriarArquivoMDB(const std::string& sCaminho) try {
  const std::string sArquivo = files::nativePath(sCaminho);
  createStore(sArquivo);
  files::restrictToOwnerAndGroup(sArquivo);  // passwords are kept in it as they were typed
  return true;
} catch (const Error& falha) {
  if (falha.number != errors::storeExists)
    contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "bCriarArquivoMDB");
  return false;
}

void BancoDados::vCopiarArquivoMDB(const std::string& sOrigem, const std::string& sDestino,
                                   const CopyProgress& progresso) {
  copyStore(sOrigem, sDestino, contexto_.dbEmpresa().ambiente(), progresso);
}

void BancoDados::vAtualizarBD(const std::string& sCaminhoXMLSQL, bool bEmpresa) try {
  const XmlDocument documento = XML(contexto_).docPrepararArquivoNecessario(sCaminhoXMLSQL);
  std::int16_t iAplicadas = 0;
  for (const XmlElement& elemento : documento.elements("SQL")) {
    contexto_.host().doEvents();
    if (elemento.children.size() == 1)
      iAplicadas = toInt16(iAplicadas + iExecutarAtualizacoesBD(elemento.children.front(), bEmpresa));
  }
  if (iAplicadas == 0) return vExecutarAtualizacaoCampos(sCaminhoXMLSQL);
  Caixas(contexto_.host())
      .informar("Banco de Dados atualizado." + std::string(lineBreak) +
                "Execute o programa novamente para concluir a atualização.");
  vFecharConexaoADO();
  contexto_.processo().end(exitRestart);
} catch (const Error& falha) {
  if (falha.number == errors::refused || falha.number == errors::objectNotSet || bArquivoInacessivel(falha.number))
    vFalhaAtualizacao(falha.description);
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "vAtualizarBD");
}

void BancoDados::vExecutarAtualizacaoCampos(const std::string& sCaminhoXMLSQL) try {
  const XmlDocument documento = XML(contexto_).docPrepararArquivoNecessario(sCaminhoXMLSQL);
  for (const XmlElement& elemento : documento.elements("UPDATE")) {
    contexto_.host().doEvents();
    if (elemento.children.size() == 1) iExecutarAtualizacoesBD(elemento.children.front(), false);
  }
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "vExecutarAtualizacaoCampos");
}

std::int16_t BancoDados::iExecutarAtualizacoesBD(const std::string& sSQL, bool bEmpresa) {
  Connection& conexao = bEmpresa ? contexto_.dbEmpresa().Dados() : contexto_.dbConectar().Dados();
  try {
    Recordset rs(sSQL, conexao);
    return 1;
  } catch (const Error& falha) {
    if (bJaAplicada(falha.number)) return 0;
    if (!bConexaoFechada(falha.number)) {
      contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "iExecutarAtualizacoesBD");
      return 0;
    }
  }
  // The statement that brings the connection up runs, but does not count as an update. A connection that cannot be
  // brought up fails here, so that a second attempt is never made on a closed one.
  if (!conexao.isOpen()) conexao.open();
  iExecutarAtualizacoesBD(sSQL, bEmpresa);
  return 0;
}

void BancoDados::vFecharConexaoADO() {
  Connection& conexao = contexto_.dbConectar().Dados();
  if (conexao.isOpen()) conexao.close();
}

void BancoDados::vFalhaAtualizacao(const std::string& sDetalhe) {
  std::string sTexto;
  for (const std::string& sLinha :
       {std::string("Falha ao atualizar o Banco de Dados."), std::string("O programa será finalizado."),
        std::string("Tente executar o programa mais tarde, "),
        std::string("e se o problema persistir, contate o suporte técnico."),
        std::string("e-mail de suporte: ") + sEmailSuporte, std::string(), std::string("Informação detalhada: "),
        std::string()})
    sTexto += sLinha + std::string(lineBreak);
  Caixas(contexto_.host()).criticar(sTexto + sDetalhe);
  vFecharConexaoADO();
  contexto_.processo().end(exitFailure);
  std::abort();  // the compiler does not see through the interface that nothing comes back
}

}  // namespace fenvale
