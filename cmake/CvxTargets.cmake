# Shared settings for every target of the project.
include(GenerateExportHeader)

if(CVX_SANITIZE)
  add_compile_options(-fsanitize=${CVX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${CVX_SANITIZE})
endif()

# Warnings on our own code only; errors only where the project's presets ask for them, so a
# consumer building from source with another compiler is not stopped by a new warning.
function(cvx_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic $<$<BOOL:${CVX_WERROR}>:-Werror>)
  # g++ 12 at -O3 wrongly reports overlapping copies inside std::string concatenation.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
endfunction()

# A stand-in sibling library: a shared library whose sources are every .cpp under src/ and
# under src/windows/ or src/posix/ (what each system does its own way), with
# a generated export header <PREFIX>_Export.h that defines <PREFIX>_EXPORT. Its headers install
# under include/CaeUtils/<folder>, apart from the library's, so they cannot clash with the
# real sibling library's; headers listed as INTERNAL stay out.
function(cvx_standin_library target prefix folder)
  cmake_parse_arguments(ARG "" "" "LINKS;INTERNAL" ${ARGN})
  if(WIN32)
    set(system windows)
  else()
    set(system posix)
  endif()
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/src/*.cpp
       ${CMAKE_CURRENT_SOURCE_DIR}/src/${system}/*.cpp)
  add_library(${target} SHARED ${sources})
  set(gen ${CMAKE_BINARY_DIR}/generated/${target})
  generate_export_header(${target} BASE_NAME ${prefix} EXPORT_FILE_NAME ${gen}/${prefix}_Export.h)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${gen}> $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}/include>
    $<INSTALL_INTERFACE:include/CaeUtils/${folder}>)
  target_link_libraries(${target} PUBLIC ${ARG_LINKS})
  cvx_warnings(${target})
  set(excluded)
  foreach(header IN LISTS ARG_INTERNAL)
    list(APPEND excluded PATTERN ${header} EXCLUDE)
  endforeach()
  install(DIRECTORY ${CMAKE_CURRENT_SOURCE_DIR}/include/ ${gen}/
          DESTINATION include/CaeUtils/${folder} ${excluded})
endfunction()

# One GoogleTest executable per folder of tests, discovered by CTest.
function(cvx_test_suite name)
  cmake_parse_arguments(ARG "" "" "LINKS" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${name}/*.cpp)
  if(NOT sources)
    return()
  endif()
  add_executable(test_${name} ${sources})
  target_link_libraries(test_${name} PRIVATE ${ARG_LINKS} GTest::gtest GTest::gmock GTest::gtest_main Threads::Threads)
  target_include_directories(test_${name} PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
  target_compile_definitions(test_${name} PRIVATE
    CVX_TEST_FIXTURES="${CMAKE_CURRENT_SOURCE_DIR}/fixtures")
  cvx_warnings(test_${name})
  # Listing the tests may take a while where an emulator runs them (wine starting up).
  gtest_discover_tests(test_${name} DISCOVERY_MODE PRE_TEST DISCOVERY_TIMEOUT 60
    PROPERTIES ENVIRONMENT "CVX_TEST_TMP=${CMAKE_CURRENT_BINARY_DIR}")
endfunction()
