#pragma once
// The mailer over SMTP. What goes wrong is told in one Portuguese sentence, with the server's own words when it spoke.

#include <chrono>

#include "platform/mail/Mailer.h"

namespace fenvale {

struct SmtpOptions {
  std::chrono::seconds connectTimeout{15};
  std::chrono::seconds timeout{60};
  /// Certificates that are trusted; empty: those of the machine.
  std::string authorities;
};

/// Port 25 unless the server's name carries another; on port 465 the whole talk is encrypted, on any other from
/// STARTTLS on, when the server offers that. A certificate that does not hold is refused.
class SmtpMailer final : public Mailer {
 public:
  explicit SmtpMailer(SmtpOptions options = {});
  std::string send(const Mail& mail) override;

 private:
  SmtpOptions options_;
};

}  // namespace fenvale
