# The target tidy runs clang-tidy over every source file of the program; .clang-tidy says what it looks for.
find_program(RUN_CLANG_TIDY NAMES run-clang-tidy run-clang-tidy-14)
if(RUN_CLANG_TIDY)
    set(folders base platform board grants desktop boardui app cli helpers)
    list(JOIN folders "|" folders)
    add_custom_target(tidy
        COMMAND ${RUN_CLANG_TIDY} -quiet -p "${CMAKE_BINARY_DIR}" "${CMAKE_SOURCE_DIR}/(${folders})/.*\\.cpp"
        USES_TERMINAL VERBATIM)
endif()
