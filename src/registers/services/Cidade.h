#pragma once
// Value objects of the registers: a city and a bank that were picked or looked up.

#include <cstdint>
#include <string>

namespace fenvale {

class Connection;
class Contexto;
class Recordset;

class Cidade {
 public:
  static const char* sGetName() { return "Cidade"; }
  const std::string& sGetNome() const { return sNome; }
  const std::string& sGetUF() const { return sUF; }
  /// -1 when no row is meant.
  std::int32_t lGetCodigo() const { return lCodigo; }

  /// From the columns CidadeNome, CidadeUF and CidadeCodigo of the current row.
  void vSetEstado(const Recordset& rs);
  /// Looks the row up by name and state, in the company's store or the program's; -1 when none matches.
  void vSetEstado2(Contexto& contexto, const std::string& sNomeCidade, const std::string& sUFCidade, bool bEmpresa);
  void vLimpar();

 private:
  std::string sNome;
  std::string sUF;
  std::int32_t lCodigo = -1;
};

class Banco {
 public:
  static const char* sGetName() { return "Banco"; }
  const std::string& sGetNome() const { return sNome; }
  std::int16_t iGetCodigoInf() const { return iCodigoInf; }
  std::int32_t lGetCodigo() const { return lCodigo; }

  /// From the columns BancoCodigo, BancoCodigoInf and BancoNome of the current row.
  void vSetEstado(const Recordset& rs);
  /// Looks the row up by name in the company's store; -1 when none matches.
  void vSetEstado2(Contexto& contexto, const std::string& sNomeBanco);

 private:
  std::string sNome;
  std::int16_t iCodigoInf = 0;
  std::int32_t lCodigo = -1;
};

}  // namespace fenvale
