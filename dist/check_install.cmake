# Installs the build into a fresh prefix and checks what a desktop finds there: exactly the
# program, its manual page, menu entry, metainfo and every icon size, each pointing at the
# others.
#
#   cmake -DBUILD_DIR=... -DPREFIX=... -DAPP_ID=... -DVERSION=... -DBINDIR=... -DDATADIR=...
#         -DMANDIR=... -P check_install.cmake

cmake_minimum_required(VERSION 3.16)

file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${PREFIX}
    RESULT_VARIABLE result OUTPUT_QUIET)
if(NOT result EQUAL 0)
    message(FATAL_ERROR "cmake --install failed: ${result}")
endif()

set(sizes 16 32 48 64 128 256)
set(expected
    ${BINDIR}/vortic-typing-russian
    ${DATADIR}/applications/${APP_ID}.desktop
    ${DATADIR}/metainfo/${APP_ID}.metainfo.xml
    ${MANDIR}/man1/vortic-typing-russian.1
    ${DATADIR}/icons/hicolor/scalable/apps/${APP_ID}.svg)
foreach(size ${sizes})
    list(APPEND expected ${DATADIR}/icons/hicolor/${size}x${size}/apps/${APP_ID}.png)
endforeach()

file(GLOB_RECURSE installed RELATIVE ${PREFIX} ${PREFIX}/*)
set(missing ${expected})
list(REMOVE_ITEM missing ${installed})
set(extra ${installed})
list(REMOVE_ITEM extra ${expected})
if(missing OR extra)
    message(FATAL_ERROR "installed tree differs\n  missing: ${missing}\n  unexpected: ${extra}")
endif()

# An icon in the wrong size folder is scaled or skipped by the icon theme: read the width and
# height from the PNG header.
foreach(size ${sizes})
    set(icon ${PREFIX}/${DATADIR}/icons/hicolor/${size}x${size}/apps/${APP_ID}.png)
    file(READ ${icon} header LIMIT 24 HEX)
    string(SUBSTRING ${header} 0 16 signature)
    string(SUBSTRING ${header} 32 8 width)
    string(SUBSTRING ${header} 40 8 height)
    math(EXPR width "0x${width}")
    math(EXPR height "0x${height}")
    if(NOT signature STREQUAL "89504e470d0a1a0a" OR NOT width EQUAL size OR NOT height EQUAL size)
        message(FATAL_ERROR "${icon}: not a ${size} x ${size} PNG (${width} x ${height})")
    endif()
endforeach()

file(STRINGS ${PREFIX}/${DATADIR}/applications/${APP_ID}.desktop entry)
if(NOT "Icon=${APP_ID}" IN_LIST entry)
    message(FATAL_ERROR "the menu entry does not name the installed icon ${APP_ID}")
endif()

# The menu starts the Exec line's program from PATH; started the same way from the new prefix
# it must be the installed binary, and know the version the build was made with.
list(FILTER entry INCLUDE REGEX "^Exec=")
string(REGEX REPLACE "^Exec=([^ ]+).*" "\\1" program "${entry}")
find_program(started ${program} PATHS ${PREFIX}/${BINDIR} NO_DEFAULT_PATH)
if(NOT started)
    message(FATAL_ERROR "Exec=${program} is not in ${PREFIX}/${BINDIR}")
endif()
execute_process(COMMAND ${started} --version OUTPUT_VARIABLE said RESULT_VARIABLE result)
if(NOT result EQUAL 0 OR NOT said STREQUAL "vortic-typing-russian ${VERSION}\n")
    message(FATAL_ERROR "${started} --version said '${said}' (exit ${result})")
endif()

file(READ ${PREFIX}/${DATADIR}/metainfo/${APP_ID}.metainfo.xml metainfo)
foreach(needle "<launchable type=\"desktop-id\">${APP_ID}.desktop</launchable>"
        "<release version=\"${VERSION}\"")
    string(FIND "${metainfo}" "${needle}" at)
    if(at EQUAL -1)
        message(FATAL_ERROR "the metainfo lacks ${needle}")
    endif()
endforeach()

file(REMOVE_RECURSE ${PREFIX})
