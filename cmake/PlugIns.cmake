# The viewer takes Qt's plug-ins from the folder PlugIns beside its own folder and from nowhere else.
# Without that folder Qt finds no OpenGL integration and no view can be drawn.
#
# PlugIns is a link to the plug-ins of the very Qt that the program is linked with, in the build tree,
# where it is installed, and in the package: a plug-in is loaded by the library that it was built with
# only, so that a copy would be useless after the next update of Qt. Debian's folder is the same on
# every machine of an architecture.

get_target_property(qmake_program Qt5::qmake IMPORTED_LOCATION)
execute_process(
  COMMAND ${qmake_program} -query QT_INSTALL_PLUGINS
  OUTPUT_VARIABLE TORVANE_QT_PLUGINS
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

file(CREATE_LINK ${TORVANE_QT_PLUGINS} ${CMAKE_BINARY_DIR}/PlugIns SYMBOLIC)
