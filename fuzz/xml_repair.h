#pragma once
// What must hold for any file that somebody hands the program as XML.

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>

#include "platform/xml/XmlDocument.h"
#include "store/services/XML.h"

namespace fenvale::fuzz {

inline void require(bool holds, const char* what) {
  if (holds) return;
  std::cerr << "does not hold: " << what << '\n';
  std::abort();
}

/// Reading and repairing never crash; a plain file that was sound stays as it was but for its line breaks.
inline void xmlRepair(const std::string& bytes) {
  const XmlDocument before = XmlDocument::parse(bytes, "a.XML");
  const std::string repaired = XML::sRevisar(bytes);
  const XmlDocument after = XmlDocument::parse(repaired, "a.XML");
  const bool plain = std::all_of(bytes.begin(), bytes.end(),
                                 [](char letter) { return static_cast<unsigned char>(letter) < 128 && letter != '&'; });
  if (!plain || !before.sound()) return;
  require(after.sound(), "a sound plain file is sound after the repair");
  for (const char* name : {"root", "SQL", "Cid", "size", "a"}) {
    const auto first = before.elements(name);
    const auto second = after.elements(name);
    require(first.size() == second.size(), "the repair keeps the elements");
    for (std::size_t i = 0; i < first.size(); ++i)
      require(first[i].children == second[i].children, "the repair keeps the texts");
  }
  require(XML::sRevisar(repaired) == repaired, "a second repair of a plain file changes nothing");
}

}  // namespace fenvale::fuzz
