# What every target of the project has in common: warnings, sanitizers, headers that compile alone, and the folder
# OrvelWidgets.appex in which the programs lie.

add_library(OrvelOptions INTERFACE)
target_compile_options(OrvelOptions INTERFACE
    -Wall -Wextra -Wpedantic -Werror -Wconversion -Wshadow -Wnon-virtual-dtor -Wold-style-cast -Wimplicit-fallthrough)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    # g++ 12 sees overlaps in std::string that cannot be (its bug 105329).
    target_compile_options(OrvelOptions INTERFACE -Wno-restrict)
endif()
if(ORVEL_SANITIZERS)
    list(JOIN ORVEL_SANITIZERS "," sanitizers)
    add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${sanitizers})
endif()

# A header that does not compile alone fails the build of the target all_verify_interface_header_sets.
set(CMAKE_VERIFY_INTERFACE_HEADER_SETS ON)

# orvel_library(NAME [LINKS downward libraries…] [PRIVATE_LINKS libraries that its headers never show…])
# One folder is one library; every source and header in it belongs to it.
function(orvel_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;PRIVATE_LINKS")
    file(GLOB headers CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.h")
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
    add_library(${name} STATIC ${sources})
    target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}" FILES ${headers})
    target_link_libraries(${name} PUBLIC ${arg_LINKS} PRIVATE OrvelOptions ${arg_PRIVATE_LINKS})
endfunction()

# orvel_program(NAME LINKS libraries…): a program in OrvelWidgets.appex, with a link to it in bin/.
function(orvel_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS")
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
    add_executable(${name} ${sources})
    target_include_directories(${name} PRIVATE "${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE OrvelOptions ${arg_LINKS})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${ORVEL_PRODUCTS}/OrvelWidgets.appex")
    add_custom_command(TARGET ${name} POST_BUILD
        COMMAND ${CMAKE_COMMAND} -E make_directory "${ORVEL_PRODUCTS}/bin"
        COMMAND ${CMAKE_COMMAND} -E create_symlink "../OrvelWidgets.appex/${name}" "${ORVEL_PRODUCTS}/bin/${name}")
endfunction()

configure_file("${PROJECT_SOURCE_DIR}/Resources/OrvelWidgets.appex/Info.json"
    "${ORVEL_PRODUCTS}/OrvelWidgets.appex/Info.json" COPYONLY)
