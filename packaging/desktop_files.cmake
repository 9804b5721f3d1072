# What the desktop reads: the entry of its menu, the kinds of file, the entry of software centers, and the icons.
configure_file(desktop/${identifier}.metainfo.xml.in ${identifier}.metainfo.xml @ONLY)
install(FILES desktop/${identifier}.desktop COMPONENT application DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${identifier}.metainfo.xml" COMPONENT application
    DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES desktop/${identifier}.mime.xml COMPONENT application
    DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages RENAME ${identifier}.xml)

set(icons "${CMAKE_SOURCE_DIR}/resources/icons")
set(theme ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
install(FILES "${icons}/quillfern-app.svg" COMPONENT application
    DESTINATION ${theme}/scalable/apps RENAME ${identifier}.svg)

# Pictures for desktops that draw no SVG, and a plainer mark where the full one would blur.
find_program(RSVG_CONVERT rsvg-convert)
if(RSVG_CONVERT)
    foreach(size IN ITEMS 16 22 24 32 48 64 128 256 512)
        set(drawing "${icons}/quillfern-app.svg")
        if(size LESS_EQUAL 32)
            set(drawing "${icons}/quillfern-app-small.svg")
        endif()
        set(picture "${CMAKE_CURRENT_BINARY_DIR}/icon-${size}.png")
        add_custom_command(OUTPUT "${picture}" DEPENDS "${drawing}" VERBATIM
            COMMAND ${RSVG_CONVERT} --width ${size} --height ${size} --output "${picture}" "${drawing}")
        list(APPEND pictures "${picture}")
        install(FILES "${picture}" COMPONENT application
            DESTINATION ${theme}/${size}x${size}/apps RENAME ${identifier}.png)
    endforeach()
    add_custom_target(icons ALL DEPENDS ${pictures})
else()
    message(STATUS "Without rsvg-convert the icon is installed as a drawing alone")
endif()
