#include "passeio/DiaADia.h"

#include <Qt>
#include <cstdlib>
#include <filesystem>
#include <string_view>
#include <utility>
#include <vector>

#include "passeio/Guia.h"
#include "passeio/Passos.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "store/services/DBConectar.h"

namespace fenvale::passeio {
namespace {

namespace fs = std::filesystem;

constexpr const char* copia = "Loja_260620_090000.MDB";
constexpr const char* titulosAReceber =
    "SELECT sCodigoInf, FORMAT(fValor, '#,##0.00') AS Valor FROM TitulosReceber ORDER BY sCodigoInf";
const std::vector<std::string> titulosAntes{"000001/001 | 100,00", "000001/002 | 300,00", "000001/003 | 300,00",
                                            "000001/004 | 300,00", "000001/R01 | 337,88", "000002/001 | 60,00",
                                            "000002/002 | 180,00", "000002/003 | 180,00", "000002/004 | 180,00"};
const std::vector<std::string> titulosDepois{"000002/002 | 180,00", "000002/003 | 180,00", "000002/004 | 180,00"};

/// The rows of a query of the open company, the named columns joined by " | ".
void conferirLinhas(Guia& guia, Contexto& programa, const char* consulta, const std::vector<std::string_view>& colunas,
                    const std::vector<std::string>& esperadas) {
  std::string vistas;
  std::vector<std::string> linhas;
  guia.la([&] {
    Recordset rs(consulta, programa.dbEmpresa().Dados(), CursorType::dynamic, LockType::readOnly);
    for (; !rs.eof(); rs.moveNext()) {
      std::string linha;
      for (const std::string_view coluna : colunas) linha += (linha.empty() ? "" : " | ") + rs[coluna].toText();
      vistas += "\n  " + linha;
      linhas.push_back(std::move(linha));
    }
  });
  if (linhas != esperadas) guia.falhar(std::string(consulta) + ": há" + vistas);
}

std::string pastaDoUsuario() {
  const char* const pasta = std::getenv("HOME");
  return pasta == nullptr ? std::string() : pasta;
}

/// With the line ends of the program's files.
std::string comQuebras(std::string_view texto) {
  std::string resultado;
  for (const char letra : texto) resultado += letra == '\n' ? std::string(lineBreak) : std::string(1, letra);
  return resultado;
}

void conferirArquivo(Guia& guia, const std::string& caminho, const std::string& esperado) {
  const std::string visto = fs::exists(caminho) ? fromWindows1252(files::read(caminho)) : "(não existe)";
  if (visto != esperado) guia.falhar("o arquivo " + caminho + " não é o esperado:\n" + visto);
}

void cadastrarFornecedor(Guia& guia) {
  constexpr const char* tela = "frmCadastroFornecedores";
  guia.menu("mnuCadFornecedores");
  guia.tela(tela);
  guia.conteudo("txtCodigoInf", "1");
  guia.preencher({{"txtNome", "Distribuidora Três Irmãos Ltda."}});
  buscar(guia, tela, {{"txtCategoria", "frmLocalizarCategoriasRapido", "Var"}});
  guia.preencher({{"txtEndereco", "Rua Treze de Maio, 230"}});
  buscar(guia, tela, {{.caixa = "txtCidade", .busca = "frmLocalizarCidades", .texto = "Valinhos", .vezes = 1}});
  guia.preencher({{"txtCEP", "13270030"}, {"txtTelefone", "1932275500"}, {"txtCNPJ", "33666999000161"}});
  buscar(guia, tela, {{"txtBanco", "frmLocalizarBancos", "Banco do B"}});
  guia.preencher({{"txtAgencia", "1234-5"}, {"txtConta", "98765-0"}});
  guia.fotografar("fornecedor");
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, concluida);
  fechar(guia);
}

/// One invoice with an entry and three titles of the condition 1.
void faturaDoFornecedor(Guia& guia) {
  lancar(guia, faturaDeFornecedor(),
         {"1", "900,00", "90,00", "fatura-do-fornecedor", "titulos-da-fatura-do-fornecedor"});
  fechar(guia);
}

/// The discount does not count when the amount paid is compared with the title's value: what it took off goes on as a
/// complement.
void pagarComDesconto(Guia& guia) {
  constexpr const char* tela = "frmCadastroTitulosPagar";
  guia.menu("mnuCadTitulosPagar");
  guia.tela(tela);
  guia.tecla(Qt::Key_F7);
  guia.tela("frmLocalizarTitulosPagar");
  guia.fotografar("localizar-para-baixa");
  guia.teclarLinha("lstLista", 0, 2);
  guia.tela(tela);
  guia.conteudo("txtCodigoInf", "000001/002");
  guia.conteudo("dtPagamento", "21/05/2026");
  guia.preencher(
      {{"dtPagamento", "21/04/2026"}, {"txtFilial", "001"}, {"txtDesconto", "20,00"}, {"txtValorPago", "250,00"}});
  guia.fotografar("pagamento-com-desconto");
  guia.tecla(Qt::Key_F3);
  guia.pergunta(
      "O valor pago informado (R$ 250,00) é menor que o valor do título (R$ 270,00).\r\n"
      "Esta operação criará um título complementar de reajuste no valor de R$ 20,00 .\r\n\r\nConfirma está operação?",
      true);
  guia.caixa(informacao, concluida);

  guia.tecla(Qt::Key_F6);
  guia.tela("frmLocalizarTitulosPagarAvancado");
  guia.marcar("chkPago");
  guia.fotografar("localizar-titulos-pagos");
  guia.tecla(Qt::Key_F6);
  guia.tecla(Qt::Key_Escape);
  guia.tela(tela);
  guia.fotografar("titulos-pagos");
  fechar(guia);
}

void outraFaturaDoCliente(Guia& guia) {
  const Fatura fatura = faturaDeCliente();
  lancar(guia, fatura, {"2", "600,00", "60,00"});

  guia.tecla(Qt::Key_F6);
  guia.tela("frmLocalizarFaturasCliente");
  guia.preencher({{"txtNumeroFatura", "2"}});
  guia.fotografar("localizar-faturas");
  guia.tecla(Qt::Key_F6);
  guia.tecla(Qt::Key_Escape);
  guia.tela(fatura.tela);
  guia.fotografar("fatura-localizada");
  fechar(guia);
}

/// What the firm wants to see at every start.
void pedirQuadroNaEntrada(Guia& guia) {
  guia.menu("mnuCadSistema");
  guia.tela("frmSistema");
  guia.marcar("chkMostrarContasPagarDia");
  guia.marcar("chkMostrarContasVencidasReceber");
  guia.fotografar("pedir-quadro");
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, concluida);
  guia.tela("frmMDIPrincipal");
}

/// The options of a listing, and the question; the output is the entry of the combo that begins so.
void emitir(Guia& guia, const char* saida, const char* retrato) {
  guia.tela("frmOpcoesRelList");
  guia.escolher("cmbSaida", saida);
  guia.fotografar(retrato);
  guia.tecla(Qt::Key_F5);
  guia.pergunta("Confirma a impressão?", true);
}

/// What the board's list of the day is on paper, between the characters that switch a printer's condensed mode.
constexpr std::string_view listagemDoDia =
    R"(+--------------------------------------------------------------------------------------------------------------------------------+
|                                                   Contas a pagar de 20/06/2026                                                 |
+--------------------------------------------------------------------------------------------------------------------------------+
|Código      |Filial |Emissão     |Vencimento  |Fornecedor                  |Portador   |Centro de custo|Valor da fatura         |
|Valor do título|Nota fiscal |Observação                       |Nº da fatura                                                     |
+--------------------------------------------------------------------------------------------------------------------------------+
|000001/003  |       |21/04/2026  |20/06/2026  |Distribuidora Três Irmãos Lt|Carteira   |               |900,00                  |
|270,00         |0           |                                 |1                                                                |
+--------------------------------------------------------------------------------------------------------------------------------+
)";

void verQuadroNaEntrada(Guia& guia) {
  guia.tela("frmMostrarContas");
  guia.conteudo("lblContasPagarDia", "Total R$ 270,00");
  guia.conteudo("lblContasReceberDia", "Total R$ 0,00");
  guia.conteudo("lblContasPagarVencidas", "Total R$ 0,00");
  guia.conteudo("lblContasReceberVencidas", "Total R$ 180,00");
  guia.fotografar("quadro-na-entrada");
  guia.tecla(Qt::Key_Escape);
}

void verQuadroInteiro(Guia& guia) {
  guia.tela("frmMDIPrincipal");
  guia.menu("mnuQuadroGeralContas");
  guia.tela("frmMostrarContas");
  guia.conteudo("lblContasPagarDia", "Total R$ 270,00");
  guia.conteudo("lblContasReceberDia", "Total R$ 180,00");
  guia.conteudo("lblContasPagarVencidas", "Total R$ 20,00");
  guia.conteudo("lblContasReceberVencidas", "Total R$ 180,00");
  guia.fotografar("quadro-geral");
}

/// The title behind a row of the board, by the menu of the row.
void verTituloDoQuadro(Guia& guia) {
  guia.ir("lstPagarDia");
  guia.teclarLinha("lstPagarDia", 0);
  guia.tecla(Qt::Key_Menu);
  guia.tecla(Qt::Key_Return);
  guia.tela("frmCadastroTitulosPagar");
  guia.fotografar("titulo-do-quadro");
  guia.tecla(Qt::Key_Escape);
  guia.tela("frmMostrarContas");
}

void imprimirContasDoDia(Guia& guia, const Contexto& programa) {
  guia.ir("cmdEmitirPagarDia");
  guia.tecla(Qt::Key_Space);
  emitir(guia, "Arquivo de texto", "opcoes-da-listagem");
  guia.tela("frmMostrarContas");
  conferirArquivo(guia, programa.sGetCaminhoAplicacao() + "/Contas a pagar de 20-06-2026.txt",
                  "\x0F" + comQuebras(listagemDoDia) + "\x12");
}

/// A register goes to a PDF file, with the text file that it is made from.
void imprimirFornecedores(Guia& guia, const Contexto& programa) {
  guia.menu("mnuCadFornecedores");
  guia.tela("frmCadastroFornecedores");
  guia.tecla(Qt::Key_F5);
  emitir(guia, "Arquivo em formato PDF", "opcoes-do-pdf");
  guia.pergunta("O arquivo PDF foi criado com sucesso.\r\nDeseja abrir o arquivo?", false);
  guia.tela("frmCadastroFornecedores");
  const std::string texto = programa.sGetCaminhoAplicacao() + "/Cadastro de fornecedores.txt";
  for (const auto& [arquivo, inicio] : {std::pair(texto, "\x0F+-----"), std::pair(texto + ".PDF", "%PDF-1.2\r")})
    if (!fs::exists(arquivo) || !files::read(arquivo).starts_with(inicio))
      guia.falhar("o arquivo " + arquivo + " não começa como devia");
  fechar(guia);
}

void transferirClientes(Guia& guia, Contexto& programa) {
  constexpr const char* tela = "frmTransferenciaVendedores";
  cadastrarNome(guia, "mnuCadVendedores", "frmCadastroVendedores", "txtNome", "José Carlos",
                {"1 | Maria Aparecida", "2 | José Carlos"});
  guia.menu("mnuTransferenciaVendedores");
  guia.tela(tela);
  buscar(guia, tela,
         {{"txtVendedorOrigem", "frmLocalizarVendedoresRapido", "Mar"},
          {"txtVendedorDestino", "frmLocalizarVendedoresRapido", "Jos"}});
  guia.fotografar("transferencia");
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, concluida);
  guia.conteudo("txtVendedorOrigem", "");
  guia.conteudo("txtVendedorDestino", "");
  fechar(guia);
  conferirLinhas(guia, programa,
                 "SELECT Clientes.sNome, (Vendedores.sNome) AS Vendedor FROM Clientes INNER JOIN Vendedores ON "
                 "Vendedores.lCodigo = Clientes.lVendedor",
                 {"sNome", "Vendedor"}, {"Açougue São João Ltda. | José Carlos"});
}

void copiarEmpresa(Guia& guia, const std::string& pasta) {
  guia.menu("mnuEmpresaBackup");
  guia.tela("frmEmpresaBackup");
  guia.teclarLinha("lstLista", 0);
  guia.conteudo("txtNomeArquivo", copia);
  guia.preencher({{"txtCaminho", pasta.c_str()}});
  guia.fotografar("backup");
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, concluida);
  if (!fs::exists(pasta + "/" + copia)) guia.falhar("o backup não foi gravado");
  fechar(guia);
}

void zerarTitulos(Guia& guia, Contexto& programa) {
  guia.menu("mnuZerarTitulos");
  guia.tela("frmZerarTitulos");
  guia.preencher({{"dtInicial", "01/03/2026"}, {"dtFinal", "30/04/2026"}});
  guia.fotografar("zeramento");
  guia.tecla(Qt::Key_F3);
  guia.pergunta(
      "Confirma a eliminação todos títulos Pagos e Recebidos\r\ncom data de pagamento ou recebimento realizadas entre "
      "\r\n01/03/2026 e 30/04/2026?",
      true);
  guia.caixa(informacao, concluida);
  fechar(guia);
  // The first invoice goes with its titles; what is open stays.
  conferirLinhas(guia, programa, titulosAReceber, {"sCodigoInf", "Valor"}, titulosDepois);
}

/// A kept file becomes a company of its own, which is opened in place of the one that it was kept from.
void restaurarEmpresa(Guia& guia, Contexto& programa, const std::string& pasta) {
  guia.menu("mnuEmpresaNova");
  guia.tela("frmEmpresaNova");
  guia.ir("lstLista");
  guia.tecla(Qt::Key_Menu);
  guia.tecla(Qt::Key_Return);
  guia.tela("frmLocalizarArquivo");
  guia.marcar("chkSubDiretorios");
  guia.tecla(Qt::Key_F6);
  guia.fotografar("localizar-backup");
  guia.teclarLinha("lstLista", 0);
  guia.pergunta("O arquivo " + pasta + "/" + copia +
                    " será incluído no sistema, criando referência a uma nova empresa.\r\nConfirma a operação?",
                true);
  guia.tela("frmEmpresaNova");
  fechar(guia);
  abrirEmpresa(guia, pasta + "/" + copia, 1);
  guia.caixa(informacao, "Empresa selecionada com sucesso.");
  conferirLinhas(guia, programa, titulosAReceber, {"sCodigoInf", "Valor"}, titulosAntes);
  abrirEmpresa(guia, programa.sGetCaminhoAplicacao() + "/Empresas/Loja.MDB", 0);
  guia.caixa(informacao, "Empresa selecionada com sucesso.");
}

}  // namespace

void contasAPagar(Guia& guia, Contexto& programa, const std::string&) {
  entrar(guia);
  guia.tela("frmMDIPrincipal");
  cadastrarFornecedor(guia);
  faturaDoFornecedor(guia);
  pagarComDesconto(guia);
  conferirLinhas(guia, programa,
                 "SELECT sCodigoInf, sFilial, FORMAT(fValor, '#,##0.00') AS Valor, FORMAT(fValorPago, '#,##0.00') AS "
                 "Pago, FORMAT(fDesconto, '#,##0.00') AS Desconto FROM TitulosPagar ORDER BY sCodigoInf",
                 {"sCodigoInf", "sFilial", "Valor", "Pago", "Desconto"},
                 {"000001/001 |  | 90,00 | 90,00 | 0,00", "000001/002 | 001 | 270,00 | 250,00 | 20,00",
                  "000001/003 |  | 270,00 | 0,00 | 0,00", "000001/004 |  | 270,00 | 0,00 | 0,00",
                  "000001/R01 |  | 20,00 | 0,00 | 0,00"});
  outraFaturaDoCliente(guia);
  pedirQuadroNaEntrada(guia);
  sair(guia);
}

void vencimentos(Guia& guia, Contexto& programa, const std::string&) {
  entrar(guia);
  verQuadroNaEntrada(guia);
  verQuadroInteiro(guia);
  verTituloDoQuadro(guia);
  imprimirContasDoDia(guia, programa);
  fechar(guia);
  imprimirFornecedores(guia, programa);
  sair(guia);
}

void manutencao(Guia& guia, Contexto& programa, const std::string&) {
  entrar(guia);
  guia.tela("frmMostrarContas");
  fechar(guia);
  const std::string pasta = pastaDoUsuario() + "/Copias";
  fs::create_directories(pasta);
  transferirClientes(guia, programa);
  copiarEmpresa(guia, pasta);
  zerarTitulos(guia, programa);
  restaurarEmpresa(guia, programa, pasta);
  sair(guia);
}

}  // namespace fenvale::passeio
