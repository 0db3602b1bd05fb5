#include "registers/screens/TelasDosCadastros.h"

#include "registers/screens/BuscaCodigoNome.h"
#include "registers/screens/CadastroCodigoNome.h"
#include "registers/screens/TelaBuscaRapida.h"
#include "registers/screens/frmCadastroClientes.h"
#include "registers/screens/frmCadastroCondicoesPagamento.h"
#include "registers/screens/frmCadastroFornecedores.h"
#include "registers/screens/frmLocalizarBancos.h"
#include "registers/screens/frmLocalizarClientes.h"
#include "registers/screens/frmLocalizarCondicoesPagamento.h"
#include "registers/screens/frmLocalizarFornecedores.h"
#include "registers/screens/frmLocalizarVendedoresRapido.h"
#include "shell/services/Telas.h"

namespace fenvale {
namespace {

/// One screen for each description of a table.
template <typename TelaDescrita, typename Descricao>
void vRegistrarDescritas(Telas& telas, const std::vector<Descricao>& descricoes) {
  for (const Descricao& descricao : descricoes)
    telas.registrar(descricao.sNome, [&descricao](Contexto& contexto) -> std::unique_ptr<Screen> {
      return std::make_unique<TelaDescrita>(contexto, descricao);
    });
}

}  // namespace

void vRegistrarTelasDosCadastros(Telas& telas) {
  vRegistrarDescritas<CadastroCodigoNome>(telas, cadastrosCodigoNome());
  telas.registrar<frmCadastroClientes>("frmCadastroClientes");
  telas.registrar<frmCadastroCondicoesPagamento>("frmCadastroCondicoesPagamento");
  telas.registrar<frmCadastroFornecedores>("frmCadastroFornecedores");

  vRegistrarDescritas<BuscaCodigoNome>(telas, buscasCodigoNome());
  telas.registrar<frmLocalizarClientes>("frmLocalizarClientes");
  telas.registrar<frmLocalizarCondicoesPagamento>("frmLocalizarCondicoesPagamento");
  telas.registrar<frmLocalizarFornecedores>("frmLocalizarFornecedores");
  telas.registrar<frmLocalizarBancos>("frmLocalizarBancos");
  vRegistrarDescritas<TelaBuscaRapida>(telas, buscasRapidas());
  // The one with a second entry, in the place of the one described only.
  telas.registrar<frmLocalizarVendedoresRapido>("frmLocalizarVendedoresRapido");
}

}  // namespace fenvale
