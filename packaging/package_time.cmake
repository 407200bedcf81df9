# SPDX-License-Identifier: MIT
# All files of a package carry the time of its changelog, so that it does not
# matter when it was built. A time given from outside is left alone.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(
        COMMAND dpkg-parsechangelog -l ${CMAKE_CURRENT_LIST_DIR}/debian/changelog -S Timestamp
        OUTPUT_VARIABLE time OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    set(ENV{SOURCE_DATE_EPOCH} ${time})
endif()
