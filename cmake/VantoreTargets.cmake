# The compiler's settings that every target of Vantore shares, and how a module becomes its two libraries.

add_library(vantore_options INTERFACE)
target_include_directories(vantore_options INTERFACE ${CMAKE_SOURCE_DIR})
target_compile_options(vantore_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    # GCC 12 sees overlapping copies in std::string where there are none (its bug 105651). clang-tidy reads the same flags.
    target_compile_options(vantore_options INTERFACE -Wno-restrict -Wno-unknown-warning-option)
endif()
# Results must not depend on which way a compiler fuses a multiplication and an addition.
target_compile_options(vantore_options INTERFACE -ffp-contract=off)
if(VANTORE_SANITIZE)
    target_compile_options(vantore_options INTERFACE -fsanitize=address,undefined -fno-omit-frame-pointer
                                                     -fno-sanitize-recover=undefined)
    target_link_options(vantore_options INTERFACE -fsanitize=address,undefined)
endif()

if(VANTORE_FUZZ)
    target_compile_options(vantore_options INTERFACE -fsanitize=fuzzer-no-link,address,undefined -g1)
    target_link_options(vantore_options INTERFACE -fsanitize=address,undefined)
endif()

# vantore_library(NAME SOURCES a.cpp ... LINKS lib ...)
function(vantore_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC vantore_options ${ARG_LINKS})
endfunction()

# vantore_module(COG CORE problem method [CORE_LINKS lib ...] WINDOW report plot COG [LINKS lib ...])
#
# COG_core holds the record and the method and sees nothing above the base; COG holds what the user sees.
function(vantore_module name)
    cmake_parse_arguments(ARG "" "" "CORE;CORE_LINKS;WINDOW;LINKS" ${ARGN})
    list(TRANSFORM ARG_CORE REPLACE "(.+)" "${name}/\\1.cpp")
    list(TRANSFORM ARG_WINDOW REPLACE "(.+)" "${name}/\\1.cpp")
    vantore_library(${name}_core SOURCES ${ARG_CORE} LINKS vantore_base ${ARG_CORE_LINKS})
    vantore_library(${name} SOURCES ${ARG_WINDOW} LINKS ${name}_core vantore_frame ${ARG_LINKS})
    # Where it optimises, GCC 12 takes the empty texts of a module's wording for uninitialised, and sees texts in
    # records that hold none.
    foreach(part ${name}_core ${name})
        target_compile_options(${part} PRIVATE
            $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized -Wno-array-bounds>)
    endforeach()
endfunction()
