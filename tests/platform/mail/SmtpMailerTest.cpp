#include "platform/mail/SmtpMailer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>

#include "platform/base/Text.h"
#include "platform/mail/Message.h"
#include "support/ProgramaDeTeste.h"

namespace fenvale {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* script = FENVALE_SOURCE_DIR "/tests/platform/mail/servidor.py";

/// A real SMTP server in a process of its own, for as long as the object lives.
class Server {
 public:
  Server(const std::string& received, const std::vector<std::string>& words) {
    std::array<int, 2> input{};
    std::array<int, 2> output{};
    if (::pipe(input.data()) != 0 || ::pipe(output.data()) != 0) throw std::runtime_error("no pipe");
    process_ = ::fork();
    if (process_ == 0) {
      ::dup2(input[0], 0);
      ::dup2(output[1], 1);
      for (int end : {input[0], input[1], output[0], output[1]}) ::close(end);
      std::vector<std::string> all{"python3", "-W", "ignore", script, received};
      all.insert(all.end(), words.begin(), words.end());
      std::vector<char*> pointers;
      pointers.reserve(all.size() + 1);
      for (std::string& word : all) pointers.push_back(word.data());
      pointers.push_back(nullptr);
      // The system's own interpreter: the server's library is a package of the system.
      ::execv("/usr/bin/python3", pointers.data());
      ::_exit(127);
    }
    ::close(input[0]);
    ::close(output[1]);
    leash_ = input[1];
    std::string line;
    for (char letter = 0; ::read(output[0], &letter, 1) == 1 && letter != '\n';) line += letter;
    ::close(output[0]);
    if (line.empty()) throw std::runtime_error("the mail server did not start");
    port_ = line;
  }
  ~Server() {
    ::close(leash_);
    int status = 0;
    ::waitpid(process_, &status, 0);
  }
  Server(const Server&) = delete;
  Server& operator=(const Server&) = delete;
  std::string address(const std::string& host = "127.0.0.1") const { return host + ":" + port_; }

 private:
  pid_t process_ = 0;
  int leash_ = -1;
  std::string port_;
};

class Sending : public testing::Test {
 protected:
  Mail mail(const std::string& server) const {
    return {server,
            "loja@norvane.example",
            "suporte@norvane.example",
            "Erro no programa - Versão ZENIT",
            "Formulário: frmSistema\r\n.\r\nlinha com ponto\r\n€",
            "",
            ""};
  }
  std::string received() const { return folder.ler("recebida"); }
  std::vector<std::string> certificate() const {
    const std::string command =
        "openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=localhost -addext "
        "subjectAltName=DNS:localhost,IP:127.0.0.1 -keyout " +
        folder.arquivo("chave.pem") + " -out " + folder.arquivo("certificado.pem") + " >/dev/null 2>&1";
    if (std::system(command.c_str()) != 0) throw std::runtime_error("no certificate");
    return {"tls", folder.arquivo("certificado.pem"), folder.arquivo("chave.pem")};
  }
  PastaTemporaria folder;
  std::string file = folder.arquivo("recebida");
};

TEST_F(Sending, APlainMailArrivesWithEveryHeader) {
  const Server server(file, {});
  EXPECT_EQ(SmtpMailer().send(mail(server.address())), "");
  EXPECT_THAT(received(), StartsWith("from loja@norvane.example\nto suporte@norvane.example\ntls no\nuser \n\nDate: "));
  EXPECT_THAT(received(), HasSubstr("\r\nFrom: <loja@norvane.example>\r\nTo: <suporte@norvane.example>\r\n"));
  EXPECT_THAT(received(), HasSubstr("\r\nSubject: =?UTF-8?B?" + base64("Erro no programa - Versão ZENIT") + "?=\r\n"));
  EXPECT_THAT(received(), HasSubstr("\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=UTF-8\r\n"
                                    "Content-Transfer-Encoding: base64\r\n\r\n"));
  EXPECT_THAT(received(), HasSubstr(base64("Formulário: frmSistema\r\n.\r\nlinha com ponto\r\n€").substr(0, 76)));
}

TEST_F(Sending, UserAndPasswordAreGivenWhenThereIsAUser) {
  const Server server(file, {"auth"});
  Mail signedIn = mail(server.address());
  signedIn.user = "loja";
  signedIn.password = "s3gr€do";
  EXPECT_EQ(SmtpMailer().send(signedIn), "");
  EXPECT_THAT(received(), HasSubstr("\nuser loja\n"));
}

TEST_F(Sending, AWrongPasswordIsTold) {
  const Server server(file, {"auth"});
  Mail signedIn = mail(server.address());
  signedIn.user = "loja";
  signedIn.password = "errada";
  EXPECT_THAT(SmtpMailer().send(signedIn), StartsWith("O servidor recusou o login ou a senha."));
  EXPECT_FALSE(folder.existe("recebida"));
}

TEST_F(Sending, AServerThatWantsAUserSaysSo) {
  const Server server(file, {"auth"});
  const std::string answer = SmtpMailer().send(mail(server.address()));
  EXPECT_THAT(answer, StartsWith("O servidor recusou a mensagem. Resposta do servidor: 530 "));
}

TEST_F(Sending, ARefusedRecipientIsToldInTheServersWords) {
  const Server server(file, {"refuse"});
  EXPECT_EQ(SmtpMailer().send(mail(server.address())),
            "O servidor recusou a mensagem. Resposta do servidor: 550 5.1.1 Caixa postal inexistente");
}

TEST_F(Sending, StartTlsIsTakenWhenItIsOffered) {
  const Server server(file, certificate());
  SmtpOptions options;
  options.authorities = folder.arquivo("certificado.pem");
  EXPECT_EQ(SmtpMailer(options).send(mail(server.address("localhost"))), "");
  EXPECT_THAT(received(), HasSubstr("\ntls yes\n"));
}

TEST_F(Sending, ACertificateThatDoesNotHoldIsRefused) {
  const Server server(file, certificate());
  EXPECT_THAT(SmtpMailer().send(mail(server.address("localhost"))),
              StartsWith("A conexão segura com o servidor localhost:"));
  EXPECT_FALSE(folder.existe("recebida"));
}

TEST_F(Sending, NobodyAtThePortIsTold) {
  std::string place;
  {
    const Server server(file, {});
    place = server.address();
  }
  EXPECT_EQ(SmtpMailer().send(mail(place)), "Não foi possível conectar ao servidor " + place + ".");
}

TEST_F(Sending, AnUnknownServerIsTold) {
  EXPECT_EQ(SmtpMailer().send(mail("servidor.invalid")), "O servidor servidor.invalid não foi localizado.");
}

TEST_F(Sending, AServerThatNeverSpeaksIsGivenUp) {
  const Server server(file, {"silent"});
  SmtpOptions options;
  options.timeout = std::chrono::seconds(1);
  EXPECT_EQ(SmtpMailer(options).send(mail(server.address())),
            "O servidor " + server.address() + " não respondeu a tempo.");
}

TEST_F(Sending, LineBreaksInAHeaderSmuggleNothingIn) {
  const Server server(file, {});
  Mail wicked = mail(server.address());
  wicked.subject = "Erro\r\nBcc: outro@norvane.example";
  wicked.recipient = "Suporte <suporte@norvane.example>\r\nRCPT TO:<outro@norvane.example>";
  EXPECT_EQ(SmtpMailer().send(wicked), "");
  EXPECT_THAT(received(), HasSubstr("\r\nSubject: Erro  Bcc: outro@norvane.example\r\n"));
  EXPECT_EQ(received().find("\nBcc:"), std::string::npos);
}

TEST(Message, Base64OfEveryRemainder) {
  EXPECT_EQ(base64(""), "");
  EXPECT_EQ(base64("f"), "Zg==");
  EXPECT_EQ(base64("fo"), "Zm8=");
  EXPECT_EQ(base64("foo"), "Zm9v");
  EXPECT_EQ(base64("foobar"), "Zm9vYmFy");
  EXPECT_EQ(base64("\xFF\xFE"), "//4=");
}

TEST(Message, ALongHeaderIsFoldedBetweenCharacters) {
  std::string text;
  for (int i = 0; i < 40; ++i) text += "ção";
  const std::string header = encodedHeader(text);
  EXPECT_THAT(header, HasSubstr("?=\r\n =?UTF-8?B?"));
  for (std::size_t start = 0; start < header.size();) {
    const std::size_t end = std::min(header.find("\r\n", start), header.size());
    EXPECT_LE(end - start, 76U);
    start = end + 2;
  }
  EXPECT_EQ(encodedHeader("Simples"), "Simples");
}

TEST(Message, AnAddressIsTakenOutOfItsName) {
  EXPECT_EQ(addressOnly("a@b.c"), "a@b.c");
  EXPECT_EQ(addressOnly("<a@b.c>"), "a@b.c");
  EXPECT_EQ(addressOnly("Ana Souza <a@b.c> "), "a@b.c");
}

TEST(Message, TheStampIsOfTheMoment) {
  const MessageStamp stamp = stampOf(1773599527, "12.34", "balcao");
  EXPECT_EQ(stamp.date, "Sun, 15 Mar 2026 18:32:07 +0000");
  EXPECT_EQ(stamp.id, "1773599527.12.34@balcao");
}

TEST(Message, TheWholeOfIt) {
  const Mail mail{"s", "a@b.c", "d@e.f", "Olá", "um\ndois\rtrês\r\n", "", ""};
  EXPECT_EQ(composeMessage(mail, {"Sun, 15 Mar 2026 18:32:07 +0000", "id@x"}),
            "Date: Sun, 15 Mar 2026 18:32:07 +0000\r\nFrom: <a@b.c>\r\nTo: <d@e.f>\r\nSubject: =?UTF-8?B?T2zDoQ==?=\r\n"
            "Message-ID: <id@x>\r\nMIME-Version: 1.0\r\nContent-Type: text/plain; charset=UTF-8\r\n"
            "Content-Transfer-Encoding: base64\r\n\r\n" +
                base64("um\r\ndois\r\ntrês\r\n") + "\r\n");
}

}  // namespace
}  // namespace fenvale
