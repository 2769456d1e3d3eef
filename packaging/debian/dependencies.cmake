# Read by CPack before it makes the package: adds the packages that the pages import from.
execute_process(COMMAND ${CPACK_DUNMARROW_DEBIAN}/run_time_packages.sh ${CPACK_DUNMARROW_MODULE}
  OUTPUT_VARIABLE packages OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE "\n" ", " CPACK_DEBIAN_PACKAGE_DEPENDS "${packages}")
