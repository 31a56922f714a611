# quellbar_resources(<target>)
#   Gives the program its images: on macOS in the bundle, elsewhere in a resource bundle beside the
#   executable. They are made from their sources by scripts/render-images.
function(quellbar_resources target)
  set(folder ${PROJECT_SOURCE_DIR}/resources)
  set(images
    icon_512x512.png
    menubar_icon.png menubar_icon@2x.png
    menubar_icon_active.png menubar_icon_active@2x.png
  )
  if(QUELLBAR_HOST STREQUAL macos)
    list(TRANSFORM images PREPEND ${folder}/)
    list(APPEND images ${folder}/Quellbar.icns)
    target_sources(${target} PRIVATE ${images})
    set_source_files_properties(${images} PROPERTIES MACOSX_PACKAGE_LOCATION Resources)
    return()
  endif()
  foreach(image IN LISTS images)
    configure_file(${folder}/${image}
      ${PROJECT_BINARY_DIR}/Quellbar_Quellbar.bundle/Resources/${image} COPYONLY)
  endforeach()
endfunction()
