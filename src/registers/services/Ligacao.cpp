#include "registers/services/Ligacao.h"

#include "platform/base/Checked.h"
#include "platform/base/Error.h"
#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "shell/services/ComandosSQL.h"
#include "shell/services/Validacoes.h"

namespace fenvale {
namespace {

bool bNumerica(const TextControl& caixa) {
  return caixa.kind() == ControlKind::codeBox || caixa.kind() == ControlKind::numberBox;
}

struct Literal {
  std::string operator()(std::monostate) const { return "NULL"; }
  std::string operator()(const TextControl* caixa) const {
    if (!bNumerica(*caixa)) return sTextoSQL(caixa->text());
    return caixa->empty() ? "0" : caixa->text();
  }
  std::string operator()(const MoneyBox* caixa) const { return Validacoes::sGetFloatSQL(caixa->value()); }
  std::string operator()(const DatePicker* caixa) const { return "#" + Validacoes::sGetDataSQL(caixa->value()) + "#"; }
  std::string operator()(const CheckBox* caixa) const { return sLogicoSQL(caixa->checked()); }
  std::string operator()(const std::int32_t* lChave) const { return std::to_string(*lChave); }
  std::string operator()(const std::function<std::int32_t()>& lValor) const { return std::to_string(lValor()); }
};

struct Carga {
  const std::string& sTexto;
  Date dtHoje;

  void operator()(std::monostate) const {}
  void operator()(TextControl* caixa) const { caixa->setText(sTexto); }
  void operator()(MoneyBox* caixa) const { caixa->setValue(Currency::fromBrazilian(sTexto)); }
  void operator()(DatePicker* caixa) const {
    const auto dtData = sTexto.empty() ? dtHoje : readDate(sTexto);
    if (!dtData) throw Error(errors::typeMismatch, "\"" + sTexto + "\" não é uma data.");
    caixa->setValue(*dtData);
  }
  void operator()(CheckBox* caixa) const { caixa->setChecked(sTexto == "Sim"); }
  void operator()(std::int32_t* lChave) const { *lChave = readInt32(sTexto); }
  void operator()(const std::function<std::int32_t()>&) const {}
};

struct ControleTocado {
  Control* operator()(TextControl* caixa) const { return caixa; }
  Control* operator()(MoneyBox* caixa) const { return caixa; }
  Control* operator()(DatePicker* caixa) const { return caixa; }
  Control* operator()(CheckBox* caixa) const { return caixa; }
  template <typename Outro>
  Control* operator()(const Outro&) const {
    return nullptr;
  }
};

}  // namespace

std::string Ligacao::sLiteral() const { return std::visit(Literal{}, lugar_); }
void Ligacao::vCarregar(const std::string& sTexto, Date dtHoje) const { std::visit(Carga{sTexto, dtHoje}, lugar_); }
Control* Ligacao::controle() const { return std::visit(ControleTocado{}, lugar_); }

bool Ligacao::bVazio() const {
  const auto* caixa = std::get_if<TextControl*>(&lugar_);
  return caixa != nullptr && (*caixa)->empty();
}

}  // namespace fenvale
