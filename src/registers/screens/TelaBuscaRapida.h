#pragma once
// The quick searches: one screen, a description each. The picked row goes back to whoever opened it.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "registers/screens/TelaEscolha.h"
#include "shell/services/TelaComLista.h"

namespace fenvale {

struct DescricaoBuscaRapida {
  std::string sNome;     ///< "frmLocalizarCategoriasRapido"
  std::string sLegenda;  ///< "Localizar categoria"
  std::string sTabela;
  std::string sCampoCodigo;
  /// The column whose beginning is searched for; empty: the exact code is.
  std::string sCampoTexto;
  bool bLinhaPadrao = false;  ///< keeps the hidden row out
  std::vector<ColunaLista> colunas;
  std::string sSelecao;  ///< columns of the list's query
  /// Hands the row over; Error 438 when the caller cannot take it.
  std::function<void(Screen& chamador, const Recordset& rs)> vDevolver;
};

const std::vector<DescricaoBuscaRapida>& buscasRapidas();
/// The description of that name, which must be one of them.
const DescricaoBuscaRapida& buscaRapida(std::string_view sNome);

class TelaBuscaRapida : public TelaEscolha, public TelaBusca {
 public:
  TelaBuscaRapida(Contexto& contexto, const DescricaoBuscaRapida& descricao);

  void vLocalizar(Screen& chamador) override;
  std::string sConsulta() const override;

 protected:
  /// Opens the search for whoever takes the picked row.
  void vAbrirPara(std::function<void(const Recordset& rs)> vReceber);
  void vEscolher(std::int32_t lChave) override;

 private:
  bool bPorCodigo() const { return descricao_.sCampoTexto.empty(); }

  const DescricaoBuscaRapida& descricao_;
  std::unique_ptr<TextControl> caixa_;
  std::function<void(const Recordset& rs)> vReceber_;
};

}  // namespace fenvale
