# Lays an executable out as an application bundle on every system, so that the program finds
# its resources the same way everywhere:
#   Tactora.app/Contents/Info.plist
#   Tactora.app/Contents/MacOS/<executable>
#   Tactora.app/Contents/Resources/Tactora.icns, <language>.lproj/Localizable.strings
set(TACTORA_LOCALIZATIONS en pt-BR)
set(TACTORA_BUNDLE_DIR "${CMAKE_BINARY_DIR}/Tactora.app")
set(TACTORA_BUNDLE_IDENTIFIER "app.tactora.Tactora")

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
    foreach(language IN LISTS TACTORA_LOCALIZATIONS)
        set(table "${PROJECT_SOURCE_DIR}/resources/${language}.lproj/Localizable.strings")
        set(copy "${contents}/Resources/${language}.lproj/Localizable.strings")
        add_custom_command(OUTPUT "${copy}"
                           COMMAND ${CMAKE_COMMAND} -E copy "${table}" "${copy}"
                           DEPENDS "${table}" VERBATIM)
        list(APPEND outputs "${copy}")
    endforeach()
    add_custom_target(${target}_resources DEPENDS ${outputs})
    add_dependencies(${target} ${target}_resources)
endfunction()
