#include "passeio/Passos.h"

#include <Qt>

#include "passeio/Guia.h"
#include "shell/services/Contexto.h"

namespace fenvale::passeio {
namespace {

constexpr Procura condicaoUm{"txtCondPagCodigoInf", "frmLocalizarCondicoesPagamentoRapido", "1", "txtCodigoInf"};
constexpr Procura carteira{"txtPortador", "frmLocalizarPortadoresRapido", "Car"};
constexpr Procura maria{"txtVendedor", "frmLocalizarVendedoresRapido", "Mar"};

}  // namespace

std::string legendaDaEmpresa(const Contexto& programa) {
  return "Gestor Fenvale - Versão ZENIT   -     Empresa: Loja.MDB     -     Caminho: " +
         programa.sGetCaminhoAplicacao() + "/Empresas/";
}

void entrar(Guia& guia) {
  guia.tela("frmLogin");
  guia.escolher("cmbLogin", "ADMINISTRADOR");
  guia.preencher({{"txtSenha", senha}});
  guia.fotografar("login");
  guia.tecla(Qt::Key_F3);
}

void sair(Guia& guia) {
  guia.tela("frmMDIPrincipal");
  guia.espereFim(0);
  guia.menu("mnuSair");
}

void fechar(Guia& guia) {
  guia.tecla(Qt::Key_Escape);
  guia.tela("frmMDIPrincipal");
}

void salvar(Guia& guia, const char* retrato, const std::vector<std::string>& linhas) {
  guia.fotografar(retrato);
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, concluida);
  guia.linhas("lstLista", linhas);
}

void buscar(Guia& guia, const char* tela, const std::vector<Procura>& procuras) {
  for (const Procura& procura : procuras) {
    guia.ir(procura.caixa);
    guia.tecla(Qt::Key_Space);
    guia.tela(procura.busca);
    guia.preencher({{procura.campo, procura.texto}});
    guia.tecla(Qt::Key_F6);
    if (procura.retrato != nullptr) guia.fotografar(procura.retrato);
    guia.teclarLinha("lstLista", 0, procura.vezes);
    guia.tela(tela);
  }
}

Fatura faturaDeCliente() {
  return {"mnuCadFaturasClientes",
          "frmCadastroFaturasCliente",
          "frmCadastroTitulosReceber",
          {{"txtCliente", "frmLocalizarClientesRapido", "Aç"}, condicaoUm, carteira, maria}};
}

Fatura faturaDeFornecedor() {
  return {"mnuCadFaturasFornecedores",
          "frmCadastroFaturasFornecedor",
          "frmCadastroTitulosPagar",
          {{"txtFornecedor", "frmLocalizarFornecedoresRapido", "Dis"}, condicaoUm, carteira}};
}

void lancar(Guia& guia, const Fatura& fatura, const Lancamento& lancamento) {
  guia.menu(fatura.menu);
  guia.tela(fatura.tela);
  guia.conteudo("txtNumeroFatura", lancamento.numero);
  guia.preencher({{"txtTotal", lancamento.total}, {"txtEntrada", lancamento.entrada}});
  buscar(guia, fatura.tela, fatura.procuras);
  if (lancamento.retrato != nullptr) guia.fotografar(lancamento.retrato);
  guia.tecla(Qt::Key_F3);
  const bool verTitulos = lancamento.retratoDosTitulos != nullptr;
  guia.pergunta("Deseja visualizar os títulos relacionados à essa fatura?", verTitulos);
  if (verTitulos) {
    guia.tela(fatura.titulos);
    guia.fotografar(lancamento.retratoDosTitulos);
    guia.tecla(Qt::Key_Escape);
  }
  guia.caixa(informacao, concluida);
  guia.tela(fatura.tela);
}

void abrirEmpresa(Guia& guia, const std::string& caminho, int linha) {
  guia.tela("frmMDIPrincipal");
  guia.menu("mnuEmpresaAbrir");
  guia.tela("frmEmpresaAbrir");
  guia.teclarLinha("lstLista", linha);
  guia.conteudo("txtCampo", caminho);
  guia.fotografar("abrir-empresa");
  guia.tecla(Qt::Key_F3);
}

void cadastrarNome(Guia& guia, const char* entrada, const char* tela, const char* campo, const char* nome,
                   const std::vector<std::string>& linhas) {
  guia.menu(entrada);
  guia.tela(tela);
  guia.preencher({{campo, nome}});
  salvar(guia, "cadastro", linhas);
  fechar(guia);
}

}  // namespace fenvale::passeio
