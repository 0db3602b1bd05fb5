#include "platform/mail/SmtpMailer.h"

#include <curl/curl.h>
#include <unistd.h>

#include <array>
#include <ctime>
#include <memory>
#include <mutex>
#include <random>

#include "platform/base/Text.h"
#include "platform/mail/Message.h"

namespace fenvale {
namespace {

struct HandleCloser {
  void operator()(CURL* handle) const { curl_easy_cleanup(handle); }
};
struct ListCloser {
  void operator()(curl_slist* list) const { curl_slist_free_all(list); }
};

struct Upload {
  std::string_view rest;
};

std::size_t giveMore(char* buffer, std::size_t size, std::size_t count, void* user) {
  std::string_view& rest = static_cast<Upload*>(user)->rest;
  const std::size_t bytes = rest.copy(buffer, size * count);
  rest.remove_prefix(bytes);
  return bytes;
}

bool isRefusal(std::string_view line) { return line.size() > 3 && (line[0] == '4' || line[0] == '5'); }

/// The server's last refusal; the good-bye that follows it says nothing.
std::size_t keepRefusal(char* text, std::size_t size, std::size_t count, void* user) {
  const std::string_view line(text, size * count);
  if (isRefusal(line)) *static_cast<std::string*>(user) = line;
  return size * count;
}

void prepareLibrary() {
  static std::once_flag once;
  std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
}

std::string hostName() {
  std::array<char, 256> name{};
  return ::gethostname(name.data(), name.size() - 1) == 0 && name[0] != '\0' ? name.data() : "localhost";
}

std::string uniquePart() {
  std::random_device source;
  return std::to_string(::getpid()) + "." + std::to_string(source()) + std::to_string(source());
}

std::string urlOf(const std::string& server) {
  const std::string clean = without(server, " /\r\n");
  const bool encrypted = clean.ends_with(":465");
  return (encrypted ? "smtps://" : "smtp://") + clean + "/" + hostName();
}

std::string refusal(const std::string& reply) {
  return reply.empty() ? std::string() : " Resposta do servidor: " + trim(without(reply, "\r\n"));
}

std::string sentence(CURLcode code, const Mail& mail, const std::string& reply, const char* detail) {
  switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST:
      return "O servidor " + mail.server + " não foi localizado.";
    case CURLE_COULDNT_CONNECT:
      return "Não foi possível conectar ao servidor " + mail.server + ".";
    case CURLE_OPERATION_TIMEDOUT:
      return "O servidor " + mail.server + " não respondeu a tempo.";
    case CURLE_LOGIN_DENIED:
      return "O servidor recusou o login ou a senha." + refusal(reply);
    case CURLE_PEER_FAILED_VERIFICATION:
    case CURLE_SSL_CONNECT_ERROR:
      return "A conexão segura com o servidor " + mail.server + " falhou. (" + detail + ")";
    default:
      break;
  }
  const std::string refused = refusal(reply);
  if (!refused.empty()) return "O servidor recusou a mensagem." + refused;
  return std::string("O envio falhou. (") + (*detail != '\0' ? detail : curl_easy_strerror(code)) + ")";
}

}  // namespace

SmtpMailer::SmtpMailer(SmtpOptions options) : options_(std::move(options)) { prepareLibrary(); }

std::string SmtpMailer::send(const Mail& mail) {
  const std::unique_ptr<CURL, HandleCloser> handle(curl_easy_init());
  if (!handle) return "O envio falhou.";
  const std::string message = composeMessage(mail, stampOf(std::time(nullptr), uniquePart(), hostName()));
  const std::unique_ptr<curl_slist, ListCloser> recipients(
      curl_slist_append(nullptr, ("<" + addressOnly(mail.recipient) + ">").c_str()));
  const std::string sender = "<" + addressOnly(mail.sender) + ">";
  Upload upload{message};
  std::string reply;
  std::array<char, CURL_ERROR_SIZE> detail{};

  curl_easy_setopt(handle.get(), CURLOPT_URL, urlOf(mail.server).c_str());
  curl_easy_setopt(handle.get(), CURLOPT_PROTOCOLS_STR, "smtp,smtps");
  curl_easy_setopt(handle.get(), CURLOPT_PROXY, "");
  curl_easy_setopt(handle.get(), CURLOPT_NOSIGNAL, 1L);
  curl_easy_setopt(handle.get(), CURLOPT_CONNECTTIMEOUT, static_cast<long>(options_.connectTimeout.count()));
  curl_easy_setopt(handle.get(), CURLOPT_TIMEOUT, static_cast<long>(options_.timeout.count()));
  curl_easy_setopt(handle.get(), CURLOPT_USE_SSL, static_cast<long>(CURLUSESSL_TRY));
  if (!options_.authorities.empty()) curl_easy_setopt(handle.get(), CURLOPT_CAINFO, options_.authorities.c_str());
  if (!mail.user.empty()) {
    curl_easy_setopt(handle.get(), CURLOPT_USERNAME, mail.user.c_str());
    curl_easy_setopt(handle.get(), CURLOPT_PASSWORD, mail.password.c_str());
  }
  curl_easy_setopt(handle.get(), CURLOPT_MAIL_FROM, sender.c_str());
  curl_easy_setopt(handle.get(), CURLOPT_MAIL_RCPT, recipients.get());
  curl_easy_setopt(handle.get(), CURLOPT_UPLOAD, 1L);
  curl_easy_setopt(handle.get(), CURLOPT_READFUNCTION, giveMore);
  curl_easy_setopt(handle.get(), CURLOPT_READDATA, &upload);
  curl_easy_setopt(handle.get(), CURLOPT_HEADERFUNCTION, keepRefusal);
  curl_easy_setopt(handle.get(), CURLOPT_HEADERDATA, &reply);
  curl_easy_setopt(handle.get(), CURLOPT_WRITEFUNCTION, keepRefusal);
  curl_easy_setopt(handle.get(), CURLOPT_WRITEDATA, &reply);
  curl_easy_setopt(handle.get(), CURLOPT_ERRORBUFFER, detail.data());

  const CURLcode code = curl_easy_perform(handle.get());
  return code == CURLE_OK ? std::string() : sentence(code, mail, reply, detail.data());
}

}  // namespace fenvale
