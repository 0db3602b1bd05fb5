#include "shell/screens/frmLocalizarBD.h"

#include "platform/os/Files.h"
#include "platform/os/Process.h"
#include "shell/services/Contexto.h"
#include "store/services/BancoDados.h"

namespace fenvale {
namespace {

constexpr const char* sLegendaSair = "&Sair";

std::string sNaPasta(const std::string& sPasta, const std::string& sNome) {
  return files::endsWithSeparator(sPasta) ? sPasta + sNome : sPasta + files::separator + sNome;
}

}  // namespace

frmLocalizarBD::frmLocalizarBD(Contexto& contexto) : Tela(contexto, "frmLocalizarBD") {
  setCaption("Localizar Base de Dados");
  setLayout({
      solto(lblPrincipal),
      linha({campo("Endereço Atual", txtEnderecoAtual, cresce)}),
      linha({coluna({campo("Unidade", drvlstListaDiretorios, cresce), lista(drvArvoreDiretorios, "Pastas")}, 8),
             coluna({lista(flstListaBancoDados, "Arquivos")}, 8)}),
      botoes({&cmdTestarConexao, &cmdConfiguracaoOriginal}, {&cmdFechar}),
  });
  setPreferredSize(16, 24);
  cmdTestarConexao.setPrimary();
  drvlstListaDiretorios.onChange = [this] { drvlstListaDiretorios_Change(); };
  drvArvoreDiretorios.onChange = [this] {
    flstListaBancoDados.setPath(drvArvoreDiretorios.path());
    txtEnderecoAtual.setText(drvArvoreDiretorios.path());
  };
  flstListaBancoDados.onClick = [this] {
    txtEnderecoAtual.setText(sNaPasta(flstListaBancoDados.path(), flstListaBancoDados.fileName()));
  };
  cmdTestarConexao.onClick = [this] { cmdTestarConexao_Click(); };
  cmdConfiguracaoOriginal.onClick = [this] { cmdConfiguracaoOriginal_Click(); };
  cmdFechar.onClick = [this] { cmdFechar_Click(); };
}

void frmLocalizarBD::onLoad() {
  flstListaBancoDados.setPattern(BancoDados::sGetNomeBD());
  flstListaBancoDados.setPath(drvArvoreDiretorios.path());
  cmdFechar.setCaption(bHaBaseDeDados() ? "&Fechar" : sLegendaSair);
  if (!files::isFile(sCaminhoIni())) return;
  const auto linhas = files::lines(files::read(sCaminhoIni()));
  if (!linhas.empty()) txtEnderecoAtual.setText(linhas.front());
}

bool frmLocalizarBD::onKeyDown(Key tecla) {
  if (tecla != Key::escape) return bTestarTecla(tecla);
  unload();
  return true;
}

/// Whether the store is found where the program would look for it now.
bool frmLocalizarBD::bHaBaseDeDados() const {
  const std::string sLocal = sNaPasta(contexto().sGetCaminhoAplicacao(), BancoDados::sGetNomeBD());
  if (!files::isFile(sCaminhoIni())) return files::isFile(sLocal);
  const auto linhas = files::lines(files::read(sCaminhoIni()));
  return !linhas.empty() && files::isFile(linhas.front());
}

void frmLocalizarBD::drvlstListaDiretorios_Change() { drvArvoreDiretorios.setPath(drvlstListaDiretorios.drive()); }

void frmLocalizarBD::cmdTestarConexao_Click() try {
  const std::string sEndereco = txtEnderecoAtual.text();
  if (files::isFile(sEndereco)) return vArmazenar(sEndereco);
  const std::string sComNome = sNaPasta(sEndereco, BancoDados::sGetNomeBD());
  if (files::isFile(sComNome)) return vArmazenar(sComNome);
  criticar("Caminho inválido.");
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdTestarConexao_Click");
}

std::string frmLocalizarBD::sCaminhoIni() const { return sNaPasta(contexto().sGetCaminhoAplicacao(), "init.ini"); }

void frmLocalizarBD::vArmazenar(const std::string& sCaminho) {
  files::write(sCaminhoIni(), sCaminho + "\r\n");
  informar("Banco de Dados encontrado.");
  if (cmdFechar.caption() == sLegendaSair) unload();
}

void frmLocalizarBD::cmdConfiguracaoOriginal_Click() try {
  files::write(sCaminhoIni(), sNaPasta(contexto().sGetCaminhoAplicacao(), BancoDados::sGetNomeBD()) + "\r\n");
  cmdFechar_Click();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "cmdConfiguracaoOriginal_Click");
}

void frmLocalizarBD::cmdFechar_Click() {
  if (cmdFechar.caption() != sLegendaSair) {
    unload();
    return;
  }
  BancoDados(contexto()).vFecharConexaoADO();
  contexto().processo().end(0);
}

}  // namespace fenvale
