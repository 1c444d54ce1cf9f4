# Before the package is made: its changelog, and what Debian has compressed.
set(share ${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share)
file(COPY_FILE ${CPACK_QUIB_CHANGELOG} ${share}/doc/quib/changelog.Debian)
execute_process(COMMAND gzip -9nf ${share}/doc/quib/changelog.Debian ${share}/man/man1/quib.1 COMMAND_ERROR_IS_FATAL ANY)
file(CHMOD_RECURSE ${share}/doc/quib ${share}/man
    FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ
    DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
