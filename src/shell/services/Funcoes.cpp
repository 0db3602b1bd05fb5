#include "shell/services/Funcoes.h"

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/sql/Store.h"
#include "platform/ui/Choices.h"
#include "platform/ui/Screen.h"
#include "shell/services/Contexto.h"
#include "shell/services/JanelaPrincipal.h"
#include "shell/services/Monitor.h"
#include "shell/services/Tela.h"
#include "shell/services/Telas.h"
#include "shell/services/TratadorExcessoes.h"
#include "store/services/DBConectar.h"

namespace fenvale {
namespace {

constexpr const char* nomesMeses[] = {"Janeiro", "Fevereiro", "Março",    "Abril",   "Maio",     "Junho",
                                      "Julho",   "Agosto",    "Setembro", "Outubro", "Novembro", "Dezembro"};

std::size_t inicioDoNome(std::string_view sCaminho) {
  const std::size_t ultimo = sCaminho.find_last_of(files::separators);
  return ultimo == std::string_view::npos ? 0 : ultimo + 1;
}

std::int16_t iMaisProximo(Currency fValor) { return roundToInt16(fValor.toDouble()); }

/// Clears the combo and adds one entry for each row, from the first one on.
template <typename Entrada>
void vMontar(UiHost& host, ComboBox& cmb, Recordset& rs, Entrada entrada) {
  cmb.clear();
  if (rs.bof() && rs.eof()) return;
  for (rs.moveFirst(); !rs.eof(); rs.moveNext()) {
    const ComboBox::Item item = entrada();
    cmb.addItem(item.text, item.data);
    host.doEvents();
  }
}

/// The place of the first entry for which `combina` holds; -1 when there is none.
template <typename Combina>
int iProcurar(const ComboBox& cmb, Combina combina) {
  for (std::size_t place = 0; place < cmb.items().size(); ++place)
    if (combina(cmb.items()[place].text)) return static_cast<int>(place);
  return -1;
}

}  // namespace

Funcoes::Funcoes(Contexto& contexto) : contexto_(contexto) {}

void Funcoes::vRegistrarFalha(const Error& falha, const char* sProcedimento, int iOpcao) const {
  contexto_.tratadorExcessoes().vExibirGravarLogErro(falha, sGetName(), sProcedimento, iOpcao);
}

bool Funcoes::bExisteDiretorio(const std::string& sCaminho) const { return files::isFolder(sCaminho); }
bool Funcoes::bVerificarArquivo(const std::string& sCaminho) const { return files::isFile(sCaminho); }

void Funcoes::vVerificarCriarDiretorio(const std::string& sCaminho) const try {
  files::createFolder(sCaminho);
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vVerificarCriarDiretorio");
}

std::string Funcoes::sGetNomeArquivoCaminho(std::string_view sCaminho) {
  return std::string(sCaminho.substr(inicioDoNome(sCaminho)));
}

std::string Funcoes::sGetPathCaminho(std::string_view sCaminho) {
  return std::string(sCaminho.substr(0, inicioDoNome(sCaminho)));
}

void Funcoes::vMostrarFormModal(Screen& frm) try { contexto_.host().showModal(frm); } catch (const Error& falha) {
  vRegistrarFalha(falha, "vMostrarFormModal");
}

void Funcoes::vMostrarFormModal(std::string_view sTela) try {
  contexto_.host().showModal(contexto_.telas().obter(sTela));
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vMostrarFormModal");
}

bool Funcoes::bSetAmpulhetaMouse(bool bLivre) {
  contexto_.host().setPointer(bLivre ? Pointer::normal : Pointer::hourglass);
  return bLivre;
}

bool Funcoes::bTestarTecla(std::int16_t iTecla) {
  if (iTecla != static_cast<std::int16_t>(Key::enter)) return false;
  if (Screen* tela = contexto_.host().activeScreen()) tela->focusNext();
  return true;
}

void Funcoes::vColocarFiguraFundo() {
  const std::string sResolucao = without(Monitor(contexto_.host()).sObterResolucaoMonitor(), " ");
  const bool bPropria = sResolucao == "1024x768" || sResolucao == "1280x1024";
  const std::string sFigura =
      contexto_.sGetCaminhoAplicacao() + "/FiguraFundo" + (bPropria ? sResolucao : "800x600") + ".gif";
  if (files::isFile(sFigura)) contexto_.janelaPrincipal().vSetFiguraFundo(sFigura);
}

void Funcoes::vMontarCombo(ComboBox& cmb, Recordset& rs, std::string_view sCampoChave,
                           std::string_view sCampoTexto) try {
  vMontar(contexto_.host(), cmb, rs, [&] {
    return ComboBox::Item{rs[sCampoTexto].toText(), rs[sCampoChave].toLong()};
  });
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vMontarCombo");
}

void Funcoes::vMontarComboCustomizado(ComboBox& cmb, Recordset& rs, std::string_view sCampoChave,
                                      std::string_view sCampoTexto1, std::string_view sCampoTexto2) try {
  vMontar(contexto_.host(), cmb, rs, [&] {
    return ComboBox::Item{rs[sCampoTexto1].toText() + " - " + rs[sCampoTexto2].toText(), rs[sCampoChave].toLong()};
  });
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vMontarComboCustomizado");
}

void Funcoes::vMontarComboSemChave(ComboBox& cmb, Recordset& rs, std::string_view sCampoTexto) try {
  vMontar(contexto_.host(), cmb, rs, [&] { return ComboBox::Item{rs[sCampoTexto].toText()}; });
} catch (const Error& falha) {
  vRegistrarFalha(falha, "vMontarComboSemChave");
}

void Funcoes::vMontarComboMeses(ComboBox& cmb) {
  for (const char* sMes : nomesMeses) cmb.addItem(sMes);
}

void Funcoes::vMontarComboDiasMes(ComboBox& cmb) {
  for (int dia = 1; dia <= 31; ++dia) cmb.addItem(std::to_string(dia));
}

bool Funcoes::bLookCombo(ComboBox& cmb, std::string_view sTexto) {
  const int lugar = iProcurar(cmb, [&](const std::string& sEntrada) { return equalsNoCase(sEntrada, sTexto); });
  if (lugar < 0) return false;
  cmb.setListIndex(lugar);
  return true;
}

bool Funcoes::vComboMagico(ComboBox& cmb, std::string_view sCaractere) {
  const std::string sDigitado = left(cmb.text(), cmb.selectionStart()) + std::string(sCaractere);
  const std::size_t tamanho = length(sDigitado);
  const int lugar =
      iProcurar(cmb, [&](const std::string& sEntrada) { return equalsNoCase(left(sEntrada, tamanho), sDigitado); });
  if (lugar < 0) return false;
  cmb.setListIndex(lugar);
  cmb.select(tamanho, length(cmb.text()) - tamanho);
  return true;
}

std::string Funcoes::sGetMes(std::int16_t iMes) {
  return iMes >= 1 && iMes <= 12 ? nomesMeses[iMes - 1] : std::string();
}

std::int16_t Funcoes::iArrendondarValor_UP(Currency fValor) {
  const std::int16_t iInteiro = iMaisProximo(fValor);
  return fValor <= Currency::fromInteger(iInteiro) ? iInteiro : toInt16(iInteiro + 1);
}

std::int16_t Funcoes::iArrendondarValor_DOWN(Currency fValor) {
  const std::int16_t iInteiro = iMaisProximo(fValor);
  return fValor >= Currency::fromInteger(iInteiro) ? iInteiro : toInt16(iInteiro - 1);
}

std::string Funcoes::sFormatarTempo(std::int32_t lMilissegundos) {
  const std::int32_t horas = lMilissegundos / 3600000;
  const std::int32_t minutos = lMilissegundos % 3600000 / 60000;
  const std::int32_t segundos = lMilissegundos % 60000 / 1000;
  return (horas != 0 ? std::to_string(horas) + "h " : std::string()) +
         (minutos != 0 ? std::to_string(minutos) + "min " : std::string()) + std::to_string(segundos) + "s";
}

std::string Funcoes::sRetirarCaracterInvalido(std::string_view sTexto, bool bEspacos) {
  constexpr char32_t caractere128 = U'\u20AC';  // the place 128 of Windows-1252
  std::string sResultado;
  for (std::size_t place = 0; place < sTexto.size();) {
    const auto [code, bytes] = decodeUtf8(sTexto, place);
    const bool bInvalido = code < 32 || code == 127 || code == 128 || code == caractere128 || (code == 32 && bEspacos);
    if (!bInvalido) sResultado += sTexto.substr(place, bytes);
    place += bytes;
  }
  return sResultado;
}

std::string Funcoes::sGetNomeImpressora() try {
  const Recordset rs("SELECT sNomeImpressora FROM Configuracoes ", contexto_.dbConectar().Dados());
  return rs.eof() ? std::string() : rs["sNomeImpressora"].toText();
} catch (const Error& falha) {
  vRegistrarFalha(falha, "sGetNomeImpressora");
  return {};
}

void Funcoes::vHabilitarFormImpressao(Screen& frm, bool bHabilitar) { frm.setEnabled(bSetAmpulhetaMouse(bHabilitar)); }

void Funcoes::Rpx_MsgErro(std::int32_t lErro) {
  const auto sMensagem = [lErro]() -> const char* {
    switch (lErro) {
      case errors::refused:
        return "Erro na consulta SQL.";
      case 1001:
        return "É necessário existir uma impressora instalada no Windows.";
      case 1002:
        return "Não há registros a imprimir.";
      case 1003:
      case 1004:
      case 1005:
        return "Erro na configuração interna do relatório.";
      case 1006:
        return "A página configurada para o relatório não possuí espaço suficiente para a impressão.";
      case 1007:
        return "Já existe um relatório em andamento.";
      default:
        return "";
    }
  };
  Caixas(contexto_.host()).avisar(sMensagem(), "Impressão");
}

}  // namespace fenvale
