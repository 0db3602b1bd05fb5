#pragma once
// Who and what an invoice belongs to: customer or supplier, bearer, salesperson where the side has one, cost centre.
// Four lookup fields that the invoice screen and the title screen share.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/ui/Boxes.h"
#include "registers/services/CampoBusca.h"
#include "registers/services/TelaPaginada.h"
#include "shell/services/ComandosSQL.h"

namespace fenvale {

struct Lado;

/// A lookup box with its two buttons.
class CampoEntidade {
 public:
  struct Descricao {
    std::string sCaixa;     ///< "txtPortador"
    std::string sRotulo;    ///< "Portador"
    std::string sAcesso;    ///< the letter of its access key, in the label
    std::string sNovo;      ///< "cmdNovoPortador"
    std::string sCadastro;  ///< "frmCadastroPortadores"
    std::string sBusca;     ///< "frmLocalizarPortadoresRapido"
    std::string sColuna;    ///< "lPortador"
    std::string sInforme;   ///< what is told when none was chosen; empty: it may be left out
  };
  /// `proximo` gets the focus after a search.
  CampoEntidade(Screen& tela, Contexto& contexto, Descricao descricao, Control* proximo);

 private:
  Descricao descricao_;  // read by the members below

 public:
  LookupBox caixa;
  Button cmdNovo;
  CampoBusca busca;

  const Descricao& descricao() const { return descricao_; }
  LayoutNode campo(int largura);
};

class EntidadesFatura {
 public:
  /// `depoisDaPessoa` follows customer or supplier on the screen; without it the bearer does.
  EntidadesFatura(Screen& tela, Contexto& contexto, const Lado& lado, const std::string& sInformePessoa,
                  Control* depoisDaPessoa = nullptr);

  // Made from the last to the first: each names the one that follows it on the screen.
  CampoEntidade centroCusto;
  const std::unique_ptr<CampoEntidade> vendedor;  ///< nothing on a side without salespeople
  CampoEntidade portador;
  CampoEntidade pessoa;

  std::vector<CampoBusca*> buscas();
  /// Those that must be chosen, in the order in which they are asked for.
  std::vector<CampoEntidade*> obrigatoriasDepoisDaPessoa();
  void vCompletarCentroCusto();

  /// The columns of an invoice that name them; with a condition's key behind the person's, where one is written.
  ValoresSQL valores(std::optional<std::int32_t> lCondicoesPagamento = std::nullopt) const;
  // Of each a hidden column with the key and a column with the name.
  std::vector<ColunaLista> colunasPessoa(const Lado& lado);
  std::vector<ColunaLista> colunasPortador();
  std::vector<ColunaLista> colunasVendedor();
  std::vector<ColunaLista> colunasCentroCusto();

  /// The keys, in the order of buscas(), to be given back after a save that failed.
  std::vector<std::int32_t> chaves() const;
  void vRestaurarChaves(const std::vector<std::int32_t>& chaves);

 private:
  static std::vector<ColunaLista> colunas(CampoEntidade& entidade, const std::string& sNomeNaFrase,
                                          const std::string& sCampoNome, float fLargura);

  Contexto& contexto_;
};

/// Columns are listed in the order in which they stand, group after group.
void vAcrescentar(std::vector<ColunaLista>& colunas, std::vector<ColunaLista> outras);

}  // namespace fenvale
