#include "titles/screens/ColunasTitulos.h"

#include <algorithm>

#include "titles/services/Lado.h"

namespace fenvale {
namespace {

std::vector<ColunaLista> chaveENome(const std::string& sNomeNaFrase, const std::string& sCampoChave,
                                    const std::string& sRotulo, const std::string& sCampoNome, float fLargura) {
  return {{"Código interno do " + sNomeNaFrase, 0, Align::left, sCampoChave},
          {sRotulo, fLargura, Align::left, sCampoNome}};
}

}  // namespace

std::vector<ColunaLista> colunasPessoa(const Lado& lado, float fLargura) {
  return chaveENome(lado.sPessoaMinuscula, lado.sChavePessoa, lado.sPessoa, lado.sPessoa, fLargura);
}

std::vector<ColunaLista> colunasPortador(float fLargura) {
  return chaveENome("portador", "lPortador", "Portador", "Portador", fLargura);
}

std::vector<ColunaLista> colunasVendedor(const Lado& lado, float fLargura) {
  if (!lado.bVendedor) return {};
  return chaveENome("vendedor", "lVendedor", "Vendedor", "Vendedores", fLargura);
}

std::vector<ColunaLista> colunasCentroCusto() {
  return chaveENome("centro de custo", "lCentroCusto", "Centro de custo", "CentroCusto", 2200);
}

std::vector<ColunaLista> colunasTitulos(const Lado& lado) {
  std::vector<ColunaLista> colunas{{"Código", 1500, Align::left, "sCodigoInf"}};
  if (lado.bFilial) colunas.push_back({"Filial", 800, Align::left, "sFilial"});
  vAcrescentar(colunas, {{"Emissão", 1440, Align::centre, "Emissao"},
                         {"Vencimento", 1440, Align::centre, "Vencimento"},
                         {"Pago", 800, Align::centre, "Pago"}});
  vAcrescentar(colunas, colunasPessoa(lado, lado.bVendedor ? 2500 : 3550));
  vAcrescentar(colunas, colunasPortador(1300));
  vAcrescentar(colunas, colunasVendedor(lado, 1850));
  vAcrescentar(colunas, {{"Valor da fatura", 1700, Align::right, "ValorFatura"},
                         {"Valor do título", 1700, Align::right, "ValorTitulo"}});
  vAcrescentar(colunas, colunasCentroCusto());
  vAcrescentar(colunas, {{"Pagamento", 1440, Align::centre, "Pagamento"},
                         {"Valor pago", 1500, Align::right, "ValorPago"},
                         {"Juros cobrado", 1650, Align::right, "Juros"},
                         {"Desconto", 1400, Align::right, "Desconto"},
                         {"Nota fiscal", 1400, Align::right, "lNF"},
                         {"Observação", 3600, Align::left, "sObs"}});
  return colunas;
}

void vAcrescentar(std::vector<ColunaLista>& colunas, std::vector<ColunaLista> outras) {
  for (ColunaLista& coluna : outras) colunas.push_back(std::move(coluna));
}

void vLigar(std::vector<ColunaLista>& colunas, std::string_view sCampo, Ligacao destino) {
  const auto coluna = std::find_if(colunas.begin(), colunas.end(),
                                   [sCampo](const ColunaLista& candidata) { return candidata.sCampo == sCampo; });
  coluna->destino = std::move(destino);
}

}  // namespace fenvale
