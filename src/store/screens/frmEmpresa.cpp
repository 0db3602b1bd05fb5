#include "store/screens/frmEmpresa.h"

#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Teclas.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "shell/services/Validacoes.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

constexpr const char* sFiguras = "*.bmp;*.jpg;*.gif;*.jpeg";

}  // namespace

frmEmpresa::frmEmpresa(Contexto& contexto)
    : Tela(contexto, "frmEmpresa"), campoCidade(*this, contexto, CampoCidade::Modo::digitado, true) {
  setCaption("Empresa");
  setTitle("Informações da empresa");
  setLayout({
      linha({campo("Nome", txtNome, cresce)}),
      linha({campo("Endereço", txtEndereco, 16), campo("Bairro", txtBairro, cresce)}),
      linha({campoCidade.campoNome(cresce), campoCidade.campoUF(), campo("CEP", txtCEP, 4)}),
      linha({campo("Telefone", txtTelefone, 5), campo("Fax", txtFax, 5), campo("e-mail", txtEMail, cresce)}),
      linha({campo("CNPJ", txtCNPJ, 6), campo("CPF", txtCPF, 5)}),
      quadro("Figuras",
             {linha({campo("Logotipo", txtCaminhoFigura, cresce, {&cmdLocalizarLogotipo})}),
              linha({campo("Nota promissória", txtFiguraPromissoria, cresce, {&cmdLocalizarImagemPromissoria})})}),
      botoes({&cmdSalvar}, {&cmdFechar}),
  });
  setPreferredSize(20, 0);
  cmdSalvar.setPrimary();
  for (Button* botao : {&cmdLocalizarLogotipo, &cmdLocalizarImagemPromissoria}) {
    botao->setLabel("Localizar figura");
    botao->setToolTip("Localizar figura");
  }
  cmdLocalizarLogotipo.onClick = [this] { vLocalizarFigura(txtCaminhoFigura); };
  cmdLocalizarImagemPromissoria.onClick = [this] { vLocalizarFigura(txtFiguraPromissoria); };
  cmdSalvar.onClick = [this] { cmdSalvar_Click(); };
  cmdFechar.onClick = [this] { unload(); };
}

bool frmEmpresa::onKeyDown(Key tecla) { return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla); }

std::vector<frmEmpresa::Campo> frmEmpresa::campos() {
  return {{"sNome", &txtNome},
          {"sEndereco", &txtEndereco},
          {"sBairro", &txtBairro},
          {"sCEP", &txtCEP},
          {"lCidade", nullptr},
          {"sCNPJ", &txtCNPJ},
          {"sTelefone", &txtTelefone},
          {"sFax", &txtFax},
          {"sEMail", &txtEMail},
          {"txtCaminhoFigura", &txtCaminhoFigura},
          {"txtFiguraPromissoria", &txtFiguraPromissoria},
          {"sCPF", &txtCPF}};
}

void frmEmpresa::onLoad() try {
  Recordset rs(
      "SELECT sCPF, txtFiguraPromissoria, DadosEmpresa.sNome, sEndereco, sBairro, sCEP, lCidade, txtCaminhoFigura, "
      "sCNPJ, sTelefone, sFax, sEMail, (Cidades.sNome) AS CidadeNome, (Cidades.sUF) AS CidadeUF, (Cidades.lCodigo) AS "
      "CidadeCodigo FROM Cidades INNER JOIN DadosEmpresa ON Cidades.lCodigo = DadosEmpresa.lCidade",
      contexto().dbEmpresa().Dados(), CursorType::dynamic, LockType::pessimistic);
  if (rs.recordCount() == 0) return;
  for (const Campo& cada : campos())
    if (cada.caixa != nullptr) cada.caixa->setText(rs[cada.sColuna].toText());
  campoCidade.vSetEstado(rs);
} catch (const Error& falha) {
  vRegistrarFalha(falha, "Form_Load");
}

void frmEmpresa::vLocalizarFigura(TextBox& destino) {
  auto& busca = contexto().telas().obter<BuscaArquivo>("frmLocalizarArquivo");
  busca.vCarregar(sFiguras);
  if (!busca.sGetArquivo().empty()) destino.setText(busca.sGetArquivo());
}

bool frmEmpresa::bVerificarDados() {
  // The checks clean their argument; what is stored is the text of the box.
  std::string sCPF = txtCPF.text(), sCNPJ = txtCNPJ.text(), sEMail = txtEMail.text();
  if (txtNome.empty()) return recusar("O nome deve ser informado.", txtNome);
  if (!sCPF.empty() && !Validacoes::bValidarCPF(sCPF) && !perguntar("CPF inválido. Deseja continuar?")) {
    txtCPF.setFocus();
    return false;
  }
  if (!sCNPJ.empty() && !Validacoes::bValidarCNPJ(sCNPJ) && !perguntar("CNPJ inválido. Deseja continuar?")) {
    txtCNPJ.setFocus();
    return false;
  }
  if (!sEMail.empty() && !Validacoes::bValidarEMail(sEMail)) return recusar("O e-Mail informado é inválido.", txtEMail);
  if (campoCidade.lGetCodigo() < 0) return recusar("Informe a cidade.", campoCidade.txtCidade);
  return true;
}

void frmEmpresa::cmdSalvar_Click() try {
  if (!bVerificarDados()) return;
  std::string sColunas, sValores;
  for (const Campo& cada : campos()) {
    const std::string sVirgula = sColunas.empty() ? "" : ", ";
    sColunas += sVirgula + cada.sColuna;
    sValores += sVirgula + (cada.caixa == nullptr ? std::to_string(campoCidade.lGetCodigo())
                                                  : "'" + Validacoes::sGetStringSQL(cada.caixa->text()) + "'");
  }
  Connection& dados = contexto().dbEmpresa().Dados();
  Recordset rs;
  rs.open("DELETE * FROM DadosEmpresa ", dados, CursorType::dynamic, LockType::pessimistic);
  rs.open("INSERT INTO DadosEmpresa (" + sColunas + ") VALUES (" + sValores + ")", dados, CursorType::dynamic,
          LockType::pessimistic);
  informar("Operação concluída.");
  unload();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdSalvar_Click");
}

}  // namespace fenvale
