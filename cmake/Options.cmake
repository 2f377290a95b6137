# One interface target that everything of ours links: warnings, small programs, the build's sanitizers.
add_library(orvik_options INTERFACE)
target_compile_options(orvik_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual
  -Wundef -Wimplicit-fallthrough $<$<BOOL:${ORVIK_WARNINGS_AS_ERRORS}>:-Werror>
  # g++ 12 counts a scoped enumerator as hiding a type of its name, so only locals are looked at there.
  $<IF:$<CXX_COMPILER_ID:GNU>,-Wshadow=local,-Wshadow>)
# A test runs about once for each time it is built: the optimiser would take more time than it gives.
define_property(TARGET PROPERTY ORVIK_IS_TEST INHERITED)
# What a program holds of its own file counts towards its memory, and nothing of ours gains from more than -O2.
target_compile_options(orvik_options INTERFACE -ffunction-sections -fdata-sections
  $<$<CONFIG:Release>:$<IF:$<BOOL:$<TARGET_PROPERTY:ORVIK_IS_TEST>>,-O0,-O2>>)
target_link_options(orvik_options INTERFACE -Wl,--gc-sections -Wl,--as-needed)
target_include_directories(orvik_options INTERFACE ${CMAKE_SOURCE_DIR}/src)
if(ORVIK_SANITIZE)
  # What is tested is watched; watching the tests too would take as long again to build. Races are only seen from both
  # sides.
  set(watched $<NOT:$<BOOL:$<TARGET_PROPERTY:ORVIK_IS_TEST>>>)
  if(ORVIK_SANITIZE MATCHES "thread")
    set(watched TRUE)
  endif()
  target_compile_options(orvik_options INTERFACE
    "$<$<BOOL:${watched}>:-fsanitize=${ORVIK_SANITIZE};-fno-sanitize-recover=all>" -fno-omit-frame-pointer
    # g++ takes the paths that the sanitizers add for ones of the program; the other builds have these warnings on.
    "$<$<CXX_COMPILER_ID:GNU>:-Wno-stringop-overflow;-Wno-maybe-uninitialized>")
  # Finds the use of an empty optional or a position past the end, which the sanitizers do not.
  target_compile_definitions(orvik_options INTERFACE _GLIBCXX_ASSERTIONS)
  target_link_options(orvik_options INTERFACE -fsanitize=${ORVIK_SANITIZE})
endif()
if(ORVIK_FUZZ)
  # What a fuzzer is led by: the ways through the code under test, not only through the fuzzer itself.
  target_compile_options(orvik_options INTERFACE -fsanitize=fuzzer-no-link)
  target_link_options(orvik_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# What the programs print for --version: whatever does not is not built anew for another one.
add_library(orvik_version INTERFACE)
target_compile_definitions(orvik_version INTERFACE ORVIK_VERSION="${PROJECT_VERSION}")
