#include "exemplo/Pessoas.h"

#include <array>
#include <cstdint>
#include <string_view>

#include "exemplo/Sorteio.h"
#include "platform/base/Format.h"
#include "platform/base/Text.h"

namespace fenvale::exemplo {
namespace {

using Palavras = std::string_view;

constexpr std::array<Palavras, 64> nomesFemininos{
    "Adriana",   "Alice",    "Aline",    "Amanda",   "Ana Paula", "Andréa",   "Ângela",   "Antônia",
    "Aparecida", "Beatriz",  "Bianca",   "Bruna",    "Camila",    "Carla",    "Carolina", "Cecília",
    "Célia",     "Cláudia",  "Cristina", "Daniela",  "Débora",    "Denise",   "Eduarda",  "Elaine",
    "Eliana",    "Elisa",    "Érica",    "Fabiana",  "Fátima",    "Fernanda", "Flávia",   "Gabriela",
    "Gisele",    "Heloísa",  "Isabela",  "Jéssica",  "Joana",     "Júlia",    "Juliana",  "Larissa",
    "Letícia",   "Lívia",    "Lúcia",    "Luciana",  "Luíza",     "Márcia",   "Mariana",  "Marina",
    "Natália",   "Patrícia", "Paula",    "Priscila", "Rafaela",   "Raquel",   "Regina",   "Renata",
    "Rosângela", "Sandra",   "Sílvia",   "Simone",   "Sônia",     "Tatiana",  "Vanessa",  "Vitória"};
constexpr std::array<Palavras, 64> nomesMasculinos{
    "Adriano",  "Alexandre", "Anderson", "André",   "Antônio",   "Arthur",    "Augusto", "Bruno",
    "Caio",     "Carlos",    "César",    "Cláudio", "Cristiano", "Daniel",    "Davi",    "Diego",
    "Douglas",  "Eduardo",   "Elias",    "Emerson", "Everton",   "Fábio",     "Felipe",  "Fernando",
    "Flávio",   "Francisco", "Gabriel",  "Geraldo", "Gilberto",  "Guilherme", "Gustavo", "Heitor",
    "Henrique", "Hugo",      "Igor",     "Ivan",    "João",      "Joaquim",   "Jorge",   "José",
    "Júlio",    "Leandro",   "Leonardo", "Lucas",   "Luís",      "Marcelo",   "Márcio",  "Marcos",
    "Mário",    "Matheus",   "Maurício", "Miguel",  "Murilo",    "Otávio",    "Paulo",   "Pedro",
    "Rafael",   "Renato",    "Ricardo",  "Roberto", "Rodrigo",   "Sérgio",    "Thiago",  "Vinícius"};
constexpr std::array<Palavras, 72> sobrenomes{
    "Almeida", "Alves",      "Amaral",    "Andrade",   "Antunes",    "Araújo",   "Assis",    "Azevedo",  "Barbosa",
    "Barros",  "Batista",    "Bezerra",   "Borges",    "Braga",      "Brandão",  "Brito",    "Cardoso",  "Carvalho",
    "Castro",  "Cavalcanti", "Coelho",    "Conceição", "Correia",    "Costa",    "Couto",    "Cunha",    "Dias",
    "Duarte",  "Farias",     "Fernandes", "Ferreira",  "Figueiredo", "Fonseca",  "Franco",   "Freitas",  "Garcia",
    "Gomes",   "Gonçalves",  "Guimarães", "Leite",     "Lima",       "Lopes",    "Macedo",   "Machado",  "Magalhães",
    "Marques", "Martins",    "Medeiros",  "Melo",      "Mendes",     "Miranda",  "Monteiro", "Morais",   "Moreira",
    "Moura",   "Nascimento", "Neves",     "Nogueira",  "Nunes",      "Oliveira", "Pereira",  "Pinto",    "Ramos",
    "Ribeiro", "Rocha",      "Rodrigues", "Santana",   "Santos",     "Silva",    "Souza",    "Teixeira", "Vieira"};
constexpr std::array<Palavras, 8> ligacoes{"", "", "", "", "da ", "de ", "dos ", "do "};

constexpr std::array<Palavras, 24> ramos{
    "Mercado",      "Padaria",       "Farmácia",     "Papelaria",  "Autopeças",    "Materiais de Construção",
    "Restaurante",  "Lanchonete",    "Oficina",      "Confecções", "Calçados",     "Móveis",
    "Transportes",  "Distribuidora", "Supermercado", "Açougue",    "Ótica",        "Livraria",
    "Agropecuária", "Gráfica",       "Informática",  "Bazar",      "Floricultura", "Serralheria"};
/// Of those who sell to shops and workshops.
constexpr std::array<Palavras, 24> ramosFornecedores{
    "Distribuidora", "Atacado",     "Indústria",    "Metalúrgica",    "Importadora", "Ferragens",
    "Tintas",        "Embalagens",  "Cerâmica",     "Transportadora", "Plásticos",   "Madeireira",
    "Comercial",     "Laticínios",  "Frigorífico",  "Têxtil",         "Gráfica",     "Química",
    "Parafusos",     "Componentes", "Fios e Cabos", "Equipamentos",   "Laboratório", "Telecomunicações"};
constexpr std::array<Palavras, 32> titulos{
    "São Jorge", "Santa Rita",    "Bela Vista", "Boa Esperança", "Três Irmãos", "Nova Era", "Central",   "do Povo",
    "Bom Jesus", "Santo Antônio", "Ipiranga",   "Planalto",      "Progresso",   "Aliança",  "Real",      "Modelo",
    "Paraíso",   "União",         "Avenida",    "Ideal",         "Horizonte",   "Pioneira", "Primavera", "do Vale",
    "São José",  "Continental",   "Alvorada",   "Cruzeiro",      "Imperial",    "Brasília", "Estrela",   "Litoral"};
constexpr std::array<Palavras, 5> formas{"Ltda", "Ltda", "ME", "EPP", "S.A."};

constexpr std::array<Palavras, 6> vias{"Rua", "Rua", "Rua", "Avenida", "Travessa", "Alameda"};
constexpr std::array<Palavras, 36> logradouros{"Sete de Setembro",
                                               "Quinze de Novembro",
                                               "Tiradentes",
                                               "Dom Pedro II",
                                               "Marechal Deodoro",
                                               "Getúlio Vargas",
                                               "Rui Barbosa",
                                               "das Flores",
                                               "dos Andradas",
                                               "Santos Dumont",
                                               "Castro Alves",
                                               "Machado de Assis",
                                               "José Bonifácio",
                                               "Barão do Rio Branco",
                                               "Duque de Caxias",
                                               "Princesa Isabel",
                                               "São Paulo",
                                               "Minas Gerais",
                                               "Paraná",
                                               "Bahia",
                                               "Primeiro de Maio",
                                               "da Independência",
                                               "da Liberdade",
                                               "do Comércio",
                                               "dos Ipês",
                                               "das Acácias",
                                               "das Palmeiras",
                                               "João Pessoa",
                                               "Benjamin Constant",
                                               "Floriano Peixoto",
                                               "Gonçalves Dias",
                                               "Carlos Gomes",
                                               "Santa Luzia",
                                               "São João",
                                               "Nossa Senhora de Fátima",
                                               "Coronel Moreira César"};
constexpr std::array<Palavras, 26> bairros{
    "Centro",        "Jardim América", "Vila Nova",       "Boa Vista",         "São Francisco", "Santa Cruz",
    "Jardim Europa", "Vila Mariana",   "Alto da Glória",  "Bela Vista",        "Água Verde",    "Santo Antônio",
    "Industrial",    "Nova Esperança", "Jardim Paulista", "Parque das Nações", "Vila Rica",     "São José",
    "Cidade Alta",   "Liberdade",      "Bom Retiro",      "Santa Mônica",      "Planalto",      "Jardim Primavera",
    "Vila Operária", "Primavera"};
constexpr std::array<Palavras, 10> observacoes{
    "Cliente desde a inauguração.",       "Prefere receber às segundas-feiras.", "Ligar antes de entregar.",
    "Emitir nota fiscal com o pedido.",   "Pagamento sempre por boleto.",        "Entregar pela porta dos fundos.",
    "Confirmar o limite com a gerência.", "Retira os produtos na loja.",         "Aceita entrega aos sábados.",
    "Fechado entre meio-dia e 13h30."};
constexpr std::array<Palavras, 8> observacoesFornecedor{
    "Pedido mínimo de R$ 500,00.",        "Entrega às terças e quintas.", "Frete por conta do fornecedor.",
    "Confirmar o preço antes do pedido.", "Boleto chega por correio.",    "Desconto de 2% para pagamento à vista.",
    "Trocas somente com nota fiscal.",    "Falar sempre com o vendedor."};
constexpr std::array<std::uint8_t, 14> ddds{11, 19, 21, 27, 31, 41, 47, 48, 51, 61, 62, 71, 81, 85};

/// The place scattered over `modulo` values, each of which belongs to one place only: the factor shares no divisor with
/// a power of ten.
std::uint32_t espalhar(std::uint64_t lugar, std::uint64_t fator, std::uint64_t modulo) {
  return static_cast<std::uint32_t>((lugar * fator + modulo / 3) % modulo);
}

std::string sDigitos(std::uint64_t valor, std::size_t casas) {
  std::string s = std::to_string(valor);
  return s.size() < casas ? std::string(casas - s.size(), '0') + s : s;
}

/// The check digit of modulo 11: weights from 2 rising from the right, back to 2 behind `maior`.
char digitoVerificador(std::string_view digitos, int maior) {
  int soma = 0;
  int peso = 2;
  for (std::size_t i = digitos.size(); i > 0; --i) {
    soma += (digitos[i - 1] - '0') * peso;
    peso = peso == maior ? 2 : peso + 1;
  }
  const int resto = soma % 11;
  return static_cast<char>('0' + (resto < 2 ? 0 : 11 - resto));
}

/// Each "#" of the mask takes the next digit.
std::string sMascara(std::string_view mascara, std::string_view digitos) {
  std::string s;
  std::size_t lugar = 0;
  for (const char c : mascara) s += c == '#' ? digitos[lugar++] : c;
  return s;
}

std::string sSobrenomes(Sorteio& sorteio) {
  const std::string sPrimeiro(sorteio.um(sobrenomes));
  const std::string sLigacao(sorteio.um(ligacoes));
  const std::string sSegundo(sorteio.um(sobrenomes));
  return sSegundo == sPrimeiro ? sPrimeiro : sPrimeiro + " " + sLigacao + sSegundo;
}

std::string sNomeCompleto(Sorteio& sorteio, bool bMulher) {
  const std::string sNome(bMulher ? sorteio.um(nomesFemininos) : sorteio.um(nomesMasculinos));
  return sNome + " " + sSobrenomes(sorteio);
}

std::string sNomeEmpresa(Sorteio& sorteio, const std::array<Palavras, 24>& dosRamos) {
  std::string sNome(sorteio.um(dosRamos));
  // A third of the firms bear their founder's surname.
  sNome += " " + std::string(sorteio.porCento(33) ? sorteio.um(sobrenomes) : sorteio.um(titulos));
  return sNome + " " + std::string(sorteio.um(formas));
}

std::string sEndereco(Sorteio& sorteio) {
  std::string s = std::string(sorteio.um(vias)) + " " + std::string(sorteio.um(logradouros));
  s += ", " + std::to_string(sorteio.entre(1, 2999));
  if (sorteio.porCento(15)) s += ", sala " + std::to_string(sorteio.entre(1, 40));
  return s;
}

std::string sTelefone(Sorteio& sorteio, bool bCelular, const Praca& praca) {
  const int iSorteado = ddds[sorteio.ate(ddds.size())];
  const std::string sDDD = std::to_string(praca.iDDD != 0 ? praca.iDDD : iSorteado);
  const auto final = sDigitos(static_cast<std::uint64_t>(sorteio.entre(0, 9999)), 4);
  const auto meio = sDigitos(static_cast<std::uint64_t>(sorteio.entre(2000, 9999)), 4);
  return "(" + sDDD + ") " + (bCelular ? "9" : "") + meio + "-" + final;
}

std::string sCEP(Sorteio& sorteio, const Praca& praca) {
  const int lNumero = sorteio.entre(praca.lMenorCEP, praca.lMaiorCEP);
  return sMascara("#####-###", sDigitos(static_cast<std::uint64_t>(lNumero), 8));
}

/// Letters and digits only, as an address on the net bears them.
std::string sApelidoRede(std::string_view sNome) {
  static constexpr std::array<std::pair<Palavras, char>, 12> semAcento{{{"á", 'a'},
                                                                        {"â", 'a'},
                                                                        {"ã", 'a'},
                                                                        {"à", 'a'},
                                                                        {"é", 'e'},
                                                                        {"ê", 'e'},
                                                                        {"í", 'i'},
                                                                        {"ó", 'o'},
                                                                        {"ô", 'o'},
                                                                        {"õ", 'o'},
                                                                        {"ú", 'u'},
                                                                        {"ç", 'c'}}};
  std::string s = toLower(sNome);
  for (const auto& [com, sem] : semAcento) s = replaceAll(std::move(s), com, std::string(1, sem));
  std::string sApelido;
  for (const char c : s) {
    if ((c >= 'a' && c <= 'z') || (c >= '0' && c <= '9')) sApelido += c;
  }
  return left(sApelido, 24);
}

void preencherPessoa(Cliente& cliente, Sorteio& sorteio, std::uint32_t lugar, const Praca& praca) {
  const bool bMulher = sorteio.porCento(52);
  cliente.sNome = left(sNomeCompleto(sorteio, bMulher), 50);
  cliente.sCPF = sCPFCom(espalhar(lugar, 387420489, 1000000000));
  cliente.sRG = sDigitos(espalhar(lugar, 8300017, 100000000), 8);
  cliente.sTelefone = sTelefone(sorteio, true, praca);
  if (sorteio.porCento(40)) cliente.sPai = left(sNomeCompleto(sorteio, false), 50);
  if (sorteio.porCento(60)) cliente.sMae = left(sNomeCompleto(sorteio, true), 50);
  cliente.dtNascimento = makeDate(1940, 1, 1) + std::chrono::days(sorteio.entre(0, 24000));
  if (sorteio.porCento(55)) cliente.sEmail = sApelidoRede(cliente.sNome) + "@correio.example";
  cliente.fLimiteCredito = Currency::fromInteger(std::int64_t{sorteio.entre(2, 60)} * 100);
}

void preencherFirma(Pessoa& firma, Sorteio& sorteio, std::uint32_t lugar, const Praca& praca,
                    const std::array<Palavras, 24>& dosRamos) {
  firma.bEmpresa = true;
  firma.sNome = left(sNomeEmpresa(sorteio, dosRamos), 50);
  firma.sCNPJ = sCNPJCom(espalhar(lugar, 38742049, 100000000));
  firma.sIE = sDigitos(espalhar(lugar, 7900013, 1000000000), 9);
  firma.sTelefone = sTelefone(sorteio, false, praca);
  if (sorteio.porCento(30)) firma.sFax = sTelefone(sorteio, false, praca);
  firma.sContato = left(sNomeCompleto(sorteio, sorteio.porCento(50)), 50);
}

void preencherRede(Pessoa& firma, Sorteio& sorteio) {
  const std::string sRede = sApelidoRede(firma.sNome);
  if (sorteio.porCento(70)) firma.sEmail = "contato@" + sRede + ".example";
  if (sorteio.porCento(35)) firma.sHomePage = "www." + sRede + ".example";
}

void preencherEmpresa(Cliente& cliente, Sorteio& sorteio, std::uint32_t lugar, const Praca& praca) {
  preencherFirma(cliente, sorteio, lugar, praca, ramos);
  cliente.dtNascimento = makeDate(1960, 1, 1) + std::chrono::days(sorteio.entre(0, 22000));
  preencherRede(cliente, sorteio);
  cliente.fLimiteCredito = Currency::fromInteger(std::int64_t{sorteio.entre(2, 100)} * 1000);
}

}  // namespace

std::string sCPFCom(std::uint32_t lBase) {
  std::string s = sDigitos(lBase, 9);
  s += digitoVerificador(s, 11);
  s += digitoVerificador(s, 11);
  return sMascara("###.###.###-##", s);
}

std::string sCNPJCom(std::uint32_t lRaiz) {
  std::string s = sDigitos(lRaiz, 8) + "0001";
  s += digitoVerificador(s, 9);
  s += digitoVerificador(s, 9);
  return sMascara("##.###.###/####-##", s);
}

std::string sNomePessoa(std::uint64_t semente, std::uint32_t lugar) {
  Sorteio sorteio(semente, 2, lugar);
  return left(sNomeCompleto(sorteio, sorteio.porCento(52)), 50);
}

Cliente cliente(std::uint64_t semente, std::uint32_t lugar, const Praca& praca) {
  Sorteio sorteio(semente, 1, lugar);
  Cliente novo;
  if (sorteio.porCento(45)) {
    preencherEmpresa(novo, sorteio, lugar, praca);
  } else {
    preencherPessoa(novo, sorteio, lugar, praca);
  }
  novo.sEndereco = sEndereco(sorteio);
  novo.sBairro = sorteio.um(bairros);
  novo.sCEP = sCEP(sorteio, praca);
  if (sorteio.porCento(8)) novo.txtObs = sorteio.um(observacoes);
  if (sorteio.porCento(12)) {
    novo.sEnderecoEntrega = sEndereco(sorteio);
    novo.sBairroEntrega = sorteio.um(bairros);
    novo.sCEPEntrega = sCEP(sorteio, praca);
  }
  if (sorteio.porCento(6)) {
    novo.sEnderecoCobranca = sEndereco(sorteio);
    novo.sBairroCobranca = sorteio.um(bairros);
    novo.sCEPCobranca = sCEP(sorteio, praca);
  }
  return novo;
}

Fornecedor fornecedor(std::uint64_t semente, std::uint32_t lugar, const Praca& praca) {
  constexpr std::uint32_t antesDosFornecedores = 5'000'000;  // their numbers lie behind those of the customers
  Sorteio sorteio(semente, 3, lugar);
  Fornecedor novo;
  if (sorteio.porCento(90)) {
    preencherFirma(novo, sorteio, antesDosFornecedores + lugar, praca, ramosFornecedores);
    preencherRede(novo, sorteio);
  } else {
    novo.sNome = left(sNomeCompleto(sorteio, sorteio.porCento(30)), 50);
    novo.sCPF = sCPFCom(espalhar(antesDosFornecedores + lugar, 387420489, 1000000000));
    novo.sTelefone = sTelefone(sorteio, true, praca);
  }
  novo.sEndereco = sEndereco(sorteio);
  novo.sCEP = sCEP(sorteio, praca);
  novo.sAgencia = sMascara("####-#", sDigitos(static_cast<std::uint64_t>(sorteio.entre(10, 99999)), 5));
  novo.sConta = sMascara("###.###-#", sDigitos(static_cast<std::uint64_t>(sorteio.entre(10000, 9999999)), 7));
  if (sorteio.porCento(25)) novo.txtObs = sorteio.um(observacoesFornecedor);
  return novo;
}

}  // namespace fenvale::exemplo
