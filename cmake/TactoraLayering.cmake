# The core's folders point one way: a folder may include its own headers and those of the
# folders its library links, directly or through another folder, and nothing else. These
# functions read the folders' files and stop the configuration at the first wrong include, so
# that an arrow back up fails here rather than as a cycle among static libraries.
#
# Usable from a project (tactora_check_core_layering) and from a script run with cmake -P
# (tactora_check_layering), which is how the tests run it on a fixture tree.

if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
    cmake_minimum_required(VERSION 3.25)
endif()

# The folders `folder` may include, itself first, following the graph's entries transitively.
# `graph` holds one entry per folder, "folder=dependency,dependency" (no dependency: "folder=").
function(_tactora_layering_reachable graph folder out_var)
    set(reachable "${folder}")
    set(pending "${folder}")
    while(pending)
        list(POP_FRONT pending current)
        foreach(entry IN LISTS graph)
            if(entry MATCHES "^${current}=(.*)$")
                string(REPLACE "," ";" dependencies "${CMAKE_MATCH_1}")
                foreach(dependency IN LISTS dependencies)
                    if(NOT dependency IN_LIST reachable)
                        list(APPEND reachable "${dependency}")
                        list(APPEND pending "${dependency}")
                    endif()
                endforeach()
            endif()
        endforeach()
    endwhile()
    set(${out_var} "${reachable}" PARENT_SCOPE)
endfunction()

# Appends to `problems_var` one line "file:line: ..." per include in `file`, of `folder`, of a
# core folder (written "core/<folder>/...") that is not among `allowed`.
function(_tactora_layering_check_file file folder allowed problems_var)
    file(READ "${file}" content)
    if(NOT content MATCHES "include[ \t]*[\"<]core/")
        return()
    endif()
    # One list item per line: characters that mean something to CMake lists go first.
    string(REPLACE "\\" " " content "${content}")
    string(REPLACE ";" " " content "${content}")
    string(REPLACE "[" " " content "${content}")
    string(REPLACE "]" " " content "${content}")
    string(REPLACE "\n" ";" lines "${content}")
    set(problems "${${problems_var}}")
    set(number 0)
    foreach(line IN LISTS lines)
        math(EXPR number "${number} + 1")
        if(line MATCHES "^[ \t]*#[ \t]*include[ \t]*[\"<]core/([A-Za-z0-9_]+)/")
            set(included "${CMAKE_MATCH_1}")
            if(NOT included IN_LIST allowed)
                string(REPLACE ";" " " allowed_text "${allowed}")
                list(APPEND problems
                     "${file}:${number}: includes core/${included}/, which ${folder} may not "
                     "include (it may include: ${allowed_text})")
            endif()
        endif()
    endforeach()
    set(${problems_var} "${problems}" PARENT_SCOPE)
endfunction()

# Checks every source and header under `root`/<folder> for each folder of `graph` and stops
# with FATAL_ERROR listing every include that points the wrong way.
function(tactora_check_layering root graph)
    set(problems "")
    foreach(entry IN LISTS graph)
        string(REGEX REPLACE "=.*$" "" folder "${entry}")
        _tactora_layering_reachable("${graph}" "${folder}" allowed)
        file(GLOB_RECURSE files LIST_DIRECTORIES false "${root}/${folder}/*.h"
             "${root}/${folder}/*.hpp" "${root}/${folder}/*.cpp" "${root}/${folder}/*.c"
             "${root}/${folder}/*.mm")
        list(SORT files)
        foreach(file IN LISTS files)
            _tactora_layering_check_file("${file}" "${folder}" "${allowed}" problems)
        endforeach()
    endforeach()
    if(problems)
        list(JOIN problems "\n" text)
        message(FATAL_ERROR "Includes that point up the core's layers:\n${text}")
    endif()
endfunction()

# The graph of the core's folders as their library targets `<prefix><folder>` link each other.
function(tactora_layering_graph prefix folders out_var)
    set(graph "")
    foreach(folder IN LISTS folders)
        get_target_property(type ${prefix}${folder} TYPE)
        if(type STREQUAL "INTERFACE_LIBRARY")
            get_target_property(links ${prefix}${folder} INTERFACE_LINK_LIBRARIES)
        else()
            get_target_property(links ${prefix}${folder} LINK_LIBRARIES)
        endif()
        set(dependencies "")
        foreach(link IN LISTS links)
            if(link MATCHES "^${prefix}(.+)$" AND CMAKE_MATCH_1 IN_LIST folders)
                list(APPEND dependencies "${CMAKE_MATCH_1}")
            endif()
        endforeach()
        list(JOIN dependencies "," joined)
        list(APPEND graph "${folder}=${joined}")
    endforeach()
    set(${out_var} "${graph}" PARENT_SCOPE)
endfunction()

# Checks the folders under `root`, each built as the target `<prefix><folder>`, against the
# links those targets declare. Call it after every folder's target is defined.
function(tactora_check_core_layering root prefix)
    tactora_layering_graph("${prefix}" "${ARGN}" graph)
    tactora_check_layering("${root}" "${graph}")
    set(TACTORA_CORE_LAYERING_GRAPH "${graph}" PARENT_SCOPE)
endfunction()

# As a script: cmake -D TACTORA_LAYERING_ROOT=<dir> -D TACTORA_LAYERING_GRAPH=<graph>
# -P TactoraLayering.cmake, the graph's entries separated by "|" so that it passes as one
# argument (for example "low=|high=low").
if(CMAKE_SCRIPT_MODE_FILE STREQUAL CMAKE_CURRENT_LIST_FILE)
    if(NOT DEFINED TACTORA_LAYERING_ROOT OR NOT DEFINED TACTORA_LAYERING_GRAPH)
        message(FATAL_ERROR "Set TACTORA_LAYERING_ROOT and TACTORA_LAYERING_GRAPH")
    endif()
    string(REPLACE "|" ";" graph "${TACTORA_LAYERING_GRAPH}")
    tactora_check_layering("${TACTORA_LAYERING_ROOT}" "${graph}")
    message(STATUS "Every include points down the layers")
endif()
