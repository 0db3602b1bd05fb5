#include "platform/xml/XmlDocument.h"

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Documents : public testing::Test {
 protected:
  XmlDocument load(const std::string& bytes) {
    folder.gravar("a.XML", bytes);
    return XmlDocument::load(folder.arquivo("a.XML"));
  }
  std::vector<std::string> texts(const std::string& bytes, const std::string& name) {
    std::vector<std::string> all;
    const XmlDocument document = load(bytes);
    EXPECT_TRUE(document.sound()) << document.parseError().reason;
    for (const XmlElement& element : document.elements(name))
      all.push_back(element.children.empty() ? "(none)" : element.children.front());
    return all;
  }
  PastaTemporaria folder;
};

TEST_F(Documents, ElementsOfANameComeInDocumentOrderAtAnyDepth) {
  EXPECT_THAT(texts("<r><SQL>a</SQL><g><SQL>b</SQL></g><sql>x</sql><SQL>c</SQL></r>", "SQL"),
              ElementsAre("a", "b", "c"));
  EXPECT_THAT(texts("<SQL>root</SQL>", "SQL"), ElementsAre("root"));
  EXPECT_THAT(texts("<r/>", "SQL"), IsEmpty());
}

TEST_F(Documents, ChildrenAreCountedWithoutTheBlanksBetweenThem) {
  const XmlDocument document =
      load("<root>\r\n <Cid>\r\n  <uf>PR</uf> <nome>Londrina</nome>\r\n </Cid>\r\n<Cid/></root>");
  const auto elements = document.elements("Cid");
  ASSERT_EQ(elements.size(), 2U);
  EXPECT_THAT(elements[0].children, ElementsAre("PR", "Londrina"));
  EXPECT_THAT(elements[1].children, IsEmpty());
}

TEST_F(Documents, AnElementInAnElementIsItsOnlyChild) {
  const XmlDocument document = load("<r><SQL><b>DELETE</b></SQL><SQL>a<b/>c</SQL><SQL><!-- nota -->d</SQL></r>");
  const auto elements = document.elements("SQL");
  EXPECT_THAT(elements.at(0).children, ElementsAre("DELETE"));
  EXPECT_THAT(elements.at(1).children, ElementsAre("a", "", "c"));
  EXPECT_THAT(elements.at(2).children, ElementsAre("d"));
}

TEST_F(Documents, ReferencesFrom128To159AreTheCharactersOfWindows1252) {
  EXPECT_THAT(texts("<a>&#128; &#150; &#231; &#38; &#129;</a>", "a"), ElementsAre("€ – ç & \xC2\x81"));
}

TEST_F(Documents, EncodingsAreTakenAtTheirWord) {
  EXPECT_THAT(texts("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?><a>\xE7</a>", "a"), ElementsAre("ç"));
  EXPECT_THAT(texts("<?xml version=\"1.0\" encoding=\"windows-1252\"?><a>\x80</a>", "a"), ElementsAre("€"));
  EXPECT_THAT(texts("<a>ç</a>", "a"), ElementsAre("ç"));
  EXPECT_THAT(texts("\xEF\xBB\xBF<a>ç</a>", "a"), ElementsAre("ç"));
}

TEST_F(Documents, ARawLatinByteWithoutADeclaredEncodingIsAnError) {
  const XmlDocument document = load("<root>\n<nome>Conce\xE7\xE3o</nome>\n</root>");
  EXPECT_FALSE(document.sound());
  const XmlParseError& error = document.parseError();
  EXPECT_NE(error.code, 0);
  EXPECT_EQ(error.line, 2);
  EXPECT_GT(error.column, 0);
  EXPECT_GT(error.filePosition, 0);
  EXPECT_EQ(error.url, folder.arquivo("a.XML"));
  EXPECT_FALSE(error.reason.empty());
  EXPECT_EQ(error.reason.find('\n'), std::string::npos);
  EXPECT_THAT(document.elements("nome"), IsEmpty());
}

TEST_F(Documents, BrokenDocumentsTellWhere) {
  for (const char* bytes :
       {"", "texto", "<a>", "<a></b>", "<a>&nada;</a>", "<a>1 & 2</a>", "<a><b></a></b>", "<a/><b/>", "<a>\x01</a>"}) {
    const XmlDocument document = load(bytes);
    EXPECT_FALSE(document.sound()) << bytes;
    EXPECT_FALSE(document.parseError().reason.empty()) << bytes;
  }
}

TEST_F(Documents, AFileThatIsNotThereIsAnErrorWithAReason) {
  const XmlDocument document = XmlDocument::load(folder.arquivo("nada.XML"));
  EXPECT_FALSE(document.sound());
  EXPECT_THAT(document.parseError().reason, HasSubstr("nada.XML"));
}

TEST_F(Documents, ADeclaredTypeIsHeldAgainstTheDocument) {
  const std::string type = "<!DOCTYPE r [<!ELEMENT r (a)><!ELEMENT a (#PCDATA)>]>";
  EXPECT_TRUE(load(type + "<r><a>1</a></r>").sound());
  EXPECT_FALSE(load(type + "<r><b>1</b></r>").sound());
}

TEST_F(Documents, LocalFilesAreResolvedAndTheNetworkIsNeverTouched) {
  folder.gravar("parte.txt", "de fora");
  EXPECT_THAT(texts("<!DOCTYPE a [<!ELEMENT a (#PCDATA)><!ENTITY x SYSTEM \"parte.txt\">]><a>&x;</a>", "a"),
              ElementsAre("de fora"));

  const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  ASSERT_EQ(::bind(listener, reinterpret_cast<sockaddr*>(&address), size), 0);
  ASSERT_EQ(::listen(listener, 1), 0);
  ASSERT_EQ(::getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size), 0);
  const std::string url = "http://127.0.0.1:" + std::to_string(ntohs(address.sin_port)) + "/x.dtd";
  EXPECT_FALSE(load("<!DOCTYPE a SYSTEM \"" + url + "\"><a/>").sound());
  (void)load("<!DOCTYPE a [<!ELEMENT a ANY><!ENTITY x SYSTEM \"" + url + "\">]><a>&x;</a>");
  EXPECT_LT(::accept(listener, nullptr, nullptr), 0) << "somebody knocked";
  ::close(listener);
}

TEST_F(Documents, EntitiesThatGrowWithoutEndAreRefused) {
  std::string bomb = "<!DOCTYPE a [<!ELEMENT a ANY><!ENTITY e0 \"aaaaaaaaaa\">";
  for (int i = 1; i < 12; ++i) {
    bomb += "<!ENTITY e" + std::to_string(i) + " \"";
    for (int k = 0; k < 10; ++k) bomb += "&e" + std::to_string(i - 1) + ";";
    bomb += "\">";
  }
  EXPECT_FALSE(load(bomb + "]><a>&e11;</a>").sound());
}

TEST_F(Documents, DeepAndLongDocumentsAreReadOrRefusedButNeverCrash) {
  std::string deep;
  for (int i = 0; i < 100000; ++i) deep += "<a>";
  EXPECT_FALSE(load(deep).sound());
  std::string rows = "<root>";
  for (int i = 0; i < 6000; ++i) rows += "<Cid><uf>SP</uf><nome>Cidade " + std::to_string(i) + "</nome></Cid>";
  EXPECT_EQ(load(rows + "</root>").elements("Cid").size(), 6000U);
}

}  // namespace
}  // namespace fenvale
