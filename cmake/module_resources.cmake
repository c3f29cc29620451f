# String resources of modules. On Windows they lie in a resource script beside the version record, elsewhere in a table.

# Gives a shared library its resource script on Windows: the version record with a description and the strings of the
# file, in a language (the system's language id). Nothing elsewhere.
function(kx7_add_module_resources target strings language description)
    if(NOT WIN32)
        return()
    endif()
    set(KX7_MODULE_NAME ${target})
    set(KX7_MODULE_STRINGS ${strings})
    # The language id holds the language in its lower ten bits and the dialect above them.
    math(EXPR KX7_MODULE_LANGUAGE "${language} & 0x3FF")
    math(EXPR KX7_MODULE_DIALECT "${language} >> 10")
    set(KX7_MODULE_DESCRIPTION ${description})
    set(script ${CMAKE_CURRENT_BINARY_DIR}/${target}.rc)
    configure_file(${PROJECT_SOURCE_DIR}/resources/module.rc.in ${script} @ONLY)
    set_source_files_properties(${script} TARGET_DIRECTORY ${target} PROPERTIES OBJECT_DEPENDS ${strings})
    target_sources(${target} PRIVATE ${script})
endfunction()

# Adds a language library: a shared library with the strings of the file. `description` goes into the version record,
# by which a program knows the language ("Lang ENGLISH").
function(kx7_add_language_library target strings language description)
    if(WIN32)
        add_library(${target} SHARED)
        set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX)
    else()
        add_library(${target} SHARED ${PROJECT_SOURCE_DIR}/resources/language.cpp)
        target_include_directories(${target} PRIVATE ${PROJECT_SOURCE_DIR})
        target_compile_definitions(${target} PRIVATE KX7_STRINGS_FILE="${strings}" KX7_LANGUAGE=${language})
    endif()
    set_target_properties(${target} PROPERTIES PREFIX "")
    kx7_set_compile_options(${target})
    kx7_add_module_resources(${target} ${strings} ${language} ${description})
endfunction()
