#pragma once
// Sends a plain text mail through an SMTP server.

#include <string>

namespace fenvale {

struct Mail {
  std::string server;  ///< host, or host:port
  std::string sender;
  std::string recipient;
  std::string subject;
  std::string body;
  std::string user;  ///< empty: no authentication
  std::string password;
};

class Mailer {
 public:
  virtual ~Mailer() = default;
  /// STARTTLS when the server offers it. An empty text on success, else what went wrong.
  virtual std::string send(const Mail& mail) = 0;
};

}  // namespace fenvale
