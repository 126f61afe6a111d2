# The library itself: five modules in one shared library.
cvx_shared_library(CVXUTI_CaeUtils CVX
  SOURCE_DIRS ${PROJECT_SOURCE_DIR}/omu/impl ${PROJECT_SOURCE_DIR}/mdl/impl
              ${PROJECT_SOURCE_DIR}/g3d/impl ${PROJECT_SOURCE_DIR}/idb/impl
              ${PROJECT_SOURCE_DIR}/wip/impl ${PROJECT_SOURCE_DIR}/uti/impl
  PUBLIC_INCLUDES ${PROJECT_SOURCE_DIR}/include
  LINKS CVXBAS_BasicUtils)
add_library(CaeUtils::CaeUtils ALIAS CVXUTI_CaeUtils)

include(GNUInstallDirs)
install(TARGETS CVXUTI_CaeUtils CVXBAS_BasicUtils CVXBAS_BasCoreUtils EXPORT CaeUtilsTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  INCLUDES DESTINATION include/CaeUtils)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/ ${PROJECT_SOURCE_DIR}/platform/bascore/include/
                  ${PROJECT_SOURCE_DIR}/platform/basic/include/
        DESTINATION include/CaeUtils)
install(DIRECTORY ${CMAKE_BINARY_DIR}/generated/CVXUTI_CaeUtils/ ${CMAKE_BINARY_DIR}/generated/CVXBAS_BasicUtils/
                  ${CMAKE_BINARY_DIR}/generated/CVXBAS_BasCoreUtils/
        DESTINATION include/CaeUtils)
install(EXPORT CaeUtilsTargets NAMESPACE CaeUtils:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/CaeUtils)
include(CMakePackageConfigHelpers)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/CaeUtilsConfig.cmake.in
  ${CMAKE_BINARY_DIR}/CaeUtilsConfig.cmake INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/CaeUtils)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/CaeUtilsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/CaeUtilsConfig.cmake ${CMAKE_BINARY_DIR}/CaeUtilsConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/CaeUtils)
