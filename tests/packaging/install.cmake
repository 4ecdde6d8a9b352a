# Installs what BUILD has built into TREE/usr, which nothing else has touched.
file(REMOVE_RECURSE "${TREE}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${BUILD}" --config "${CONFIG}" --prefix "${TREE}/usr"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
