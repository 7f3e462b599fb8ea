# Lays logos, photographs, sample orders and calibrated settings beside the program. `sample_folder` is
# the folder that they are in. A file that has been changed since stays as it is, and so do settings that
# are there.
set(installation "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")

function(lay_out file folder)
    get_filename_component(name "${file}" NAME)
    if("${file}" IS_NEWER_THAN "${folder}/${name}")
        message(STATUS "Installing: ${folder}/${name}")
        file(COPY "${file}" DESTINATION "${folder}")
    endif()
endfunction()

file(GLOB beside_the_program "${sample_folder}/*.jpg" "${sample_folder}/*.txt")
foreach(file IN LISTS beside_the_program)
    lay_out("${file}" "${installation}")
endforeach()
file(GLOB photographs "${sample_folder}/imagens/*.jpg")
foreach(file IN LISTS photographs)
    lay_out("${file}" "${installation}/imagens")
endforeach()
if(NOT EXISTS "${installation}/Varesko.ini")
    lay_out("${sample_folder}/Varesko.ini" "${installation}")
endif()
