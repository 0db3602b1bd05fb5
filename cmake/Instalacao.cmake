# Where the installed files go. Two layouts:
#   portatil  everything in one folder, which also holds the data: a folder to copy, carry and delete
#   sistema   the places of the system (bin, libexec, share), for packages; each user has the data in a folder of his own

set(FENVALE_LAYOUT sistema CACHE STRING "Layout of the installation: portatil or sistema")
set_property(CACHE FENVALE_LAYOUT PROPERTY STRINGS portatil sistema)

# The program looks for the shipped files beside itself, then in share/gestor-fenvale of its prefix.
if(FENVALE_LAYOUT STREQUAL "portatil")
  set(FENVALE_DIR_LANCADOR .)
  set(FENVALE_DIR_PROGRAMA .)
  set(FENVALE_DIR_DADOS .)
elseif(FENVALE_LAYOUT STREQUAL "sistema")
  set(FENVALE_DIR_LANCADOR ${CMAKE_INSTALL_BINDIR})
  set(FENVALE_DIR_PROGRAMA ${CMAKE_INSTALL_LIBEXECDIR}/gestor-fenvale)
  set(FENVALE_DIR_DADOS ${CMAKE_INSTALL_DATADIR}/gestor-fenvale)
else()
  message(FATAL_ERROR "FENVALE_LAYOUT must be portatil or sistema, not \"${FENVALE_LAYOUT}\"")
endif()
