#include "store/screens/TelaNovoArquivo.h"

#include "platform/base/Text.h"
#include "platform/os/Files.h"

namespace fenvale {
namespace {

bool bVazio(const TextBox& caixa) { return without(caixa.text(), " ").empty(); }

}  // namespace

TelaNovoArquivo::TelaNovoArquivo(Contexto& contexto, std::string sNome, const std::string& sLocal,
                                 ListView::CheckBoxes marcas)
    : TelaEmpresas(contexto, std::move(sNome), marcas), lblLocal(*this, "lblLocal", sLocal, Label::Style::help) {
  setPreferredSize(20, 34);
  cmdSalvar.setPrimary();
  drvlstListaDiretorios.onChange = [this] { drvArvoreDiretorios.setPath(drvlstListaDiretorios.drive()); };
  drvArvoreDiretorios.onChange = [this] { txtCaminho.setText(drvArvoreDiretorios.path()); };
  txtCaminho.onLostFocus = [this] {
    if (files::isFolder(txtCaminho.text())) drvArvoreDiretorios.setPath(txtCaminho.text());
  };
}

void TelaNovoArquivo::vMontarTela(const std::vector<Control*>& comandos) {
  setLayout({
      linha({campo("Nome do arquivo", txtNomeArquivo, 8), campo("Caminho", txtCaminho, cresce)}),
      solto(lblLocal),
      linha({campo("Unidade", drvlstListaDiretorios, cresce)}),
      lista(drvArvoreDiretorios, "Pastas"),
      quadro("Empresas criadas", {lista(lstLista, "Empresas criadas"), paginas(scrPaginas, pbBarrra)}),
      botoes(comandos, {&cmdFechar}),
  });
}

void TelaNovoArquivo::onLoad() {
  txtCaminho.setText(drvArvoreDiretorios.path());
  TelaEmpresas::onLoad();
}

void TelaNovoArquivo::vLimpar() {
  txtNomeArquivo.setText({});
  vMostrarAPartirDe(0);
}

bool TelaNovoArquivo::bVerificarArquivo() {
  if (bVazio(txtNomeArquivo)) return recusar("Informe o nome do arquivo.", txtNomeArquivo);
  if (!endsWithNoCase(txtNomeArquivo.text(), sExtensaoEmpresa))
    txtNomeArquivo.setText(txtNomeArquivo.text() + sExtensaoEmpresa);
  if (bVazio(txtCaminho)) return recusar("Informe o caminho onde será gravado o arquivo.", drvArvoreDiretorios);
  txtCaminho.setText(sComSeparador(txtCaminho.text()));
  const std::string& sPasta = txtCaminho.text();
  if (!files::isFolder(sPasta))
    return recusar("O caminho informado \r\n\r\n" + sPasta + "\r\n\r\nnão existe.", drvArvoreDiretorios);
  if (files::isFile(sGetArquivo()))
    return recusar(sGetArquivo() + "\r\n\r\nO arquivo já existe no local especificado.", txtNomeArquivo);
  return true;
}

}  // namespace fenvale
