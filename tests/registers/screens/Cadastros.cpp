#include "registers/screens/Cadastros.h"

#include "platform/base/Format.h"
#include "registers/screens/TelasDosCadastros.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

std::string sLimite(const Control& controle) {
  if (const auto* codigo = dynamic_cast<const CodeBox*>(&controle)) return " <= " + std::to_string(codigo->maximum());
  if (const auto* numero = dynamic_cast<const NumberBox*>(&controle)) return " <= " + std::to_string(numero->maximum());
  if (const auto* mascara = dynamic_cast<const MaskBox*>(&controle)) return " " + mascara->mask();
  const auto* texto = dynamic_cast<const TextBox*>(&controle);
  return texto == nullptr || texto->maxLength() == 0 ? "" : " " + std::to_string(texto->maxLength());
}

void descrever(const LayoutNode& no, std::vector<std::string>& textos) {
  if (no.kind == LayoutNode::Kind::tab) textos.push_back("[" + no.caption + "]");
  if (no.kind == LayoutNode::Kind::field) {
    std::string sTexto = replaceAll(no.caption, "&", "") + ": " + no.control->name() + sLimite(*no.control);
    for (const Control* botao : no.beside) sTexto += " + " + botao->name();
    textos.push_back(sTexto);
  }
  for (const LayoutNode& filho : no.children) descrever(filho, textos);
}

}  // namespace

Cadastros::Cadastros() : programa(vRegistrarTelasDosCadastros), host(programa.hostDeTeste()) {
  programa.abrirEmpresa();
  tamanhoDaPagina(100);
}

std::vector<std::string> Cadastros::linhas(const std::string& sSQL) {
  std::vector<std::string> textos;
  for (const auto& campos : programa.linhas(sSQL)) {
    std::string sLinha;
    for (std::size_t i = 0; i < campos.size(); ++i) sLinha += (i == 0 ? "" : "|") + campos[i];
    textos.push_back(sLinha);
  }
  return textos;
}

std::string Cadastros::valor(const std::string& sSQL) {
  const auto todas = linhas(sSQL);
  return todas.empty() ? "(nenhuma linha)" : todas.front();
}

std::int32_t Cadastros::inserir(const std::string& sTabela, const std::string& sColunas, const std::string& sValores) {
  executar("INSERT INTO " + sTabela + " (" + sColunas + ") VALUES (" + sValores + ")");
  return std::stoi(valor("SELECT MAX(lCodigo) AS Valor FROM " + sTabela));
}

std::string Cadastros::recusaDoBanco(const std::string& sSQL) try {
  executar(sSQL);
  ADD_FAILURE() << "not refused: " << sSQL;
  return {};
} catch (const Error& recusa) {
  return recusa.description;
}

Screen& Cadastros::abrir(const std::string& sTela) {
  Screen& tela = programa.telas().obter(sTela);
  host.show(tela);
  return tela;
}

TextControl& Cadastros::caixa(Screen& tela, const std::string& sNome) {
  auto* controle = dynamic_cast<TextControl*>(tela.control(sNome));
  if (controle == nullptr) throw std::logic_error("no box " + sNome + " on " + tela.sGetName());
  return *controle;
}

Button& Cadastros::botao(Screen& tela, const std::string& sNome) {
  auto* controle = dynamic_cast<Button*>(tela.control(sNome));
  if (controle == nullptr) throw std::logic_error("no button " + sNome + " on " + tela.sGetName());
  return *controle;
}

std::vector<std::string> Cadastros::listados(ListView& lst) {
  std::vector<std::string> textos;
  for (const auto& item : lst.items()) {
    std::string sLinha = item->text();
    for (std::size_t i = 1; i <= item->subItemCount(); ++i) sLinha += "|" + item->subItem(i);
    textos.push_back(sLinha);
  }
  return textos;
}

std::vector<std::string> Cadastros::formularioDe(const Screen& tela) {
  std::vector<std::string> textos;
  descrever(tela.layout(), textos);
  return textos;
}

std::vector<std::string> Cadastros::cabecalhos(const ListView& lst) {
  std::vector<std::string> textos;
  for (const ListColumn& coluna : lst.columns()) textos.push_back(coluna.heading);
  return textos;
}

std::string Cadastros::relato() {
  const PastaTemporaria& pasta = programa.pasta();
  return pasta.existe("Erros") ? fromWindows1252(pasta.ler("Erros/" + pasta.nomes("Erros").back())) : "";
}

void Cadastros::entrarSem(const std::string& sDireito) {
  const std::string sLogin = sDireito + std::to_string(++iUsuarios_);
  programa.executarPrograma(
      "INSERT INTO Usuarios (sNomeUsuario, sLogin, sSenha, bPoderSalvar, bPoderExcluir, bPoderPesquisar, "
      "bPoderImprimir, bPoderAtualizar) VALUES ('Beatriz', '" +
      sLogin + "', 'x', -1, -1, -1, -1, -1)");
  programa.executarPrograma("UPDATE Usuarios SET " + sDireito + " = 0 WHERE sLogin = '" + sLogin + "'");
  const auto lChave = programa.linhasPrograma("SELECT MAX(lCodigo) AS Valor FROM Usuarios").at(0).at(0);
  programa.permissoes().vSetPermissoes(std::stoi(lChave));
}

void Cadastros::vendedores(int iQuantos) {
  for (int i = 1; i <= iQuantos; ++i)
    executar("INSERT INTO Vendedores (lCodigoInf, sNome) VALUES (" + std::to_string(i) + ", 'Vendedor " +
             formatNumber(std::int64_t{i}, "###000") + "')");
}

void Cadastros::programaComFatura() {
  const auto lCidade = std::to_string(cidade("Campinas", "SP"));
  const auto lCategoria = std::to_string(inserir("Categorias", "btCodigoInf, sNome", "1, 'Varejo'"));
  const auto lVendedor = std::to_string(inserir("Vendedores", "lCodigoInf, sNome", "1, 'Maria Aparecida'"));
  const auto lPortador = std::to_string(inserir("Portadores", "btCodigoInf, sNome", "1, 'Carteira'"));
  const auto lCusto = std::to_string(inserir("CentroCusto", "btCodigoInf, sDescricao", "1, 'Loja'"));
  const auto lCondicao = std::to_string(
      inserir("CondicoesPagamento", "btCodigoInf, iNumeroParcelas, iIntervalo, bitEntrada", "1, 3, 30, 0"));
  const auto lCliente = std::to_string(inserir("Clientes",
                                               "lCodigoInf, sNome, fLimiteCredito, dtNascimento, lCategoria, lCidade, "
                                               "lVendedor, lCidadeEntrega, lCidadeCobranca",
                                               "1, 'Açougue São João', 1500, #08/12/1975#, " + lCategoria + ", " +
                                                   lCidade + ", " + lVendedor + ", " + lCidade + ", " + lCidade));
  inserir(
      "FaturasCliente",
      "lNumeroFatura, fTotal, fEntrada, lCliente, lCondicoesPagamento, lPortador, lVendedor, lCentroCusto, dtEmissao",
      "1, 300, 0, " + lCliente + ", " + lCondicao + ", " + lPortador + ", " + lVendedor + ", " + lCusto +
          ", #03/15/2026#");
  const auto lFornecedor = std::to_string(inserir("Fornecedores", "lCodigoInf, sNome, lCategoria, lCidade, lBanco",
                                                  "1, 'Frigorífico Aurora', " + lCategoria + ", " + lCidade + ", 1"));
  inserir("FaturasFornecedor",
          "lNumeroFatura, fTotal, fEntrada, lFornecedor, lCondicoesPagamento, lPortador, lCentroCusto, dtEmissao",
          "1, 300, 0, " + lFornecedor + ", " + lCondicao + ", " + lPortador + ", " + lCusto + ", #03/15/2026#");
}

std::int32_t Cadastros::cidade(const std::string& sNome, const std::string& sUF) {
  return inserir("Cidades", "sNome, sUF", "'" + replaceAll(sNome, "'", "''") + "', '" + sUF + "'");
}

}  // namespace fenvale
