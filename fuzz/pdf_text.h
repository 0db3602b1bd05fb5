#pragma once
// What must hold for any text that is made into a PDF file: nothing of it is lost, and the table and the lengths tell
// the positions that a reader of the lines counts for itself.

#include <cstdio>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/Date.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"
#include "platform/ui/test/TestHost.h"
#include "reports/services/PDF.h"

namespace fenvale::fuzz {

class StillClock final : public Clock {
 public:
  Date today() const override { return makeDate(2026, 3, 15); }
  DateTime now() const override { return DateTime(today()); }
};

/// A PDF file of this system, read line by line.
class PdfReading {
 public:
  explicit PdfReading(std::string_view bytes) {
    while (!bytes.empty()) {
      std::size_t end = 0;
      do end = bytes.find('\r', end == 0 ? 0 : end + 1);
      while (end != std::string_view::npos && bytes.substr(end, 2) == "\r\n");
      if (end == std::string_view::npos) break;
      take(bytes.substr(0, end));
      bytes.remove_prefix(end + 1);
    }
    wholeLines_ = bytes.empty();
  }

  /// What is wrong with it; empty when all is well.
  std::string fault() const {
    if (!wholeLines_ || lines_.empty() || lines_.back() != "%%EOF") return "the last line is not whole";
    const std::size_t count = objects_.size();
    if (lines_.size() < count + 11) return "no room for the table";
    const std::size_t table = lines_.size() - count - 11;
    const std::string size = std::to_string(count + 1);
    if (lines_[table] != "0 " + size || lines_[table + 1] != "0000000000 65535 f ") return "the table does not begin";
    for (const auto& [object, position] : objects_) {
      std::string entry = std::to_string(position);
      entry.insert(0, 10 - entry.size(), '0');
      if (object > count || lines_[table + 1 + object] != entry + " 00000 n ")
        return "not at its position: object " + std::to_string(object);
    }
    const std::vector<std::string> end(lines_.begin() + static_cast<std::ptrdiff_t>(table + count + 2), lines_.end());
    const std::vector<std::string> expected{"trailer",     "<<", "/Size " + size, "/Root 2 0 R",
                                            "/Info 1 0 R", ">>", "startxref",     std::to_string(starts_[table]),
                                            "%%EOF"};
    if (end != expected) return "the trailer is wrong";
    if (count != 6 + 3 * pages_) return "not three objects to a page";
    return wrongLength_;
  }

  /// The strings of the text, brackets without their escapes, joined.
  const std::string& text() const { return text_; }
  std::size_t pages() const { return pages_; }
  std::size_t longest() const { return longest_; }
  const std::vector<std::string>& lines() const { return lines_; }

 private:
  void take(std::string_view line) {
    constexpr std::string_view object = " 0 obj";
    constexpr std::string_view opening = "T* (";
    constexpr std::string_view closing = "\r\n) Tj";
    if (line.ends_with(object) && line.size() <= 11) {
      const auto number =
          static_cast<std::size_t>(std::stoul(std::string(line.substr(0, line.size() - object.size()))));
      objects_[number] = position_;
      if (awaited_ != 0 && lines_.back() == "endobj") awaitedObject_ = true;
    } else if (awaitedObject_) {
      if (line != std::to_string(awaited_)) wrongLength_ = "not the length of its stream: " + std::string(line);
      awaited_ = 0;
      awaitedObject_ = false;
    } else if (line.starts_with(opening) && line.ends_with(closing)) {
      const std::string_view string = line.substr(opening.size(), line.size() - opening.size() - closing.size());
      longest_ = std::max(longest_, string.size());
      escaped_ += string;
    }
    if (line == "/Type /Page") ++pages_;
    starts_.push_back(position_);
    lines_.emplace_back(line);
    position_ += line.size();
    if (line == "stream") streamStart_ = position_;
    if (line == "ET") awaited_ = position_ - streamStart_;
    if (line == "%%EOF") text_ = replaceAll(replaceAll(escaped_, "\\(", "("), "\\)", ")");
  }

  std::vector<std::string> lines_;
  std::vector<std::size_t> starts_;
  std::map<std::size_t, std::size_t> objects_;
  std::string escaped_;
  std::string text_;
  std::string wrongLength_;
  std::size_t position_ = 0;
  std::size_t streamStart_ = 0;
  std::size_t awaited_ = 0;
  std::size_t pages_ = 0;
  std::size_t longest_ = 0;
  bool awaitedObject_ = false;
  bool wholeLines_ = false;
};

/// An answer that tells what went wrong; empty when all is well. The files are made in `folder`.
inline std::string pdfText(const std::string& source, const std::string& folder) {
  const std::string from = folder + "/origem.txt";
  const std::string to = folder + "/destino.pdf";
  std::remove(from.c_str());
  std::remove(to.c_str());
  if (!source.empty()) files::append(from, source);
  TestHost host;
  const StillClock clock;
  try {
    PDF(host, clock).vGerarPDF(from, to, "A", "", "", "", "", "Courier", 10, 0, 13.0F, 11.0F);
  } catch (const TestHost::Unexpected&) {
    const std::string& said = host.boxes().back().text;
    if (source.empty()) return said == "Arquivo '" + from + "' não existe." ? "" : said;
    return said.starts_with("O texto é longo demais") ? "" : said;
  }
  const PdfReading reading(files::read(to));
  std::string expected;
  for (const std::string& line : files::lines(source)) expected += trim(line);
  // A backslash of the source may stand before a bracket: both are compared as they stand in the file.
  if (source.find('\\') == std::string::npos && reading.text() != expected) return "the text is not the same";
  if (reading.longest() > 140) return "a line is too long";
  return reading.fault();
}

}  // namespace fenvale::fuzz
