#include "platform/xml/XmlDocument.h"

#include <libxml/parser.h>
#include <libxml/parserInternals.h>
#include <libxml/tree.h>
#include <libxml/xmlerror.h>

#include <algorithm>
#include <limits>
#include <mutex>
#include <string_view>

#include "platform/base/Error.h"
#include "platform/base/Text.h"
#include "platform/os/Files.h"

namespace fenvale {
namespace {

struct DocumentCloser {
  void operator()(xmlDoc* document) const { xmlFreeDoc(document); }
};
struct ParserCloser {
  void operator()(xmlParserCtxt* parser) const { xmlFreeParserCtxt(parser); }
};
using DocumentPointer = std::unique_ptr<xmlDoc, DocumentCloser>;
using ParserPointer = std::unique_ptr<xmlParserCtxt, ParserCloser>;

std::string textOf(const xmlChar* text) {
  return text == nullptr ? std::string() : reinterpret_cast<const char*>(text);
}

/// References 128 to 159 are written for characters of Windows-1252 and come out of the parser as control characters.
std::string asWindows1252Meant(const std::string& text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t place = 0; place < text.size();) {
    const auto [code, bytes] = decodeUtf8(text, place);
    appendUtf8(result, code >= 0x80 && code < 0xA0 ? windows1252Character(static_cast<unsigned char>(code)) : code);
    place += bytes;
  }
  return result;
}

std::string contentOf(const xmlNode* node) {
  xmlChar* const content = xmlNodeGetContent(node);
  std::string text = asWindows1252Meant(textOf(content));
  xmlFree(content);
  return text;
}

bool counts(const xmlNode* node) {
  switch (node->type) {
    case XML_ELEMENT_NODE:
    case XML_ENTITY_REF_NODE:
      return true;
    case XML_TEXT_NODE:
    case XML_CDATA_SECTION_NODE:
      return xmlIsBlankNode(node) == 0;
    default:
      return false;
  }
}

void collect(const xmlNode* node, const std::string& name, std::vector<XmlElement>& found) {
  // Walked by hand: a file may nest deeper than the stack of calls bears.
  const xmlNode* const root = node;
  while (node != nullptr) {
    if (node->type == XML_ELEMENT_NODE && textOf(node->name) == name) {
      XmlElement element{name, {}};
      for (const xmlNode* child = node->children; child != nullptr; child = child->next)
        if (counts(child)) element.children.push_back(contentOf(child));
      found.push_back(std::move(element));
    }
    if (node->type == XML_ELEMENT_NODE && node->children != nullptr) {
      node = node->children;
      continue;
    }
    while (node != root && node->next == nullptr) node = node->parent;
    if (node == root) return;
    node = node->next;
  }
}

/// Files of this machine only: whatever names another place is answered with nothing, in silence.
xmlParserInput* localEntity(const char* url, const char* id, xmlParserCtxt* parser) {
  const std::string_view place = url == nullptr ? std::string_view() : url;
  const bool local = place.find("://") == std::string_view::npos || place.starts_with("file://");
  return local ? xmlNoNetExternalEntityLoader(url, id, parser) : nullptr;
}

void prepareLibrary() {
  static std::once_flag once;
  std::call_once(once, [] {
    xmlInitParser();
    xmlSetExternalEntityLoader(localEntity);
  });
}

/// The parser's words as one line.
std::string reasonOf(const char* message) {
  std::string reason = message == nullptr ? std::string() : message;
  std::replace(reason.begin(), reason.end(), '\n', ' ');
  return trim(reason);
}

XmlParseError errorOf(xmlParserCtxt& parser, const std::string& path) {
  const xmlError* const last = xmlCtxtGetLastError(&parser);
  XmlParseError error;
  error.url = path;
  error.filePosition = xmlByteConsumed(&parser);
  error.code = last == nullptr ? parser.errNo : last->code;
  if (last != nullptr) {
    error.line = last->line;
    error.column = last->int2;
    error.reason = reasonOf(last->message);
  }
  if (error.reason.empty()) error.reason = "O documento não pôde ser lido.";
  if (error.filePosition < 0) error.filePosition = 0;
  return error;
}

}  // namespace

struct XmlDocument::Tree {
  DocumentPointer document;
};

XmlDocument::XmlDocument() = default;
XmlDocument::~XmlDocument() = default;
XmlDocument::XmlDocument(XmlDocument&&) noexcept = default;
XmlDocument& XmlDocument::operator=(XmlDocument&&) noexcept = default;

XmlDocument XmlDocument::load(const std::string& path) {
  try {
    return parse(files::read(path), path);
  } catch (const Error& failure) {
    XmlDocument unread;
    unread.error_ = {failure.number, 0, 0, 0, path, failure.description};
    return unread;
  }
}

XmlDocument XmlDocument::parse(const std::string& bytes, const std::string& url) {
  prepareLibrary();
  XmlDocument result;
  if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    result.error_ = {errors::fileAccess, 0, 0, 0, url, "O documento é grande demais."};
    return result;
  }
  const ParserPointer parser(xmlNewParserCtxt());
  // A document type is validated when it is declared; a document without one has nothing to be held against.
  const bool declaresType = bytes.find("<!DOCTYPE") != std::string::npos;
  const int options = XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_NOENT |
                      (declaresType ? XML_PARSE_DTDVALID : 0);
  DocumentPointer document(
      xmlCtxtReadMemory(parser.get(), bytes.data(), static_cast<int>(bytes.size()), url.c_str(), nullptr, options));
  if (document == nullptr || parser->wellFormed == 0 || (declaresType && parser->valid == 0)) {
    result.error_ = errorOf(*parser, url);
    return result;
  }
  result.tree_ = std::make_unique<Tree>(Tree{std::move(document)});
  return result;
}

std::vector<XmlElement> XmlDocument::elements(const std::string& name) const {
  std::vector<XmlElement> found;
  if (tree_) collect(xmlDocGetRootElement(tree_->document.get()), name, found);
  return found;
}

}  // namespace fenvale
