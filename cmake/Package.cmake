# What is installed and where, and the Debian package. `cmake --install` puts the same files under any
# prefix and under the usual folders (CMAKE_INSTALL_BINDIR, ...): the programs know where from their
# own folder their data and modules lie.
set(packaging ${CMAKE_SOURCE_DIR}/packaging)
set(packaged ${CMAKE_BINARY_DIR}/packaging)

install(TARGETS ferna ferna-wsad Wyd_drk RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
install(TARGETS ferna_paper LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/ferna
    PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
if(TARGET ferna_writer)
    install(TARGETS ferna_writer LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}/ferna
        PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    install(FILES ${packaging}/lintian-overrides
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides RENAME ferna)
endif()
# The texts from their sources: a program that was run from the build folder writes its last task
# beside itself.
list(TRANSFORM FERNA_DATA_FILES PREPEND ${CMAKE_SOURCE_DIR}/data/ OUTPUT_VARIABLE delivered_texts)
set(delivered_bitmaps ${ferna_data_outputs})
list(FILTER delivered_bitmaps INCLUDE REGEX "\\.(bmp|svg)$")
install(FILES ${delivered_texts} ${delivered_bitmaps} ${help_output}
    DESTINATION ${CMAKE_INSTALL_DATADIR}/ferna)
install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/przyklady DESTINATION ${CMAKE_INSTALL_DATADIR}/ferna
    FILES_MATCHING PATTERN *.json)
install(DIRECTORY ${guide_folder}/ DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/schemat DESTINATION ${CMAKE_INSTALL_DATADIR}/ferna
    FILES_MATCHING PATTERN *.json)
install(FILES ${packaging}/completion/ferna-wsad ${packaging}/completion/Wyd_drk
    DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions)
install(FILES ${packaging}/ferna.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES ${packaging}/ferna-mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME ferna.xml)
install(FILES ${CMAKE_SOURCE_DIR}/data/szkice/ferna.svg
    DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)

# The day of the package: that of the last commit, so that the same sources give the same texts.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND git -C ${CMAKE_SOURCE_DIR} log -1 --format=%ct
        OUTPUT_VARIABLE last_commit OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(last_commit)
        set(ENV{SOURCE_DATE_EPOCH} ${last_commit})
    endif()
endif()
string(TIMESTAMP package_year "%Y" UTC)
string(TIMESTAMP package_day "%Y-%m-%d" UTC)
string(TIMESTAMP package_moment "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(FERNA_CONTACT "Ferna maintainers <maintainers@ferna.example>"
    CACHE STRING "Maintainer of the package: name and mail address")

# Every text of the package that carries the version or the day; with GZ packed as Debian wants it.
function(ferna_packaged_text source destination)
    cmake_parse_arguments(PARSE_ARGV 2 text "GZ" "" "")
    get_filename_component(name ${source} NAME)
    string(REGEX REPLACE "\\.in$" "" name ${name})
    set(made ${packaged}/${destination}/${name})
    configure_file(${source} ${made} @ONLY)
    if(text_GZ)
        execute_process(COMMAND gzip -n -9 -c ${made}
            OUTPUT_FILE ${made}.gz COMMAND_ERROR_IS_FATAL ANY)
        string(APPEND made .gz)
    endif()
    install(FILES ${made} DESTINATION ${destination})
endfunction()

# The newest changes as a Debian changelog entry of this version, in lines of 78 signs.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/CHANGELOG.md)
file(READ ${CMAKE_SOURCE_DIR}/CHANGELOG.md changes)
string(REGEX REPLACE "^# Changes\n+## [^\n]*\n+" "" changes "${changes}")
string(REGEX REPLACE "\n+## .*$" "\n" changes "${changes}")
string(REGEX REPLACE "(^|\n)- " "\\1* " changes "${changes}")
string(REPLACE "\n" "\n  " changes "  ${changes}")
file(WRITE ${packaged}/changes "${changes}")
execute_process(COMMAND fmt --tagged-paragraph --width=78 ${packaged}/changes
    OUTPUT_VARIABLE changes COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "[ \n]+$" "" changes "${changes}")

ferna_packaged_text(${packaging}/changelog.in ${CMAKE_INSTALL_DOCDIR} GZ)
ferna_packaged_text(${packaging}/copyright.in ${CMAKE_INSTALL_DOCDIR})
ferna_packaged_text(${packaging}/ferna.metainfo.xml.in ${CMAKE_INSTALL_DATADIR}/metainfo)
foreach(program ferna ferna-wsad Wyd_drk)
    ferna_packaged_text(${packaging}/man/${program}.1.in ${CMAKE_INSTALL_MANDIR}/man1 GZ)
    ferna_packaged_text(${packaging}/man/pl/${program}.1.in ${CMAKE_INSTALL_MANDIR}/pl/man1 GZ)
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ferna)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "${FERNA_CONTACT}")
set(CPACK_PACKAGE_DIRECTORY ${CMAKE_BINARY_DIR}/package)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "design of steel column bases anchored in concrete footings")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"Describe a rectangular base plate with up to 20 anchors, the concrete, the
steel and up to six load cases: Ferna finds how the plate bears on the
concrete and what every anchor carries, checks both against PN-B-03215:1999
with PN-84/B-03264 or PN-B-03264:1999, and writes a calculation report in
Polish, English, French or German. The plate thickness and a catalogue anchor
follow from the results. The interface is Polish.
.
The package holds the program with windows (ferna), the companion for scripts
and many tasks (ferna-wsad) and the page renderer (Wyd_drk). Reports as
word-processor documents need LibreOffice Writer.")
# The libraries are added by the script below. Pages are set in Liberation fonts, the windows in
# DejaVu where no desktop has brought another font; the index of the help is an SQLite file; the
# toolkit's own dialogs are Polish.
set(CPACK_DEBIAN_PACKAGE_DEPENDS
    "fonts-liberation, fonts-dejavu-core, libqt6sql6-sqlite, qt6-translations-l10n")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "libreoffice-writer | libreoffice-writer-nogui")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "cups")
set(CPACK_PRE_BUILD_SCRIPTS ${packaging}/libraries.cmake)
include(CPack)
