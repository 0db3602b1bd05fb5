#include "store/screens/frmExibirImagem.h"

#include <array>
#include <string_view>

#include "platform/os/Files.h"

namespace fenvale {
namespace {

constexpr std::int32_t imagemInvalida = 481;

/// The first bytes of the picture formats that the system takes.
constexpr std::array<std::string_view, 4> inicios{"BM", "GIF8", "\xFF\xD8\xFF", "\x89PNG\r\n"};

void vExigirImagem(const std::string& sCaminho) {
  const std::string sConteudo = files::read(sCaminho);
  for (const std::string_view inicio : inicios)
    if (sConteudo.starts_with(inicio)) return;
  throw Error(imagemInvalida, "O arquivo não contém uma figura BMP, GIF, JPEG ou PNG.");
}

}  // namespace

frmExibirImagem::frmExibirImagem(Contexto& contexto) : Tela(contexto, "frmExibirImagem") {
  setCaption("Imagem");
  setLayout({lista(imgImagem, "Imagem")});
  setPreferredSize(4, 0);
  imgImagem.setStretchesScreen();
  imgImagem.onClick = [this] { unload(); };
}

void frmExibirImagem::vCarregar(const std::string& sCaminho) try {
  if (!files::isFile(sCaminho)) return avisar("O arquivo não foi encontrado no local especificado.");
  vExigirImagem(sCaminho);
  imgImagem.setPicture(files::nativePath(sCaminho));
  vMostrarFormModal(*this);
} catch (const Error& falha) {
  avisar("Imagem inválida.\r\n\r\nInformação detalhada: " + falha.description);
}

bool frmExibirImagem::onKeyDown(Key) {
  unload();
  return true;
}

}  // namespace fenvale
