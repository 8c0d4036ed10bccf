# The help: the pages of data/help and the sketches they show, packed into one file beside the
# programs.
find_package(Qt6 6.4 QUIET COMPONENTS Help)
if(NOT Qt6Help_FOUND)
    message(FATAL_ERROR "Qt Help is missing: install the Debian package qt6-tools-dev")
endif()
find_program(QHELPGENERATOR NAMES qhelpgenerator
    HINTS ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_LIBEXECS} ${QT6_INSTALL_PREFIX}/${QT6_INSTALL_BINS}
          /usr/lib/qt6/libexec /usr/lib/qt6/bin)
if(NOT QHELPGENERATOR)
    message(FATAL_ERROR
        "qhelpgenerator is missing: install the Debian package qt6-documentation-tools")
endif()

find_program(CMARK_GFM cmark-gfm)
if(NOT CMARK_GFM)
    message(FATAL_ERROR "cmark-gfm is missing: install the Debian package cmark-gfm")
endif()
find_package(Python3 REQUIRED COMPONENTS Interpreter)

# The guides as pages: in the help, and in the package.
set(guide_folder ${CMAKE_BINARY_DIR}/guides)
file(GLOB guide_files CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/docs/en/*.md ${CMAKE_SOURCE_DIR}/docs/pl/*.md
    ${CMAKE_SOURCE_DIR}/docs/pictures/*.png ${CMAKE_SOURCE_DIR}/docs/examples/*)
set(guide_tool ${CMAKE_SOURCE_DIR}/tools/guide_pages.py)

set(help_source ${CMAKE_SOURCE_DIR}/data/help)
set(help_folder ${CMAKE_BINARY_DIR}/help)
set(help_output ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/Ferna.qch)
file(GLOB help_files CONFIGURE_DEPENDS ${help_source}/*.html ${help_source}/*.css ${help_source}/*.qhp)
file(GLOB help_sketches CONFIGURE_DEPENDS
    ${CMAKE_SOURCE_DIR}/data/szkice/*.svg ${help_source}/szkice/*.svg)

# The packer takes files below its project only, so pages and sketches are laid together first.
add_custom_command(
    OUTPUT ${help_output}
    COMMAND ${CMAKE_COMMAND} -E rm -rf ${help_folder}
    COMMAND ${CMAKE_COMMAND} -E make_directory ${help_folder}/szkice
                                               ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}
    COMMAND ${CMAKE_COMMAND} -E copy ${help_files} ${help_folder}
    COMMAND ${CMAKE_COMMAND} -E copy ${help_sketches} ${help_folder}/szkice
    COMMAND ${Python3_EXECUTABLE} ${guide_tool} ${CMAKE_SOURCE_DIR} ${guide_folder}
    COMMAND ${CMAKE_COMMAND} -E copy_directory ${guide_folder} ${help_folder}/przewodnik
    COMMAND ${FERNA_WITHOUT_SCREEN} ${QHELPGENERATOR} ${help_folder}/ferna.qhp -o ${help_output} -s
    DEPENDS ${help_files} ${help_sketches} ${guide_files} ${guide_tool}
    COMMENT "Packing the help")
add_custom_target(ferna_help ALL DEPENDS ${help_output})
# Whoever needs the delivered data needs the help with them.
add_dependencies(ferna_data ferna_help)
