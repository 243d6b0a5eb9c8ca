find_package(GTest REQUIRED)
include(GoogleTest)

# varnel_test(NAME <name> SOURCES <file>... [LIBRARIES <target>...] [PROPERTIES <name> <value>...])
# A Google Test program whose cases are registered when ctest starts, so that building stays quick.
# Each case has the properties.
function(varnel_test)
    cmake_parse_arguments(PARSE_ARGV 0 arg "" "NAME" "SOURCES;LIBRARIES;PROPERTIES")
    add_executable(${arg_NAME} ${arg_SOURCES})
    varnel_settings(${arg_NAME})
    # g++ 12 takes parts of std::regex for uninitialized when the sanitizers are on.
    target_compile_options(${arg_NAME} PRIVATE
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    target_link_libraries(${arg_NAME} PRIVATE ${arg_LIBRARIES} GTest::gmock GTest::gtest_main)
    set(properties)
    if(arg_PROPERTIES)
        set(properties PROPERTIES ${arg_PROPERTIES})
    endif()
    gtest_discover_tests(${arg_NAME} DISCOVERY_MODE PRE_TEST ${properties})
endfunction()
