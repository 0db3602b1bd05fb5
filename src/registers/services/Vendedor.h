#pragma once
// The salesperson that a box of a screen stands for, and the search that fills both.

#include <cstdint>
#include <string>

namespace fenvale {

class TextControl;

class Vendedor {
 public:
  static const char* sGetName() { return "Vendedor"; }

  const std::string& sGetNome() const { return sNome_; }
  /// The key; -1 when nobody was chosen.
  std::int32_t lGetCodigo() const { return lCodigo_; }
  void vSetEstado(std::int32_t lCodigo, const std::string& sNome);

 private:
  std::string sNome_;
  std::int32_t lCodigo_ = -1;
};

/// The quick search of salespeople, for a caller that has no callback.
class TelaBuscaVendedores {
 public:
  virtual ~TelaBuscaVendedores() = default;
  /// Searches once with an empty box and shows itself modally. A picked row is put into `vendedor` and its name into
  /// `caixa`; both must outlive the search.
  virtual void vLocalizarOBJ(Vendedor& vendedor, TextControl& caixa) = 0;
};

}  // namespace fenvale
