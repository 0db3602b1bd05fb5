#include "demo/Plataforma.h"

#include <iostream>

namespace fenvale::demonstracao {

BoxAnswer Anfitriao::messageBox(const MessageBox& box) {
  if (box.style != BoxStyle::information) std::cerr << box.text << '\n';
  return box.buttons == BoxButtons::ok ? BoxAnswer::ok : BoxAnswer::no;
}

}  // namespace fenvale::demonstracao
