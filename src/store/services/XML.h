#pragma once
// The one door to XML files: loads a document and, when raw accented characters keep it from being parsed, offers to
// repair the file in place.

#include <string>
#include <string_view>

#include "platform/xml/XmlDocument.h"

namespace fenvale {

class Contexto;

/// One object per user: it remembers that a repair was offered, and a second failure is fatal.
class XML {
 public:
  explicit XML(Contexto& contexto);
  static const char* sGetName() { return "XML"; }

  XmlDocument docPrepararArquivoXML(const std::string& sCaminho);
  /// The same for a file that the program cannot do without: Error 91 when it is not there.
  XmlDocument docPrepararArquivoNecessario(const std::string& sCaminho);
  /// The text of the first child of the last element of that name; empty when there is none.
  std::string sGetTag(const std::string& sCaminho, const std::string& sTag);
  /// Rewrites the file with the characters replaced; what it was stays beside it under the ending "_INVALID_XML".
  void vValidarCaracteresXML(const std::string& sCaminho);
  /// The bytes of a file with the characters of every line replaced, each line ended by CR LF. Bytes that are valid
  /// UTF-8 throughout are read as that, all others as Windows-1252.
  static std::string sRevisar(const std::string& conteudo);
  /// "&" and the characters 128 to 255 of Windows-1252 as decimal references. Takes and gives UTF-8.
  static std::string sSubstituirCaracteres(std::string_view sTexto);

 private:
  Contexto& contexto_;
  bool bTentativa = false;
};

}  // namespace fenvale
