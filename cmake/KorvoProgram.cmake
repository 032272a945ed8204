set(KORVO_PROGRAM_FOLDER "${PROJECT_BINARY_DIR}/bin")

# What a user starts, without the tests.
add_custom_target(korvo_programs ALL)

# korvo_program(NAME FOLDER folder [WINDOW] [READLINE] DEPENDS libs...)
#
# A program made of FOLDER/*.cpp and the libraries it names; <build>/bin/NAME. It is absent as long
# as its folder has no sources or none of its libraries is there.
#   WINDOW    a Qt program without a terminal of its own
#   READLINE  lines are typed with editing and history
function(korvo_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WINDOW;READLINE" "FOLDER" "DEPENDS")
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
    korvo_lto_link(${name})
    add_dependencies(korvo_programs ${name})
    install(TARGETS ${name} RUNTIME DESTINATION bin)
endfunction()

# korvo_module(NAME LIBRARY QT comps...)
#
# A library of the house as a file beside the programs, which a program loads when it first needs it
# and does without until then. Nothing but the library's own objects and Qt is in it.
function(korvo_module name library)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "QT")
    if(NOT TARGET ${library})
        return()
    endif()
    set_target_properties(${library} PROPERTIES POSITION_INDEPENDENT_CODE ON)
    add_library(${name} MODULE $<TARGET_OBJECTS:${library}>)
    list(TRANSFORM arg_QT PREPEND "Qt6::" OUTPUT_VARIABLE modules)
    target_link_libraries(${name} PRIVATE korvo_flags ${modules})
    set_target_properties(${name} PROPERTIES
        PREFIX "" LINKER_LANGUAGE CXX LIBRARY_OUTPUT_DIRECTORY "${KORVO_PROGRAM_FOLDER}")
    korvo_plain_link(${name})
    add_dependencies(korvo_programs ${name})
    install(TARGETS ${name} LIBRARY DESTINATION bin)
endfunction()

# korvo_samples(FOLDER): sample programs, forms, data and the manual, laid beside the programs in the
# build tree and where they are installed. Copied, since programs started there write files; and
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
