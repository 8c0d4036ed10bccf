# Compiler options shared by every target, as one interface library.
add_library(ferna_options INTERFACE)
target_compile_options(ferna_options INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
    # The same bits from every compiler and every build type: no fused multiply-add, no fast-math.
    -ffp-contract=off)
if(CMAKE_UNITY_BUILD)
    # One source's file scope is seen in the next, where it shadows nothing, and a type of it looks as if a
    # header had it. The presets of clang see each source alone.
    target_compile_options(ferna_options INTERFACE
        -Wno-shadow $<$<CXX_COMPILER_ID:GNU>:-Wno-subobject-linkage>)
endif()
if(FERNA_WERROR)
    target_compile_options(ferna_options INTERFACE -Werror)
endif()
target_link_options(ferna_options INTERFACE LINKER:-z,relro,-z,now)
target_compile_definitions(ferna_options INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING QT_NO_FOREACH
    FERNA_VERSION="${PROJECT_VERSION}")
if(FERNA_SANITIZE)
    set(sanitizers address,undefined)
    if(FERNA_SANITIZE STREQUAL thread)
        set(sanitizers thread)
    endif()
    # Of the folder and not of ferna_options, so that a target may take a part of it back.
    add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    if(NOT FERNA_FUZZ)
        # A quarter of the work of compiling: whether a pointer is null or misaligned. The use of a null
        # pointer ends under the address sanitizer too, and the fuzzers are built with both checks.
        add_compile_options(-fno-sanitize=null,alignment)
    endif()
    target_link_options(ferna_options INTERFACE -fsanitize=${sanitizers})
    target_compile_definitions(ferna_options INTERFACE FERNA_SANITIZE)
endif()
if(FERNA_COVERAGE)
    # Exact counters also where threads share them. Clang counts the conditions as they are written,
    # gcc the jumps that it makes of them.
    if(CMAKE_CXX_COMPILER_ID STREQUAL Clang)
        set(counters -fprofile-instr-generate -fcoverage-mapping)
    else()
        set(counters --coverage)
    endif()
    target_compile_options(ferna_options INTERFACE ${counters} -fprofile-update=atomic)
    target_link_options(ferna_options INTERFACE ${counters})
    # The shorter series that the slow builds compute.
    target_compile_definitions(ferna_options INTERFACE FERNA_SANITIZE)
endif()
if(FERNA_FUZZ)
    # Everything counts its branches for the fuzzer; only the fuzzers themselves get its main().
    target_compile_options(ferna_options INTERFACE -fsanitize=fuzzer-no-link)
    target_link_options(ferna_options INTERFACE -fsanitize=fuzzer-no-link)
endif()
