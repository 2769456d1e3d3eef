# Run by CPack on the tree that it is about to pack: adds what only a Debian package has.
set(documents ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/doc/dunmarrow)
file(COPY ${CPACK_DUNMARROW_DEBIAN}/copyright DESTINATION ${documents})
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)
set(version ${CPACK_PACKAGE_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})
file(WRITE ${documents}/changelog.Debian "dunmarrow (${version}) unstable; urgency=medium

  * Release ${CPACK_PACKAGE_VERSION}; changelog.gz tells what is new.

 -- ${CPACK_PACKAGE_CONTACT}  ${date}
")
execute_process(COMMAND gzip -9n ${documents}/changelog.Debian COMMAND_ERROR_IS_FATAL ANY)
