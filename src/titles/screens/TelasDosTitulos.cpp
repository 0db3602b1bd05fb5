#include "titles/screens/TelasDosTitulos.h"

#include "shell/services/Telas.h"
#include "titles/screens/TelaBuscaBaixa.h"
#include "titles/screens/TelaBuscaFiltro.h"
#include "titles/screens/frmCadastroFaturasCliente.h"
#include "titles/screens/frmCadastroFaturasFornecedor.h"
#include "titles/screens/frmCadastroTitulosPagar.h"
#include "titles/screens/frmCadastroTitulosReceber.h"
#include "titles/screens/frmTransferenciaVendedores.h"
#include "titles/screens/frmZerarTitulos.h"

namespace fenvale {
namespace {

template <typename TelaBuscada>
void vRegistrarFiltro(Telas& telas, const Lado& lado, const TelaDoLado& tela) {
  telas.registrar(tela.sBusca, [&lado, &tela](Contexto& contexto) -> std::unique_ptr<Screen> {
    return std::make_unique<TelaBuscada>(contexto, lado, tela);
  });
}

}  // namespace

void vRegistrarTelasDosTitulos(Telas& telas) {
  telas.registrar<frmCadastroFaturasCliente>("frmCadastroFaturasCliente");
  telas.registrar<frmCadastroFaturasFornecedor>("frmCadastroFaturasFornecedor");
  telas.registrar<frmCadastroTitulosPagar>("frmCadastroTitulosPagar");
  telas.registrar<frmCadastroTitulosReceber>("frmCadastroTitulosReceber");
  telas.registrar<frmTransferenciaVendedores>("frmTransferenciaVendedores");
  telas.registrar<frmZerarTitulos>("frmZerarTitulos");
  for (const DescricaoBuscaBaixa& descricao : buscasBaixa()) {
    const Lado& lado = descricao.lado;
    telas.registrar(lado.titulos.sBuscaBaixa, [&descricao](Contexto& contexto) -> std::unique_ptr<Screen> {
      return std::make_unique<TelaBuscaBaixa>(contexto, descricao);
    });
    vRegistrarFiltro<TelaBuscaTitulos>(telas, lado, lado.titulos);
    vRegistrarFiltro<TelaBuscaFaturas>(telas, lado, lado.faturas);
  }
}

}  // namespace fenvale
