# A PostgreSQL server for the tests that ask for it: FIXTURES_REQUIRED postgres, and the environment
# variable VARNEL_POSTGRES with the folder of its socket. ctest starts and stops it once a run. The
# path of a socket must be short, so that its folder is not in the build folder.
string(SHA1 hash ${PROJECT_BINARY_DIR})
string(SUBSTRING ${hash} 0 10 hash)
set(VARNEL_POSTGRES_FOLDER /tmp/varnel-postgres-${hash})

set(postgres_server ${CMAKE_CURRENT_LIST_DIR}/postgres_server)
foreach(action start stop)
    add_test(NAME postgres.${action} COMMAND ${postgres_server} ${action} ${VARNEL_POSTGRES_FOLDER})
    set_tests_properties(postgres.${action} PROPERTIES SKIP_RETURN_CODE 77)
endforeach()
set_tests_properties(postgres.start PROPERTIES FIXTURES_SETUP postgres)
set_tests_properties(postgres.stop PROPERTIES FIXTURES_CLEANUP postgres)
