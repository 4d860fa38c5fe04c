# Debian's QScintilla for Qt 6 ships no CMake package: find the header and library by hand.
find_path(QSCINTILLA_INCLUDE_DIR Qsci/qsciscintilla.h
  HINTS ${Qt6Widgets_INCLUDE_DIRS} ${QT6_INSTALL_PREFIX}/include/qt6
  PATHS /usr/include/x86_64-linux-gnu/qt6 /usr/include/aarch64-linux-gnu/qt6 /usr/include/qt6)
find_library(QSCINTILLA_LIBRARY NAMES qscintilla2_qt6)
if(NOT QSCINTILLA_INCLUDE_DIR OR NOT QSCINTILLA_LIBRARY)
  message(FATAL_ERROR "QScintilla for Qt 6 not found: install libqscintilla2-qt6-dev (scripts/setup.sh)")
endif()
add_library(QScintilla::QScintilla UNKNOWN IMPORTED)
set_target_properties(QScintilla::QScintilla PROPERTIES
  IMPORTED_LOCATION ${QSCINTILLA_LIBRARY}
  INTERFACE_INCLUDE_DIRECTORIES ${QSCINTILLA_INCLUDE_DIR}
  INTERFACE_COMPILE_DEFINITIONS QSCINTILLA_DLL
  INTERFACE_LINK_LIBRARIES Qt6::Widgets)
