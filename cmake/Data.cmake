# The delivered data: text files as they are, sketches turned into bitmaps at print quality. They lie
# beside the programs of a build as an installation has them.
set(FERNA_DATA_FILES
    Ferpl.txt Ferp2.txt Fergb.txt Ferfr.txt Ferge.txt Ferna.cfg W_X.txt)

# Bitmap, its SVG source, the scale that gives at least 300 dots per inch at its printed size, and its
# printed width in mm.
set(FERNA_BITMAPS
    "Ferogo2 Ferogo2 4 52.9" "gkrys0 gkrys0 5 41.1"
    "rys3f rys3f 4 91.5" "rys2pm rys2pm 4 91.5" "rys2pd rys2pd 4 91.5"
    "rysgb1 szkic1 4 32.3" "rysgb2 szkic2 4 32.3" "rysgb31 szkic31 4 33.7"
    "rysgb32 szkic32 4 33.7" "rysgb33 szkic33 4 33.7" "rysgb51 szkic51 4 33.7"
    "rysgb52 szkic52 4 33.7")

set(ferna_data_outputs "")
foreach(file IN LISTS FERNA_DATA_FILES)
    set(output ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${file})
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${CMAKE_COMMAND} -E copy ${CMAKE_SOURCE_DIR}/data/${file} ${output}
        DEPENDS ${CMAKE_SOURCE_DIR}/data/${file})
    list(APPEND ferna_data_outputs ${output})
endforeach()

# Tools of the build that draw do so without a screen, and with the folder for sockets that a session
# gives: without one Qt remarks on it each time.
file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/runtime)
file(CHMOD ${CMAKE_BINARY_DIR}/runtime PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
set(FERNA_WITHOUT_SCREEN ${CMAKE_COMMAND} -E env
    QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=${CMAKE_BINARY_DIR}/runtime)

add_executable(sketch_bitmap ${CMAKE_SOURCE_DIR}/tools/sketch_bitmap.cpp)
target_link_libraries(sketch_bitmap PRIVATE Qt6::Svg)
set_target_properties(sketch_bitmap PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tools)
foreach(row IN LISTS FERNA_BITMAPS)
    separate_arguments(row)
    list(GET row 0 bitmap)
    list(GET row 1 sketch)
    list(GET row 2 scale)
    list(GET row 3 width)
    set(source ${CMAKE_SOURCE_DIR}/data/szkice/${sketch}.svg)
    set(output ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${bitmap}.bmp)
    add_custom_command(
        OUTPUT ${output}
        COMMAND ${FERNA_WITHOUT_SCREEN} $<TARGET_FILE:sketch_bitmap> ${source} ${scale} ${width} ${output}
        DEPENDS ${source} sketch_bitmap)
    list(APPEND ferna_data_outputs ${output})
endforeach()
add_custom_target(ferna_data ALL DEPENDS ${ferna_data_outputs})
