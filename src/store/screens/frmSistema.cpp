#include "store/screens/frmSistema.h"

#include "access/services/Permissoes.h"
#include "platform/base/Text.h"
#include "platform/print/PrinterService.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Validacoes.h"
#include "store/services/ConfiguracoesPrograma.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

constexpr std::int32_t lTamanhoPaginaProposto = 100;
constexpr std::int32_t lTamanhoPaginaRecusado = 32500;

}  // namespace

frmSistema::frmSistema(Contexto& contexto)
    : TelaFirma(contexto, "frmSistema", false),
      lblAberturaSistema(*this, "lblAberturaSistema", "Na abertura do sistema mostrar:", Label::Style::help),
      lblTamanhoPagina(*this, "lblTamanhoPagina",
                       "O tamanho da página determina quantos itens serão exibidos em uma listagem do sistema cada vez "
                       "que uma consulta for executada. Definir um tamanho de página muito alto pode causar queda no "
                       "desempenho do sistema.",
                       Label::Style::help),
      lblReparcelamento(*this, "lblReparcelamento",
                        "A opção para reparcelamento ocorre quando o valor total de uma fatura é alterado. Assim os "
                        "valores dos títulos referentes a esta fatura devem ser reajustados conforme o novo valor. "
                        "Existem duas opções:",
                        Label::Style::help),
      lblReparcelamento1(*this, "lblReparcelamento1",
                         "1) Apagar todos os títulos e a realizar o recadastramento dos mesmos. Isso levará o usário a "
                         "revisar as títulos já pagos, e realizar a baixa novamente, caso necessário.",
                         Label::Style::help),
      lblReparcelamento2(*this, "lblReparcelamento2",
                         "2) Dividir a diferença do novo valor total entre as parcelas ainda não quitadas. Nenhum "
                         "título será apagado, não sendo necessário revisar os títulos já pagos. Se todos os títulos "
                         "já forem pagos, um novo será criado para cobrir a diferença.",
                         Label::Style::help),
      funcoes_(contexto) {
  setCaption("Sistema");
  setTitle("Dados do sistema");
  vMontarLayout();
  for (ComboBox* combo : {&cmbOpcaoReparcelamento, &cmbImpressoras})
    combo->onKeyPress = [this, combo](std::string_view sCaractere) {
      return funcoes_.vComboMagico(*combo, sCaractere);
    };
  chkAutenticacao.onClick = [this] { chkAutenticacao_Click(); };
}

void frmSistema::vMontarLayout() {
  std::vector<LayoutNode> firma = linhasFirma({campo("CNPJ", txtCNPJ, 6)});
  firma.push_back(linha({campo("Juros/Dia (Simples) %", txtPercentualJurosDia, 6),
                         campo("Juros/mês (Composto) %", txtPercentualJurosMes, 6)}));
  firma.push_back(
      quadro("Reparcelamento", {linha({campo("Opção para reparcelamento", cmbOpcaoReparcelamento, 10)}),
                                solto(lblReparcelamento), solto(lblReparcelamento1), solto(lblReparcelamento2)}));
  setLayout({
      aba("Dados da firma", std::move(firma)),
      aba("Configurações",
          {
              solto(lblAberturaSistema),
              linha({coluna({solto(chkMostrarContasPagarDia), solto(chkMostrarContasReceberDia)}, 10),
                     coluna({solto(chkMostrarContasVencidasPagar), solto(chkMostrarContasVencidasReceber)}, 10)}),
              quadro("Configurações adicionais do sistema",
                     {solto(chkExibirLoginUsuario), solto(chkImprimirEntrada),
                      linha({campo("Impressora padrão para a impressão dos documentos", cmbImpressoras, 14)}),
                      linha({campo("Tamanho da página", txtTamanhoPagina, 5)}), solto(lblTamanhoPagina)}),
              quadro("Envio de e-Mail",
                     {linha({campo("SMTP", txtSMTP, 12), campo("e-Mail do remetente", txtEmailRemetente, cresce)}),
                      solto(chkAutenticacao), linha({campo("Login", txtLogin, 12), campo("Senha", txtSenha, cresce)})}),
          }),
      botoes({&cmdSalvar}, {&cmdFechar}),
  });
  setPreferredSize(20, 0);
}

void frmSistema::onLoad() try {
  vMontarCombos();
  txtSMTP.setText({});
  txtEmailRemetente.setText({});
  txtTamanhoPagina.setValue(lTamanhoPaginaProposto);
  vLerSistema();
  vLerConfiguracoes();
  chkAutenticacao_Click();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "Form_Load");
}

void frmSistema::vMontarCombos() {
  cmbOpcaoReparcelamento.addItem("Apagar todos os títulos", 0);
  cmbOpcaoReparcelamento.addItem("Reajustar os títulos", 1);
  for (const std::string& sImpressora : contexto().impressoras().printers()) cmbImpressoras.addItem(sImpressora);
}

void frmSistema::vLerSistema() {
  Recordset rs(
      "SELECT (bitMostrarContasPagarDia *-1) AS MostrarContasPagarDia, (bitMostrarContasReceberDia *-1) AS "
      "MostrarContasReceberDia, (bitMostrarContasVencidasPagar *-1) AS MostrarContasVencidasPagar, "
      "(bitMostrarContasVencidasReceber *-1) AS MostrarContasVencidasReceber, Sistema.lCodigo, btOpcaoReparcelamento, "
      "Sistema.sNome, Sistema.sEndereco, Sistema.sBairro, Sistema.sCEP, Sistema.lCidade, Sistema.sCNPJ, "
      "Sistema.sTelefone, Sistema.sFax, Sistema.sEMail, (Cidades.sNome) AS CidadeNome, (Cidades.sUF) AS CidadeUF, "
      "(Cidades.lCodigo) AS CidadeCodigo, FORMAT(fPercentualJurosDia, '#,##0.00') AS Dia, FORMAT(fPercentualJurosMes, "
      "'#,##0.00') AS Mes FROM Cidades INNER JOIN Sistema ON Cidades.lCodigo = Sistema.lCidade",
      contexto().dbConectar().Dados(), CursorType::keyset, LockType::optimistic);
  if (rs.recordCount() == 0) return;
  vMostrarFirma(rs);
  txtPercentualJurosDia.setValue(Currency::fromBrazilian(rs["Dia"].toText()));
  txtPercentualJurosMes.setValue(Currency::fromBrazilian(rs["Mes"].toText()));
  cmbOpcaoReparcelamento.setListIndex(rs["btOpcaoReparcelamento"].toLong());
  chkMostrarContasPagarDia.setChecked(rs["MostrarContasPagarDia"].toBoolean());
  chkMostrarContasReceberDia.setChecked(rs["MostrarContasReceberDia"].toBoolean());
  chkMostrarContasVencidasPagar.setChecked(rs["MostrarContasVencidasPagar"].toBoolean());
  chkMostrarContasVencidasReceber.setChecked(rs["MostrarContasVencidasReceber"].toBoolean());
}

void frmSistema::vLerConfiguracoes() {
  Recordset rs("SELECT * FROM Configuracoes ", contexto().dbConectar().Dados(), CursorType::keyset,
               LockType::optimistic);
  if (rs.recordCount() == 0) return;
  txtSMTP.setText(rs["sSMTP"].toText());
  txtEmailRemetente.setText(rs["sEmailRementente"].toText());
  txtLogin.setText(rs["sUID"].toText());
  txtSenha.setText(rs["sPWD"].toText());
  chkAutenticacao.setChecked(rs["bitAutenticacao"].toBoolean());
  txtTamanhoPagina.setText(rs["lTamanhoPagina"].toText());
  chkExibirLoginUsuario.setChecked(rs["bitExibirLoginUsuarios"].toBoolean());
  funcoes_.bLookCombo(cmbImpressoras, rs["sNomeImpressora"].toText());
  chkImprimirEntrada.setChecked(rs["bitImprimirEntrada"].toBoolean());
}

void frmSistema::chkAutenticacao_Click() {
  txtLogin.setEnabled(chkAutenticacao.checked());
  txtSenha.setEnabled(chkAutenticacao.checked());
}

bool frmSistema::bVerificarFirma() {
  if (!bVerificarNome()) return false;
  if (without(txtCNPJ.text(), " .-/").empty()) return recusar("O CNPJ deve ser informado.", txtCNPJ);
  return bVerificarCNPJ() && bVerificarEMail();
}

bool frmSistema::bVerificarCorreio() {
  std::string sRemetente = txtEmailRemetente.text();
  if (txtSMTP.empty()) return recusar("Informe o SMTP.", txtSMTP);
  if (sRemetente.empty()) return recusar("Informe o email do remetente.", txtEmailRemetente);
  if (!Validacoes::bValidarEMail(sRemetente)) return recusar("O email do remetente é inválido.", txtEmailRemetente);
  if (!chkAutenticacao.checked()) return true;
  if (txtLogin.empty()) return recusar("Informe o login.", txtLogin);
  if (txtSenha.empty()) return recusar("Informe a senha.", txtSenha);
  return true;
}

bool frmSistema::bVerificarOpcoes() {
  if (txtTamanhoPagina.value() >= lTamanhoPaginaRecusado)
    return recusar("Tamanho da página muito grande.\r\nInforme um valor inferior a 32500.", txtTamanhoPagina);
  if (cmbOpcaoReparcelamento.listIndex() < 0)
    return recusar("Informe a opção de reparcelamento.", cmbOpcaoReparcelamento);
  if (cmbImpressoras.listIndex() < 0) return recusar("Selecione a impressora padrão do sistema.", cmbImpressoras);
  return true;
}

bool frmSistema::bVerificarDados() {
  return bVerificarFirma() && bVerificarCorreio() && bVerificarOpcoes() && bVerificarCidade();
}

ValoresSQL frmSistema::valoresSistema() const {
  ValoresSQL valores = valoresFirma();
  valores.insert(valores.end(),
                 {{"fPercentualJurosDia", Validacoes::sGetFloatSQL(txtPercentualJurosDia.value())},
                  {"fPercentualJurosMes", Validacoes::sGetFloatSQL(txtPercentualJurosMes.value())},
                  {"btOpcaoReparcelamento", std::to_string(cmbOpcaoReparcelamento.itemData())},
                  {"bitMostrarContasPagarDia", sLogicoSQL(chkMostrarContasPagarDia.checked())},
                  {"bitMostrarContasReceberDia", sLogicoSQL(chkMostrarContasReceberDia.checked())},
                  {"bitMostrarContasVencidasPagar", sLogicoSQL(chkMostrarContasVencidasPagar.checked())},
                  {"bitMostrarContasVencidasReceber", sLogicoSQL(chkMostrarContasVencidasReceber.checked())}});
  return valores;
}

ValoresSQL frmSistema::valoresConfiguracoes() const {
  const bool bAutenticacao = chkAutenticacao.checked();
  return {
      {"sSMTP", sTextoSQL(txtSMTP.text())},
      {"sEmailRementente", sTextoSQL(txtEmailRemetente.text())},
      {"sUID", bAutenticacao ? sTextoSQL(txtLogin.text()) : "''"},
      {"sPWD", bAutenticacao ? sTextoSQL(txtSenha.text()) : "''"},
      {"bitAutenticacao", sLogicoSQL(chkAutenticacao.checked())},
      {"lTamanhoPagina", std::to_string(txtTamanhoPagina.value())},
      {"bitExibirLoginUsuarios", sLogicoSQL(chkExibirLoginUsuario.checked())},
      {"sNomeImpressora", sTextoSQL(cmbImpressoras.text())},
      {"bitImprimirEntrada", sLogicoSQL(chkImprimirEntrada.checked())},
  };
}

void frmSistema::cmdSalvar_Click() try {
  Recordset rs("SELECT lCodigo FROM Sistema ", contexto().dbConectar().Dados(), CursorType::keyset,
               LockType::optimistic);
  const bool bExiste = rs.recordCount() != 0;
  rs.closeIfOpen();
  Permissoes& permissoes = contexto().permissoes();
  if (!(bExiste ? permissoes.bGetAtualizar() : permissoes.bGetSalvar())) return;
  if (!bVerificarDados()) return;
  vExecutar(bExiste ? sComandoAlteracao("Sistema", valoresSistema()) : sComandoInclusao("Sistema", valoresSistema()));
  vExecutar("DELETE * FROM Configuracoes ");
  vExecutar(sComandoInclusao("Configuracoes", valoresConfiguracoes()));
  contexto().configuracoes().vSetTamanhoPagina(txtTamanhoPagina.value());
  informar("Operação concluída.");
  unload();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdSalvar_Click");
}

void frmSistema::vExecutar(const std::string& sSQL) const {
  Recordset rs;
  rs.open(sSQL, contexto().dbConectar().Dados(), CursorType::keyset, LockType::optimistic);
}

}  // namespace fenvale
