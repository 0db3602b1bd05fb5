#pragma once
// Makes a store's file, brings it up to date from its script, and closes the program store. There is no schema in the
// program itself: tables come only from the scripts.

#include <cstdint>
#include <string>

#include "platform/sql/Store.h"

namespace fenvale {

class Contexto;

class BancoDados {
 public:
  explicit BancoDados(Contexto& contexto);
  static const char* sGetName() { return "BancoDados"; }
  static std::string sGetNomeBD() { return "Dados.mdb"; }

  /// False when the file exists already.
  bool bCriarArquivoMDB(const std::string& sCaminho);
  /// Copies a company's file whole or not at all, as copyStore does; waits for another program's lock as its own
  /// connection would.
  void vCopiarArquivoMDB(const std::string& sOrigem, const std::string& sDestino, const CopyProgress& progresso);
  /// Runs a script; when any statement took effect it tells the user and ends the program.
  void vAtualizarBD(const std::string& sCaminhoXMLSQL, bool bEmpresa);
  /// 1 when the statement ran, 0 when it failed in one of the expected ways.
  std::int16_t iExecutarAtualizacoesBD(const std::string& sSQL, bool bEmpresa);
  void vExecutarAtualizacaoCampos(const std::string& sCaminhoXMLSQL);
  void vFecharConexaoADO();
  /// The box "Falha ao atualizar o Banco de Dados." with its detail; closes the connection and ends the program.
  [[noreturn]] void vFalhaAtualizacao(const std::string& sDetalhe);

 private:
  Contexto& contexto_;
};

}  // namespace fenvale
