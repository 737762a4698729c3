# Language level, warnings and instrumentation: every target of ours links this one.
add_library(build_options INTERFACE)
target_compile_features(build_options INTERFACE cxx_std_20)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# Fused multiply-add would round curves differently from one processor to the next.
target_compile_options(build_options INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -ffp-contract=off
  # GCC 12 sees an overlap in every assignment of a short text to a std::string.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<BOOL:${TAVIK_WERROR}>:-Werror>)

# An index out of range ends the program in debug builds.
target_compile_definitions(build_options INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(TAVIK_SANITIZE)
  target_compile_options(build_options INTERFACE -fsanitize=${TAVIK_SANITIZE} -fno-omit-frame-pointer
    -fno-sanitize-recover=all)
  target_link_options(build_options INTERFACE -fsanitize=${TAVIK_SANITIZE})
endif()
if(TAVIK_COVERAGE)
  target_compile_options(build_options INTERFACE --coverage)
  target_link_options(build_options INTERFACE --coverage)
endif()

# All executables lie together, so that the program finds its part files beside it.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
