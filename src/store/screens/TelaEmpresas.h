#pragma once
// What the screens with the list of known companies share: the list, picking a company's file, and the store's refusal
// of a file that is known already.

#include <optional>
#include <string>

#include "platform/ui/Menu.h"
#include "registers/services/TelaPaginada.h"
#include "shell/services/ComandosSQL.h"

namespace fenvale {

class TelaEmpresas : public TelaPaginada {
 public:
  Button cmdEmitir{*this, "cmdEmitir", "Imprimir", "imprimir", Key::f5};
  Button cmdFechar{*this, "cmdFechar", "Fechar", "fechar", Key::escape};
  PopupMenu mnuPopUp{*this, "mnuPopUp"};

 protected:
  /// A company's file: its name and its folder, which ends in a separator.
  struct Arquivo {
    std::string sNome;
    std::string sPasta;
    std::string sCaminho() const { return sPasta + sNome; }
    /// As it stands in the list of known companies.
    ValoresSQL valores() const { return {{"sNomeArquivo", sTextoSQL(sNome)}, {"sCaminho", sTextoSQL(sPasta)}}; }
  };

  TelaEmpresas(Contexto& contexto, std::string sNome, ListView::CheckBoxes marcas);

  Connection& conexao() const override;
  void vMostrarAPartirDe(std::int16_t iInicio) override;
  void onLoad() override;

  static Arquivo arquivoDaLinha(const ListItem& item);
  /// Lets the user pick a file; nothing when none was, or when its folder is lost, which has been told.
  std::optional<Arquivo> escolherArquivo() const;
  /// Runs a statement on the list of companies and shows the list anew; a refusal by the store is told.
  void vAlterarLista(const std::string& sSQL, const char* sProcedimento);
  /// The row that is ticked; nothing, after a word to the user, when there is none.
  std::shared_ptr<ListItem> linhaMarcada();
  /// Ticks the row and no other.
  void vMarcarSomente(const ListItem& item);
  static std::string sCaminhoInvalido(const std::string& sCaminho);
};

/// What the name of a company's file ends in.
inline constexpr const char* sExtensaoEmpresa = ".MDB";

/// The path with a separator at its end.
std::string sComSeparador(std::string sCaminho);

}  // namespace fenvale
