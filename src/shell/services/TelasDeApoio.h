#pragma once
// The interfaces by which screens and services of any folder reach the small screens that help the others: the waiting
// screen, the file finder, the picture viewer, the searches of cities and banks and the options of list printing.

#include <cstdint>
#include <string>

namespace fenvale {

class Banco;
class Cidade;
class ListView;
class Screen;
class TextControl;

/// The waiting screen while the cities are being seeded ("frmMensagem").
class TelaMensagem {
 public:
  virtual ~TelaMensagem() = default;
  /// Shows the text, fills the table Cidades of the chosen store and returns when the screen is gone.
  virtual void vCarregar(const std::string& sMensagem, bool bEmpresa) = 0;
  /// The seeding is over: the screen goes, but not before the least time that it is told to stay.
  virtual void vFechar() = 0;
};

/// The file finder ("frmLocalizarArquivo").
class BuscaArquivo {
 public:
  virtual ~BuscaArquivo() = default;
  /// `sPadrao` is one or more wild cards joined by ";". Returns when the screen is gone.
  virtual void vCarregar(const std::string& sPadrao) = 0;
  /// The whole path of the file that was picked; empty when none was.
  virtual const std::string& sGetArquivo() const = 0;
};

/// Shows one picture ("frmExibirImagem").
class TelaImagem {
 public:
  virtual ~TelaImagem() = default;
  virtual void vCarregar(const std::string& sCaminho) = 0;
};

/// The city search ("frmLocalizarCidades").
class BuscaCidade {
 public:
  virtual ~BuscaCidade() = default;
  /// In the company's store or the program's. Returns when the screen is gone.
  virtual void vCarregar(bool bEmpresa) = 0;
  /// What was picked; its key is -1 when nothing was.
  virtual const Cidade& cidade() const = 0;
};

/// The list of banks ("frmLocalizarBancos").
class BuscaBanco {
 public:
  virtual ~BuscaBanco() = default;
  /// A picked bank goes into `banco` and its name into the caller's box. Returns when the screen is gone.
  virtual void vLocalizarBanco(Screen& chamador, Banco& banco, TextControl& txtNomeDestino) = 0;
};

/// The options of list printing ("frmOpcoesRelList").
class OpcoesRelatorioLista {
 public:
  virtual ~OpcoesRelatorioLista() = default;
  /// What the list holds, under that title, in lines of 80 or 130 characters. Returns when the screen is gone.
  virtual void vCarregar(const std::string& sTitulo, std::int16_t iColunas, ListView& lst) = 0;
};

/// The accounts overview ("frmMostrarContas"), as the start-up and the main window open it.
class TelaQuadroGeral {
 public:
  virtual ~TelaQuadroGeral() = default;
  /// Whether the firm's settings ask for the overview at the start.
  virtual bool bGetMostrarTodas() = 0;
  /// With true all four lists are on offer whatever the settings say.
  virtual void vSetMotrarTodas(bool bTodas) = 0;
};

}  // namespace fenvale
