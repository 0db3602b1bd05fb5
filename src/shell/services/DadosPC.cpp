#include "shell/services/DadosPC.h"

#include "platform/base/Error.h"
#include "platform/os/Network.h"
#include "shell/services/Contexto.h"
#include "shell/services/Tela.h"

namespace fenvale {
namespace {

constexpr const char* sTituloErro = "Erro";
constexpr std::uint16_t iVersaoPedida = 0x0101;
constexpr int iMinimoSockets = 1;

}  // namespace

DadosPC::DadosPC(Contexto& contexto) : contexto_(contexto) {}

std::string DadosPC::sVerificarIP() {
  if (!SocketsInitialize()) return {};
  const Caixas caixas(contexto_.host());
  std::string sHost;
  try {
    sHost = contexto_.rede().hostName();
  } catch (const Error& falha) {
    caixas.criticar("Erro no Windows Socket. " + std::to_string(falha.number), sTituloErro);
    SocketsCleanup();
    return {};
  }
  std::string sEndereco;
  try {
    sEndereco = contexto_.rede().address(sHost);
  } catch (const Error&) {
    caixas.criticar("Winsock.dll não está respondendo.", sTituloErro);
  }
  SocketsCleanup();
  return sEndereco;
}

std::string DadosPC::sVerificarHost() {
  if (!SocketsInitialize()) return {};
  std::string sHost;
  try {
    sHost = contexto_.rede().hostName();
  } catch (const Error& falha) {
    Caixas(contexto_.host()).criticar("Erro no Windows Socket. " + std::to_string(falha.number), sTituloErro);
  }
  SocketsCleanup();
  return sHost;
}

bool DadosPC::SocketsInitialize() {
  const Caixas caixas(contexto_.host());
  const SocketLibrary biblioteca = contexto_.rede().start(iVersaoPedida);
  if (biblioteca.error != 0) {
    caixas.criticar("Winsock.dll is not responding.", sTituloErro);
    return false;
  }
  const int iMaior = lobyte(biblioteca.version);
  const int iMenor = hibyte(biblioteca.version);
  if (iMaior < lobyte(iVersaoPedida) || (iMaior == lobyte(iVersaoPedida) && iMenor < hibyte(iVersaoPedida))) {
    caixas.criticar("Windows Sockets version " + std::to_string(iMaior) + "." + std::to_string(iMenor) +
                        " is not supported by winsock.dll ",
                    sTituloErro);
    SocketsCleanup();
    return false;
  }
  if (biblioteca.maximumSockets < iMinimoSockets) {
    caixas.criticar("This application requires a minimum of " + std::to_string(iMinimoSockets) + " supported sockets.",
                    sTituloErro);
    return false;
  }
  return true;
}

void DadosPC::SocketsCleanup() {
  if (const int codigo = contexto_.rede().stop(); codigo != 0)
    Caixas(contexto_.host()).criticar("Socket error " + std::to_string(codigo) + " occurred in Cleanup ", sTituloErro);
}

}  // namespace fenvale
