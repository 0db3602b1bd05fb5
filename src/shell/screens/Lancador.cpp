#include "shell/screens/Lancador.h"

#include "access/services/Permissoes.h"
#include "platform/base/Error.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "platform/ui/UiHost.h"
#include "shell/screens/frmSplash.h"
#include "shell/services/Contexto.h"
#include "shell/services/Funcoes.h"
#include "shell/services/JanelaPrincipal.h"
#include "shell/services/Tela.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "shell/services/TratadorExcessoes.h"
#include "store/services/BancoDados.h"
#include "store/services/DBConectar.h"
#include "store/services/Sistema.h"

namespace fenvale {
namespace {

constexpr const char* sQuadroGeral = "frmMostrarContas";

}  // namespace

void Lancador::Main(bool bPrimeiraInstancia) try {
  if (!bPrimeiraInstancia) {
    Caixas(contexto_.host()).avisar("Uma instância do programa já encontra-se em execução.");
    contexto_.processo().end(0);
  }
  vPrepararBancoDados();
  contexto_.telas().obter<frmSplash>("frmSplash").vCarregar();
  contexto_.host().show(contexto_.telas().obter("frmMDIPrincipal"));
  vExigirPrimeiroUsuario();
  if (contexto_.permissoes().bFazerLogin()) vMostrar("frmLogin");

  Funcoes funcoes(contexto_);
  JanelaPrincipal& janela = contexto_.janelaPrincipal();
  janela.vHabilitar(funcoes.bSetAmpulhetaMouse(false));
  vMostrarQuadroAoIniciar();
  janela.vHabilitar(funcoes.bSetAmpulhetaMouse(true));

  if (!bVerificarDadosSistema()) contexto_.processo().end(0);
  janela.vAtualizarBarraEstado();
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "Main");
}

void Lancador::vPrepararBancoDados() {
  const std::string& sPasta = contexto_.sGetCaminhoAplicacao();
  BancoDados bancoDados(contexto_);
  bancoDados.bCriarArquivoMDB(sPasta + "/Dados.MDB");
  bancoDados.vAtualizarBD(sPasta + "/SQL.xmlSQL", false);
  Sistema(contexto_).vCadastrarCidades(false, true);
}

void Lancador::vMostrar(const char* sTela) { Funcoes(contexto_).vMostrarFormModal(sTela); }

bool Lancador::bHaLinhas(const char* sSQL) {
  Recordset rs(sSQL, contexto_.dbConectar().Dados(), CursorType::keyset, LockType::optimistic);
  return rs.recordCount() != 0;
}

void Lancador::vExigirPrimeiroUsuario() {
  if (!bHaLinhas("SELECT * FROM Usuarios ")) vMostrar("frmCadastroUsuarios");
}

void Lancador::vMostrarQuadroAoIniciar() {
  if (!contexto_.dbEmpresa().Dados().isOpen()) return;
  const auto quadro = [this]() -> TelaQuadroGeral& { return contexto_.telas().obter<TelaQuadroGeral>(sQuadroGeral); };
  if (!quadro().bGetMostrarTodas()) return;
  quadro().vSetMotrarTodas(false);
  if (contexto_.permissoes().bGetPesquisar()) vMostrar(sQuadroGeral);
  quadro().vSetMotrarTodas(true);
}

bool Lancador::bVerificarDadosSistema() try {
  constexpr const char* sConsulta = "SELECT lCodigo FROM Sistema ";
  const Caixas caixas(contexto_.host());
  if (!bHaLinhas(sConsulta)) {
    caixas.avisar("Os dados do sistema ainda não foram cadastrados.\r\nPor favor informe esses dados.");
    vMostrar("frmSistema");
  }
  if (bHaLinhas(sConsulta)) return true;
  caixas.criticar("Os dados não foram informados e o sistema não poderá ser utilizado.");
  return false;
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "bVerificarDadosSistema");
  return false;
}

}  // namespace fenvale
