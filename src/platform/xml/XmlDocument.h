#pragma once
// A parsed XML document, as the program reads one: elements by name in document order, children by place.

#include <memory>
#include <string>
#include <vector>

namespace fenvale {

struct XmlElement {
  std::string name;
  /// The text of each child node in order, blanks between elements left out: an element's whole text, or the text
  /// itself.
  std::vector<std::string> children;
};

/// Why a document could not be parsed, in the terms of the repair question.
struct XmlParseError {
  int code = 0;
  long filePosition = 0;  ///< bytes from the start
  long line = 0;
  long column = 0;
  std::string url;
  std::string reason;  ///< empty when the document is sound
};

class XmlDocument {
 public:
  /// Loads synchronously, with validation and external resolution as far as local files go; never touches the network.
  /// A file that cannot be read is a parse error with a reason too. Bytes that the declared encoding (UTF-8 without
  /// one) does not allow are parse errors. References 128 to 159 read as the Windows-1252 character they came from.
  static XmlDocument load(const std::string& path);
  /// The same of bytes that are at hand; `url` names them in an error, and local files are looked for beside it.
  static XmlDocument parse(const std::string& bytes, const std::string& url);

  XmlDocument();
  ~XmlDocument();
  XmlDocument(XmlDocument&&) noexcept;
  XmlDocument& operator=(XmlDocument&&) noexcept;

  const XmlParseError& parseError() const { return error_; }
  bool sound() const { return error_.reason.empty(); }
  /// All elements of that name at any depth, in document order; none in a document that is not sound.
  std::vector<XmlElement> elements(const std::string& name) const;

 private:
  struct Tree;
  std::unique_ptr<Tree> tree_;
  XmlParseError error_;
};

}  // namespace fenvale
