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

# Takes what another target of the same compiler options has precompiled.
function(house_precompiled_by name other)
  if(ORLENA_PRECOMPILE)
    target_precompile_headers(${name} REUSE_FROM ${other})
  endif()
endfunction()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

# house_library(FOLDER ...): a room of a directory, such as trellisar/library, is the target trellisar_library.
function(house_library folder)
  cmake_parse_arguments(HOUSE "SHARED" "PRECOMPILED_BY" "DEPENDS;PACKAGES;PRECOMPILE" ${ARGN})
  string(REPLACE "/" "_" name "${folder}")
  file(GLOB sources CONFIGURE_DEPENDS
       "${PROJECT_SOURCE_DIR}/${folder}/*.cpp" "${PROJECT_SOURCE_DIR}/${folder}/*.h")
  if(HOUSE_SHARED)
    add_library(${name} SHARED ${sources})
  else()
    add_library(${name} STATIC ${sources})
  endif()
  # No code asks which library it is in, and a symbol of its own would keep others from what it has precompiled.
  set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX DEFINE_SYMBOL "")
  set(include_folder "${PROJECT_BINARY_DIR}/include/${name}")
  cmake_path(GET folder PARENT_PATH directory)
  file(MAKE_DIRECTORY "${include_folder}/${directory}")
  file(CREATE_LINK "${PROJECT_SOURCE_DIR}/${folder}" "${include_folder}/${folder}" SYMBOLIC)
  target_include_directories(${name} PUBLIC "${include_folder}")
  string(REPLACE "/" "_" depends "${HOUSE_DEPENDS}")
  target_link_libraries(${name} PUBLIC ${depends} PRIVATE house_flags)
  target_link_libraries(${name} PRIVATE ${HOUSE_PACKAGES})
  if(HOUSE_PRECOMPILED_BY)
    house_precompiled_by(${name} ${HOUSE_PRECOMPILED_BY})
  else()
    house_precompile(${name} ${HOUSE_PRECOMPILE})
  endif()
endfunction()
