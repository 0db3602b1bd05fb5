#pragma once
// Invented customers and salespeople of a Brazilian firm: names, addresses, numbers whose check digits are right. None
// of them is anybody's.

#include <cstdint>
#include <string>

#include "platform/base/Currency.h"
#include "platform/base/Date.h"

namespace fenvale::exemplo {

/// A customer as the register screen takes one, but for the keys of other tables. Texts that are left empty are empty.
struct Cliente {
  std::string sNome;
  Currency fLimiteCredito;
  std::string sEndereco, sBairro, sCEP;
  std::string sTelefone, sFax, sContato;
  std::string sRG, sCPF, sIE, sCNPJ;
  std::string sPai, sMae;
  std::string sEmail, sHomePage;
  Date dtNascimento{};
  std::string txtObs;
  std::string sEnderecoEntrega, sBairroEntrega, sCEPEntrega;
  std::string sEnderecoCobranca, sBairroCobranca, sCEPCobranca;
  bool bEmpresa = false;  ///< a firm: it has a CNPJ, a person has a CPF
};

/// The same for the same seed and place; no two places share a CPF, RG, CNPJ or IE (up to 10 million of them).
Cliente cliente(std::uint64_t semente, std::uint32_t lugar);

/// First name and surnames, at most 50 characters.
std::string sNomePessoa(std::uint64_t semente, std::uint32_t lugar);

/// "123.456.789-09" and "12.345.678/0001-95", from the digits before the check digits.
std::string sCPFCom(std::uint32_t lBase);
std::string sCNPJCom(std::uint32_t lRaiz);

}  // namespace fenvale::exemplo
