# One folder is one target: quillfern_folder(grants LINKS quillfern_board) makes the library quillfern_grants from every
# .cpp of grants/. What a folder may link is what docs/ARCHITECTURE.md lets it include; tests/checks/ holds the sources
# to it.
function(quillfern_folder name)
    cmake_parse_arguments(ARG "" "" "LINKS;PRIVATE_LINKS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${name}/*.cpp")
    if(NOT sources)
        set(sources "${CMAKE_BINARY_DIR}/${name}_has_headers_only.cpp")
        file(TOUCH "${sources}")
    endif()
    add_library(quillfern_${name} STATIC ${sources})
    target_include_directories(quillfern_${name} PUBLIC "${CMAKE_SOURCE_DIR}")
    target_link_libraries(quillfern_${name} PUBLIC quillfern_flags ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
endfunction()

# quillfern_test(grants LINKS quillfern_grants) makes the program grants_test from every *_test.cpp of tests/grants/ and
# registers it with ctest as one entry.
function(quillfern_test name)
    cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/${name}/*.cpp")
    if(NOT sources)
        return()
    endif()
    add_executable(${name}_test ${sources})
    target_link_libraries(${name}_test PRIVATE ${ARG_LINKS} GTest::gmock GTest::gtest_main)
    target_compile_definitions(${name}_test PRIVATE QUILLFERN_TEST_DATA="${CMAKE_SOURCE_DIR}/tests/data")
    add_test(NAME ${name} COMMAND ${name}_test --gtest_brief=1)
    set_tests_properties(${name} PROPERTIES LABELS unit)
endfunction()
