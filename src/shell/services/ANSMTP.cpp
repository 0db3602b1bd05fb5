#include "shell/services/ANSMTP.h"

#include "platform/base/Text.h"
#include "platform/mail/Mailer.h"
#include "shell/services/Contexto.h"
#include "shell/services/Tela.h"

namespace fenvale {

void ANSMTP::vEnviarEmail(const std::string& sServidor, const std::string& sDestinatario, const std::string& sAssunto,
                          const std::string& sMensagem, const std::string& sUsuario, const std::string& sSenha,
                          const std::string& sRemetente) {
  contexto_.host().doEvents();
  if (trim(sServidor).empty()) return;
  Mail mensagem{trim(sServidor), trim(sRemetente), sDestinatario, sAssunto, sMensagem, {}, {}};
  if (!trim(sUsuario).empty() && !trim(sSenha).empty() && !trim(sRemetente).empty()) {
    mensagem.user = sUsuario;
    mensagem.password = sSenha;
  }
  const std::string sFalha = contexto_.correio().send(mensagem);
  const Caixas caixas(contexto_.host());
  if (sFalha.empty()) {
    caixas.informar("Mensagem enviada para " + sDestinatario);
  } else {
    const std::string quebra(lineBreak);
    caixas.criticar("Erro ao enviar mensagem para " + sDestinatario + quebra + quebra + sFalha);
  }
}

}  // namespace fenvale
