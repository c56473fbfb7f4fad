# SPDX-License-Identifier: GPL-3.0-or-later
# What `cmake --install` puts where on a Linux desktop: the programs, the help
# page, the desktop entry with its icons and MIME type, the AppStream metadata,
# the manual pages and the package's documents. The translations are compiled
# into the program.

include(GNUInstallDirs)

set(KELMORA_DESKTOP_ID "com.kelmora.Kelmora")
set(KELMORA_DESKTOP_DIR "${PROJECT_SOURCE_DIR}/resources/desktop")
set(KELMORA_ICON_SVG "${PROJECT_SOURCE_DIR}/resources/icons/kelmora.svg")

# Directories are made world-readable whatever the umask of the installer.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

install(TARGETS kelmora kelmora-cli RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
install(FILES "${PROJECT_SOURCE_DIR}/resources/help.html"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/kelmora")

install(FILES "${KELMORA_DESKTOP_DIR}/${KELMORA_DESKTOP_ID}.desktop"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/applications")
install(FILES "${KELMORA_DESKTOP_DIR}/${KELMORA_DESKTOP_ID}.metainfo.xml"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/metainfo")
install(FILES "${KELMORA_DESKTOP_DIR}/kelmora-mime.xml"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/mime/packages" RENAME kelmora.xml)

# The icon: the SVG for every size, PNGs rendered from it for the sizes
# menus and docks still ask for.
install(FILES "${KELMORA_ICON_SVG}"
  DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps"
  RENAME "${KELMORA_DESKTOP_ID}.svg")
find_program(KELMORA_RSVG_CONVERT rsvg-convert)
if(KELMORA_RSVG_CONVERT)
  set(icon_pngs)
  foreach(size 48 256)
    set(png "${CMAKE_BINARY_DIR}/icons/${size}x${size}/${KELMORA_DESKTOP_ID}.png")
    add_custom_command(OUTPUT "${png}"
      COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_BINARY_DIR}/icons/${size}x${size}"
      COMMAND "${KELMORA_RSVG_CONVERT}" -w ${size} -h ${size} -o "${png}" "${KELMORA_ICON_SVG}"
      DEPENDS "${KELMORA_ICON_SVG}"
      COMMENT "Rendering the ${size} px icon")
    list(APPEND icon_pngs "${png}")
    install(FILES "${png}" DESTINATION "${CMAKE_INSTALL_DATADIR}/icons/hicolor/${size}x${size}/apps")
  endforeach()
  add_custom_target(kelmora_icons ALL DEPENDS ${icon_pngs})
else()
  message(WARNING "rsvg-convert not found: only the scalable icon is installed "
    "(scripts/install-deps installs librsvg2-bin)")
endif()

# The manual pages, compressed as man expects.
set(man_pages)
foreach(page kelmora kelmora-cli)
  set(man_gz "${CMAKE_BINARY_DIR}/man/${page}.1.gz")
  add_custom_command(OUTPUT "${man_gz}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${CMAKE_BINARY_DIR}/man"
    COMMAND gzip -9nc "${PROJECT_SOURCE_DIR}/resources/man/${page}.1" > "${man_gz}"
    DEPENDS "${PROJECT_SOURCE_DIR}/resources/man/${page}.1")
  list(APPEND man_pages "${man_gz}")
endforeach()
add_custom_target(kelmora_man_pages ALL DEPENDS ${man_pages})
install(FILES ${man_pages} DESTINATION "${CMAKE_INSTALL_MANDIR}/man1")

# The package's documents, where Debian looks for them. The changelog goes
# compressed without a time stamp, so that two builds give the same file.
set(CMAKE_INSTALL_DOCDIR "${CMAKE_INSTALL_DATADIR}/doc/kelmora")
set(changelog_gz "${CMAKE_BINARY_DIR}/changelog.Debian.gz")
add_custom_command(OUTPUT "${changelog_gz}"
  COMMAND gzip -9nc "${PROJECT_SOURCE_DIR}/resources/debian/changelog" > "${changelog_gz}"
  DEPENDS "${PROJECT_SOURCE_DIR}/resources/debian/changelog")
add_custom_target(kelmora_changelog ALL DEPENDS "${changelog_gz}")
install(FILES "${PROJECT_SOURCE_DIR}/resources/debian/copyright" "${changelog_gz}"
  DESTINATION "${CMAKE_INSTALL_DOCDIR}")
