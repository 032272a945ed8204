# How every target of the project is compiled: the language level, the warnings, the sanitizers, the
# compiler cache and whether link time optimization is at hand.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

if(NOT CMAKE_CXX_COMPILER_LAUNCHER)
    find_program(KORVO_CCACHE ccache)
    mark_as_advanced(KORVO_CCACHE)
    if(KORVO_CCACHE)
        set(CMAKE_CXX_COMPILER_LAUNCHER "${KORVO_CCACHE}")
    endif()
endif()

# Every target of the project links this one; it carries flags only.
add_library(korvo_flags INTERFACE)

if(MSVC)
    target_compile_options(korvo_flags INTERFACE /W4 /utf-8 /permissive- /Zc:__cplusplus)
else()
    # File names in messages count from the root of the sources, also when the compiler cache has
    # made them relative to a build tree below it: every copy of the tree gives the same program.
    target_compile_options(korvo_flags INTERFACE
        -Wall -Wextra -Wpedantic -Wshadow
        "-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=" -fmacro-prefix-map=../=)
    # Said once is enough: the instrumented trees compile the same sources.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND NOT KORVO_SANITIZE)
        target_compile_options(korvo_flags INTERFACE
            -Wconversion -Wsign-conversion -Wold-style-cast)
    endif()
    # GCC 12 sees overlapping copies in plain concatenation of standard strings.
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
        target_compile_options(korvo_flags INTERFACE -Wno-restrict)
    endif()
endif()

if(KORVO_SANITIZE)
    # Instrumented code confuses the flow analysis behind -Wmaybe-uninitialized; the plain build
    # still has that warning.
    target_compile_options(korvo_flags INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
        -Wno-maybe-uninitialized)
    # The standard library checks indices and iterators.
    target_compile_definitions(korvo_flags INTERFACE _GLIBCXX_ASSERTIONS)
    target_link_options(korvo_flags INTERFACE -fsanitize=address,undefined)
endif()

if(KORVO_THREADS)
    target_compile_options(korvo_flags INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
    target_link_options(korvo_flags INTERFACE -fsanitize=thread)
endif()

# Objects hold machine code beside the optimizer's form, so that the many test programs link in the
# plain way while the programs for the user, and the benchmarks, are optimized whole.
set(KORVO_LTO_ACTIVE OFF)
if(KORVO_LTO AND NOT KORVO_SANITIZE AND CMAKE_BUILD_TYPE STREQUAL "Release"
        AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    include(CheckIPOSupported)
    check_ipo_supported(RESULT KORVO_LTO_ACTIVE LANGUAGES CXX)
endif()

# korvo_lto_objects(TARGET): the library can be optimized by whoever links it.
function(korvo_lto_objects target)
    if(KORVO_LTO_ACTIVE)
        set_target_properties(${target} PROPERTIES INTERPROCEDURAL_OPTIMIZATION ON)
        target_compile_options(${target} PRIVATE -ffat-lto-objects)
    endif()
endfunction()

# korvo_lto_link(TARGET): the executable is optimized whole.
function(korvo_lto_link target)
    if(KORVO_LTO_ACTIVE)
        set_target_properties(${target} PROPERTIES INTERPROCEDURAL_OPTIMIZATION ON)
    endif()
endfunction()

# korvo_plain_link(TARGET): the executable takes the machine code as it is.
function(korvo_plain_link target)
    if(KORVO_LTO_ACTIVE)
        target_link_options(${target} PRIVATE -fno-lto)
    endif()
endfunction()
