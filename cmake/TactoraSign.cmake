# Signs Tactora.app; run by the build after each link:
#   cmake -DBUNDLE=<path to Tactora.app> -DIDENTITY=<certificate name> -P TactoraSign.cmake
#
# The Accessibility and Input Monitoring grants belong to the signature's designated
# requirement. With a stable certificate that requirement stays the same from build to build;
# an ad-hoc signature pins it to the executable's hash, so each rebuild silently loses both
# grants while System Settings still shows them switched on.
# No --deep: the bundle holds no nested code. No hardened runtime: the program is signed for
# local use only.

execute_process(COMMAND security find-identity -v -p codesigning
                OUTPUT_VARIABLE identities ERROR_QUIET RESULT_VARIABLE found)
string(FIND "${identities}" "\"${IDENTITY}\"" position)

if(found EQUAL 0 AND NOT position EQUAL -1)
    execute_process(COMMAND codesign --force --timestamp=none --sign "${IDENTITY}" "${BUNDLE}"
                    RESULT_VARIABLE result)
    if(result EQUAL 0)
        return()
    endif()
    message(WARNING "Signing with \"${IDENTITY}\" failed (is the login keychain locked?); "
                    "signing ad hoc, so privacy grants will not survive this build.")
else()
    message(STATUS "No \"${IDENTITY}\" identity: signing Tactora.app ad hoc. Run "
                   "scripts/create-signing-identity once so that privacy grants survive rebuilds.")
endif()

execute_process(COMMAND codesign --force --timestamp=none --sign - "${BUNDLE}"
                RESULT_VARIABLE result)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "codesign could not sign ${BUNDLE}")
endif()
