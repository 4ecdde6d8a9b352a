# What cpack runs before it packs: strips the programs as Debian's own tools do, of the compilers'
# names too.
file(GLOB programs "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/bin/*")
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note ${programs}
    COMMAND_ERROR_IS_FATAL ANY)
