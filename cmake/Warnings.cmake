# What every target of the project is compiled with. Warnings are errors.
add_library(quellbar_warnings INTERFACE)
target_compile_options(quellbar_warnings INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wimplicit-fallthrough -Werror
  $<$<COMPILE_LANGUAGE:CXX>:-Wold-style-cast;-Wnon-virtual-dtor;-Woverloaded-virtual>
  # In an optimized build GCC 12 finds overlapping and overlong copies where std::string joins texts.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict;-Wno-array-bounds;-Wno-stringop-overread>)
