# Warnings, sanitizers and coverage, for every target of the project.

add_library(kinovra_options INTERFACE)

target_compile_options(kinovra_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast -Wcast-align
  -Wimplicit-fallthrough -Wformat=2 -Wextra-semi)
target_compile_definitions(kinovra_options INTERFACE QT_NO_CAST_TO_ASCII QT_NO_KEYWORDS)

if(KINOVRA_WARNINGS_AS_ERRORS)
  target_compile_options(kinovra_options INTERFACE -Werror)
endif()

if(KINOVRA_SANITIZERS)
  target_compile_options(kinovra_options INTERFACE
    -fsanitize=${KINOVRA_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(kinovra_options INTERFACE -fsanitize=${KINOVRA_SANITIZERS})
endif()

if(KINOVRA_COVERAGE)
  # Clang's counts are of the sources' own conditions, without the branches that a compiler makes for exceptions.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    target_compile_options(kinovra_options INTERFACE -fprofile-instr-generate -fcoverage-mapping)
    target_link_options(kinovra_options INTERFACE -fprofile-instr-generate)
  else()
    target_compile_options(kinovra_options INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(kinovra_options INTERFACE --coverage)
  endif()
endif()

# With a static Qt a program is one file, and its bytes depend on the sources alone: not on the time, nor on where they
# are.
if(MINGW)
  get_target_property(qt_library_type Qt6::Core TYPE)
  if(qt_library_type STREQUAL "STATIC_LIBRARY")
    target_compile_options(kinovra_options INTERFACE
      "-ffile-prefix-map=${CMAKE_SOURCE_DIR}=kinovra" "-ffile-prefix-map=${CMAKE_BINARY_DIR}=build")
    target_link_options(kinovra_options INTERFACE -static -s -Wl,--gc-sections -Wl,--no-insert-timestamp)
  endif()
endif()
