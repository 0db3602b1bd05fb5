#include "store/services/XML.h"

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/os/Process.h"
#include "shell/services/Contexto.h"
#include "shell/services/Tela.h"
#include "shell/services/TratadorExcessoes.h"

namespace fenvale {
namespace {

constexpr const char* sArquivoIntermediario = "/BUFFER_XML_FILE_VALIDACION";
constexpr const char* sFimArquivoInvalido = "_INVALID_XML";

std::string linha(const std::string& sTexto) { return sTexto + std::string(lineBreak); }

std::string sPerguntaRevisao(const std::string& sCaminho, const XmlParseError& erro) {
  return linha("O documento ") + linha(sCaminho) + linha("está mal formatado.") + linha("") +
         linha("Informação detalhada:") + linha("errorCode: " + std::to_string(erro.code)) +
         linha("filepos: " + std::to_string(erro.filePosition)) + linha("Line: " + std::to_string(erro.line)) +
         linha("linepos: " + std::to_string(erro.column)) + linha("ulr: " + erro.url) +
         linha("reason: " + erro.reason) + linha("") +
         "Deseja revisar a formatação e tentar processar novamente o arquivo?";
}

bool bUtf8(std::string_view bytes) {
  for (std::size_t place = 0; place < bytes.size();) {
    const auto [code, size] = decodeUtf8(bytes, place);
    if (size == 1 && static_cast<unsigned char>(bytes[place]) >= 0x80) return false;
    place += size;
  }
  return true;
}

/// The codes from 128 on that are left alone: those without a character, and the no-break blank.
bool bTemReferencia(int codigo) {
  return codigo >= 128 && codigo != 129 && codigo != 141 && codigo != 143 && codigo != 144 && codigo != 157 &&
         codigo != 160;
}

}  // namespace

XML::XML(Contexto& contexto) : contexto_(contexto) {}

XmlDocument XML::docPrepararArquivoXML(const std::string& sCaminho) {
  XmlDocument documento = XmlDocument::load(sCaminho);
  if (documento.sound()) return documento;
  const Caixas caixas(contexto_.host());
  if (bTentativa) {
    caixas.criticar(linha("A verificação falhou.") + "Contate o suporte técnico pelo e-mail: " + sEmailSuporte);
    contexto_.processo().end(exitFailure);
  }
  bTentativa = true;
  if (!caixas.perguntar(sPerguntaRevisao(sCaminho, documento.parseError()))) return documento;
  vValidarCaracteresXML(sCaminho);
  return docPrepararArquivoXML(sCaminho);
}

XmlDocument XML::docPrepararArquivoNecessario(const std::string& sCaminho) {
  if (!files::isFile(sCaminho)) throw Error(errors::objectNotSet, "O arquivo " + sCaminho + " não foi localizado.");
  return docPrepararArquivoXML(sCaminho);
}

std::string XML::sGetTag(const std::string& sCaminho, const std::string& sTag) try {
  const XmlDocument documento = docPrepararArquivoXML(sCaminho);
  std::string sTexto;
  for (const XmlElement& elemento : documento.elements(sTag))
    sTexto = elemento.children.empty() ? std::string() : elemento.children.front();
  return sTexto;
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "sGetTag");
  return {};
}

void XML::vValidarCaracteresXML(const std::string& sCaminho) try {
  if (!files::isFile(sCaminho)) return;
  const std::string sArquivo = files::nativePath(sCaminho);
  const std::string sIntermediario = contexto_.sGetCaminhoAplicacao() + sArquivoIntermediario;
  files::remove(sIntermediario);
  files::write(sIntermediario, sRevisar(files::read(sArquivo)));
  const std::string sInvalido = sArquivo + sFimArquivoInvalido;
  files::remove(sInvalido);
  files::rename(sArquivo, sInvalido);
  try {
    files::rename(sIntermediario, sArquivo);
  } catch (const Error&) {
    files::rename(sInvalido, sArquivo);  // a file that cannot be repaired is at least not lost
    throw;
  }
} catch (const Error& falha) {
  Caixas(contexto_.host()).criticar(falha.description);
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "vValidarCaracteresXML");
}

std::string XML::sRevisar(const std::string& conteudo) {
  // What people save today is UTF-8 as a rule, what they saved in former years Windows-1252: each is read as what it
  // is.
  const bool utf8 = bUtf8(conteudo);
  std::string revisto;
  for (const std::string& sLinha : files::lines(conteudo))
    revisto += linha(sSubstituirCaracteres(utf8 ? sLinha : fromWindows1252(sLinha)));
  return utf8 ? revisto : toWindows1252(revisto);
}

std::string XML::sSubstituirCaracteres(std::string_view sTexto) {
  std::string sResultado;
  for (std::size_t place = 0; place < sTexto.size();) {
    const auto [code, bytes] = decodeUtf8(sTexto, place);
    const int codigo = code == U'&' ? static_cast<int>(code) : windows1252Code(code);
    if (code == U'&' || bTemReferencia(codigo)) {
      sResultado += "&#" + std::to_string(codigo) + ";";
    } else {
      sResultado += sTexto.substr(place, bytes);
    }
    place += bytes;
  }
  return sResultado;
}

}  // namespace fenvale
