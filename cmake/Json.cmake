# The JSON library is headers only. It is offered through a folder of its own, so that a cross build
# that takes it from the building machine does not see that machine's other headers with it.
find_path(QUELLBAR_JSON_INCLUDE_DIR nlohmann/json.hpp REQUIRED NO_CMAKE_FIND_ROOT_PATH
  PATHS /usr/include /usr/local/include /opt/homebrew/include)
file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/views/nlohmann)
file(CREATE_LINK ${QUELLBAR_JSON_INCLUDE_DIR}/nlohmann ${PROJECT_BINARY_DIR}/views/nlohmann/nlohmann
     SYMBOLIC)
add_library(quellbar_json INTERFACE)
target_include_directories(quellbar_json SYSTEM INTERFACE ${PROJECT_BINARY_DIR}/views/nlohmann)
