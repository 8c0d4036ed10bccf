# The delivered data: text files as they are, sketches turned into bitmaps at print quality. They lie
# beside the programs of a build as an installation has them.
set(FERNA_DATA_FILES
    Ferpl.txt Ferp2.txt Fergb.txt Ferfr.txt Ferge.txt Ferna.cfg W_X.txt)

# Bitmap, its SVG source and its printed width in mm, at which it has at least 600 dots per inch. Its
# vector twin stands beside it.
set(FERNA_BITMAPS
    "Ferogo2 Ferogo2 52.9" "gkrys0 gkrys0 41.1"
    "rys3f rys3f 91.5" "rys2pm rys2pm 91.5" "rys2pd rys2pd 91.5"
    "rysgb1 szkic1 32.3" "rysgb2 szkic2 32.3" "rysgb31 szkic31 33.7"
    "rysgb32 szkic32 33.7" "rysgb33 szkic33 33.7" "rysgb51 szkic51 33.7"
    "rysgb52 szkic52 33.7")

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
target_link_libraries(sketch_bitmap PRIVATE ferna_runtime Qt6::Svg)
set_target_properties(sketch_bitmap PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/tools)
foreach(row IN LISTS FERNA_BITMAPS)
    separate_arguments(row)
    list(GET row 0 bitmap)
    list(GET row 1 sketch)
    list(GET row 2 width)
    set(source ${CMAKE_SOURCE_DIR}/data/szkice/${sketch}.svg)
    set(output ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${bitmap}.bmp)
    set(twin ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${bitmap}.svg)
    add_custom_command(
        OUTPUT ${output} ${twin}
        COMMAND ${FERNA_WITHOUT_SCREEN} $<TARGET_FILE:sketch_bitmap> ${source} ${width} ${output}
        DEPENDS ${source} sketch_bitmap)
    list(APPEND ferna_data_outputs ${output} ${twin})
endforeach()
add_custom_target(ferna_data ALL DEPENDS ${ferna_data_outputs})
