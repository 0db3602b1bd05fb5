#include "shell/services/Validacoes.h"

#include <algorithm>
#include <vector>

#include "platform/base/Text.h"

namespace fenvale {
namespace {

constexpr std::string_view blanksAndPunctuation = " .-/";

bool isDigit(char letter) { return letter >= '0' && letter <= '9'; }

/// Digits and capitals by their distance to "0", as the numbers with letters are reckoned: "A" is 17.
int digit(std::string_view text, std::size_t place) { return text[place - 1] - '0'; }

bool bNumeroComLetras(std::string_view text) {
  const auto allowed = [](char letter) { return isDigit(letter) || (letter >= 'A' && letter <= 'Z'); };
  return std::all_of(text.begin(), text.end(), allowed);
}

bool bRaizValida(std::string_view sCNPJ) {
  int soma = 0;
  for (std::size_t i = 1; i <= 7; ++i) {
    const int d = digit(sCNPJ, i) * (i % 2 == 1 ? 2 : 1);
    soma += d > 9 ? d / 10 + d % 10 : d;
  }
  const int verificador = soma % 10 != 0 ? 10 - soma % 10 : 0;
  return digit(sCNPJ, 8) == verificador;
}

int iVerificadorCNPJ(std::string_view sCNPJ, std::size_t quantidade, int peso) {
  int soma = 0;
  for (std::size_t i = 1; i <= quantidade; ++i) {
    soma += digit(sCNPJ, i) * peso;
    peso = peso > 2 ? peso - 1 : 9;
  }
  return soma % 11 > 1 ? 11 - soma % 11 : 0;
}

int iVerificadorCPF(const std::vector<int>& digitos, std::size_t quantidade) {
  int soma = 0;
  for (std::size_t i = 0; i < quantidade; ++i) soma += digitos[i] * static_cast<int>(quantidade + 1 - i);
  const int d = 11 - soma % 11;
  return d >= 10 ? 0 : d;
}

}  // namespace

bool Validacoes::bValidarCPF(std::string& sCPF) {
  sCPF = without(sCPF, blanksAndPunctuation);
  if (length(sCPF) != 11) return false;
  std::vector<int> digitos;
  for (std::size_t place = 0; place < sCPF.size();) {
    const auto [code, bytes] = decodeUtf8(sCPF, place);
    digitos.push_back(code >= U'0' && code <= U'9' ? static_cast<int>(code - U'0') : 0);
    place += bytes;
  }
  return digitos[9] == iVerificadorCPF(digitos, 9) && digitos[10] == iVerificadorCPF(digitos, 10);
}

bool Validacoes::bValidarCNPJ(std::string& sCNPJ) {
  sCNPJ = without(sCNPJ, blanksAndPunctuation);
  const bool soZeros = sCNPJ.find_first_not_of('0') == std::string::npos;
  if (soZeros || !bNumeroComLetras(sCNPJ)) return false;
  if (sCNPJ.size() == 8) return bRaizValida(sCNPJ);
  if (sCNPJ.size() != 14) return false;
  return digit(sCNPJ, 13) == iVerificadorCNPJ(sCNPJ, 12, 5) && digit(sCNPJ, 14) == iVerificadorCNPJ(sCNPJ, 13, 6);
}

bool Validacoes::bValidarEMail(std::string& sEMail) {
  sEMail = without(sEMail, " ");
  const std::size_t arroba = sEMail.find('@');
  if (arroba == 0 || arroba == std::string::npos) return false;
  return length(without(sEMail, "@")) >= 3;
}

std::string Validacoes::sGetFloatSQL(Currency fValor) { return fValor.toDecimal(); }

std::string Validacoes::sGetStringSQL(std::string_view sTexto) {
  return sTirarFragString(replaceAll(std::string(sTexto), "'", "''"));
}

std::string Validacoes::sGetDataSQL(Date dtData) { return formatDate(dtData, "mm/dd/yyyy"); }
std::string Validacoes::sTirarFragString(std::string_view sTexto) { return trimRight(sTexto); }

}  // namespace fenvale
