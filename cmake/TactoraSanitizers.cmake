# TACTORA_SANITIZE builds every target with AddressSanitizer and UndefinedBehaviorSanitizer, and
# makes any report fatal so that a test run cannot pass over one.
if(TACTORA_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# The fuzz targets want the code under test instrumented for coverage too.
if(TACTORA_BUILD_FUZZERS)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
