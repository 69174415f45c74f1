# What a consumer gets: both libraries side by side (the outer one looks for the kernels beside itself), headers,
# the CMake package orb (target orb::orb) and orb.pc.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ORB_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/orb)

install(TARGETS orb EXPORT orb-targets LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(TARGETS orb_t7 LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR})
# The names under which programs ask for a BLAS: this library carries them all.
foreach(name libblas.so.3 libblas.so libcblas.so.3 libcblas.so)
  install(CODE "file(CREATE_LINK $<TARGET_FILE_NAME:orb>
    \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/${name}\" SYMBOLIC)")
endforeach()
install(DIRECTORY include/orb DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")
install(DIRECTORY include/orb DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h" PATTERN "*.def")
install(FILES LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR})

install(EXPORT orb-targets NAMESPACE orb:: DESTINATION ${ORB_CMAKE_DIR} FILE orb-config.cmake)
write_basic_package_version_file(orb-config-version.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/orb-config-version.cmake DESTINATION ${ORB_CMAKE_DIR})

configure_file(cmake/orb.pc.in orb.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/orb.pc DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
