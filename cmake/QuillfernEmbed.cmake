# quillfern_embed(quillfern_grants resources/sample-logo.png quillfern::grants sample_logo_png) gives the target the bytes
# of a file: std::string_view sample_logo_png() in that namespace, which a header of the target declares.
function(quillfern_embed target path namespace function)
    set(file "${CMAKE_SOURCE_DIR}/${path}")
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${file}")
    file(READ "${file}" bytes HEX)
    string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
    set(source "${CMAKE_CURRENT_BINARY_DIR}/embedded_${function}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT [[
#include <string_view>

namespace @namespace@ {
namespace {
constexpr unsigned char bytes[] = {@bytes@};
}

std::string_view @function@();
std::string_view @function@()
{
    return {reinterpret_cast<const char*>(bytes), sizeof bytes};
}
}
]] @ONLY)
    target_sources(${target} PRIVATE "${source}")
endfunction()
