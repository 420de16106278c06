# One function for each kind of target. A folder that does not exist or holds no sources is an
# empty library that still passes on what it links, or no program at all.

# Links the libraries of the named source folders.
function(zeb_link target kind)
  list(TRANSFORM ARGN PREPEND zeb_)
  target_link_libraries(${target} ${kind} ${ARGN})
endfunction()

# zeb_library(<folder> [LINKS folder...] [SYSTEM_LINKS target...])
# The library zeb_<folder> of src/<folder>, less its main.cpp.
function(zeb_library folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;SYSTEM_LINKS")
  set(dir ${PROJECT_SOURCE_DIR}/src/${folder})
  file(GLOB files CONFIGURE_DEPENDS ${dir}/*.cpp ${dir}/*.h ${dir}/*.qrc)
  set(sources ${files})
  list(REMOVE_ITEM sources ${dir}/main.cpp)

  set(kind PUBLIC)
  if("${sources}" MATCHES "[.]cpp(;|$)")
    add_library(zeb_${folder} STATIC ${sources})
    if("${arg_SYSTEM_LINKS}" MATCHES "Qt6::Widgets")
      set_target_properties(zeb_${folder} PROPERTIES AUTOMOC ON AUTORCC ON)
      zeb_precompile(zeb_${folder} ${ZEB_QT_HEADERS})
    endif()
  else()
    set(kind INTERFACE)
    add_library(zeb_${folder} INTERFACE)
  endif()
  target_include_directories(zeb_${folder} ${kind} ${PROJECT_SOURCE_DIR}/src ${ZEB_GENERATED_DIR})
  zeb_link(zeb_${folder} ${kind} ${arg_LINKS})
  if(files)
    target_link_libraries(zeb_${folder} ${kind} ${arg_SYSTEM_LINKS})
  endif()
endfunction()

# zeb_program(<name> <folder>)
# The program <name> of src/<folder>/main.cpp and the folder's library.
function(zeb_program name folder)
  file(GLOB main CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/src/${folder}/main.cpp)
  if(main)
    add_executable(${name} ${main})
    zeb_link(${name} PRIVATE ${folder})
    install(TARGETS ${name})
  endif()
endfunction()

# zeb_test_support([LINKS folder...])
# What the tests of several folders share, included as "support/x.h".
function(zeb_test_support)
  cmake_parse_arguments(PARSE_ARGV 0 arg "" "" "LINKS")
  find_package(GTest REQUIRED)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/support/*.cpp)
  set(kind INTERFACE)
  if(sources)
    set(kind PUBLIC)
    add_library(zeb_test_support STATIC ${sources})
  else()
    add_library(zeb_test_support INTERFACE)
  endif()
  target_include_directories(zeb_test_support ${kind} ${PROJECT_SOURCE_DIR}/tests)
  target_compile_definitions(zeb_test_support ${kind} ZEB_DATA_DIR="${PROJECT_SOURCE_DIR}/data"
                             ZEB_PROGRAM_FOLDER="${CMAKE_RUNTIME_OUTPUT_DIRECTORY}")
  zeb_link(zeb_test_support ${kind} ${arg_LINKS})
  target_link_libraries(zeb_test_support ${kind} GTest::gtest)
endfunction()

# zeb_tests(<folder> [LINKS folder...] [SYSTEM_LINKS target...])
# The program <folder>_tests of tests/<folder>, each of its tests known to CTest.
function(zeb_tests folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;SYSTEM_LINKS")
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tests/${folder}/*.cpp)
  if(NOT sources)
    return()
  endif()
  include(GoogleTest)
  add_executable(${folder}_tests ${sources})
  target_compile_definitions(${folder}_tests
                             PRIVATE ZEB_FIXTURES="${PROJECT_SOURCE_DIR}/tests/${folder}/fixtures")
  # What the tests call is optimised; optimising the tests themselves costs more than it gains.
  target_compile_options(${folder}_tests PRIVATE -O0)
  zeb_precompile(${folder}_tests ${ZEB_TEST_HEADERS})
  zeb_link(${folder}_tests PRIVATE ${folder} ${arg_LINKS} test_support)
  target_link_libraries(${folder}_tests PRIVATE GTest::gtest_main ${arg_SYSTEM_LINKS})
  # Tests may read the program folder and start the programs in it.
  add_dependencies(${folder}_tests program_folder)
  gtest_discover_tests(${folder}_tests TEST_PREFIX ${folder}/ DISCOVERY_MODE PRE_TEST
                       PROPERTIES TIMEOUT 120)
endfunction()

# zeb_benches([LINKS folder...])
# One program <build>/bench/<name> for each bench/<name>.cpp.
function(zeb_benches)
  find_package(benchmark REQUIRED)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/bench/*.cpp)
  foreach(source IN LISTS sources)
    zeb_single_source_program(bench ${source} ${ARGN})
    target_link_libraries(${target} PRIVATE benchmark::benchmark_main)
  endforeach()
endfunction()

# zeb_fuzzers([LINKS folder...])
# One program <build>/fuzz/<name> for each fuzz/<name>.cpp.
function(zeb_fuzzers)
  file(GLOB sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/fuzz/*.cpp)
  foreach(source IN LISTS sources)
    zeb_single_source_program(fuzz ${source} ${ARGN})
    target_link_options(${target} PRIVATE -fsanitize=fuzzer)
  endforeach()
endfunction()

# Adds <kind>/<name>.cpp as the target <kind>_<name>, whose name it leaves in `target`.
function(zeb_single_source_program kind source)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "LINKS")
  cmake_path(GET source STEM name)
  set(target ${kind}_${name})
  add_executable(${target} ${source})
  set_target_properties(${target} PROPERTIES OUTPUT_NAME ${name}
                        RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${kind})
  zeb_link(${target} PRIVATE ${arg_LINKS} test_support)
  set(target ${target} PARENT_SCOPE)
endfunction()
