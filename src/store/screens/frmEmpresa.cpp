#include "store/screens/frmEmpresa.h"

#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "shell/services/Validacoes.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

constexpr const char* sFiguras = "*.bmp;*.jpg;*.gif;*.jpeg";

}  // namespace

frmEmpresa::frmEmpresa(Contexto& contexto) : TelaFirma(contexto, "frmEmpresa", true) {
  setCaption("Empresa");
  setTitle("Informações da empresa");
  vIncluirCampos(
      {{"txtCaminhoFigura", &txtCaminhoFigura}, {"txtFiguraPromissoria", &txtFiguraPromissoria}, {"sCPF", &txtCPF}});
  std::vector<LayoutNode> linhas = linhasFirma({});
  linhas.push_back(linha({campo("CNPJ", txtCNPJ, 6), campo("CPF", txtCPF, 5)}));
  linhas.push_back(quadro(
      "Figuras", {linha({campo("Logotipo", txtCaminhoFigura, cresce, {&cmdLocalizarLogotipo})}),
                  linha({campo("Nota promissória", txtFiguraPromissoria, cresce, {&cmdLocalizarImagemPromissoria})})}));
  linhas.push_back(botoes({&cmdSalvar}, {&cmdFechar}));
  setLayout(std::move(linhas));
  setPreferredSize(20, 0);
  for (Button* botao : {&cmdLocalizarLogotipo, &cmdLocalizarImagemPromissoria}) {
    botao->setLabel("Localizar figura");
    botao->setToolTip("Localizar figura");
  }
  cmdLocalizarLogotipo.onClick = [this] { vLocalizarFigura(txtCaminhoFigura); };
  cmdLocalizarImagemPromissoria.onClick = [this] { vLocalizarFigura(txtFiguraPromissoria); };
}

void frmEmpresa::onLoad() try {
  Recordset rs(
      "SELECT sCPF, txtFiguraPromissoria, DadosEmpresa.sNome, sEndereco, sBairro, sCEP, lCidade, txtCaminhoFigura, "
      "sCNPJ, sTelefone, sFax, sEMail, (Cidades.sNome) AS CidadeNome, (Cidades.sUF) AS CidadeUF, (Cidades.lCodigo) AS "
      "CidadeCodigo FROM Cidades INNER JOIN DadosEmpresa ON Cidades.lCodigo = DadosEmpresa.lCidade",
      contexto().dbEmpresa().Dados(), CursorType::dynamic, LockType::pessimistic);
  if (rs.recordCount() != 0) vMostrarFirma(rs);
} catch (const Error& falha) {
  vRegistrarFalha(falha, "Form_Load");
}

void frmEmpresa::vLocalizarFigura(TextBox& destino) {
  auto& busca = contexto().telas().obter<BuscaArquivo>("frmLocalizarArquivo");
  busca.vCarregar(sFiguras);
  if (!busca.sGetArquivo().empty()) destino.setText(busca.sGetArquivo());
}

bool frmEmpresa::bVerificarDados() {
  std::string sCPF = txtCPF.text();  // the check cleans its argument
  return bVerificarNome() &&
         bConfirmar(sCPF.empty() || Validacoes::bValidarCPF(sCPF), "CPF inválido. Deseja continuar?", txtCPF) &&
         bVerificarCNPJ() && bVerificarEMail() && bVerificarCidade();
}

void frmEmpresa::cmdSalvar_Click() try {
  if (!bVerificarDados()) return;
  Connection& dados = contexto().dbEmpresa().Dados();
  Recordset rs;
  rs.open("DELETE * FROM DadosEmpresa ", dados, CursorType::dynamic, LockType::pessimistic);
  rs.open(sComandoInclusao("DadosEmpresa", valoresFirma()), dados, CursorType::dynamic, LockType::pessimistic);
  informar("Operação concluída.");
  unload();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdSalvar_Click");
}

}  // namespace fenvale
