#pragma once
// Default rows, next codes, the uniqueness test, and the seeding of cities and banks.

#include <cstdint>
#include <string>

namespace fenvale {

class Contexto;

class Sistema {
 public:
  explicit Sistema(Contexto& contexto);
  static const char* sGetName() { return "Sistema"; }

  /// Whether the first row with that value is another than lCodigo. An empty value is never there.
  bool bExisteCampo(const std::string& sValor, const std::string& sTabela, const std::string& sCampo,
                    std::int32_t lCodigo);
  /// The largest code plus 1 as text; lValorBase plus 1 for an empty table. Only proposed, nothing reserves it.
  std::string sGetProximoCodigoNumerico(const std::string& sTabela, const std::string& sCampo, std::int32_t lValorBase,
                                        bool bEmpresa);

  // The hidden default rows, made when missing.
  std::int32_t lGetCondicaoPagamentoPadrao();
  std::int32_t lGetCentroCustoPadrao();
  std::int32_t lGetCategoriaPadrao();
  std::int32_t lGetVendedorPadrao();

  void vCadastrarCidades(bool bEmpresa, bool bMensagem);
  void vPovoarRelacaoCidades(const std::string& sCaminho, bool bEmpresa);
  void vCadastrarBancos();
  void vPovoarRelacaoBancos(const std::string& sCaminho);

 private:
  Contexto& contexto_;
};

}  // namespace fenvale
