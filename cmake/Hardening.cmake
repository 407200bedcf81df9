# SPDX-License-Identifier: MIT
# What is given to others is hardened. Flags of a distribution that harden already,
# the compiler's own or the environment's, are left alone, and so is a build that is
# not optimised or is sanitized.
include(CheckCXXCompilerFlag)
include(CheckCXXSourceCompiles)
include(CheckLinkerFlag)

set(CMAKE_TRY_COMPILE_CONFIGURATION ${CMAKE_BUILD_TYPE})
unset(ORVALEN_HARDENED_BY_US CACHE) # the flags may have changed
check_cxx_source_compiles("
    #if !defined __OPTIMIZE__ || defined _FORTIFY_SOURCE || defined __SSP_STRONG__ || defined __SSP_ALL__
    #error
    #endif
    int main() {}" ORVALEN_HARDENED_BY_US)
if(ORVALEN_SANITIZE OR NOT ORVALEN_HARDENED_BY_US)
    return()
endif()

target_compile_options(project_options INTERFACE -fstack-protector-strong)
target_compile_definitions(project_options INTERFACE _FORTIFY_SOURCE=2)
foreach(flag IN ITEMS -fstack-clash-protection -fcf-protection) # not on every processor
    string(MAKE_C_IDENTIFIER ${flag} taken)
    check_cxx_compiler_flag(${flag} ${taken})
    target_compile_options(project_options INTERFACE $<$<BOOL:${${taken}}>:${flag}>)
endforeach()
check_linker_flag(CXX -Wl,-z,relro,-z,now ORVALEN_HAS_RELRO) # not on every system
target_link_options(project_options INTERFACE $<$<BOOL:${ORVALEN_HAS_RELRO}>:-Wl,-z,relro,-z,now>)
