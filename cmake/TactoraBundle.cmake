# Lays an executable out as an application bundle on every system, so that the program finds
# its resources the same way everywhere:
#   Tactora.app/Contents/Info.plist
#   Tactora.app/Contents/MacOS/<executable>
#   Tactora.app/Contents/Resources/Tactora.icns, <language>.lproj/Localizable.strings, and beside
#   each table its Localizable.stringsdict (when the language has counted texts) and a copy of
#   PluralCategory.stringsdict, through which the text handling on macOS learns plural categories
# The development language comes first.
set(TACTORA_LOCALIZATIONS en de es fr it ja pt-BR zh-Hans)
# A language added to resources/ but not to this list would pass the tests and yet be missing
# from the application.
file(GLOB tactora_found_localizations LIST_DIRECTORIES true
     RELATIVE "${PROJECT_SOURCE_DIR}/resources" "${PROJECT_SOURCE_DIR}/resources/*.lproj")
list(TRANSFORM tactora_found_localizations REPLACE "\\.lproj$" "")
set(tactora_listed_localizations ${TACTORA_LOCALIZATIONS})
list(SORT tactora_found_localizations)
list(SORT tactora_listed_localizations)
if(NOT tactora_found_localizations STREQUAL tactora_listed_localizations)
    message(FATAL_ERROR "resources/ holds the localisations ${tactora_found_localizations}, "
                        "but TACTORA_LOCALIZATIONS lists ${tactora_listed_localizations}")
endif()
set(TACTORA_BUNDLE_DIR "${CMAKE_BINARY_DIR}/Tactora.app")
set(TACTORA_BUNDLE_IDENTIFIER "app.tactora.Tactora")
if(APPLE)
    option(TACTORA_SIGN "Sign Tactora.app after each link (off only where codesign is missing)" ON)
    set(TACTORA_SIGNING_IDENTITY "Tactora Local Signing" CACHE STRING
        "Keychain identity that signs Tactora.app (scripts/create-signing-identity); ad hoc when absent")
endif()

function(tactora_bundle target)
    set(contents "${TACTORA_BUNDLE_DIR}/Contents")
    set_target_properties(${target} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${contents}/MacOS")

    set(TACTORA_EXECUTABLE_NAME "$<TARGET_FILE_NAME:${target}>")
    string(JOIN "</string>\n\t\t<string>" TACTORA_LOCALIZATION_ENTRIES ${TACTORA_LOCALIZATIONS})
    configure_file("${PROJECT_SOURCE_DIR}/resources/Info.plist.in"
                   "${CMAKE_BINARY_DIR}/Info.plist.configured" @ONLY)
    file(GENERATE OUTPUT "${contents}/Info.plist"
         INPUT "${CMAKE_BINARY_DIR}/Info.plist.configured")

    set(outputs "")
    set(icon "${PROJECT_SOURCE_DIR}/resources/Tactora.icns")
    add_custom_command(OUTPUT "${contents}/Resources/Tactora.icns"
                       COMMAND ${CMAKE_COMMAND} -E copy "${icon}" "${contents}/Resources/Tactora.icns"
                       DEPENDS "${icon}" VERBATIM)
    list(APPEND outputs "${contents}/Resources/Tactora.icns")
    set(pluralCategories "${PROJECT_SOURCE_DIR}/resources/PluralCategory.stringsdict")
    foreach(language IN LISTS TACTORA_LOCALIZATIONS)
        set(folder "${PROJECT_SOURCE_DIR}/resources/${language}.lproj")
        set(sources "${folder}/Localizable.strings" "${pluralCategories}")
        if(EXISTS "${folder}/Localizable.stringsdict")
            list(APPEND sources "${folder}/Localizable.stringsdict")
        endif()
        foreach(source IN LISTS sources)
            get_filename_component(name "${source}" NAME)
            set(copy "${contents}/Resources/${language}.lproj/${name}")
            add_custom_command(OUTPUT "${copy}"
                               COMMAND ${CMAKE_COMMAND} -E copy "${source}" "${copy}"
                               DEPENDS "${source}" VERBATIM)
            list(APPEND outputs "${copy}")
        endforeach()
    endforeach()
    add_custom_target(${target}_resources DEPENDS ${outputs})
    add_dependencies(${target} ${target}_resources)

    if(APPLE AND TACTORA_SIGN)
        tactora_sign_bundle(${target} "${contents}/Info.plist" ${outputs})
    endif()
endfunction()

# Signs the bundle after every link. A change to any of its resources or to its Info.plist
# relinks the executable, so the seal always covers the current contents.
function(tactora_sign_bundle target)
    set_property(TARGET ${target} APPEND PROPERTY LINK_DEPENDS ${ARGN})
    add_custom_command(TARGET ${target} POST_BUILD
                       COMMAND ${CMAKE_COMMAND} "-DBUNDLE=${TACTORA_BUNDLE_DIR}"
                               "-DIDENTITY=${TACTORA_SIGNING_IDENTITY}"
                               -P "${PROJECT_SOURCE_DIR}/cmake/TactoraSign.cmake"
                       VERBATIM)
endfunction()
