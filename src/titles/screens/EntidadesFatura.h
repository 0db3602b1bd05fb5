#pragma once
// Who and what an invoice belongs to: customer or supplier, bearer, salesperson where the side has one, cost centre.
// Four lookup fields that the screens of invoices and titles share, and their searches.

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

/// A lookup box with the buttons of its searches and, where new rows may be added, of its register.
class CampoEntidade {
 public:
  struct Descricao {
    std::string sCaixa;     ///< "txtPortador"
    std::string sRotulo;    ///< "Portador"
    std::string sAcesso;    ///< the letter of its access key, in the label
    std::string sNovo;      ///< "cmdNovoPortador"; empty: without the register
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
  const std::unique_ptr<Button> cmdNovo;
  CampoBusca busca;

  const Descricao& descricao() const { return descricao_; }
  LayoutNode campo(int largura);
};

class EntidadesFatura {
 public:
  enum class Uso { cadastro, filtro };  ///< a filter has no buttons of the registers
  EntidadesFatura(Screen& tela, Contexto& contexto, const Lado& lado, Uso uso, const std::string& sInformePessoa = {});

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
  /// The columns of a list with their keys and names fill them.
  void vLigarColunas(std::vector<ColunaLista>& colunas);
  /// The fields in rows of their own.
  std::vector<LayoutNode> linhas();

  /// The keys, in the order of buscas(), to be given back after a save that failed.
  std::vector<std::int32_t> chaves() const;
  void vRestaurarChaves(const std::vector<std::int32_t>& chaves);

 private:
  Contexto& contexto_;
};

}  // namespace fenvale
