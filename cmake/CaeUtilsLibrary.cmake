# The library: one object library per module, each seeing only the headers of the modules
# below it, so that an include against the layering does not compile:
#
#   bascore <- basic <- startup <- {wip, idb, g3d};  idb <- omu <- mdl <- uti
#
# startup holds the start-up declarations, module numbers and field tables every module
# includes; uti, the library-wide start-up, brings all modules up. omu sits on idb for the
# wrapper's deep copy. The objects of all modules make the one shared library CVXUTI_CaeUtils.
add_library(CVXUTI_CaeUtils SHARED)
add_library(CaeUtils::CaeUtils ALIAS CVXUTI_CaeUtils)
set(cvx_generated ${CMAKE_BINARY_DIR}/generated/CVXUTI_CaeUtils)
# CVX_EXTERN_TEMPLATE(X<T>) declares an instantiation the library compiles and exports, so
# that its users do not compile it again. MinGW's GCC exports only the out-of-line members of
# such an instantiation and leaves its users unable to compile the inline ones, so there the
# users compile the inline members themselves and import the rest through the class's export.
set(cvx_export_extra [=[
#if defined(__MINGW32__)
#define CVX_EXTERN_TEMPLATE(...)
#else
#define CVX_EXTERN_TEMPLATE(...) extern template class CVX_EXPORT __VA_ARGS__;
#endif]=])
generate_export_header(CVXUTI_CaeUtils BASE_NAME CVX EXPORT_FILE_NAME ${cvx_generated}/CVX_Export.h
                       CUSTOM_CONTENT_FROM_VARIABLE cvx_export_extra)

add_library(cvx_startup INTERFACE)
target_include_directories(cvx_startup INTERFACE ${PROJECT_SOURCE_DIR}/uti/include ${cvx_generated})
target_link_libraries(cvx_startup INTERFACE CVXBAS_BasicUtils)

set(cvx_modules)
function(cvx_module name)
  cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${ARG_SOURCES})
  add_library(cvx_${name} OBJECT ${sources})
  if(EXISTS ${PROJECT_SOURCE_DIR}/${name}/include)
    target_include_directories(cvx_${name} PUBLIC ${PROJECT_SOURCE_DIR}/${name}/include)
  endif()
  target_link_libraries(cvx_${name} PUBLIC ${ARG_LINKS})
  # The objects are compiled for the shared library: its export macro exports.
  target_compile_definitions(cvx_${name} PRIVATE CVXUTI_CaeUtils_EXPORTS)
  # Calls within the library bind to its own functions, as in a Windows DLL: no symbol
  # interposition, so GCC may inline them and call them without the PLT.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(cvx_${name} PRIVATE -fno-semantic-interposition)
  endif()
  cvx_warnings(cvx_${name})
  target_sources(CVXUTI_CaeUtils PRIVATE $<TARGET_OBJECTS:cvx_${name}>)
  set(cvx_modules ${cvx_modules} ${name} PARENT_SCOPE)
endfunction()

cvx_module(wip SOURCES ${PROJECT_SOURCE_DIR}/wip/impl/*.cpp LINKS cvx_startup)
cvx_module(idb SOURCES ${PROJECT_SOURCE_DIR}/idb/impl/*.cpp LINKS cvx_startup)
cvx_module(g3d SOURCES ${PROJECT_SOURCE_DIR}/g3d/impl/*.cpp LINKS cvx_startup)
cvx_module(omu SOURCES ${PROJECT_SOURCE_DIR}/omu/impl/*.cpp LINKS cvx_idb)
cvx_module(mdl SOURCES ${PROJECT_SOURCE_DIR}/mdl/impl/*.cpp LINKS cvx_omu)
cvx_module(uti SOURCES ${PROJECT_SOURCE_DIR}/uti/impl/*.cpp
           LINKS cvx_wip cvx_idb cvx_g3d cvx_omu cvx_mdl)
target_compile_definitions(cvx_uti PRIVATE CVX_VERSION="${PROJECT_VERSION}")

# Consumers see every module's headers, by class name.
foreach(module IN LISTS cvx_modules)
  target_include_directories(CVXUTI_CaeUtils PUBLIC
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/${module}/include>)
endforeach()
target_include_directories(CVXUTI_CaeUtils PUBLIC
  $<BUILD_INTERFACE:${cvx_generated}> $<INSTALL_INTERFACE:include/CaeUtils>)
target_link_libraries(CVXUTI_CaeUtils PUBLIC CVXBAS_BasicUtils)
cvx_warnings(CVXUTI_CaeUtils)

# Installed: the library's headers under include/CaeUtils, each stand-in's under a folder of
# its own beneath it (see cvx_shared_library); headers only the sources include stay out.
include(GNUInstallDirs)
install(TARGETS CVXUTI_CaeUtils CVXBAS_BasicUtils CVXBAS_BasCoreUtils EXPORT CaeUtilsTargets
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
foreach(module IN LISTS cvx_modules)
  install(DIRECTORY ${PROJECT_SOURCE_DIR}/${module}/include/ DESTINATION include/CaeUtils
          PATTERN UTI_ModuleStartup.h EXCLUDE)
endforeach()
install(FILES ${cvx_generated}/CVX_Export.h DESTINATION include/CaeUtils)
install(EXPORT CaeUtilsTargets NAMESPACE CaeUtils:: DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/CaeUtils)
include(CMakePackageConfigHelpers)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/CaeUtilsConfig.cmake.in
  ${CMAKE_BINARY_DIR}/CaeUtilsConfig.cmake INSTALL_DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/CaeUtils)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/CaeUtilsConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_BINARY_DIR}/CaeUtilsConfig.cmake ${CMAKE_BINARY_DIR}/CaeUtilsConfigVersion.cmake
  DESTINATION ${CMAKE_INSTALL_LIBDIR}/cmake/CaeUtils)
