#include "sql/Options.h"

#include <algorithm>

namespace fenvale::console {
namespace {

bool readScript(const std::string& value, Options& options) {
  if (value == "programa") options.script = "SQL.xmlSQL";
  if (value == "empresa") options.script = "SQLEmpresas.xmlSQL";
  return !options.script.empty();
}

bool readToday(const std::string& value, Options& options) {
  const bool iso = value.size() == 10 && value[4] == '-' && value[7] == '-';
  if (iso) options.today = readDate(value);
  return options.today.has_value();
}

bool readFormat(const std::string& value, Options& options) {
  if (value == "tabela") options.format = Format::table;
  if (value == "tsv") options.format = Format::tsv;
  if (value == "json") options.format = Format::json;
  return options.format.has_value();
}

struct Option {
  std::string name;
  bool (*read)(const std::string& value, Options& options);
};

const std::vector<Option>& allOptions() {
  static const std::vector<Option> all{{"--criar", &readScript}, {"--hoje", &readToday}, {"--formato", &readFormat}};
  return all;
}

}  // namespace

const char* const usage =
    "Uso: fenvale-sql [--criar programa|empresa] [--hoje AAAA-MM-DD] [--formato tabela|tsv|json] ARQUIVO\n";

std::optional<Options> readOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t place = 0; place < arguments.size(); ++place) {
    const std::string& argument = arguments[place];
    if (!argument.starts_with("--")) {
      if (!options.file.empty() || argument.empty()) return std::nullopt;
      options.file = argument;
      continue;
    }
    const std::size_t equals = argument.find('=');
    const auto option = std::find_if(allOptions().begin(), allOptions().end(),
                                     [&](const Option& known) { return known.name == argument.substr(0, equals); });
    if (option == allOptions().end()) return std::nullopt;
    if (equals == std::string::npos && ++place == arguments.size()) return std::nullopt;
    if (!option->read(equals == std::string::npos ? arguments[place] : argument.substr(equals + 1), options))
      return std::nullopt;
  }
  if (options.file.empty()) return std::nullopt;
  return options;
}

}  // namespace fenvale::console
