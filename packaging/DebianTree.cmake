# Makes of the installed tree what Debian expects of a package. Run by cpack before it packs.

set(usr ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr)

# Links within /usr are relative.
file(READ_SYMLINK ${usr}/lib/torvane/PlugIns plugins)
file(RELATIVE_PATH plugins /usr/lib/torvane ${plugins})
file(CREATE_LINK ${plugins} ${usr}/lib/torvane/PlugIns SYMBOLIC)

# Manual pages and changelogs are compressed.
file(COPY ${CPACK_TORVANE_CHANGELOG} DESTINATION ${usr}/share/doc/torvane)
file(GLOB pages ${usr}/share/man/man1/*)
execute_process(COMMAND gzip -9n ${pages} ${usr}/share/doc/torvane/changelog
                COMMAND_ERROR_IS_FATAL ANY)
