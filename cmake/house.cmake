# One target per folder. Each target hands out an include folder that holds nothing but a link to itself, so
# that `#include "host/param.h"` compiles only in a target that says it uses `host`.

function(house_include_dir name folder)
    set(dir "${CMAKE_BINARY_DIR}/include/${name}")
    get_filename_component(parent "${dir}/${folder}" DIRECTORY)
    file(MAKE_DIRECTORY "${parent}")
    if(NOT EXISTS "${dir}/${folder}")
        file(CREATE_LINK "${CMAKE_SOURCE_DIR}/${folder}" "${dir}/${folder}" SYMBOLIC)
    endif()
    target_include_directories(${name} PUBLIC "${dir}")
endfunction()

# house_library(<name> <STATIC|SHARED> FOLDER <folder> USES <targets...> [PRIVATE_USES <targets...>])
function(house_library name kind)
    cmake_parse_arguments(A "" "FOLDER" "USES;PRIVATE_USES;EXTRA;EXCLUDE" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/${A_FOLDER}/*.cpp"
         "${CMAKE_SOURCE_DIR}/${A_FOLDER}/*.h")
    foreach(pattern IN LISTS A_EXCLUDE)
        list(FILTER sources EXCLUDE REGEX "${pattern}")
    endforeach()
    if(NOT sources MATCHES "\\.cpp")
        return()
    endif()
    add_library(${name} ${kind} ${sources} ${A_EXTRA})
    house_include_dir(${name} ${A_FOLDER})
    target_link_libraries(${name} PUBLIC ${A_USES} PRIVATE ${A_PRIVATE_USES} house_warnings)
    if("Qt5::Widgets" IN_LIST A_USES)
        target_precompile_headers(${name} REUSE_FROM precompiled_windows)
    else()
        target_precompile_headers(${name} REUSE_FROM precompiled_core)
    endif()
endfunction()

# house_test(<folder below tests> USES <targets...>): every *.cpp of the folder becomes one test binary.
function(house_test folder)
    cmake_parse_arguments(A "" "" "USES;ENV" ${ARGN})
    string(REPLACE "/" "_" name "test_${folder}")
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_SOURCE_DIR}/tests/${folder}/*.cpp")
    if(NOT sources)
        return()
    endif()
    add_executable(${name} ${sources})
    target_link_libraries(${name} PRIVATE ${A_USES} test_support house_warnings)
    target_precompile_headers(${name} REUSE_FROM precompiled_tests)
    target_compile_definitions(${name} PRIVATE TEST_DATA_DIR="${CMAKE_SOURCE_DIR}/tests/data"
                                               SHIPPED_DATA_DIR="${CMAKE_SOURCE_DIR}/workbench/data")
    # By env(1): a test property keeps no list, so of several variables only the first would arrive.
    set_target_properties(${name} PROPERTIES CROSSCOMPILING_EMULATOR
                          "env;QT_QPA_PLATFORM=offscreen;LC_ALL=C.UTF-8;${HOUSE_SANITIZER_ENV}")
    gtest_discover_tests(${name} DISCOVERY_TIMEOUT 60 PROPERTIES TIMEOUT 300)
endfunction()
