# Names of the libraries that this tree builds, in the order of the floors.
set_property(GLOBAL PROPERTY KORVO_LIBRARIES "")

# What the test of the includes reads: a line for each library and program of this tree.
set_property(GLOBAL PROPERTY KORVO_HOUSE "")

# korvo_house(NAME folder named...): takes up a library or program that names these libraries.
function(korvo_house name folder)
    list(JOIN ARGN " " named)
    set_property(GLOBAL APPEND_STRING PROPERTY KORVO_HOUSE "${name} ${folder} ${named}\n")
endfunction()

# korvo_present(OUT name...): those of the names that are targets of this tree.
function(korvo_present out)
    set(present "")
    foreach(name IN LISTS ARGN)
        if(TARGET ${name})
            list(APPEND present ${name})
        endif()
    endforeach()
    set(${out} "${present}" PARENT_SCOPE)
endfunction()

# korvo_sources(OUT folder pattern...): the files below a folder that belong to this system. A file
# called xxxPosix.cpp is left out on Windows, one called xxxWindows.cpp everywhere else.
function(korvo_sources out folder)
    list(TRANSFORM ARGN PREPEND "${folder}/" OUTPUT_VARIABLE patterns)
    file(GLOB_RECURSE files CONFIGURE_DEPENDS ${patterns})
    if(WIN32)
        list(FILTER files EXCLUDE REGEX "Posix\\.cpp$")
    else()
        list(FILTER files EXCLUDE REGEX "Windows\\.cpp$")
    endif()
    set(${out} "${files}" PARENT_SCOPE)
endfunction()

# korvo_qt_link(TARGET visibility comps...): Qt's modules, and the code generators that go with
# them.
function(korvo_qt_link target visibility)
    list(TRANSFORM ARGN PREPEND "Qt6::" OUTPUT_VARIABLE modules)
    target_link_libraries(${target} ${visibility} ${modules})
    set_target_properties(${target} PROPERTIES AUTOMOC ON AUTORCC ON)
endfunction()

# korvo_library(NAME [FOLDER folder] [LTO] [QT comps...] [DEPENDS libs...])
#
# One library of the house: sources of lib/NAME (or FOLDER) with everything below it, public headers
# in its include/NAME/. Users of the library see that include folder only; the library sees its own
# folder besides, and the libraries it names. It names every library whose headers it includes.
function(korvo_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "LTO" "FOLDER" "QT;DEPENDS")
    if(NOT arg_FOLDER)
        set(arg_FOLDER "lib/${name}")
    endif()
    set(folder "${PROJECT_SOURCE_DIR}/${arg_FOLDER}")
    if(arg_QT AND NOT KORVO_WINDOWS)
        return()
    endif()

    korvo_sources(sources "${folder}" *.cpp *.qrc)
    if(NOT sources)
        return()
    endif()
    # Headers are listed for the sake of Qt's meta object compiler: it looks only at listed files.
    korvo_sources(headers "${folder}" *.h)

    add_library(${name} STATIC ${sources} ${headers})
    target_include_directories(${name} PRIVATE "${folder}")
    if(EXISTS "${folder}/include")
        target_include_directories(${name} PUBLIC "${folder}/include")
    endif()
    korvo_present(lower ${arg_DEPENDS})
    target_link_libraries(${name} PRIVATE korvo_flags PUBLIC ${lower})
    if(arg_QT)
        korvo_qt_link(${name} PUBLIC ${arg_QT})
    endif()
    if(arg_LTO)
        korvo_lto_objects(${name})
    endif()
    set_property(GLOBAL APPEND PROPERTY KORVO_LIBRARIES ${name})
    korvo_house(${name} "${arg_FOLDER}" ${arg_DEPENDS})
endfunction()
