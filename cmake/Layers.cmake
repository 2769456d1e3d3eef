# What each layer may link, and so include. A layer knows only those below it: a link line that says
# otherwise ends the configuration.

# velmora_layer(<target> <library>...)
function(velmora_layer target)
  get_target_property(linked ${target} LINK_LIBRARIES)
  foreach(library IN LISTS linked)
    if(NOT library IN_LIST ARGN AND NOT library STREQUAL "Threads::Threads")
      message(FATAL_ERROR "${target} links ${library}, which is not a layer below it")
    endif()
  endforeach()
endfunction()

velmora_layer(velmora_core)
velmora_layer(velmora_session velmora_core)
if(VELMORA_DESKTOP)
  velmora_layer(velmora_project velmora_session Qt6::Core)
  velmora_layer(velmora_app velmora_project Qt6::Gui Qt6::Network Qt6::Qml)
  velmora_layer(velmora_qml velmora_app Qt6::Quick Qt6::Qml)
  velmora_layer(dunmarrow-cli velmora_project velmora_bench_spots Qt6::Core)
endif()
