# Shared settings for every target of the project.
include(GenerateExportHeader)

if(CVX_SANITIZE)
  add_compile_options(-fsanitize=${CVX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all)
  add_link_options(-fsanitize=${CVX_SANITIZE})
endif()

# Warnings as errors on our own code only.
function(cvx_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Werror)
  # g++ 12 at -O3 wrongly reports overlapping copies inside std::string concatenation.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(${target} PRIVATE -Wno-restrict)
  endif()
endfunction()

# A shared library whose sources are every .cpp under the given folders, with a generated
# export header <PREFIX>_Export.h that defines <PREFIX>_EXPORT.
function(cvx_shared_library target prefix)
  cmake_parse_arguments(ARG "" "" "SOURCE_DIRS;PUBLIC_INCLUDES;LINKS" ${ARGN})
  set(globs)
  foreach(dir IN LISTS ARG_SOURCE_DIRS)
    list(APPEND globs ${dir}/*.cpp)
  endforeach()
  file(GLOB sources CONFIGURE_DEPENDS ${globs})
  add_library(${target} SHARED ${sources})
  set(gen ${CMAKE_BINARY_DIR}/generated/${target})
  generate_export_header(${target} BASE_NAME ${prefix} EXPORT_FILE_NAME ${gen}/${prefix}_Export.h)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${gen}>
    $<INSTALL_INTERFACE:include/CaeUtils>)
  foreach(inc IN LISTS ARG_PUBLIC_INCLUDES)
    target_include_directories(${target} PUBLIC $<BUILD_INTERFACE:${inc}>)
  endforeach()
  if(ARG_LINKS)
    target_link_libraries(${target} PUBLIC ${ARG_LINKS})
  endif()
  cvx_warnings(${target})
endfunction()

# One GoogleTest executable per folder of tests, discovered by CTest. LABELS tag every test
# of the suite (the tsan preset runs those labelled "threads").
function(cvx_test_suite name)
  cmake_parse_arguments(ARG "" "" "LINKS;LABELS" ${ARGN})
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
  set(labels)
  if(ARG_LABELS)
    set(labels LABELS "${ARG_LABELS}")
  endif()
  gtest_discover_tests(test_${name} DISCOVERY_MODE PRE_TEST
    PROPERTIES ENVIRONMENT "CVX_TEST_TMP=${CMAKE_CURRENT_BINARY_DIR}" ${labels})
endfunction()
