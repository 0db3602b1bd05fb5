#include "store/services/Empresas.h"

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/ui/Choices.h"
#include "shell/services/Contexto.h"
#include "shell/services/Funcoes.h"
#include "shell/services/JanelaPrincipal.h"
#include "shell/services/Tela.h"
#include "shell/services/TratadorExcessoes.h"
#include "store/services/DBConectar.h"
#include "store/services/XML.h"

namespace fenvale {
namespace {

/// A value as it stands in Empresa.XML: beyond the system's own replacement, every character that a plain file without
/// a declared encoding cannot hold, and the one that would open an element, become references.
std::string sValorXML(const std::string& sValor) {
  std::string sResultado;
  const std::string sSubstituido = XML::sSubstituirCaracteres(sValor);
  for (std::size_t place = 0; place < sSubstituido.size();) {
    const auto [code, bytes] = decodeUtf8(sSubstituido, place);
    if (code >= 0x80 || code == U'<') {
      sResultado += "&#" + std::to_string(static_cast<std::uint32_t>(code)) + ";";
    } else {
      sResultado += sSubstituido.substr(place, bytes);
    }
    place += bytes;
  }
  return sResultado;
}

}  // namespace

Empresas::Empresas(Contexto& contexto) : contexto_(contexto) {}

bool Empresas::bSetEmpresa(std::int32_t lCodigo, const std::string& sNomeArquivo, const std::string& sCaminho,
                           bool bMensagem) try {
  JanelaPrincipal& janela = contexto_.janelaPrincipal();
  const std::string sPrograma = contexto_.tratadorExcessoes().sGetNomePrograma();
  if (lCodigo < 1) {
    lCodigo_ = 0;
    sNomeArquivo_.clear();
    sCaminho_.clear();
    janela.vSetLegenda(sPrograma);
    vFecharEmpresa();
    janela.vAtualizarBarraEstado();
    return false;
  }
  lCodigo_ = lCodigo;
  sNomeArquivo_ = sNomeArquivo;
  sCaminho_ = sCaminho;
  const bool bAberta = contexto_.dbEmpresa().bSetEmpresa(true);
  if (bAberta) {
    janela.vSetLegenda(sPrograma + "   -     Empresa: " + sNomeArquivo_ + "     -     Caminho: " + sCaminho_);
  } else {
    vFecharEmpresa();
  }
  janela.vAtualizarBarraEstado();
  if (bAberta && bMensagem) Caixas(contexto_.host()).informar("Empresa selecionada com sucesso.");
  return bAberta;
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "bSetEmpresa");
  return false;
}

void Empresas::vFecharEmpresa() {
  Connection& conexao = contexto_.dbEmpresa().Dados();
  if (conexao.isOpen()) conexao.close();
}

bool Empresas::bSelecionouEmpresa(bool bMensagem) {
  const bool bAberta = contexto_.dbEmpresa().Dados().isOpen();
  if (!bAberta && bMensagem) Caixas(contexto_.host()).avisar("Selecione uma empresa.");
  return bAberta;
}

void Empresas::vSetUltimaEmpresaSelecionada() try {
  std::string sConteudo;
  for (const std::string& sLinha :
       {std::string("<root>"), std::string("<emp>"), "<cod>" + std::to_string(lCodigo_) + "</cod>",
        "<file>" + sValorXML(sNomeArquivo_) + "</file>", "<path>" + sValorXML(sCaminho_) + "</path>",
        std::string("</emp>"), std::string("</root>")})
    sConteudo += sLinha + std::string(lineBreak);
  files::write(sArquivoUltimaEmpresa(), sConteudo);
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "vSetUltimaEmpresaSelecionada");
}

bool Empresas::bSetEmpresaXML() try {
  if (!files::isFile(sArquivoUltimaEmpresa())) return false;
  const XmlDocument documento = XML(contexto_).docPrepararArquivoXML(sArquivoUltimaEmpresa());
  const auto elementos = documento.elements("emp");
  if (elementos.empty() || elementos.front().children.size() != 3) return false;
  const auto& filhos = elementos.front().children;
  return bSetEmpresa(readInt32(filhos[0]), filhos[1], filhos[2], false);
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "bSetEmpresaXML");
  return false;
}

void Empresas::vVerificarDadosEmpresa() try {
  const auto bCadastrados = [this] {
    return !Recordset("SELECT * FROM DadosEmpresa", contexto_.dbEmpresa().Dados(), CursorType::dynamic,
                      LockType::pessimistic)
                .eof();
  };
  while (!bCadastrados()) {
    Caixas(contexto_.host()).avisar("Informe os dados da empresa.");
    Funcoes(contexto_).vMostrarFormModal("frmEmpresa");
  }
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "vVerificarDadosEmpresa");
}

void Empresas::vGetLogo(Image& imgDestino, const std::string& sCampo) try {
  const Recordset rs("SELECT " + sCampo + " FROM DadosEmpresa ", contexto_.dbEmpresa().Dados(), CursorType::dynamic,
                     LockType::readOnly);
  if (rs.eof()) return;
  const std::string sFigura = rs.field(sCampo).toText();
  if (files::isFile(sFigura)) imgDestino.setPicture(files::nativePath(sFigura));
} catch (const Error& falha) {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), "vGetLogo");
}

std::string Empresas::sArquivoUltimaEmpresa() const {
  return contexto_.sGetCaminhoAplicacao() + files::separator + "Empresa.XML";
}

}  // namespace fenvale
