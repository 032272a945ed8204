set(KORVO_PROGRAM_FOLDER "${PROJECT_BINARY_DIR}/bin")

# What a user starts, without the tests.
add_custom_target(korvo_programs ALL)

# korvo_exports(TARGET libs...): modules that the program loads find the libraries in it, with all
# objects, be they in use by the program itself or not.
function(korvo_exports target)
    foreach(library IN LISTS ARGN)
        target_sources(${target} PRIVATE $<TARGET_OBJECTS:${library}>)
    endforeach()
    set_target_properties(${target} PROPERTIES
        ENABLE_EXPORTS ON WINDOWS_EXPORT_ALL_SYMBOLS ON)
endfunction()

# korvo_program(NAME FOLDER folder [WINDOW] [READLINE] [EXPORTS] DEPENDS libs...)
#
# A program made of FOLDER/*.cpp and the libraries it names; <build>/bin/NAME. It is absent as long
# as its folder has no sources or none of its libraries is there.
#   WINDOW    a Qt program without a terminal of its own
#   READLINE  lines are typed with editing and history
#   EXPORTS   modules can be loaded that use the libraries of the program
function(korvo_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WINDOW;READLINE;EXPORTS" "FOLDER" "DEPENDS")
    if(arg_WINDOW AND NOT KORVO_WINDOWS)
        return()
    endif()
    set(folder "${PROJECT_SOURCE_DIR}/${arg_FOLDER}")
    korvo_sources(sources "${folder}" *.cpp *.h *.qrc)
    korvo_present(libraries ${arg_DEPENDS})
    if(NOT sources OR NOT libraries)
        return()
    endif()

    add_executable(${name} ${sources})
    target_include_directories(${name} PRIVATE "${folder}")
    target_link_libraries(${name} PRIVATE korvo_flags ${libraries})
    target_compile_definitions(${name} PRIVATE KORVO_VERSION="${PROJECT_VERSION}")
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${KORVO_PROGRAM_FOLDER}")
    if(arg_WINDOW)
        korvo_qt_link(${name} PRIVATE Widgets)
        set_target_properties(${name} PROPERTIES WIN32_EXECUTABLE ON)
    endif()
    if(arg_READLINE AND NOT WIN32)
        find_path(READLINE_INCLUDE_DIR readline/readline.h REQUIRED)
        find_library(READLINE_LIBRARY readline REQUIRED)
        mark_as_advanced(READLINE_INCLUDE_DIR READLINE_LIBRARY)
        target_include_directories(${name} SYSTEM PRIVATE "${READLINE_INCLUDE_DIR}")
        target_link_libraries(${name} PRIVATE "${READLINE_LIBRARY}")
    endif()
    if(arg_EXPORTS)
        korvo_exports(${name} ${libraries})
    endif()
    korvo_lto_link(${name})
    add_dependencies(korvo_programs ${name})
    korvo_house(${name} "${arg_FOLDER}" ${arg_DEPENDS})
    install(TARGETS ${name} RUNTIME DESTINATION bin)
endfunction()

# korvo_module(NAME PROGRAM program SOURCE file [DEPENDS libs...] [QT comps...])
#
# Libraries of the house as a file beside the program, which loads it when it first needs something
# of theirs. The source holds the module's one function. In the file are the objects of the
# libraries named and nothing of those below, which are the program's.
function(korvo_module name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PROGRAM;SOURCE" "DEPENDS;QT")
    add_library(${name} MODULE "${arg_SOURCE}")
    foreach(library IN LISTS arg_DEPENDS)
        set_target_properties(${library} PROPERTIES POSITION_INDEPENDENT_CODE ON)
        target_sources(${name} PRIVATE $<TARGET_OBJECTS:${library}>)
    endforeach()
    foreach(library IN ITEMS localInterpretatorUTF8 ${arg_DEPENDS})
        target_include_directories(${name} PRIVATE
            $<TARGET_PROPERTY:${library},INTERFACE_INCLUDE_DIRECTORIES>)
    endforeach()
    list(TRANSFORM arg_QT PREPEND "Qt6::" OUTPUT_VARIABLE modules)
    target_link_libraries(${name} PRIVATE korvo_flags ${arg_PROGRAM} ${modules})
    get_target_property(folder ${arg_PROGRAM} RUNTIME_OUTPUT_DIRECTORY)
    set_target_properties(${name} PROPERTIES PREFIX "" LIBRARY_OUTPUT_DIRECTORY "${folder}")
    korvo_plain_link(${name})
endfunction()

# korvo_program_module(NAME PROGRAM program DEPENDS libs... [QT comps...])
#
# A module that belongs to what a user starts; its source is modules/NAME.cpp. It is absent where
# one of its libraries is.
function(korvo_program_module name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PROGRAM" "DEPENDS;QT")
    korvo_present(libraries ${arg_DEPENDS})
    if(NOT libraries STREQUAL arg_DEPENDS OR NOT TARGET ${arg_PROGRAM})
        return()
    endif()
    korvo_module(${name} SOURCE "${PROJECT_SOURCE_DIR}/modules/${name}.cpp" ${ARGN})
    add_dependencies(korvo_programs ${name})
    install(TARGETS ${name} LIBRARY DESTINATION bin)
endfunction()

# korvo_samples(FOLDER): sample programs, forms, data and the manual, laid beside the programs in
# the build tree and where they are installed. Copied, since programs started there write files; and
# copied again only when a sample changed.
function(korvo_samples folder)
    set(source "${PROJECT_SOURCE_DIR}/${folder}")
    file(GLOB_RECURSE files CONFIGURE_DEPENDS "${source}/*")
    if(NOT files)
        return()
    endif()
    set(stamp "${PROJECT_BINARY_DIR}/${folder}.stamp")
    add_custom_command(OUTPUT "${stamp}"
        COMMAND ${CMAKE_COMMAND} -E copy_directory "${source}" "${KORVO_PROGRAM_FOLDER}/${folder}"
        COMMAND ${CMAKE_COMMAND} -E touch "${stamp}"
        DEPENDS ${files}
        COMMENT "Laying ${folder} beside the programs"
        VERBATIM)
    add_custom_target(korvo_samples DEPENDS "${stamp}")
    add_dependencies(korvo_programs korvo_samples)
    install(DIRECTORY "${source}/" DESTINATION "bin/${folder}")
endfunction()
