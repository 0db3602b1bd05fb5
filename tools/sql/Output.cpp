#include "sql/Output.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <ostream>
#include <sstream>
#include <vector>

#include "platform/base/Text.h"

namespace fenvale::console {
namespace {

std::string_view nameOf(ValueType type) {
  switch (type) {
    case ValueType::integer:
      return "inteiro";
    case ValueType::currency:
      return "moeda";
    case ValueType::decimal:
      return "decimal";
    case ValueType::date:
      return "data";
    case ValueType::boolean:
      return "logico";
    default:
      return "texto";
  }
}

/// A value as text that another program reads back: a point, no thousands, the year first.
std::string plainText(const Value& value) {
  if (value.type() == ValueType::boolean) return value.toBoolean() ? "true" : "false";
  if (value.type() == ValueType::date) return formatDate(value.toDate(), "yyyy-mm-dd");
  return value.toText();
}

void writeJsonText(std::ostream& out, std::string_view text) {
  out << '"';
  for (std::size_t place = 0; place < text.size();) {
    const auto [code, bytes] = decodeUtf8(text, place);
    place += bytes;
    if (code == U'"' || code == U'\\') {
      out << '\\' << static_cast<char>(code);
    } else if (code < 0x20) {
      std::array<char, 8> escape{};
      std::snprintf(escape.data(), escape.size(), "\\u%04x", static_cast<unsigned>(code));
      out << escape.data();
    } else {
      std::string character;
      appendUtf8(character, code);
      out << character;
    }
  }
  out << '"';
}

/// Calls `one` for each element, with a comma between.
template <typename List, typename One>
void writeList(std::ostream& out, const List& list, One one) {
  out << '[';
  bool first = true;
  for (const auto& element : list) {
    if (!first) out << ',';
    first = false;
    one(element);
  }
  out << ']';
}

class JsonOutput final : public Output {
 public:
  explicit JsonOutput(std::ostream& out) : out_(out) {}

  void query(Recordset& rows) override {
    std::ostringstream text;
    text << "{\"colunas\":";
    writeList(text, rows.fieldNames(), [&](const std::string& name) { writeJsonText(text, name); });
    text << ",\"tipos\":";
    const auto types = rows.fieldTypes();
    writeList(text, types, [&](ValueType type) { writeJsonText(text, nameOf(type)); });
    text << ",\"linhas\":[";
    std::vector<std::size_t> places(types.size());
    for (std::size_t place = 0; place < places.size(); ++place) places[place] = place;
    for (bool first = true; !rows.eof(); rows.moveNext(), first = false) {
      if (!first) text << ',';
      writeList(text, places, [&](std::size_t place) { writeValue(text, rows.field(place)); });
    }
    out_ << text.str() << "]}\n";
  }

  void changed(std::int64_t rows) override { out_ << "{\"afetadas\":" << rows << "}\n"; }

  void refused(const Error& failure, std::size_t) override {
    out_ << "{\"erro\":" << failure.number << ",\"descricao\":";
    writeJsonText(out_, failure.description);
    out_ << "}\n";
  }

 private:
  static void writeValue(std::ostream& out, const Value& value) {
    switch (value.type()) {
      case ValueType::null:
        out << "null";
        break;
      case ValueType::integer:
      case ValueType::decimal:
      case ValueType::boolean:
        out << plainText(value);
        break;
      default:
        writeJsonText(out, plainText(value));
    }
  }

  std::ostream& out_;
};

/// What both forms for eyes and spreadsheets share.
class TextOutput : public Output {
 public:
  TextOutput(std::ostream& out, std::ostream& messages) : out_(out), messages_(messages) {}

  void refused(const Error& failure, std::size_t line) override {
    messages_ << "Linha " << line << ": " << failure.description << " (" << failure.number << ")\n";
  }

 protected:
  std::ostream& out_;

 private:
  std::ostream& messages_;
};

/// A heading and the rows. A field that holds a tab, a line break or a backslash has it as \t, \n, \r or \\; NULL is
/// \N.
class TsvOutput final : public TextOutput {
 public:
  using TextOutput::TextOutput;

  void query(Recordset& rows) override {
    std::ostringstream text;
    const auto names = rows.fieldNames();
    for (std::size_t place = 0; place < names.size(); ++place) text << (place > 0 ? "\t" : "") << escaped(names[place]);
    text << '\n';
    for (; !rows.eof(); rows.moveNext()) {
      for (std::size_t place = 0; place < names.size(); ++place) {
        const Value value = rows.field(place);
        text << (place > 0 ? "\t" : "") << (value.isNull() ? "\\N" : escaped(plainText(value)));
      }
      text << '\n';
    }
    out_ << text.str();
  }

  void changed(std::int64_t rows) override { out_ << "afetadas\n" << rows << '\n'; }

 private:
  static std::string escaped(const std::string& text) {
    std::string result;
    for (char letter : text) {
      switch (letter) {
        case '\t':
          result += "\\t";
          break;
        case '\n':
          result += "\\n";
          break;
        case '\r':
          result += "\\r";
          break;
        case '\\':
          result += "\\\\";
          break;
        default:
          result += letter;
      }
    }
    return result;
  }
};

/// Columns under each other, numbers to the right.
class TableOutput final : public TextOutput {
 public:
  using TextOutput::TextOutput;

  void query(Recordset& rows) override {
    const auto types = rows.fieldTypes();
    std::vector<std::vector<std::string>> lines{rows.fieldNames()};
    for (; !rows.eof(); rows.moveNext()) {
      auto& line = lines.emplace_back();
      for (std::size_t place = 0; place < types.size(); ++place) line.push_back(shown(rows.field(place)));
    }
    std::vector<std::size_t> widths(types.size());
    for (const auto& line : lines)
      for (std::size_t place = 0; place < line.size(); ++place)
        widths[place] = std::max(widths[place], length(line[place]));
    for (std::size_t index = 0; index < lines.size(); ++index) {
      writeLine(lines[index], types, widths);
      if (index == 0) writeRule(widths);
    }
    const std::size_t count = lines.size() - 1;
    out_ << count << (count == 1 ? " registro\n\n" : " registros\n\n");
  }

  void changed(std::int64_t rows) override {
    out_ << rows << (rows == 1 ? " registro afetado\n\n" : " registros afetados\n\n");
  }

 private:
  static std::string shown(const Value& value) {
    std::string text = plainText(value);
    std::replace_if(
        text.begin(), text.end(), [](char letter) { return letter == '\n' || letter == '\r' || letter == '\t'; }, ' ');
    return text;
  }

  void writeLine(const std::vector<std::string>& line, const std::vector<ValueType>& types,
                 const std::vector<std::size_t>& widths) {
    std::string text;
    for (std::size_t place = 0; place < line.size(); ++place) {
      const std::string blanks(widths[place] - length(line[place]), ' ');
      const bool number = types[place] == ValueType::integer || types[place] == ValueType::currency ||
                          types[place] == ValueType::decimal;
      text += (place > 0 ? "  " : "") + (number ? blanks + line[place] : line[place] + blanks);
    }
    out_ << trimRight(text) << '\n';
  }

  void writeRule(const std::vector<std::size_t>& widths) {
    for (std::size_t place = 0; place < widths.size(); ++place)
      out_ << (place > 0 ? "  " : "") << std::string(widths[place], '-');
    out_ << '\n';
  }
};

}  // namespace

std::unique_ptr<Output> makeOutput(Format format, std::ostream& out, std::ostream& messages) {
  switch (format) {
    case Format::table:
      return std::make_unique<TableOutput>(out, messages);
    case Format::tsv:
      return std::make_unique<TsvOutput>(out, messages);
    case Format::json:
      return std::make_unique<JsonOutput>(out);
  }
  return nullptr;
}

}  // namespace fenvale::console
