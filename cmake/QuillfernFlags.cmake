# The flags that every target of ours is compiled with. Libraries' headers are system headers: they are not ours to warn
# about.
add_library(quillfern_flags INTERFACE)
target_compile_options(quillfern_flags INTERFACE -Wall -Wextra -Wconversion -Wshadow -Wpedantic -Werror)
target_compile_definitions(quillfern_flags INTERFACE QT_NO_KEYWORDS)

if(QUILLFERN_SANITIZE)
    # A finding ends the program, so that no test passes over one.
    target_compile_options(quillfern_flags INTERFACE
        -fsanitize=${QUILLFERN_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(quillfern_flags INTERFACE -fsanitize=${QUILLFERN_SANITIZE})
else()
    # The sanitizers check the same calls, and see less of them when the library's own checks stand in between.
    target_compile_definitions(quillfern_flags INTERFACE $<$<NOT:$<CONFIG:Debug>>:_FORTIFY_SOURCE=2>)
endif()
if(QUILLFERN_COVERAGE)
    target_compile_options(quillfern_flags INTERFACE --coverage)
    target_link_options(quillfern_flags INTERFACE --coverage)
endif()
