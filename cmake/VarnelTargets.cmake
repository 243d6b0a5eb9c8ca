# Compiler settings shared by every target of the project.

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM AND PROJECT_IS_TOP_LEVEL AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER ${CCACHE_PROGRAM})
endif()

add_library(varnel_warnings INTERFACE)
target_compile_options(varnel_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    # g++ 12 sees overlapping copies in every "text" + std::string at -O2 and above.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    $<$<BOOL:${VARNEL_WERROR}>:-Werror>)

# C++20 without extensions, our warnings, and include paths from the root of the sources.
function(varnel_settings target)
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${Varnel_SOURCE_DIR}>)
    target_link_libraries(${target} PRIVATE $<BUILD_INTERFACE:varnel_warnings>)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
endfunction()

# A static library `varnel_<name>` with the alias Varnel::<name>. Its folder adds the sources. The
# objects are position independent and hidden so that libvarnel.so can be made of them.
function(varnel_library target)
    add_library(${target} STATIC)
    string(REPLACE "varnel_" "" alias ${target})
    add_library(Varnel::${alias} ALIAS ${target})
    varnel_settings(${target})
    set_target_properties(${target} PROPERTIES
        EXPORT_NAME ${alias}
        LINKER_LANGUAGE CXX
        POSITION_INDEPENDENT_CODE ON
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON)
endfunction()
