#include "controles/TelaExemplo.h"

namespace fenvale {

JanelaExemplo::JanelaExemplo(UiHost& host, std::string figura)
    : Screen(host, "JanelaExemplo", ScreenStyle::mainWindow),
      Toolbar1(*this, "Toolbar1",
               {{"CadastroClientes", "Clientes", "clientes", "Cadastro de clientes"},
                {"CadastroFornecedores", "Fornecedores", "fornecedores", "Cadastro de fornecedores", false},
                {"CadastroPortadores", "Portadores", "portadores", "Cadastro de portadores"},
                {},
                {"TitulosReceber", "A receber", "receber", "Títulos a receber"},
                {"TitulosPagar", "A pagar", "pagar", "Títulos a pagar", false},
                {},
                {"QuadroGeral", "Quadro geral", "quadro", "Quadro geral de contas"},
                {},
                {"sair", "Sair", "sair", "Sair do programa"}}) {
  setCaption("Gestor Fenvale");
  setBackground(std::move(figura));
  const auto escolhe = [this](const char* nome) { return [this, nome] { escolhido = nome; }; };
  mnuBarra.setItems(
      {{"mnuCadastroS",
        "&Cadastros",
        {{"mnuEmpresaNova", "Nova Empresa", {}, escolhe("mnuEmpresaNova")},
         {"mnuEmpresaAbrir", "Abrir Empresa", {}, escolhe("mnuEmpresaAbrir"), "empresa"},
         {"mnu3", "-", {}, {}},
         {"mnuCadFornecedores", "Fornecedores", {}, {}, {}, false}},
        {}},
       {"mnuListagens",
        "Listagens",
        {{"mnuRelCadastros", "Cadastros", {{"mnuRelClientes", "Clientes", {}, escolhe("mnuRelClientes")}}, {}}},
        {}}});
  Toolbar1.onButtonClick = [this](const std::string& chave) { escolhido = chave; };
  setLayout({solto(lblAviso)});
}

AberturaExemplo::AberturaExemplo(UiHost& host) : Screen(host, "AberturaExemplo", ScreenStyle::splash) {
  setPreferredSize(11, 10);
  setLayout({coluna({solto(lblNomePrograma), solto(lblVersao), solto(lblMensagem)})});
}

}  // namespace fenvale
