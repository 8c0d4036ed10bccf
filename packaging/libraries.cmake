# Run by cpack on the installed files: the libraries of the programs and of the module for printing
# become dependencies, those of the word-processor module recommendations, since it is loaded only where
# there is a word processor.
set(root "${CPACK_TEMPORARY_INSTALL_DIRECTORY}")
file(GLOB programs "${root}/usr/bin/*" "${root}/usr/lib/ferna/libferna_paper.so")
file(GLOB modules "${root}/usr/lib/ferna/libferna_writer.so")
if(NOT programs)
    message(FATAL_ERROR "No programs under ${root}")
endif()
if(NOT modules)
    message(FATAL_ERROR "The package would have no word-processor module: install the Debian package "
        "libreoffice-dev, configure and build again. packaging/build.sh does all of it.")
endif()
list(TRANSFORM programs PREPEND "-e")
list(TRANSFORM modules PREPEND "-e")

# dpkg-shlibdeps wants to stand in a source package.
set(work "${CPACK_TOPLEVEL_DIRECTORY}/libraries")
file(WRITE "${work}/debian/control"
    "Source: ferna\nMaintainer: ${CPACK_PACKAGE_CONTACT}\n\nPackage: ferna\nArchitecture: any\n")
execute_process(
    COMMAND dpkg-shlibdeps --ignore-missing-info -O -dDepends ${programs} -dRecommends ${modules}
    WORKING_DIRECTORY "${work}" OUTPUT_VARIABLE found COMMAND_ERROR_IS_FATAL ANY)

foreach(field DEPENDS RECOMMENDS)
    string(SUBSTRING ${field} 0 1 first)
    string(SUBSTRING ${field} 1 -1 rest)
    string(TOLOWER ${rest} rest)
    if(found MATCHES "shlibs:${first}${rest}=([^\n]+)")
        string(APPEND CPACK_DEBIAN_PACKAGE_${field} ", ${CMAKE_MATCH_1}")
    elseif(field STREQUAL DEPENDS)
        message(FATAL_ERROR "dpkg-shlibdeps found no libraries:\n${found}")
    endif()
endforeach()
