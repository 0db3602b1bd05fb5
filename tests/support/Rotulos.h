#pragma once
// The words that a screen's form shows, in the order in which they are read and in which Tab goes through it.

#include <string>
#include <vector>

#include "platform/ui/Layout.h"
#include "platform/ui/Screen.h"

namespace fenvale {

inline void vColherRotulos(const LayoutNode& no, LayoutNode::Kind tipo, std::vector<std::string>& rotulos) {
  if (no.kind == tipo) rotulos.push_back(no.caption);
  for (const LayoutNode& filho : no.children) vColherRotulos(filho, tipo, rotulos);
}

/// The captions of that kind of node, without the marks of their access keys.
inline std::vector<std::string> legendas(const Screen& tela, LayoutNode::Kind tipo) {
  std::vector<std::string> todas;
  vColherRotulos(tela.layout(), tipo, todas);
  for (std::string& legenda : todas) std::erase(legenda, '&');
  return todas;
}

/// The labels of the form's fields.
inline std::vector<std::string> rotulos(const Screen& tela) { return legendas(tela, LayoutNode::Kind::field); }
/// The captions of its boxes.
inline std::vector<std::string> quadros(const Screen& tela) { return legendas(tela, LayoutNode::Kind::frame); }

}  // namespace fenvale
