# SPDX-License-Identifier: MIT
# install() to a folder that everybody can enter, whoever makes it: CMake leaves the
# modes of new folders to the umask.
function(install_for_all folder)
    install(CODE "set(folder [[${folder}]])
        include([[${PROJECT_SOURCE_DIR}/cmake/make_open_folder.cmake]])")
    install(${ARGN} DESTINATION ${folder})
endfunction()
