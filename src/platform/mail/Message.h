#pragma once
// A mail as it goes over the wire: headers that any server accepts, a body that survives every road.

#include <string>
#include <string_view>

#include "platform/mail/Mailer.h"

namespace fenvale {

/// What stands in the headers beside what the mail itself says.
struct MessageStamp {
  std::string date;  ///< "Sun, 15 Mar 2026 17:32:07 +0000"
  std::string id;    ///< unique, without its brackets
};

/// Headers and body, lines ended by CR LF, none longer than 78 characters. Texts in UTF-8.
std::string composeMessage(const Mail& mail, const MessageStamp& stamp);
/// The stamp of a moment given in seconds since 1970, UTC.
MessageStamp stampOf(long long secondsUtc, std::string_view unique, std::string_view host);
/// The address alone, out of "a@b", "<a@b>" or "Name <a@b>"; line breaks and brackets never get through.
std::string addressOnly(std::string_view text);
/// A header's text: as it stands when it is plain ASCII, else in encoded words, folded.
std::string encodedHeader(std::string_view text);
std::string base64(std::string_view bytes);

}  // namespace fenvale
