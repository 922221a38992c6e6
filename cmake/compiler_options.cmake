# Warnings and sanitizers, for every target of the project.

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
