# The walls of the house. Every folder is a library of its own, and sees exactly the headers of the
# folders that it says it uses: a library's headers are offered through a view, a folder in the build
# tree that holds nothing but links to them, so no include path ever shows the whole tree.

# quellbar_headers(<target> <scope> <folder> <header>...)
#   Offers <folder>/<header> to whoever links <target>, and has each compiled alone by the target
#   all_verify_interface_header_sets.
function(quellbar_headers target scope folder)
  set(view ${PROJECT_BINARY_DIR}/views/${folder})
  foreach(header IN LISTS ARGN)
    cmake_path(GET header PARENT_PATH subfolder)
    file(MAKE_DIRECTORY ${view}/${folder}/${subfolder})
    file(CREATE_LINK ${PROJECT_SOURCE_DIR}/${folder}/${header} ${view}/${folder}/${header} SYMBOLIC)
    list(APPEND files ${view}/${folder}/${header})
  endforeach()
  target_sources(${target} ${scope} FILE_SET HEADERS BASE_DIRS ${view} FILES ${files})
endfunction()

# quellbar_library(<folder> [NAME <name>] SOURCES ... HEADERS ... [USES <target>...] [PRIVATELY <target>...])
#   The library quellbar_<name>, named after its folder (with slashes as underscores) unless the
#   folder holds more than one. USES are needed by its headers too.
function(quellbar_library folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "NAME" "SOURCES;HEADERS;USES;PRIVATELY")
  if(NOT arg_NAME)
    string(REPLACE "/" "_" arg_NAME ${folder})
  endif()
  set(name quellbar_${arg_NAME})
  add_library(${name} STATIC ${arg_SOURCES})
  quellbar_headers(${name} PUBLIC ${folder} ${arg_HEADERS})
  target_link_libraries(${name} PUBLIC ${arg_USES} PRIVATE ${arg_PRIVATELY} quellbar_warnings)
endfunction()
