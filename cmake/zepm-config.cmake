# find_package(zepm): the targets zepm::zepm and zepm::zepcore. There are no components.
foreach(component IN LISTS zepm_FIND_COMPONENTS)
    if(zepm_FIND_REQUIRED_${component})
        set(zepm_FOUND FALSE)
        set(zepm_NOT_FOUND_MESSAGE "zepm has no component \"${component}\".")
        return()
    endif()
endforeach()
include(${CMAKE_CURRENT_LIST_DIR}/zepm-targets.cmake)
