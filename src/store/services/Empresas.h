#pragma once
// The company that is open: which one it is, opening another, and remembering the last one between runs.

#include <cstdint>
#include <string>

namespace fenvale {

class Contexto;
class Image;

class Empresas {
 public:
  explicit Empresas(Contexto& contexto);
  static const char* sGetName() { return "Empresas"; }

  /// lCodigo below 1 closes. False when no company is open afterwards.
  bool bSetEmpresa(std::int32_t lCodigo, const std::string& sNomeArquivo, const std::string& sCaminho, bool bMensagem);
  const std::string& sGetNomeArquivo() const { return sNomeArquivo_; }
  /// Its folder with the separator at its end: "/" as the program writes it, "\\" from a file of another system.
  const std::string& sGetCaminho() const { return sCaminho_; }
  std::int32_t lGetCodigo() const { return lCodigo_; }
  /// Whether a company is open; says "Selecione uma empresa." if not and bMensagem.
  bool bSelecionouEmpresa(bool bMensagem);
  /// Writes Empresa.XML.
  void vSetUltimaEmpresaSelecionada();
  /// Reopens the company of Empresa.XML, if that file exists.
  bool bSetEmpresaXML();
  /// Shows frmEmpresa until the row DadosEmpresa exists.
  void vVerificarDadosEmpresa();
  /// sCampo is txtCaminhoFigura or txtFiguraPromissoria.
  void vGetLogo(Image& imgDestino, const std::string& sCampo);

 private:
  void vFecharEmpresa();
  std::string sArquivoUltimaEmpresa() const;
  Contexto& contexto_;
  std::string sNomeArquivo_;
  std::string sCaminho_;
  std::int32_t lCodigo_ = 0;
};

}  // namespace fenvale
