#pragma once
// The two connection holders: the program store, and the store of the company that is open.

#include <string>

#include "platform/sql/Store.h"

namespace fenvale {

class Contexto;

class DBConectar {
 public:
  DBConectar(Contexto& contexto, StoreEnvironment ambiente);
  static const char* sGetName() { return "DBConectar"; }

  /// The live connection. The first touch finds the file, which may ask the user for its place.
  Connection& Dados();
  const std::string& sGetCaminhoBD() const { return sCaminhoBD; }
  /// First line of init.ini; an empty text when there is no such file.
  std::string sVerificarConteudoIni();

 private:
  void DataEnvironment_Initialize();
  Contexto& contexto_;
  Connection conexao_;
  bool bIniciado = false;
  std::string sNomeBD;
  std::string sCaminhoBD;
};

class DBEmpresa {
 public:
  DBEmpresa(Contexto& contexto, StoreEnvironment ambiente);
  static const char* sGetName() { return "DBEmpresa"; }

  Connection& Dados();
  StoreEnvironment ambiente() const { return ambiente_; }
  /// Opens the file that Empresas names, brings it up to date and seeds it. False when the file is not there or is no
  /// store, told to the user if bMensagem.
  bool bSetEmpresa(bool bMensagem);

 private:
  Contexto& contexto_;
  StoreEnvironment ambiente_;
  Connection conexao_;
  bool bIniciado = false;
};

}  // namespace fenvale
