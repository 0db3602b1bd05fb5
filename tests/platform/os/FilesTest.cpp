#include "platform/os/Files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "platform/base/Error.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
namespace fs = std::filesystem;

mode_t modeOf(const std::string& path) {
  struct stat status {};
  EXPECT_EQ(::stat(path.c_str(), &status), 0) << path;
  return status.st_mode & 07777;
}

template <typename Action>
Error failure(Action action) {
  try {
    action();
  } catch (const Error& error) {
    return error;
  }
  return {0, ""};
}

class Files : public testing::Test {
 protected:
  PastaTemporaria folder;
};

TEST_F(Files, APathOfTheOldSystemFindsItsFile) {
  folder.gravar("Loja Centro/Dados.mdb", "x");
  const std::string base = folder.caminho();
  EXPECT_EQ(files::nativePath(base + "\\LOJA centro\\dados.MDB"), base + "/Loja Centro/Dados.mdb");
  EXPECT_TRUE(files::isFile(base + "\\loja centro\\DADOS.mdb"));
  EXPECT_TRUE(files::isFolder(base + "\\loja centro\\"));
  EXPECT_FALSE(files::isFile(base + "\\loja centro"));
  EXPECT_FALSE(files::isFolder(base + "/loja centro/dados.mdb"));
}

TEST_F(Files, ANameThatIsThereAsWrittenWinsOverItsLikes) {
  folder.gravar("dados.mdb", "small");
  folder.gravar("Dados.MDB", "mixed");
  EXPECT_EQ(files::read(folder.arquivo("Dados.MDB")), "mixed");
  EXPECT_EQ(files::read(folder.arquivo("dados.mdb")), "small");
  EXPECT_EQ(files::nativePath(folder.arquivo("DADOS.MDB")), folder.arquivo("Dados.MDB"));
}

TEST_F(Files, AccentsAreMatchedWithoutCaseToo) {
  folder.gravar("Praça da Sé/ação.txt", "x");
  EXPECT_TRUE(files::isFile(folder.caminho() + "\\PRAÇA DA SÉ\\AÇÃO.TXT"));
}

TEST_F(Files, WhatIsNotThereKeepsItsName) {
  EXPECT_EQ(files::nativePath(folder.caminho() + "\\Nova\\Arquivo.MDB"), folder.caminho() + "/Nova/Arquivo.MDB");
  EXPECT_EQ(files::nativePath(""), "");
  EXPECT_FALSE(files::isFile(""));
  EXPECT_FALSE(files::isFolder(""));
}

TEST_F(Files, AFileIsWrittenWholeAndReadBackByteForByte) {
  std::string bytes;
  for (int code = 0; code < 256; ++code) bytes += static_cast<char>(static_cast<unsigned char>(code));
  files::write(folder.arquivo("a.bin"), bytes);
  EXPECT_EQ(files::read(folder.arquivo("a.bin")), bytes);
  files::write(folder.arquivo("a.bin"), "novo");
  EXPECT_EQ(files::read(folder.arquivo("a.bin")), "novo");
  EXPECT_THAT(folder.nomes(), ElementsAre("a.bin"));
}

TEST_F(Files, WritingKeepsThePermissionsOfTheOldFile) {
  folder.gravar("a.txt", "velho");
  ::chmod(folder.arquivo("a.txt").c_str(), 0640);
  files::write(folder.arquivo("A.TXT"), "novo");
  EXPECT_EQ(modeOf(folder.arquivo("a.txt")), 0640U);
  EXPECT_THAT(folder.nomes(), ElementsAre("a.txt"));
}

TEST_F(Files, WritingGoesThroughALinkToTheFileBehindIt) {
  folder.gravar("real.txt", "velho");
  fs::create_symlink(folder.arquivo("real.txt"), folder.arquivo("link.txt"));
  files::write(folder.arquivo("link.txt"), "novo");
  EXPECT_TRUE(fs::is_symlink(folder.arquivo("link.txt")));
  EXPECT_EQ(folder.ler("real.txt"), "novo");
}

TEST_F(Files, WhatCannotBeDoneIsToldInOneSentence) {
  const Error missing = failure([&] { (void)files::read(folder.arquivo("nada.txt")); });
  EXPECT_EQ(missing.number, errors::fileNotFound);
  EXPECT_EQ(missing.description,
            "Não foi possível abrir o arquivo " + folder.arquivo("nada.txt") + ": o caminho não existe.");
  const Error noFolder = failure([&] { files::write(folder.arquivo("nada/a.txt"), "x"); });
  EXPECT_EQ(noFolder.number, errors::fileNotFound);
  const Error isFolder = failure([&] { (void)files::read(folder.caminho()); });
  EXPECT_EQ(isFolder.number, errors::fileAccess);
  EXPECT_EQ(isFolder.description, "Não foi possível ler o arquivo " + folder.caminho() + ": é uma pasta.");
}

/// Files cannot grow beyond `bytes` as long as it lives: a write breaks off in the middle as on a full disk.
class ShortDisk {
 public:
  explicit ShortDisk(rlim_t bytes) : before_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &old_);
    const rlimit narrow{bytes, old_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &narrow);
  }
  ~ShortDisk() {
    ::setrlimit(RLIMIT_FSIZE, &old_);
    std::signal(SIGXFSZ, before_);
  }
  ShortDisk(const ShortDisk&) = delete;
  ShortDisk& operator=(const ShortDisk&) = delete;

 private:
  void (*before_)(int);
  rlimit old_{};
};

TEST_F(Files, AWriteThatBreaksOffLeavesTheOldFileAlone) {
  folder.gravar("a.txt", "velho");
  Error broken{0, ""};
  {
    const ShortDisk disk(4096);
    broken = failure([&] { files::write(folder.arquivo("a.txt"), std::string(100000, 'x')); });
  }
  EXPECT_EQ(broken.number, errors::fileAccess);
  EXPECT_THAT(broken.description, testing::StartsWith("Não foi possível gravar o arquivo " + folder.arquivo("a.txt")));
  EXPECT_EQ(folder.ler("a.txt"), "velho");
  EXPECT_THAT(folder.nomes(), ElementsAre("a.txt"));
}

TEST_F(Files, AFileThatIsWrittenPieceByPieceComesWholeOrNotAtAll) {
  folder.gravar("A.txt", "velho");
  {
    files::Writer writer(folder.arquivo("a.txt"));
    writer.write("no");
    writer.write("vo");
    EXPECT_EQ(folder.ler("A.txt"), "velho") << "until it is closed";
    writer.close();
  }
  EXPECT_EQ(folder.ler("A.txt"), "novo");
  {
    files::Writer writer(folder.arquivo("a.txt"));
    writer.write("pela metade");
  }
  EXPECT_EQ(folder.ler("A.txt"), "novo");
  EXPECT_THAT(folder.nomes(), ElementsAre("A.txt"));
  EXPECT_EQ(failure([&] { const files::Writer writer(folder.arquivo("nada/a.txt")); }).number, errors::fileNotFound);
}

TEST_F(Files, APieceThatDoesNotFitLeavesNothing) {
  const ShortDisk disk(4096);
  files::Writer writer(folder.arquivo("a.txt"));
  EXPECT_EQ(failure([&] { writer.write(std::string(100000, 'x')); }).number, errors::fileAccess);
  EXPECT_FALSE(folder.existe("a.txt"));
}

TEST_F(Files, ADraftTakesItsPlaceWhenItIsWholeAndIsGoneOtherwise) {
  {
    files::Draft draft(folder.arquivo("a.MDB"));
    EXPECT_EQ(modeOf(draft.path()), 0600U);
    files::write(draft.path(), "meio");
    EXPECT_FALSE(folder.existe("a.MDB"));
  }
  EXPECT_THAT(folder.nomes(), IsEmpty());
  {
    files::Draft draft(folder.arquivo("a.MDB"));
    files::write(draft.path(), "inteiro");
    draft.place();
    EXPECT_THAT(folder.nomes(), ElementsAre("a.MDB"));
  }
  EXPECT_EQ(folder.ler("a.MDB"), "inteiro");
}

TEST_F(Files, ADraftNeverTakesThePlaceOfAnotherFile) {
  files::Draft draft(folder.arquivo("a.MDB"));
  folder.gravar("a.MDB", "outro");
  const Error taken = failure([&] { draft.place(); });
  EXPECT_EQ(taken.number, errors::fileExists);
  EXPECT_EQ(taken.description, "O arquivo " + folder.arquivo("a.MDB") + " já existe.");
  EXPECT_EQ(folder.ler("a.MDB"), "outro");
}

TEST_F(Files, ADraftWithoutItsFolderIsTold) {
  const std::string sentence =
      "Não foi possível gravar o arquivo " + folder.arquivo("sub/a.MDB") + ": o caminho não existe.";
  EXPECT_EQ(failure([&] { const files::Draft draft(folder.arquivo("sub/a.MDB")); }).description, sentence);
  folder.gravar("sub/x", "x");
  files::Draft draft(folder.arquivo("sub/a.MDB"));
  fs::remove_all(folder.arquivo("sub"));
  EXPECT_EQ(failure([&] { draft.flush(); }).description, sentence);
  EXPECT_EQ(failure([&] { draft.place(); }).description, sentence);
}

TEST_F(Files, BytesAreAddedToTheEndOfAFile) {
  files::append(folder.arquivo("a.txt"), "um");
  files::append(folder.arquivo("A.TXT"), "");
  files::append(folder.arquivo("A.TXT"), " dois");
  EXPECT_EQ(folder.ler("a.txt"), "um dois");
  EXPECT_THAT(folder.nomes(), ElementsAre("a.txt"));
  EXPECT_EQ(failure([&] { files::append(folder.arquivo("nada/a.txt"), "x"); }).number, errors::fileNotFound);
  EXPECT_EQ(failure([&] { files::append(folder.caminho(), "x"); }).number, errors::fileAccess);
  const ShortDisk disk(4096);
  EXPECT_EQ(failure([&] { files::append(folder.arquivo("a.txt"), std::string(100000, 'x')); }).number,
            errors::fileAccess);
  EXPECT_EQ(folder.ler("a.txt"), "um dois" + std::string(4096 - 7, 'x'));
}

TEST_F(Files, TellTheirSize) {
  folder.gravar("a.txt", std::string(70000, 'x'));
  folder.gravar("vazio.txt", "");
  EXPECT_EQ(files::size(folder.arquivo("A.txt")), 70000U);
  EXPECT_EQ(files::size(folder.arquivo("vazio.txt")), 0U);
  EXPECT_EQ(failure([&] { (void)files::size(folder.arquivo("nada.txt")); }).number, errors::fileNotFound);
  EXPECT_EQ(failure([&] { (void)files::size(folder.caminho()); }).number, errors::fileAccess);
}

TEST_F(Files, AreReadLineByLineAsTheirTextIsBroken) {
  const std::string block(65535, '.');
  for (const std::string& text : {std::string(), std::string("a"), std::string("a\r\nb\rc\n\nd\n\r\r\n"),
                                  std::string("\n"), std::string("\0x\r", 3), block + "\r\nb\r\n", block + ".\r\n",
                                  block + "\r", block + "\rb", block + block + "\n" + block}) {
    folder.gravar("a.txt", text);
    std::vector<std::string> found;
    files::LineReader reader(folder.arquivo("A.TXT"));
    for (std::string line; reader.next(line);) found.push_back(line);
    EXPECT_EQ(found, files::lines(text));
    std::string line = "x";
    EXPECT_FALSE(reader.next(line)) << "behind the end";
    EXPECT_EQ(line, "");
  }
  EXPECT_EQ(failure([&] { const files::LineReader reader(folder.arquivo("nada.txt")); }).number, errors::fileNotFound);
  files::LineReader reader(folder.caminho());
  std::string line;
  EXPECT_EQ(failure([&] { reader.next(line); }).number, errors::fileAccess);
}

TEST_F(Files, FoldersAreMadeWithThoseAboveThem) {
  files::createFolder(folder.caminho() + "\\a\\b");
  EXPECT_TRUE(fs::is_directory(folder.arquivo("a/b")));
  files::createFolder(folder.caminho() + "/A/B");
  EXPECT_THAT(folder.nomes(), ElementsAre("a"));
  folder.gravar("ocupado", "x");
  EXPECT_NE(failure([&] { files::createFolder(folder.arquivo("ocupado")); }).number, 0);
}

TEST_F(Files, RemovingAndRenaming) {
  folder.gravar("a.txt", "a");
  folder.gravar("b.txt", "b");
  files::rename(folder.arquivo("A.txt"), folder.arquivo("b.txt"));
  EXPECT_THAT(folder.nomes(), ElementsAre("b.txt"));
  EXPECT_EQ(folder.ler("b.txt"), "a");
  files::remove(folder.arquivo("B.TXT"));
  files::remove(folder.arquivo("b.txt"));
  EXPECT_THAT(folder.nomes(), IsEmpty());
  EXPECT_EQ(failure([&] { files::rename(folder.arquivo("a"), folder.arquivo("b")); }).number, errors::fileNotFound);
}

TEST_F(Files, OthersThanOwnerAndGroupAreShutOut) {
  folder.gravar("Dados.MDB", "x");
  ::chmod(folder.arquivo("Dados.MDB").c_str(), 0666);
  files::restrictToOwnerAndGroup(folder.arquivo("dados.mdb"));
  EXPECT_EQ(modeOf(folder.arquivo("Dados.MDB")), 0660U);
}

TEST_F(Files, EndingsAreMatchedWithoutCase) {
  for (const char* name : {"b.tmp", "A.TMP", "tmp", "c.tmpx"}) folder.gravar(name, "x");
  EXPECT_THAT(files::withEnding(folder.caminho(), ".tmp"),
              ElementsAre(folder.arquivo("A.TMP"), folder.arquivo("b.tmp")));
  EXPECT_THAT(files::withEnding(folder.arquivo("nada"), ".tmp"), IsEmpty());
}

TEST_F(Files, LinesWhateverBreaksThem) {
  EXPECT_THAT(files::lines("a\r\nb\nc\rd"), ElementsAre("a", "b", "c", "d"));
  EXPECT_THAT(files::lines("a\r\n"), ElementsAre("a"));
  EXPECT_THAT(files::lines("\r\n\r\n"), ElementsAre("", ""));
  EXPECT_THAT(files::lines(""), IsEmpty());
}

}  // namespace
}  // namespace fenvale
