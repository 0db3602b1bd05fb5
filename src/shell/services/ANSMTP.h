#pragma once
// Sends a mail and tells the user how it went.

#include <string>

namespace fenvale {

class Contexto;

class ANSMTP {
 public:
  explicit ANSMTP(Contexto& contexto) : contexto_(contexto) {}
  static const char* sGetName() { return "ANSMTP"; }

  /// Nothing is sent without a server. User and password count only when both and the sender are given.
  void vEnviarEmail(const std::string& sServidor, const std::string& sDestinatario, const std::string& sAssunto,
                    const std::string& sMensagem, const std::string& sUsuario, const std::string& sSenha,
                    const std::string& sRemetente);

 private:
  Contexto& contexto_;
};

}  // namespace fenvale
