# SPDX-License-Identifier: MIT
# Makes the variable folder and what is missing above it, while installing. A folder
# that is there keeps its mode.
cmake_path(ABSOLUTE_PATH folder BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}")
set(folder "$ENV{DESTDIR}${folder}")
set(missing)
while(NOT EXISTS "${folder}")
    list(PREPEND missing "${folder}")
    cmake_path(GET folder PARENT_PATH folder)
endwhile()
foreach(made IN LISTS missing)
    file(MAKE_DIRECTORY "${made}")
    file(CHMOD "${made}" PERMISSIONS
        OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
endforeach()
