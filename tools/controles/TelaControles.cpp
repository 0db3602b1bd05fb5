#include "controles/TelaControles.h"

#include "platform/base/Date.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"
#include "platform/ui/UiHost.h"

namespace fenvale {
namespace {

constexpr const char* meses[] = {"Janeiro", "Fevereiro", "Março",    "Abril",   "Maio",     "Junho",
                                 "Julho",   "Agosto",    "Setembro", "Outubro", "Novembro", "Dezembro"};
constexpr const char* nomes[] = {
    "Açougue São João Ltda.", "Álvaro Nunes",          "Bar do Élio",      "Comércio de Tecidos Dois Irmãos",
    "José Pereira",           "Maria da Glória Silva", "Papelaria Zênite", "Zulmira Antunes"};

}  // namespace

TelaControles::TelaControles(UiHost& host) : Screen(host, "TelaControles") {
  setCaption("Controles");
  setTitle("Todos os controles");
  setNote("Editando o registro 12");
  dispor();
  preencher();
}

void TelaControles::dispor() {
  cmdSalvar.setPrimary();
  setLayout({
      aba("Caixas",
          {quadro("Texto",
                  {linha({campo("&Texto", txtTexto, 8), campo("Sen&ha", txtSenha, 4),
                          campo("Só para ler", txtTravado, 6), campo("Desabilitado", txtDesabilitado, cresce)}),
                   linha({campo("&Código", txtCodigo, 2), campo("Nú&mero", txtNumero, 3), campo("CNP&J", txtCNPJ, 5),
                          campo("Telefone", txtTelefone, 4), campo("CEP", txtCEP, 3),
                          campo("Recusado", txtErrado, cresce)})}),
           quadro("Busca, valores e datas",
                  {linha({campo("Ci&dade", txtCidade, 8, {&cmdLocalizarCidade, &cmdNovaCidade}),
                          campo("&Valor", txtValor, 4), campo("Valor calculado", txtValorTravado, 4),
                          campo("Vencimento", dtVencimento, 4), campo("Mês", cmbMes, cresce)})}),
           linha({quadro("Situação", {linha({solto(optTodos), solto(optPagos), solto(optAbertos)})}, 10),
                  quadro("Escolhas", {linha({solto(chkManter), solto(chkMarcado), solto(chkDesabilitado)})})}),
           linha({campo("&Observações", txtLinhas, 12),
                  coluna({solto(lblAjuda), solto(pbImpressao, cresce, "Andamento da impressão")})})}),
      aba("Listas",
          {linha({lista(lstMarcas, "Títulos marcados"), lista(lstVazia, "Lista vazia")}), linha({solto(lblTotal)})}),
      aba("Árvores", {linha({lista(trwDireitos, "Direitos"),
                             coluna({campo("Disco", drvDiscos, cresce), lista(drvPastas, "Pastas")}),
                             lista(flstArquivos, "Arquivos"), solto(imgFigura, 4, "Figura")})}),
      lista(lstLista, "Registros"),
      paginas(scrPaginas, pbBarrra),
      botoes({&cmdNovo, &cmdSalvar, &cmdExcluir, &cmdImprimir, &cmdLocalizar}, {&cmdFechar}),
  });
}

void TelaControles::preencher() {
  txtTexto.setText("Açougue São João Ltda.");
  txtSenha.setText("segredo");
  txtTravado.setText("000123/001");
  txtTravado.setLocked(true);
  txtDesabilitado.setText("Não se escreve aqui");
  txtDesabilitado.setEnabled(false);
  txtErrado.markWrong();
  txtLinhas.setText("Paga na segunda-feira.\r\nLigar antes.");
  txtCodigo.setText("12");
  txtNumero.setText("30");
  txtCNPJ.setText("11.444.777/0001-61");
  txtTelefone.setText("(19) 3455-1020");
  txtCEP.setText("13450-000");
  txtCidade.setText("Santa Bárbara d'Oeste");
  txtValor.setValue(Currency::fromDecimal("5000"));
  txtValorTravado.setValue(Currency::fromDecimal("353.60"));
  txtValorTravado.setLocked(true);
  dtVencimento.setValue(*readDate("31/03/2026"));
  for (std::int32_t mes = 0; mes < 12; ++mes) cmbMes.addItem(meses[mes], mes + 1);
  cmbMes.setListIndex(2);
  chkMarcado.setChecked(true);
  chkDesabilitado.setEnabled(false);
  optPagos.choose();
  pbImpressao.setMaximum(250);
  pbImpressao.setValue(90);
  scrPaginas.setMaximum(4);
  scrPaginas.setValue(1);
  scrPaginas.setSummary("Página 2 · 250 registros");
  trwDireitos.setNodes({{"c0", "Cadastros", "", "", true},
                        {"c5", "Clientes", "c0", "clientes", true},
                        {"c7", "Portadores", "c0", "portadores", false},
                        {"p0", "Processamentos", "", "", false},
                        {"p3", "Quadro geral de contas", "p0", "quadro", false}});
  mnuLista.setItems({{"mnuFaturas", "&Faturas do cliente", {}, {}, "faturas"},
                     {"mnuSeparador", "-", {}, {}, {}},
                     {"mnuTitulos", "&Títulos do cliente", {}, {}, "titulos"}});
  for (int linha = 0; linha < 6; ++linha) {
    const auto item =
        lstMarcas.addItem("00000" + std::to_string(linha), formatNumber(std::int64_t{123 + linha}, "000000") + "/001");
    item->setSubItem(1, formatNumber(Currency::fromDecimal(std::to_string(111 + linha * 1111))));
    item->setChecked(linha % 2 == 0);
  }
  preencherLista(60);
}

void TelaControles::preencherLista(int linhas) {
  for (int linha = 0; linha < linhas; ++linha) {
    const auto item = lstLista.addItem("00000" + std::to_string(linha), std::to_string(linha));
    item->setSubItem(1, std::to_string(12 + linha));
    item->setSubItem(2, formatDate(*readDate("05/01/2026") + std::chrono::days(linha)));
    item->setSubItem(3, nomes[static_cast<std::size_t>(linha) % std::size(nomes)]);
    item->setSubItem(4, formatNumber(Currency::fromDecimal(std::to_string(linha * 1111 % 9000 - 900) + ".11")));
    item->setSubItem(5, linha % 2 == 0 ? "Santa Bárbara d'Oeste" : "Campinas");
    if (linha == 1) item->setMark(true, 192);
  }
}

bool TelaControles::onKeyDown(Key key) {
  teclas.push_back(key);
  if (key == Key::escape) {
    unload();
    return true;
  }
  if (key != Key::enter) return false;
  focusNext();
  return true;
}

}  // namespace fenvale
