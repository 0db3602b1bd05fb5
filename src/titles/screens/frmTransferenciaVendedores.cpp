#include "titles/screens/frmTransferenciaVendedores.h"

#include "access/services/Permissoes.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Teclas.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

constexpr const char* sBusca = "frmLocalizarVendedoresRapido";

}  // namespace

frmTransferenciaVendedores::frmTransferenciaVendedores(Contexto& contexto)
    : Tela(contexto, "frmTransferenciaVendedores"),
      campoOrigem_(*this, contexto, {&txtVendedorOrigem},
                   {sBusca, &txtVendedorDestino, "cmdBuscaVendedorOrigem", "Localizar vendedor de origem", &origem}),
      campoDestino_(*this, contexto, {&txtVendedorDestino},
                    {sBusca, nullptr, "cmdBuscaVendedorDestino", "Localizar vendedor de destino", &destino}) {
  setCaption("Vendedores");
  setTitle("Transferência de vendedores entre clientes");
  setLayout({
      linha({campoOrigem_.campoPrincipal("&do vendedor", cresce)}),
      linha({campoDestino_.campoPrincipal("&para o vendedor", cresce)}),
      botoes({&cmdSalvar}, {&cmdFechar}),
  });
  setPreferredSize(14, 0);
  cmdSalvar.setPrimary();
  cmdSalvar.onClick = [this] { cmdSalvar_Click(); };
  cmdFechar.onClick = [this] { unload(); };
}

bool frmTransferenciaVendedores::onKeyDown(Key tecla) {
  return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla);
}

bool frmTransferenciaVendedores::bTestarPreenchimento() {
  if (origem.lGetCodigo() < 0) return recusar("Informe o vendedor de origem.", txtVendedorOrigem);
  if (destino.lGetCodigo() < 0) return recusar("Informe o vendedor de destino.", txtVendedorDestino);
  return true;
}

void frmTransferenciaVendedores::vTransferir() {
  Recordset rs;
  rs.open("UPDATE Clientes SET lVendedor = " + std::to_string(destino.lGetCodigo()) +
              " WHERE lVendedor = " + std::to_string(origem.lGetCodigo()),
          contexto().dbEmpresa().Dados(), CursorType::dynamic, LockType::pessimistic);
}

void frmTransferenciaVendedores::cmdSalvar_Click() try {
  if (!contexto().permissoes().bGetAtualizar()) return;
  if (!bTestarPreenchimento()) return;
  vTransferir();
  informar("Operação concluída.");
  campoOrigem_.vLimpar();
  campoDestino_.vLimpar();
} catch (const Error& falha) {
  if (falha.number != errors::refused) return vRegistrarFalha(falha, "cmdSalvar_Click");
  criticar(sTextoRecusa("Os dados informados já existem no sistema.", falha));
}

}  // namespace fenvale
