# Installation (GNUInstallDirs, any prefix): the two executables, the bundled data folder under
# share/lathwick, the desktop entry, the AppStream metainfo, the part-program MIME type, the
# application icon and the manual pages; and the Debian package made from them by CPack.
set(LATHWICK_APP_ID org.lathwick.Lathwick)

install(TARGETS lathwick-cli RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
if(TARGET lathwick)
  install(TARGETS lathwick RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()

# The data folder: the sources of data/ and the generated scheme data file. An installed copy
# is never written: each user works in a copy of it (see docs/decisions.md).
install(DIRECTORY ${CMAKE_SOURCE_DIR}/data/ DESTINATION ${LATHWICK_INSTALL_DATADIR})
install(FILES ${CMAKE_BINARY_DIR}/Lathwick.dat DESTINATION ${LATHWICK_INSTALL_DATADIR})

install(FILES packaging/${LATHWICK_APP_ID}.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications)
install(FILES packaging/${LATHWICK_APP_ID}.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo)
install(FILES packaging/${LATHWICK_APP_ID}.mime.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/mime/packages
        RENAME ${LATHWICK_APP_ID}.xml)
install(FILES packaging/${LATHWICK_APP_ID}.svg DESTINATION ${CMAKE_INSTALL_DATADIR}/icons/hicolor/scalable/apps)
file(GLOB LATHWICK_MAN_PAGES CONFIGURE_DEPENDS ${CMAKE_SOURCE_DIR}/packaging/man/*.1)
install(FILES ${LATHWICK_MAN_PAGES} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)

# ---- Debian package: cpack -G DEB in the build folder ---------------------------------
set(CPACK_PACKAGE_NAME lathwick)
set(CPACK_PACKAGE_VENDOR "Lathwick")
set(CPACK_PACKAGE_CONTACT "Lathwick maintainers <lathwick@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "Editor for CNC part programs (G-code)")
set(CPACK_PACKAGE_DESCRIPTION
    "Lathwick edits CNC part programs, colours each line by its cutting mode or by its codes, "
    "renumbers, does arithmetic on address values, filters junk from serial links and runs "
    "VBScript macros. lathwick-cli runs the same passes file to file.")
set(CPACK_RESOURCE_FILE_LICENSE ${CMAKE_SOURCE_DIR}/LICENSE)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION editors)
# The shared libraries the executables link come from dpkg-shlibdeps; what is loaded at run
# time (the SVG icon engine, the fallback icon theme) is named here.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libqt6svg6")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS "adwaita-icon-theme, xdg-utils, qt6-wayland")
include(CPack)
