#include "store/screens/TelaEmpresas.h"

#include <algorithm>

#include "platform/os/Files.h"
#include "platform/sql/Store.h"
#include "shell/services/Contexto.h"
#include "shell/services/Telas.h"
#include "shell/services/TelasDeApoio.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

constexpr std::int16_t iColunasImpressao = 80;
constexpr std::size_t subNome = 1;
constexpr std::size_t subPasta = 2;

}  // namespace

std::string sComSeparador(std::string sCaminho) {
  if (!files::endsWithSeparator(sCaminho)) sCaminho += files::separator;
  return sCaminho;
}

TelaEmpresas::TelaEmpresas(Contexto& contexto, std::string sNome, ListView::CheckBoxes marcas)
    : TelaPaginada(contexto, std::move(sNome), marcas) {
  setCaption("Empresa");
  vSetColunas({
      {.sCabecalho = "Código", .fLargura = 1300, .sCampo = "lCodigo", .sMascara = "00000"},
      {.sCabecalho = "Nome do arquivo", .fLargura = 3400, .sCampo = "sNomeArquivo"},
      {.sCabecalho = "Caminho", .fLargura = 5800, .sCampo = "sCaminho"},
  });
  cmdEmitir.onClick = [this] { vEmitirLista("Empresas criadas", iColunasImpressao); };
  cmdFechar.onClick = [this] { unload(); };
}

Connection& TelaEmpresas::conexao() const { return contexto().dbConectar().Dados(); }

void TelaEmpresas::onLoad() {
  cmdEmitir.setEnabled(bPodeEmitir());
  vMostrarAPartirDe(0);
  vRestaurarColunas();
}

void TelaEmpresas::vMostrarAPartirDe(std::int16_t iInicio) try {
  vPreencherLista(iInicio, "SELECT lCodigo, sNomeArquivo, sCaminho FROM Empresas ORDER BY sNomeArquivo, sCaminho ");
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vMontarLista");
}

TelaEmpresas::Arquivo TelaEmpresas::arquivoDaLinha(const ListItem& item) {
  return {item.subItem(subNome), item.subItem(subPasta)};
}

std::optional<TelaEmpresas::Arquivo> TelaEmpresas::escolherArquivo() const {
  auto& busca = contexto().telas().obter<BuscaArquivo>("frmLocalizarArquivo");
  busca.vCarregar("*.MDB");
  const std::string sCaminho = busca.sGetArquivo();
  if (sCaminho.empty()) {
    avisar("Localize um arquivo.");
    return std::nullopt;
  }
  Arquivo arquivo{Funcoes::sGetNomeArquivoCaminho(sCaminho), Funcoes::sGetPathCaminho(sCaminho)};
  if (files::isFolder(arquivo.sPasta)) return arquivo;
  avisar(sCaminhoInvalido(arquivo.sPasta));
  return std::nullopt;
}

void TelaEmpresas::vAlterarLista(const std::string& sSQL, const char* sProcedimento) try {
  Recordset rs;
  rs.open(sSQL, conexao(), CursorType::keyset, LockType::optimistic);
  vMostrarAPartirDe(0);
} catch (const Error& falha) {
  if (falha.number != errors::refused) return vRegistrarFalha(falha, sProcedimento);
  avisar("Os dados informados já existem no sistema.\r\n\r\nInformação detalhada: " + falha.description);
}

std::shared_ptr<ListItem> TelaEmpresas::linhaMarcada() {
  const auto& itens = lstLista.items();
  const auto marcado = std::find_if(itens.begin(), itens.end(), [](const auto& item) { return item->checked(); });
  if (marcado != itens.end() && lCodigoDaChave((*marcado)->key()) > 0) return *marcado;
  avisar("Selecione uma empresa.", "Norvane sistemas");
  lstLista.setFocus();
  return nullptr;
}

void TelaEmpresas::vMarcarSomente(const ListItem& item) {
  for (const auto& outro : lstLista.items()) {
    const bool bEste = outro.get() == &item;
    if (outro->checked() != bEste) outro->setChecked(bEste);
  }
}

std::string TelaEmpresas::sCaminhoInvalido(const std::string& sCaminho) {
  return "O caminho\r\n" + sCaminho + "\r\né inválido.";
}

}  // namespace fenvale
