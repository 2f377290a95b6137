# One interface target that everything of ours links: warnings as errors, and the sanitizers of the build.
add_library(orvik_options INTERFACE)
target_compile_options(orvik_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
  -Wundef -Wimplicit-fallthrough -Werror
  # g++ 12 counts a scoped enumerator as hiding a type of its name, so only locals are looked at there.
  $<IF:$<CXX_COMPILER_ID:GNU>,-Wshadow=local,-Wshadow>)
target_include_directories(orvik_options INTERFACE ${CMAKE_SOURCE_DIR}/src ${CMAKE_BINARY_DIR}/generated)
if(ORVIK_SANITIZE)
  target_compile_options(orvik_options INTERFACE
    -fsanitize=${ORVIK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(orvik_options INTERFACE -fsanitize=${ORVIK_SANITIZE})
endif()
