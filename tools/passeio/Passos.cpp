#include "passeio/Passos.h"

#include <Qt>

#include "passeio/Guia.h"
#include "shell/services/Contexto.h"

namespace fenvale::passeio {

std::string legendaDaEmpresa(const Contexto& programa) {
  return "Gestor Fenvale - Versão ZENIT   -     Empresa: Loja.MDB     -     Caminho: " +
         programa.sGetCaminhoAplicacao() + "/Empresas/";
}

void entrar(Guia& guia) {
  guia.tela("frmLogin");
  guia.escolher("cmbLogin", "ADMINISTRADOR");
  guia.preencher({{"txtSenha", senha}});
  guia.fotografar("login");
  guia.tecla(Qt::Key_F3);
}

void sair(Guia& guia) {
  guia.tela("frmMDIPrincipal");
  guia.espereFim(0);
  guia.menu("mnuSair");
}

void fechar(Guia& guia) {
  guia.tecla(Qt::Key_Escape);
  guia.tela("frmMDIPrincipal");
}

void salvar(Guia& guia, const char* retrato, const std::vector<std::string>& linhas) {
  guia.fotografar(retrato);
  guia.tecla(Qt::Key_F3);
  guia.caixa(informacao, concluida);
  guia.linhas("lstLista", linhas);
}

void buscar(Guia& guia, const char* caixa, const char* busca, const char* campo, const char* texto, const char* volta) {
  guia.ir(caixa);
  guia.tecla(Qt::Key_Space);
  guia.tela(busca);
  guia.preencher({{campo, texto}});
  guia.tecla(Qt::Key_F6);
  guia.teclarLinha("lstLista", 0, 2);
  guia.tela(volta);
}

void abrirEmpresa(Guia& guia, const std::string& caminho, int linha) {
  guia.tela("frmMDIPrincipal");
  guia.menu("mnuEmpresaAbrir");
  guia.tela("frmEmpresaAbrir");
  guia.teclarLinha("lstLista", linha);
  guia.conteudo("txtCampo", caminho);
  guia.fotografar("abrir-empresa");
  guia.tecla(Qt::Key_F3);
}

void cadastrarNome(Guia& guia, const char* entrada, const char* tela, const char* campo, const char* nome,
                   const std::vector<std::string>& linhas) {
  guia.menu(entrada);
  guia.tela(tela);
  guia.preencher({{campo, nome}});
  salvar(guia, "cadastro", linhas);
  fechar(guia);
}

}  // namespace fenvale::passeio
