#include "store/screens/TelaFirma.h"

#include "platform/sql/Store.h"
#include "shell/services/Teclas.h"
#include "shell/services/Validacoes.h"

namespace fenvale {

TelaFirma::TelaFirma(Contexto& contexto, std::string sNome, bool bEmpresa)
    : Tela(contexto, std::move(sNome)),
      campoCidade(*this, contexto, CampoCidade::Modo::digitado, bEmpresa),
      campos_{{"sNome", &txtNome},         {"sEndereco", &txtEndereco}, {"sBairro", &txtBairro},
              {"sCEP", &txtCEP},           {"lCidade", nullptr},        {"sCNPJ", &txtCNPJ},
              {"sTelefone", &txtTelefone}, {"sFax", &txtFax},           {"sEMail", &txtEMail}} {
  cmdSalvar.setPrimary();
  cmdSalvar.onClick = [this] { cmdSalvar_Click(); };
  cmdFechar.onClick = [this] { unload(); };
}

bool TelaFirma::onKeyDown(Key tecla) { return bPressionarBotaoDaTecla(*this, tecla) || bTestarTecla(tecla); }

std::vector<LayoutNode> TelaFirma::linhasFirma(std::vector<LayoutNode> aposCEP) {
  std::vector<LayoutNode> cidade{campoCidade.campoNome(cresce), campoCidade.campoUF(), campo("CEP", txtCEP, 4)};
  for (LayoutNode& outro : aposCEP) cidade.push_back(std::move(outro));
  return {linha({campo("Nome", txtNome, cresce)}),
          linha({campo("Endereço", txtEndereco, 15), campo("Bairro", txtBairro, cresce)}), linha(std::move(cidade)),
          linha({campo("Telefone", txtTelefone, 5), campo("Fax", txtFax, 5), campo("e-mail", txtEMail, cresce)})};
}

void TelaFirma::vIncluirCampos(const std::vector<Campo>& outros) {
  campos_.insert(campos_.end(), outros.begin(), outros.end());
}

void TelaFirma::vMostrarFirma(const Recordset& rs) {
  for (const Campo& cada : campos_)
    if (cada.caixa != nullptr) cada.caixa->setText(rs[cada.sColuna].toText());
  campoCidade.vSetEstado(rs);
}

ValoresSQL TelaFirma::valoresFirma() const {
  ValoresSQL valores;
  valores.reserve(campos_.size());
  for (const Campo& cada : campos_)
    valores.emplace_back(
        cada.sColuna, cada.caixa == nullptr ? std::to_string(campoCidade.lGetCodigo()) : sTextoSQL(cada.caixa->text()));
  return valores;
}

bool TelaFirma::bConfirmar(bool bValido, const char* sPergunta, Control& caixa) {
  if (bValido || perguntar(sPergunta)) return true;
  caixa.setFocus();
  return false;
}

bool TelaFirma::bVerificarNome() { return !txtNome.empty() || recusar("O nome deve ser informado.", txtNome); }

// The checks clean their argument; what is stored is the text of the box.

bool TelaFirma::bVerificarCNPJ() {
  std::string sCNPJ = txtCNPJ.text();
  return bConfirmar(sCNPJ.empty() || Validacoes::bValidarCNPJ(sCNPJ), "CNPJ inválido. Deseja continuar?", txtCNPJ);
}

bool TelaFirma::bVerificarEMail() {
  std::string sEMail = txtEMail.text();
  return sEMail.empty() || Validacoes::bValidarEMail(sEMail) || recusar("O e-Mail informado é inválido.", txtEMail);
}

bool TelaFirma::bVerificarCidade() {
  return campoCidade.lGetCodigo() >= 0 || recusar("Informe a cidade.", campoCidade.txtCidade);
}

}  // namespace fenvale
