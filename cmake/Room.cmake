# A room is a folder of src/ with a target of its own. Its headers are found under the folder's name, and
# only by the targets that link it: an include of a room that is not linked does not build.

# Where compilers find the headers of a room, and of that room alone.
function(ferna_room_headers target room)
    set(root ${CMAKE_BINARY_DIR}/rooms/${room})
    file(MAKE_DIRECTORY ${root})
    file(CREATE_LINK ${CMAKE_SOURCE_DIR}/src/${room} ${root}/${room} SYMBOLIC)
    target_include_directories(${target} PUBLIC ${root})
    set_property(GLOBAL APPEND PROPERTY FERNA_ROOMS ${target})
endfunction()

# ferna_room(NAME SOURCES file... LINKS target...): the library ferna_NAME, without widgets.
function(ferna_room room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_library(ferna_${room} STATIC ${arg_SOURCES})
    target_link_libraries(ferna_${room} PUBLIC ferna_options Qt6::Core Qt6::Gui ${arg_LINKS})
    ferna_precompiled(ferna_${room} core LINKS Qt6::Core Qt6::Gui)
    ferna_room_headers(ferna_${room} ${room})
endfunction()

# ferna_forms_room(NAME SOURCES file... LINKS target...): the forms in the room's folder forms/, on Qt
# Widgets. The headers of their .ui files are made by rules of their own: with automatic ones a changed
# form came into the program only with the second build. They are not ours to warn about.
function(ferna_forms_room room)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
    add_library(ferna_${room}_forms STATIC ${arg_SOURCES})
    set_target_properties(ferna_${room}_forms PROPERTIES AUTOMOC ON)
    target_link_libraries(ferna_${room}_forms PUBLIC ferna_widgets ${arg_LINKS})
    ferna_precompiled(ferna_${room}_forms widgets LINKS Qt6::Widgets)
    set_property(GLOBAL APPEND PROPERTY FERNA_ROOMS ferna_${room}_forms)
    file(GLOB designs CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/*.ui)
    if(designs)
        qt_wrap_ui(headers ${designs})
        target_sources(ferna_${room}_forms PRIVATE ${headers})
        target_include_directories(ferna_${room}_forms SYSTEM PRIVATE ${CMAKE_CURRENT_BINARY_DIR})
    endif()
endfunction()

# Leaves the link graph in rooms.txt, a line a target, lowest floor first: the target, a colon, what it
# links. tests/floors_test.py reads it.
function(ferna_write_link_graph)
    get_property(rooms GLOBAL PROPERTY FERNA_ROOMS)
    set(lines "")
    foreach(target IN LISTS rooms ARGN)
        if(TARGET ${target})
            get_target_property(links ${target} LINK_LIBRARIES)
            list(JOIN links " " links)
            string(APPEND lines "${target}: ${links}\n")
        endif()
    endforeach()
    file(WRITE ${CMAKE_BINARY_DIR}/rooms.txt "${lines}")
endfunction()
