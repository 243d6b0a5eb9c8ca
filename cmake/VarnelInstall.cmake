# Installs the library proper, the renderers and the drivers, so that another project can say
# find_package(Varnel COMPONENTS render drivers) and link Varnel::render and Varnel::drivers, or
# find_package(Varnel) and link Varnel::varnel or Varnel::varnel_shared.

include(CMakePackageConfigHelpers)

set(headers_folder ${CMAKE_INSTALL_INCLUDEDIR}/varnel)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Varnel)

# The headers that a user includes, and those that they include.
target_sources(varnel_render PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES
    render/bands/csv.h
    render/bands/jsonl.h
    render/byte_sink.h
    render/fonts/font_face.h
    render/fonts/font_set.h
    render/fonts/line_breaker.h
    render/output_buffer.h
    render/pages/pdf_pages.h
    render/pages/print_measurer.h
    render/pdf/byte_buffer.h
    render/pdf/deflater.h
    render/pdf/glyph_usage.h
    render/pdf/page_tree.h
    render/pdf/pdf_metadata.h
    render/pdf/pdf_number.h
    render/pdf/pdf_objects.h
    render/pdf/pdf_page.h
    render/pdf/pdf_writer.h
    render/pdf/used_fonts.h
    render/text/text_grid.h
    render/text/text_measurer.h
    render/text/text_row.h
    render/text/text_writer.h
)
target_sources(varnel_drivers PUBLIC FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES
    drivers/memory_recordset.h
    drivers/odbc/odbc_database.h
    drivers/sqlite/sqlite_database.h
)

install(TARGETS varnel varnel_shared EXPORT VarnelTargets INCLUDES DESTINATION ${headers_folder})
install(TARGETS varnel_render EXPORT VarnelRenderTargets
    FILE_SET HEADERS DESTINATION ${headers_folder})
install(TARGETS varnel_drivers EXPORT VarnelDriversTargets
    FILE_SET HEADERS DESTINATION ${headers_folder})
foreach(folder host framework accounts reports engine)
    install(DIRECTORY ${folder} DESTINATION ${headers_folder} FILES_MATCHING PATTERN "*.h")
endforeach()

foreach(targets VarnelTargets VarnelRenderTargets VarnelDriversTargets)
    install(EXPORT ${targets} NAMESPACE Varnel:: DESTINATION ${package_folder})
endforeach()
configure_package_config_file(cmake/VarnelConfig.cmake.in ${PROJECT_BINARY_DIR}/VarnelConfig.cmake
    INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VarnelConfigVersion.cmake
    COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VarnelConfig.cmake
    ${PROJECT_BINARY_DIR}/VarnelConfigVersion.cmake DESTINATION ${package_folder})
