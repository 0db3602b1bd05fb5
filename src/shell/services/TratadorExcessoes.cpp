#include "shell/services/TratadorExcessoes.h"

#include <algorithm>

#include "platform/base/Date.h"
#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "shell/services/ANSMTP.h"
#include "shell/services/Contexto.h"
#include "shell/services/DadosPC.h"
#include "shell/services/Tela.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

constexpr const char* sTituloPrograma = "Gestor Fenvale";
constexpr int iOpcaoTerminar = 1;

std::string linha(const std::string& sTexto) { return sTexto + std::string(lineBreak); }

/// The last stop: what goes wrong while a failure is being told is told in a box and nothing more is tried.
void vTratarFalhaPropria(Contexto& contexto, const Error& falha) {
  Caixas(contexto.host()).criticar(linha("Erro no tratador de excessões.") + falha.description, "Erro");
}

}  // namespace

struct TratadorExcessoes::ConfiguracaoEmail {
  std::string sSMTP, sRemetente, sUID, sPWD;
};

TratadorExcessoes::TratadorExcessoes(Contexto& contexto) : contexto_(contexto) {}

TratadorExcessoes::~TratadorExcessoes() {
  for (const std::string& sTemporario : files::withEnding(contexto_.sGetCaminhoAplicacao(), ".tmp")) {
    try {
      files::remove(sTemporario);
    } catch (const Error&) {  // a scratch file that stays behind harms nobody
    }
  }
}

std::string TratadorExcessoes::sGetVersao() { return FENVALE_VERSION; }

void TratadorExcessoes::vExibirGravarLogErro(const Error& falha, const std::string& sModulo,
                                             const std::string& sProcedimento, int iOpcao) {
  vExibirGravarLogErro(std::to_string(falha.number), falha.description, sModulo, sProcedimento, iOpcao);
}

void TratadorExcessoes::vExibirGravarLogErro(const std::string& sNumero, const std::string& sDescricao,
                                             const std::string& sModulo, const std::string& sProcedimento, int iOpcao) {
  try {
    const DateTime momento = contexto_.relogio().now();
    sArquivo = formatMoment(momento, "yymmddhhnnss") + ".err";
    const std::string sIP = DadosPC(contexto_).sVerificarIP();
    const std::string sHost = DadosPC(contexto_).sVerificarHost();
    sCorpo = linha(sNomePrograma + " " + sGetVersao()) +
             linha(std::string("Nome do programa: ") + sTituloPrograma + " " + sGetVersao()) + linha("IP: " + sIP) +
             linha("Host: " + sHost) + linha("Data: " + formatMoment(momento, "dd/mm/yyyy")) +
             linha("Hora: " + formatMoment(momento, "hh:nn:ss")) + linha("Formulário: " + sModulo) +
             linha("Função: " + sProcedimento) + linha("Número do erro: " + sNumero) +
             linha("Descrição do erro: " + sDescricao) + linha("") + linha("") + sLerSistemaIni();
    vGravarRelatorio();
    vOferecerEnvio();
  } catch (const Error& falha) {
    return vTratarFalhaPropria(contexto_, falha);
  }
  if (iOpcao == iOpcaoTerminar) contexto_.processo().end(exitFailure);
}

void TratadorExcessoes::vGravarRelatorio() {
  const std::string sPasta = contexto_.sGetCaminhoAplicacao() + "/Erros";
  files::createFolder(sPasta);
  files::write(sPasta + files::separator + sArquivo, toWindows1252(sCorpo));
}

void TratadorExcessoes::vOferecerEnvio() {
  const Caixas caixas(contexto_.host());
  if (!caixas.perguntar(linha("Ocorreu um erro no sistema.") + linha("") +
                            linha("Deseja enviar um relatório dos erros?") + linha("") +
                            "Se o problema persistir, contate o suporte técnico.",
                        BoxStyle::question, sNomePrograma + " - Erro"))
    return;
  ConfiguracaoEmail configuracao;
  if (!bLerConfiguracaoEmail(configuracao)) return caixas.criticar("As configurações do e-mail estão incompletas.");
  ANSMTP(contexto_).vEnviarEmail(configuracao.sSMTP, sEmailSuporte,
                                 "Erro no programa " + sNomePrograma + " " + sGetVersao(), sCorpo, configuracao.sUID,
                                 configuracao.sPWD, configuracao.sRemetente);
}

bool TratadorExcessoes::bLerConfiguracaoEmail(ConfiguracaoEmail& configuracao) const try {
  const Recordset rs("SELECT * FROM Configuracoes ", contexto_.dbConectar().Dados());
  if (rs.eof()) return false;
  configuracao.sSMTP = rs["sSMTP"].toText();
  configuracao.sRemetente = rs["sEmailRementente"].toText();
  if (configuracao.sSMTP.empty() || configuracao.sRemetente.empty()) return false;
  if (!rs["bitAutenticacao"].toBoolean()) return true;
  configuracao.sUID = rs["sUID"].toText();
  configuracao.sPWD = rs["sPWD"].toText();
  return !configuracao.sUID.empty() && !configuracao.sPWD.empty();
} catch (const Error& falha) {
  vTratarFalhaPropria(contexto_, falha);
  return false;
}

std::string TratadorExcessoes::sLerSistemaIni() const try {
  const std::string sCaminho = contexto_.sGetCaminhoAplicacao() + "/Sistema.ini";
  if (!files::isFile(sCaminho)) return {};
  std::string sTexto;
  for (const std::string& sLinha : files::lines(files::read(sCaminho))) sTexto += linha(fromWindows1252(sLinha));
  return sTexto;
} catch (const Error& falha) {
  vTratarFalhaPropria(contexto_, falha);
  return {};
}

}  // namespace fenvale
