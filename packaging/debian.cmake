# Run by CPack on the files of the package before it is made: what Debian wants of them beyond an installation.

set(share ${CPACK_TEMPORARY_DIRECTORY}${CPACK_PACKAGING_INSTALL_PREFIX}/share)
configure_file(${CMAKE_CURRENT_LIST_DIR}/changelog.in ${share}/doc/mirtane/changelog.Debian @ONLY)
file(GLOB packed ${share}/man/man1/*.1 ${share}/doc/mirtane/changelog.Debian)
execute_process(COMMAND gzip -9nf ${packed} COMMAND_ERROR_IS_FATAL ANY)
