# Installs the library proper so that another project can say find_package(Varnel) and link
# Varnel::varnel or Varnel::varnel_shared.

include(CMakePackageConfigHelpers)

install(TARGETS varnel varnel_shared EXPORT varnelTargets
    INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/varnel)
foreach(folder host framework accounts reports engine)
    install(DIRECTORY ${folder} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/varnel
        FILES_MATCHING PATTERN "*.h")
endforeach()

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Varnel)
install(EXPORT varnelTargets FILE VarnelConfig.cmake NAMESPACE Varnel::
    DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VarnelConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VarnelConfigVersion.cmake DESTINATION ${package_folder})
