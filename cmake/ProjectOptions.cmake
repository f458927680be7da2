# SPDX-License-Identifier: GPL-2.0-or-later
# Language level, warnings, sanitizers, ccache and the layout of the build folder.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_STANDARD 11)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# As an installed system would have it: programs in bin/, loadable parts where the programs look
# for them relative to themselves.
set(CDBURNER_BIN_DIR "${CMAKE_BINARY_DIR}/bin")
set(CDBURNER_TOOLS_DIR "${CMAKE_BINARY_DIR}/lib/crate/tools")
set(CDBURNER_SCORCH_DIR "${CMAKE_BINARY_DIR}/lib/scorch")

find_program(CDBURNER_CCACHE ccache)
if(CDBURNER_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_C_COMPILER_LAUNCHER "${CDBURNER_CCACHE}")
  set(CMAKE_CXX_COMPILER_LAUNCHER "${CDBURNER_CCACHE}")
endif()

add_library(cdburner_options INTERFACE)
add_library(cdburner::options ALIAS cdburner_options)
target_compile_options(
  cdburner_options
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Werror
            -Wshadow
            -Wconversion
            -Wcast-qual
            -Wundef
            $<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor>
            $<$<COMPILE_LANGUAGE:CXX>:-Woverloaded-virtual>
            $<$<COMPILE_LANGUAGE:CXX>:-Wextra-semi>)
# gcc 12 sees overlapping copies in `"text" + std::string` at -O2 where there are none.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(cdburner_options INTERFACE $<$<COMPILE_LANGUAGE:CXX>:-Wno-restrict>)
endif()
target_include_directories(cdburner_options INTERFACE "${CMAKE_SOURCE_DIR}")
target_compile_definitions(cdburner_options INTERFACE CDBURNER_VERSION="${PROJECT_VERSION}")

if(CDBURNER_SANITIZE)
  add_compile_options(-fsanitize=${CDBURNER_SANITIZE} -fno-omit-frame-pointer
                      -fno-sanitize-recover=undefined)
  add_link_options(-fsanitize=${CDBURNER_SANITIZE})
  # gcc 12 warns of its own instrumentation around std::variant.
  target_compile_options(cdburner_options INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
endif()
