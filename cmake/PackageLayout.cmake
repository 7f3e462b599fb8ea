# Read by CPack for each package that it makes: which layout goes into it, and what it is called.
set(layout system)
if(CPACK_GENERATOR STREQUAL "TGZ")
    set(layout portable)
    set(CPACK_PACKAGE_FILE_NAME "etiquetas-${CPACK_PACKAGE_VERSION}-portatil-linux")
endif()
list(GET CPACK_INSTALL_CMAKE_PROJECTS 0 build_folder)
set(CPACK_INSTALL_CMAKE_PROJECTS "${build_folder};etiquetas;${layout};/")
