# One target for each directory of the house. A target sees only the directories that it declares: each has an include
# folder of its own, which holds nothing but a link to it, so that an include which turns the order round fails to build.

add_library(house_flags INTERFACE)
target_compile_features(house_flags INTERFACE cxx_std_20)
target_compile_options(house_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
if(ORLENA_SANITIZE)
  target_compile_options(house_flags INTERFACE -fsanitize=address,undefined -fno-sanitize-recover=all -g -O1)
  target_link_options(house_flags INTERFACE -fsanitize=address,undefined)
endif()

if(ORLENA_FUZZ)
  target_compile_options(house_flags INTERFACE -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -g -O1)
  target_link_options(house_flags INTERFACE -fsanitize=address,undefined)
endif()

# Parsing the standard library is most of the work of a build. The headless preset does without, so that a file which
# misses an include of its own is found there.
option(ORLENA_PRECOMPILE "Precompile the headers of the standard library" ON)

function(house_precompile name)
  if(ORLENA_PRECOMPILE)
    target_precompile_headers(${name} PRIVATE <algorithm> <any> <cstdint> <filesystem> <functional> <map> <memory>
                              <optional> <string> <string_view> <variant> <vector> ${ARGN})
  endif()
endfunction()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

function(house_library name)
  cmake_parse_arguments(HOUSE "SHARED" "" "DEPENDS;PACKAGES;PRECOMPILE" ${ARGN})
  file(GLOB sources CONFIGURE_DEPENDS
       "${PROJECT_SOURCE_DIR}/${name}/*.cpp" "${PROJECT_SOURCE_DIR}/${name}/*.h")
  if(HOUSE_SHARED)
    add_library(${name} SHARED ${sources})
  else()
    add_library(${name} STATIC ${sources})
  endif()
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
  set(include_folder "${PROJECT_BINARY_DIR}/include/${name}")
  file(MAKE_DIRECTORY "${include_folder}")
  file(CREATE_LINK "${PROJECT_SOURCE_DIR}/${name}" "${include_folder}/${name}" SYMBOLIC)
  target_include_directories(${name} PUBLIC "${include_folder}")
  target_link_libraries(${name} PUBLIC ${HOUSE_DEPENDS} PRIVATE house_flags)
  target_link_libraries(${name} PRIVATE ${HOUSE_PACKAGES})
  house_precompile(${name} ${HOUSE_PRECOMPILE})
endfunction()
