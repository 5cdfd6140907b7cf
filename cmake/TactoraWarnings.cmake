# Warnings every target of the project is built with.
function(tactora_warnings target)
    target_compile_options(${target} PRIVATE
        $<$<OR:$<COMPILE_LANG_AND_ID:CXX,GNU,Clang,AppleClang>,$<COMPILE_LANG_AND_ID:C,GNU,Clang,AppleClang>>:
            -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion>
        $<$<COMPILE_LANG_AND_ID:OBJCXX,Clang,AppleClang>:-Wall -Wextra>)
endfunction()
