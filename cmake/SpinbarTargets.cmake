# Every target of the project is made by one of the functions below, so that flags stand in one place.

add_library(spinbar_options INTERFACE)
target_include_directories(spinbar_options INTERFACE "${PROJECT_SOURCE_DIR}/src")
target_compile_definitions(spinbar_options INTERFACE
    QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_FOREACH
    QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400
    SPINBAR_VERSION="${PROJECT_VERSION}")
target_compile_options(spinbar_options INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual>
    $<$<CXX_COMPILER_ID:MSVC>:/W4 /utf-8 /permissive->)
if(SPINBAR_WERROR)
    target_compile_options(spinbar_options INTERFACE
        $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Werror>
        $<$<CXX_COMPILER_ID:MSVC>:/WX>)
endif()
if(SPINBAR_SANITIZE)
    target_compile_options(spinbar_options INTERFACE
        -fsanitize=${SPINBAR_SANITIZE} -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(spinbar_options INTERFACE -fsanitize=${SPINBAR_SANITIZE})
endif()
if(SPINBAR_FUZZ)
    target_compile_options(spinbar_options INTERFACE -fsanitize=fuzzer-no-link)
endif()

# spinbar_library(<name> SOURCES <files> LINKS <libraries>): the static library of one folder.
function(spinbar_library name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINKS;PRIVATE_LINKS")
    add_library(${name} STATIC ${ARG_SOURCES})
    target_link_libraries(${name} PUBLIC spinbar_options ${ARG_LINKS} PRIVATE ${ARG_PRIVATE_LINKS})
endfunction()

# spinbar_program(<target> NAME <file name> SOURCES <files> LINKS <libraries>): an installed executable.
function(spinbar_program target)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "NAME" "SOURCES;LINKS")
    add_executable(${target} ${ARG_SOURCES})
    set_target_properties(${target} PROPERTIES
        OUTPUT_NAME "${ARG_NAME}"
        RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
    target_link_libraries(${target} PRIVATE spinbar_options ${ARG_LINKS})
    install(TARGETS ${target} RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
endfunction()

# spinbar_test(<name> SOURCES <files> LINKS <libraries> [ENVIRONMENT <VAR=value>...]): a Qt Test program that
# runs headless with every standard path inside a folder of its own.
function(spinbar_test name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "" "SOURCES;LINKS;ENVIRONMENT")
    add_executable(${name} ${ARG_SOURCES})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_link_libraries(${name} PRIVATE spinbar_options Qt6::Test ${ARG_LINKS})
    set(home "${PROJECT_BINARY_DIR}/test-home/${name}")
    # Temporary folders too, since a trash can be reached within one file system only.
    foreach(folder data config runtime tmp)
        file(MAKE_DIRECTORY "${home}/${folder}")
    endforeach()
    file(CHMOD "${home}/runtime" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
    add_test(NAME ${name} COMMAND ${SPINBAR_TEST_LAUNCHER} $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES
        TIMEOUT ${SPINBAR_TEST_SECONDS}
        ENVIRONMENT "QT_QPA_PLATFORM=offscreen;LANG=C.UTF-8;LC_ALL=C.UTF-8;HOME=${home};XDG_DATA_HOME=${home}/data;XDG_CONFIG_HOME=${home}/config;XDG_RUNTIME_DIR=${home}/runtime;TMPDIR=${home}/tmp;SPINBAR_SERIAL_PORTS=;${ARG_ENVIRONMENT}")
endfunction()
