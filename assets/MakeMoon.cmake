# SPDX-License-Identifier: MIT
# make_moon runs during the build. A build for another machine takes the one that
# it is given, or has it built for this machine by this machine's own compiler.
set(ORVALEN_MAKE_MOON "" CACHE FILEPATH
    "The program that computes the moon's picture, where it is not to be built")

function(import_make_moon program)
    add_executable(make_moon IMPORTED GLOBAL)
    set_target_properties(make_moon PROPERTIES IMPORTED_LOCATION ${program})
endfunction()

function(build_make_moon_for_this_machine)
    include(ExternalProject)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/make_moon)
    ExternalProject_Add(make_moon_for_this_machine
        SOURCE_DIR ${CMAKE_CURRENT_SOURCE_DIR}/moonpicture
        BINARY_DIR ${folder}
        CONFIGURE_COMMAND
            ${CMAKE_COMMAND} -E env --unset=CXX --unset=CXXFLAGS --unset=LDFLAGS
                --unset=CMAKE_TOOLCHAIN_FILE
            ${CMAKE_COMMAND} -G ${CMAKE_GENERATOR} -DCMAKE_BUILD_TYPE=Release
                -S <SOURCE_DIR> -B <BINARY_DIR>
        BUILD_COMMAND ${CMAKE_COMMAND} --build <BINARY_DIR>
        BUILD_ALWAYS ON
        BUILD_BYPRODUCTS ${folder}/make_moon
        INSTALL_COMMAND "")
    import_make_moon(${folder}/make_moon)
    add_dependencies(make_moon make_moon_for_this_machine)
endfunction()

if(ORVALEN_MAKE_MOON)
    import_make_moon(${ORVALEN_MAKE_MOON})
elseif(CMAKE_CROSSCOMPILING)
    build_make_moon_for_this_machine()
else()
    add_subdirectory(moonpicture)
endif()
