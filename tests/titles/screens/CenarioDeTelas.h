#pragma once
// The invoice and title screens of one side over the small firm of Cenario, and what a clerk does at them.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/base/Error.h"
#include "registers/screens/TelasDosCadastros.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "titles/Cenario.h"
#include "titles/screens/frmCadastroFaturasCliente.h"
#include "titles/screens/frmCadastroFaturasFornecedor.h"
#include "titles/screens/frmCadastroTitulosPagar.h"
#include "titles/screens/frmCadastroTitulosReceber.h"

namespace fenvale {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// The registers of invoices and titles, without their searches.
inline void vRegistrarTelasDeTitulos(Telas& telas) {
  vRegistrarTelasDosCadastros(telas);
  telas.registrar<frmCadastroFaturasCliente>("frmCadastroFaturasCliente");
  telas.registrar<frmCadastroFaturasFornecedor>("frmCadastroFaturasFornecedor");
  telas.registrar<frmCadastroTitulosPagar>("frmCadastroTitulosPagar");
  telas.registrar<frmCadastroTitulosReceber>("frmCadastroTitulosReceber");
}

inline const MessageBox concluida = informacao("Operação concluída.");
inline const MessageBox cancelada = aviso("Operação cancelada.");
inline const MessageBox visualizarTitulos = pergunta("Deseja visualizar os títulos relacionados à essa fatura?");

/// The options of list printing, which remember what they were given.
class OpcoesDeTeste final : public Tela, public OpcoesRelatorioLista {
 public:
  explicit OpcoesDeTeste(Contexto& contexto) : Tela(contexto, "frmOpcoesRelList") {}
  void vCarregar(const std::string& sTitulo, std::int16_t iColunas, ListView& lst) override {
    pedido = sTitulo + " | " + std::to_string(iColunas) + " | " + std::to_string(lst.items().size());
  }
  std::string pedido;
};

class CenarioDeTelas : public testing::TestWithParam<EscolhaDeLado> {
 protected:
  explicit CenarioDeTelas(void (*registrar)(Telas&) = &vRegistrarTelasDeTitulos) : cenario(GetParam()(), registrar) {}

  TelaFaturas& faturas() { return carregada<TelaFaturas>(lado.faturas.sNome); }
  TelaTitulosCadastro& titulos() { return carregada<TelaTitulosCadastro>(lado.titulos.sNome); }

  void TearDown() override { EXPECT_NO_THROW(host.verify()); }

  /// The quick searches' answers.
  void escolherCondicao(const Condicao& condicao) {
    faturas().vSetCondicaoPagamento(condicao.chave, condicao.chave, condicao.parcelas, condicao.intervalo,
                                    condicao.entrada ? -1 : 0);
  }
  static void escolherEntidades(EntidadesFatura& entidades) {
    entidades.pessoa.busca.vSet(1, "Açougue São João Ltda.");
    entidades.portador.busca.vSet(1, "Carteira");
    if (entidades.vendedor) entidades.vendedor->busca.vSet(1, "Maria Aparecida");
    entidades.centroCusto.busca.vSet(1, "Loja");
  }

  /// A new invoice of 1 March 2026, typed and not yet saved.
  TelaFaturas& digitarFatura(std::string_view total, const Condicao& condicao = tresVezes,
                             std::string_view entrada = "0,00") {
    TelaFaturas& tela = faturas();
    tela.dtEmissao.userType("01/03/2026");
    tela.txtTotal.userType(total);
    tela.txtEntrada.userType(entrada);
    escolherEntidades(tela.entidades);
    escolherCondicao(condicao);
    return tela;
  }
  void salvarFatura() {
    host.expectBox(visualizarTitulos, BoxAnswer::no);
    host.expectBox(concluida);
    faturas().userKey(Key::f3);
    host.verify();
  }
  /// Typed and saved; its key.
  int criarFatura(std::string_view total, const Condicao& condicao = tresVezes, std::string_view entrada = "0,00") {
    digitarFatura(total, condicao, entrada);
    salvarFatura();
    return std::stoi(cenario.valor("SELECT MAX(lCodigo) FROM " + lado.sFaturas));
  }
  /// Loads a stored invoice by a click on its row.
  TelaFaturas& abrirFatura(int chave) {
    TelaFaturas& tela = faturas();
    tela.vMontarLista(0, "WHERE " + lado.sFaturas + ".lCodigo = " + std::to_string(chave) + " ");
    tela.lstLista.userClickRow(0);
    return tela;
  }
  /// Loads a stored title by a click on its row.
  TelaTitulosCadastro& abrirTitulo(const std::string& codigo) {
    TelaTitulosCadastro& tela = titulos();
    tela.vMontarLista(0, "WHERE sCodigoInf = '" + codigo + "' ");
    tela.lstLista.userClickRow(0);
    return tela;
  }
  /// The title is opened, paid with that amount and saved.
  void pagar(const std::string& codigo, std::string_view valor, std::vector<std::pair<MessageBox, BoxAnswer>> caixas) {
    TelaTitulosCadastro& tela = abrirTitulo(codigo);
    tela.txtValorPago.userType(valor);
    for (auto& [caixa, resposta] : caixas) host.expectBox(std::move(caixa), resposta);
    tela.userKey(Key::f3);
    host.verify();
  }
  void pagarInteiro(const std::string& codigo, std::string_view valor) {
    pagar(codigo, valor, {{perguntaPagamento(std::string(valor)), BoxAnswer::yes}, {concluida, BoxAnswer::ok}});
  }

  static MessageBox perguntaPagamento(const std::string& pago) {
    return pergunta("O valor pago informado (R$ " + pago +
                    ") é igual ao valor do título.\r\nEsta operação determinará o pagamento do título.\r\n\r\n"
                    "Confirma o pagamento do título?");
  }
  static MessageBox perguntaParcial(const std::string& pago, const std::string& valor, const std::string& resto) {
    return pergunta("O valor pago informado (R$ " + pago + ") é menor que o valor do título (R$ " + valor +
                    ").\r\nEsta operação criará um título complementar de reajuste no valor de R$ " + resto +
                    " .\r\n\r\nConfirma está operação?");
  }

  std::vector<std::string> doTitulo(const std::string& codigo, const std::string& colunas) {
    return cenario.programa
        .linhas("SELECT " + colunas + " FROM " + lado.sTitulos + " WHERE sCodigoInf = '" + codigo + "'")
        .at(0);
  }
  std::string contar(const std::string& tabela) { return cenario.valor("SELECT COUNT(lCodigo) FROM " + tabela); }

  /// The store's own sentence for a second title with a code that exists.
  std::string recusaDoStore(int fatura) {
    cenario.inserirTitulo(fatura, "repetido", "1,00");
    std::string texto;
    try {
      cenario.inserirTitulo(fatura, "repetido", "1,00");
    } catch (const Error& falha) {
      texto = falha.description;
    }
    cenario.executar("DELETE * FROM " + lado.sTitulos + " WHERE sCodigoInf = 'repetido'");
    return texto;
  }

  template <typename T>
  T& carregada(const std::string& nome) {
    T& tela = cenario.programa.telas().obter<T>(nome);
    tela.ensureLoaded();
    return tela;
  }

  Cenario cenario;
  const Lado& lado = cenario.lado;
  TestHost& host = cenario.programa.hostDeTeste();
};

/// The texts of a list's row.
inline std::vector<std::string> celulas(const ListItem& item) {
  std::vector<std::string> textos{item.text()};
  for (std::size_t i = 1; i <= item.subItemCount(); ++i) textos.push_back(item.subItem(i));
  return textos;
}

inline std::vector<std::string> primeiraColuna(const ListView& lista) {
  std::vector<std::string> textos;
  for (const auto& item : lista.items()) textos.push_back(item->text());
  return textos;
}

}  // namespace fenvale
