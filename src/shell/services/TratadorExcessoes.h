#pragma once
// The one failure report: a file, a box, a mail if the user wants one, and usually the end of the program.

#include <string>

namespace fenvale {

class Contexto;
struct Error;

/// The address of technical support.
inline constexpr const char* sEmailSuporte = "suporte@norvane.example";

class TratadorExcessoes {
 public:
  explicit TratadorExcessoes(Contexto& contexto);
  /// Deletes the program's *.tmp files.
  ~TratadorExcessoes();
  static const char* sGetName() { return "TratadorExcessoes"; }

  const std::string& sGetNomePrograma() const { return sNomePrograma; }
  /// major "." minor "." revision
  static std::string sGetVersao();

  /// Never raises. With the option 1 the program ends after the report, with 2 it goes on.
  void vExibirGravarLogErro(const std::string& sNumero, const std::string& sDescricao, const std::string& sModulo,
                            const std::string& sProcedimento, int iOpcao);
  void vExibirGravarLogErro(const Error& falha, const std::string& sModulo, const std::string& sProcedimento,
                            int iOpcao = 1);

 private:
  struct ConfiguracaoEmail;
  void vGravarRelatorio();
  void vOferecerEnvio();
  bool bLerConfiguracaoEmail(ConfiguracaoEmail& configuracao) const;
  std::string sLerSistemaIni() const;

  Contexto& contexto_;
  std::string sNomePrograma = "Gestor Fenvale - Versão ZENIT";
  std::string sArquivo;
  std::string sCorpo;
};

}  // namespace fenvale
