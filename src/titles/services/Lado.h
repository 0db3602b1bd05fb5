#pragma once
// The two sides of the ledger. Receivables and payables are one code; what differs between them stands here and nowhere
// else: tables and columns, words, the names of screens and controls, and the few things that only one side has.

#include <cstdint>
#include <string>

namespace fenvale {

/// The words and neighbours of one of a side's two screens.
struct TelaDoLado {
  std::string sNome;          ///< "frmCadastroTitulosReceber"
  std::string sLegenda;       ///< window caption
  std::string sTitulo;        ///< the line in the band, and the title of the printed list
  std::string sBusca;         ///< search behind F6
  std::string sBuscaBaixa;    ///< search for settlement behind F7; the invoice screens have none
  std::string sLegendaBusca;  ///< caption of both searches
  std::string sSelecao;       ///< the list's statement up to where a clause begins
  std::string sSelecaoBaixa;  ///< that of the search for settlement, which adds the invoice's number
};

class Titulos;

struct Lado {
  std::string sTitulos;      ///< "TitulosReceber"
  std::string sFaturas;      ///< "FaturasCliente"
  std::string sLigacao;      ///< column of a title that names its invoice: "lFaturaCliente"
  std::string sChavePessoa;  ///< column of an invoice that names customer or supplier: "lCliente"

  /// The invoice of the title with a code.
  std::int32_t (Titulos::*lGetCodigoFatura)(const std::string& sCodigoInf);

  bool bVendedor;           ///< an invoice has a salesperson
  bool bFilial;             ///< a title has a branch
  bool bJuros;              ///< interest can be worked out
  bool bRelataVerificacao;  ///< a failure of the checks before a save of a title is reported under a name of its own

  std::string sPessoa;               ///< "Cliente": in the names of controls, as label and as heading
  std::string sAcessoPessoa;         ///< the letter of that label's access key
  std::string sPessoaMinuscula;      ///< "cliente": within a sentence
  std::string sInformePessoaFatura;  ///< what the invoice screen says when none was chosen
  std::string sInformePessoaTitulo;  ///< what the title screen says
  std::string sOndeMudarTotal;       ///< where the total of an invoice can be changed
  std::string sFiltroCentroCusto;    ///< the column by which the searches ask for a cost centre
  std::string sCadastroPessoa;       ///< register screen
  std::string sBuscaPessoa;          ///< quick search

  TelaDoLado faturas;
  TelaDoLado titulos;
};

const Lado& ladoReceber();
const Lado& ladoPagar();

}  // namespace fenvale
