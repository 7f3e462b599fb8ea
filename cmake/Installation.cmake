# What `cmake --install` lays out, and the packages that CPack makes of it. There are two layouts:
#
# - "system", the usual one: the program in bin/ and what belongs to it in share/. It works in a folder
#   of each user. The Debian package is made of it.
# - "portable", by `cmake --install --component portable`: one folder with the program, all that it works
#   with beside it, and samples to try it out. The archive is made of it.
include(GNUInstallDirs)

set(models_folder ${CMAKE_INSTALL_DATADIR}/etiquetas/modelos) # known to desktop/machine/WorkFolder.cpp
# The operator's manual with its pictures.
file(GLOB manual CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/docs/*.png)
list(APPEND manual ${PROJECT_SOURCE_DIR}/docs/manual-do-operador.md)
# Libraries whose headers end up inside the program. All others it finds on the machine.
set(licences /usr/share/doc/libspdlog-dev/copyright /usr/share/doc/libfmt-dev/copyright)

function(install_licences component folder)
    foreach(licence IN LISTS licences)
        cmake_path(GET licence PARENT_PATH package_folder)
        cmake_path(GET package_folder FILENAME package)
        string(REGEX REPLACE "^lib(.*)-dev$" "\\1" library ${package})
        install(FILES ${licence} DESTINATION ${folder} RENAME ${library}.txt
            COMPONENT ${component} ${ARGN} OPTIONAL)
    endforeach()
endfunction()

# The system's layout.
install(TARGETS etiquetas RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT system)
install(FILES samples/brisako.jpg samples/lumira.jpg DESTINATION ${models_folder} COMPONENT system)
foreach(size 16 22 24 32 48 64 128 256)
    install(FILES src/desktop/icons/etiquetas-${size}.png RENAME etiquetas.png
        DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps COMPONENT system)
endforeach()
install(FILES src/desktop/icons/etiquetas.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps COMPONENT system)
install(FILES share/applications/etiquetas.desktop
    DESTINATION ${CMAKE_INSTALL_DATADIR}/applications COMPONENT system)
install(FILES share/metainfo/br.com.varesko.etiquetas.metainfo.xml
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo COMPONENT system)
install(FILES share/man/etiquetas.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT system)
install(FILES share/bash-completion/etiquetas
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT system)
install(FILES ${manual} DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT system)
install_licences(system ${CMAKE_INSTALL_DOCDIR}/licencas)
install(DIRECTORY samples/ DESTINATION ${CMAKE_INSTALL_DOCDIR}/exemplos COMPONENT system
    FILES_MATCHING PATTERN "*.txt" PATTERN "imagens/*.jpg")

# The portable one.
install(TARGETS etiquetas RUNTIME DESTINATION . COMPONENT portable EXCLUDE_FROM_ALL)
install(CODE "set(sample_folder \"${PROJECT_SOURCE_DIR}/samples\")"
    COMPONENT portable EXCLUDE_FROM_ALL)
install(SCRIPT cmake/InstallSamples.cmake COMPONENT portable EXCLUDE_FROM_ALL)
install(FILES ${manual} DESTINATION manual COMPONENT portable EXCLUDE_FROM_ALL)
install_licences(portable licencas EXCLUDE_FROM_ALL)

set(CPACK_GENERATOR DEB TGZ)
set(CPACK_PACKAGE_NAME etiquetas)
set(CPACK_PACKAGE_VENDOR Varesko)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Imprime as etiquetas dos pedidos de calçados")
set(CPACK_PACKAGE_DESCRIPTION
    "Lê os arquivos de pedidos de um comprador e imprime, item por item, as\n\
etiquetas das caixas e dos volumes, em qualquer impressora ou em arquivos PDF.")
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_PROJECT_CONFIG_FILE ${PROJECT_SOURCE_DIR}/cmake/PackageLayout.cmake)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_MAINTAINER "Varesko <etiquetas@localhost>")
set(CPACK_DEBIAN_PACKAGE_SECTION misc)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# What no library names: the driver of the history, and the faces that labels are set in where those of
# their layouts are missing.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "libqt6sql6-sqlite, fonts-crosextra-carlito, fonts-liberation, fonts-open-sans")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "qt6-translations-l10n, cups-client")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "qt6-wayland")
include(CPack)
