#include "passeio/Corridas.h"

#include <Qt>
#include <cstdio>
#include <filesystem>

#include "passeio/DiaADia.h"
#include "passeio/Guia.h"
#include "passeio/Passos.h"
#include "passeio/Retratos.h"
#include "platform/os/Process.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "store/services/DBConectar.h"

namespace fenvale::passeio {
namespace {

constexpr auto critica = BoxStyle::critical;
constexpr const char* atualizado =
    "Banco de Dados atualizado.\r\nExecute o programa novamente para concluir a atualização.";

std::string caminhoDaLoja(const Contexto& programa) { return programa.sGetCaminhoAplicacao() + "/Empresas/Loja.MDB"; }

// Run 1: an empty folder.
void primeiraExecucao(Guia& guia, Contexto&, const std::string&) {
  guia.caixaFinal(informacao, atualizado, exitRestart);
}

// Run 2: the first user, the firm, the first company.
void primeiroUso(Guia& guia, Contexto& programa, const std::string&) {
  guia.caixa(critica,
             "Não há usuários cadastrados no sistema.\r\nVocê deve cadastrar um usuário que terá acesso a todas\r\n"
             "as funcionalidades do programa (ADMINISTRADOR).\r\nPara garantir a estabilidade do sistema,\r\n"
             "este usuário não poderá ser excluído mais tarde.");
  guia.tela("frmCadastroUsuarios");
  guia.legenda("Cadastrando o usuário ADMINISTRADOR");
  guia.conteudo("txtNome", "ADMINISTRADOR");
  guia.preencher({{"txtSenha", senha}, {"txtConfirma", senha}});
  guia.fotografar("primeiro-usuario");
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, "Usuário ADMINISTRADOR foi cadastrado corretamente.");
  entrar(guia);

  guia.caixa(aviso, "Os dados do sistema ainda não foram cadastrados.\r\nPor favor informe esses dados.");
  guia.tela("frmSistema");
  guia.preencher({{"txtNome", "Escritório Norvane"},
                  {"txtEndereco", "Rua Marechal Deodoro, 415"},
                  {"txtBairro", "Centro"},
                  {"txtCidade", "Campinas"},
                  {"txtUF", "SP"},
                  {"txtCEP", "13010300"},
                  {"txtCNPJ", "11444777000161"},
                  {"txtTelefone", "1934551020"},
                  {"txtEMail", "contato@norvane.example"},
                  {"txtPercentualJurosDia", "0,10"},
                  {"txtPercentualJurosMes", "2,00"}});
  guia.escolher("cmbOpcaoReparcelamento", "R");
  guia.fotografar("dados-da-firma");
  guia.marcar("chkExibirLoginUsuario");
  guia.escolher("cmbImpressoras", "Arquivo PDF");
  guia.preencher({{"txtTamanhoPagina", "100"},
                  {"txtSMTP", "smtp.norvane.example"},
                  {"txtEmailRemetente", "contato@norvane.example"}});
  guia.fotografar("configuracoes");
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, concluida);

  guia.tela("frmMDIPrincipal");
  guia.fotografar("janela-principal");
  guia.menu("mnuCadClientes");
  guia.caixa(aviso, "Selecione uma empresa.");
  guia.menu("mnuEmpresaNova");
  guia.tela("frmEmpresaNova");
  const std::string pasta = programa.sGetCaminhoAplicacao() + "/Empresas";
  guia.preencher({{"txtNomeArquivo", "Loja"}, {"txtCaminho", pasta.c_str()}});
  guia.fotografar("nova-empresa");
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, "Empresa criada com sucesso.");
  guia.linhas("lstLista", {"00001 | Loja.MDB | " + pasta + "/"});
  fechar(guia);
  guia.espereFim(exitRestart);
  abrirEmpresa(guia, caminhoDaLoja(programa));
  guia.caixa(informacao, atualizado);
}

void cadastrarCondicao(Guia& guia) {
  guia.menu("mnuCadCondicoesPagamento");
  guia.tela("frmCadastroCondicoesPagamento");
  guia.preencher({{"txtNumeroParcelas", "4"}, {"txtIntervalo", "30"}});
  guia.marcar("chkEntrada");
  salvar(guia, "condicao-de-pagamento", {"1 | 4 | 30 | Sim"});
  fechar(guia);
}

void cadastrarCliente(Guia& guia) {
  constexpr const char* tela = "frmCadastroClientes";
  guia.menu("mnuCadClientes");
  guia.tela(tela);
  guia.preencher({{"txtNome", "Açougue São João Ltda."}, {"txtLimiteCredito", "5000,00"}});
  buscar(guia, tela, {{"txtCategoria", "frmLocalizarCategoriasRapido", "Var"}});
  guia.preencher({{"txtEndereco", "Rua Barão de Jaguara, 100"}, {"txtBairro", "Centro"}});
  buscar(guia, tela,
         {{.caixa = "txtCidade",
           .busca = "frmLocalizarCidades",
           .texto = "Santa Bárbara d'",
           .vezes = 1,
           .retrato = "localizar-cidade"}});
  guia.conteudo("txtCidade", "Santa Bárbara d'Oeste");
  guia.preencher({{"txtCEP", "13450000"}, {"txtTelefone", "1934551020"}, {"txtContato", "João Batista"}});
  buscar(guia, tela, {{"txtVendedor", "frmLocalizarVendedoresRapido", "Mar"}});
  guia.preencher({{"txtCNPJ", "22555888000161"}, {"txtEMail", "contato@acougue.example"}});
  guia.fotografar("cliente");
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, concluida);
  fechar(guia);
}

void cadastrarFatura(Guia& guia) {
  lancar(guia, faturaDeCliente(), {"1", "1000,00", "100,00", "fatura", "titulos-da-fatura"});
  guia.fotografar("fatura-salva");
  fechar(guia);
}

// Run 3: the company's own data, what an invoice needs, and the invoice.
void primeiraFatura(Guia& guia, Contexto& programa, const std::string&) {
  entrar(guia);
  abrirEmpresa(guia, caminhoDaLoja(programa));
  guia.caixa(
      informacao,
      "A relação de Cidades será povoada. Esta operação poderá demorar alguns instantes.\r\nPor favor, aguarde...");
  guia.caixa(informacao, "Empresa selecionada com sucesso.");
  guia.caixa(aviso, "Informe os dados da empresa.");
  guia.tela("frmEmpresa");
  guia.preencher({{"txtNome", "Loja da Praça Ltda."},
                  {"txtEndereco", "Praça Carlos Gomes, 10"},
                  {"txtCidade", "Campinas"},
                  {"txtUF", "SP"},
                  {"txtCEP", "13010040"},
                  {"txtTelefone", "1932311000"},
                  {"txtCNPJ", "12ABC34501DE35"}});
  guia.fotografar("dados-da-empresa");
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, concluida);
  guia.tela("frmMDIPrincipal");
  guia.legenda(legendaDaEmpresa(programa));
  cadastrarNome(guia, "mnuCadCategorias", "frmCadastroCategorias", "txtNome", "Varejo", {"1 | Varejo"});
  cadastrarCondicao(guia);
  cadastrarNome(guia, "mnuCadVendedores", "frmCadastroVendedores", "txtNome", "Maria Aparecida",
                {"1 | Maria Aparecida"});
  cadastrarNome(guia, "mnuCadastroPortadores", "frmCadastroPortadores", "txtNome", "Carteira", {"1 | Carteira"});
  cadastrarCliente(guia);
  cadastrarFatura(guia);
  sair(guia);
}

void abrirTitulos(Guia& guia) {
  guia.menu("mnuCadTitulosReceber");
  guia.tela("frmCadastroTitulosReceber");
}

/// Loads the open title in that row of the list.
void abrirTitulo(Guia& guia, int linha, const char* codigo) {
  guia.clicarLinha("lstLista", linha);
  guia.conteudo("txtCodigoInf", codigo);
}

/// Settles the loaded title, with its picture when it is wanted, and says yes to what the program asks.
void pagar(Guia& guia, const char* valor, const char* retrato, const char* pergunta) {
  guia.preencher({{"txtValorPago", valor}});
  if (retrato != nullptr) guia.fotografar(retrato);
  guia.tecla(Qt::Key_F3);
  guia.pergunta(pergunta, true);
  guia.caixa(informacao, concluida);
}

const char* const titulosNoFim[] = {
    "000001/001\t01/03/2026\t100,00\t100,00\t0,00", "000001/002\t31/03/2026\t300,00\t312,12\t12,12",
    "000001/003\t30/04/2026\t300,00\t100,00\t0,00", "000001/004\t30/05/2026\t300,00\t350,00\t0,00",
    "000001/R01\t30/04/2026\t337,88\t337,88\t0,00",
};

void conferirTitulos(Guia& guia, Contexto& programa) {
  std::vector<std::string> linhas;
  guia.la([&] {
    Recordset rs(
        "SELECT sCodigoInf, FORMAT(dtVencimento, 'dd/mm/yyyy') AS Vencimento, FORMAT(fValor, '#,##0.00') AS Valor, "
        "FORMAT(fValorPago, '#,##0.00') AS Pago, FORMAT(fJuros, '#,##0.00') AS Juros FROM TitulosReceber ORDER BY "
        "sCodigoInf",
        programa.dbEmpresa().Dados(), CursorType::dynamic, LockType::readOnly);
    for (; !rs.eof(); rs.moveNext())
      linhas.push_back(rs["sCodigoInf"].toText() + "\t" + rs["Vencimento"].toText() + "\t" + rs["Valor"].toText() +
                       "\t" + rs["Pago"].toText() + "\t" + rs["Juros"].toText());
  });
  for (const std::string& linha : linhas) std::printf("%s\n", linha.c_str());
  std::fflush(stdout);
  if (linhas != std::vector<std::string>(std::begin(titulosNoFim), std::end(titulosNoFim)))
    guia.falhar("os títulos da empresa não são os esperados (estão na saída)");
}

// Run 4, weeks later: the settlement.
void baixa(Guia& guia, Contexto& programa, const std::string&) {
  entrar(guia);
  guia.tela("frmMDIPrincipal");
  guia.legenda(legendaDaEmpresa(programa));
  guia.fotografar("de-volta");

  // Twenty days late: 20 days of 0,1 % make 6,00; one month of 2 % on 306,00 makes 6,12.
  abrirTitulos(guia);
  abrirTitulo(guia, 0, "000001/002");
  guia.ir("cmdCalcularJuros");
  guia.tecla(Qt::Key_Space);
  guia.conteudo("txtJuros", "12,12");
  guia.conteudo("txtValorPago", "312,12");
  guia.fotografar("juros");
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, concluida);

  abrirTitulo(guia, 0, "000001/003");
  pagar(guia, "100,00", "pagamento-parcial",
        "O valor pago informado (R$ 100,00) é menor que o valor do título (R$ 300,00).\r\n"
        "Esta operação criará um título complementar de reajuste no valor de R$ 200,00 .\r\n\r\n"
        "Confirma está operação?");

  abrirTitulo(guia, 0, "000001/004");
  pagar(guia, "350,00", "pagamento-maior",
        "O valor pago informado (R$ 350,00) é superior ao valor do título.\r\n"
        "Assim, R$ 50,00 podem ser abatidos nos demais títulos não pagos desta fatura.\r\n\r\n"
        "Deseja continuar a operação, pagando este título e efetuando o desconto nos demais títulos não pagos desta "
        "fatura?");

  abrirTitulo(guia, 0, "000001/R01");
  guia.conteudo("txtValor", "337,88");
  pagar(guia, "337,88", nullptr,
        "O valor pago informado (R$ 337,88) é igual ao valor do título.\r\n"
        "Esta operação determinará o pagamento do título.\r\n\r\nConfirma o pagamento do título?");
  guia.linhas("lstLista", {});
  guia.fotografar("fatura-quitada");
  fechar(guia);
  conferirTitulos(guia, programa);
  sair(guia);
}

// The last runs: leaving has kept the company; every screen has its picture taken.
void retratos(Guia& guia, Contexto& programa, const std::string& pasta) {
  retratarNosDoisTons(guia, programa, pasta, "frmLogin");
  entrar(guia);
  guia.tela("frmMostrarContas");
  fechar(guia);
  guia.legenda(legendaDaEmpresa(programa));
  retratarTelas(guia, programa, pasta);
  sair(guia);
}

}  // namespace

const std::vector<Corrida>& corridas() {
  static const std::vector<Corrida> todas{
      {"primeira execução", makeDate(2026, 3, 1), exitRestart, false, primeiraExecucao},
      {"primeiro uso", makeDate(2026, 3, 1), exitRestart, false, primeiroUso},
      {"primeira fatura", makeDate(2026, 3, 1), 0, false, primeiraFatura},
      {"baixa", makeDate(2026, 4, 20), 0, false, baixa},
      {"contas a pagar", makeDate(2026, 4, 21), 0, false, contasAPagar},
      {"vencimentos", makeDate(2026, 6, 20), 0, false, vencimentos},
      {"manutenção", makeDate(2026, 6, 20), 0, false, manutencao},
      {"retratos", makeDate(2026, 6, 20), 0, false, retratos},
      {"retratos a 200 %", makeDate(2026, 6, 20), 0, true, retratos},
  };
  return todas;
}

}  // namespace fenvale::passeio
