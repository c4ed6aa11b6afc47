find_package(PkgConfig QUIET)

# spinbar_find_library(<name> MODULE <of pkg-config> HEADER <file> LIBRARY <file>): gives PkgConfig::<name>, also
# where the library or the system knows nothing of pkg-config.
function(spinbar_find_library name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "MODULE;HEADER;LIBRARY" "")
    if(PkgConfig_FOUND)
        pkg_check_modules(${name} IMPORTED_TARGET ${ARG_MODULE})
    endif()
    if(NOT TARGET PkgConfig::${name})
        find_path(${name}_INCLUDE_DIR ${ARG_HEADER} REQUIRED)
        find_library(${name}_LIBRARY NAMES ${ARG_LIBRARY} lib${ARG_LIBRARY} REQUIRED)
        add_library(PkgConfig::${name} INTERFACE IMPORTED)
        target_include_directories(PkgConfig::${name} INTERFACE "${${name}_INCLUDE_DIR}")
        target_link_libraries(PkgConfig::${name} INTERFACE "${${name}_LIBRARY}")
    endif()
endfunction()
