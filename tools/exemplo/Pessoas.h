#pragma once
// Invented customers, suppliers and salespeople of a Brazilian firm: names, addresses, numbers whose check digits are
// right. None of them is anybody's.

#include <cstdint>
#include <string>

#include "platform/base/Currency.h"
#include "platform/base/Date.h"

namespace fenvale::exemplo {

/// What the registers of customers and suppliers both take, but for the keys of other tables. Texts that are left empty
/// are empty.
struct Pessoa {
  std::string sNome;
  std::string sEndereco, sCEP;
  std::string sTelefone, sFax, sContato;
  std::string sCPF, sIE, sCNPJ;
  std::string sEmail, sHomePage;
  std::string txtObs;
  bool bEmpresa = false;  ///< a firm: it has a CNPJ, a person has a CPF
};

struct Cliente : Pessoa {
  Currency fLimiteCredito;
  std::string sBairro;
  std::string sRG;
  std::string sPai, sMae;
  Date dtNascimento{};
  std::string sEnderecoEntrega, sBairroEntrega, sCEPEntrega;
  std::string sEnderecoCobranca, sBairroCobranca, sCEPCobranca;
};

struct Fornecedor : Pessoa {
  std::string sAgencia, sConta;
};

/// Where somebody lives, as post codes and telephone numbers tell it.
struct Praca {
  int lMenorCEP, lMaiorCEP;
  int iDDD;  ///< 0: any
};
inline constexpr Praca qualquerPraca{1001000, 99990999, 0};

// The same for the same seed and place; no two of them share a CPF, RG, CNPJ or IE (up to 5 million places each). Who
// moves keeps all but post codes and area codes.
Cliente cliente(std::uint64_t semente, std::uint32_t lugar, const Praca& praca = qualquerPraca);
Fornecedor fornecedor(std::uint64_t semente, std::uint32_t lugar, const Praca& praca = qualquerPraca);

/// First name and surnames, at most 50 characters.
std::string sNomePessoa(std::uint64_t semente, std::uint32_t lugar);

/// "123.456.789-09" and "12.345.678/0001-95", from the digits before the check digits.
std::string sCPFCom(std::uint32_t lBase);
std::string sCNPJCom(std::uint32_t lRaiz);

}  // namespace fenvale::exemplo
