# The viewer takes Qt's plug-ins from the folder PlugIns beside its own folder and from nowhere else.
# Without that folder Qt finds no OpenGL integration and every view stays black.

get_target_property(qmake_program Qt5::qmake IMPORTED_LOCATION)
execute_process(
  COMMAND ${qmake_program} -query QT_INSTALL_PLUGINS
  OUTPUT_VARIABLE TORVANE_QT_PLUGINS
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)

file(CREATE_LINK ${TORVANE_QT_PLUGINS} ${CMAKE_BINARY_DIR}/PlugIns SYMBOLIC)
install(
  CODE "file(MAKE_DIRECTORY \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}\")
file(CREATE_LINK \"${TORVANE_QT_PLUGINS}\" \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/PlugIns\" SYMBOLIC)"
)
