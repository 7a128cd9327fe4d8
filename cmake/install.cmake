# What is installed, in components: runtime (the shared library, the licence), development (all else), and the hosts c and
# python.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

install(TARGETS draftwick EXPORT draftwick
    RUNTIME COMPONENT runtime
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development
    FILE_SET HEADERS COMPONENT development)

# find_package(draftwick)
set(cmake_folder ${CMAKE_INSTALL_LIBDIR}/cmake/draftwick)
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/draftwick-config.cmake.in
    ${PROJECT_BINARY_DIR}/draftwick-config.cmake INSTALL_DESTINATION ${cmake_folder}
    NO_SET_AND_CHECK_MACRO NO_CHECK_REQUIRED_COMPONENTS_MACRO)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/draftwick-config-version.cmake COMPATIBILITY SameMajorVersion)
install(EXPORT draftwick NAMESPACE draftwick:: FILE draftwick-targets.cmake
    DESTINATION ${cmake_folder} COMPONENT development)
install(FILES
    ${PROJECT_BINARY_DIR}/draftwick-config.cmake ${PROJECT_BINARY_DIR}/draftwick-config-version.cmake
    DESTINATION ${cmake_folder} COMPONENT development)

# pkg-config draftwick. An archive brings what it needs, a shared library has it.
set(pc_folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
file(RELATIVE_PATH pc_to_prefix ${CMAKE_INSTALL_FULL_LIBDIR}/pkgconfig ${CMAKE_INSTALL_PREFIX})
string(REGEX REPLACE "/$" "" pc_to_prefix ${pc_to_prefix})
file(RELATIVE_PATH pc_libdir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_LIBDIR})
file(RELATIVE_PATH pc_includedir ${CMAKE_INSTALL_PREFIX} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
if(BUILD_SHARED_LIBS)
    set(pc_libs "")
endif()
list(TRANSFORM pc_libs PREPEND " ")
list(JOIN pc_libs "" pc_libs)
set(pc_name draftwick)
configure_file(${PROJECT_SOURCE_DIR}/cmake/draftwick.pc.in ${PROJECT_BINARY_DIR}/draftwick.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/draftwick.pc DESTINATION ${pc_folder} COMPONENT development)
if(DRAFTWICK_C)
    set(pc_name draftwick_c)
    set(pc_libs "")
    configure_file(${PROJECT_SOURCE_DIR}/cmake/draftwick.pc.in ${PROJECT_BINARY_DIR}/draftwick_c.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/draftwick_c.pc DESTINATION ${pc_folder} COMPONENT c)
endif()

install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT runtime)
# The pages, with links that lead somewhere: headers are elsewhere, and what only the sources have is no link.
file(RELATIVE_PATH to_headers ${CMAKE_INSTALL_FULL_DOCDIR} ${CMAKE_INSTALL_FULL_INCLUDEDIR})
file(GLOB_RECURSE pages RELATIVE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/docs/*.md)
foreach(page README.md CHANGELOG.md SECURITY.md ${pages})
    file(READ ${PROJECT_SOURCE_DIR}/${page} text)
    string(REGEX REPLACE "\\]\\(((\\.\\./)*)(draftwick[/)])" "](\\1${to_headers}/\\3" text "${text}")
    string(REGEX REPLACE "\\[([^]\n]*)\\]\\(((\\.\\./)*)(HACKING|RELEASING|packaging|hosts|tests|bench|scripts)[^)]*\\)"
        "\\1" text "${text}")
    file(WRITE ${PROJECT_BINARY_DIR}/pages/${page} "${text}")
endforeach()
install(DIRECTORY ${PROJECT_BINARY_DIR}/pages/ DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/docs/pictures DESTINATION ${CMAKE_INSTALL_DOCDIR}/docs COMPONENT development)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/examples DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT development
    FILES_MATCHING REGEX "\\.(cpp|h|py|vbs|js|ps1|bas)$")

# cpack -G DEB, from a build for the prefix /usr: see the preset package. Who gives packages away says who he is with
# cpack -D CPACK_PACKAGE_CONTACT="...".
set(CPACK_PACKAGE_VENDOR "Draftwick")
set(CPACK_PACKAGE_CONTACT "The Draftwick developers <draftwick@localhost>")
set(CPACK_RESOURCE_FILE_LICENSE ${PROJECT_SOURCE_DIR}/LICENSE)
set(CPACK_VERBATIM_VARIABLES ON)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME libdraftwick${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
file(WRITE ${PROJECT_BINARY_DIR}/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/triggers)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libdraftwick-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
if(BUILD_SHARED_LIBS)
    set(CPACK_COMPONENTS_ALL runtime development)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
        "libdraftwick${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
else()
    set(CPACK_COMPONENTS_ALL development)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "libgif-dev")
endif()
# What a host links is in the same version of the library, or in the host itself.
foreach(host IN ITEMS C PYTHON)
    if(DRAFTWICK_${host})
        string(TOLOWER ${host} component)
        list(APPEND CPACK_COMPONENTS_ALL ${component})
        if(BUILD_SHARED_LIBS)
            set(CPACK_DEBIAN_${host}_PACKAGE_DEPENDS "libdraftwick${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
        else()
            set(CPACK_DEBIAN_${host}_PACKAGE_DEPENDS "libgif7")
        endif()
    endif()
endforeach()
set(CPACK_DEBIAN_C_PACKAGE_NAME libdraftwick-c${PROJECT_VERSION_MAJOR})
set(CPACK_DEBIAN_C_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME python3-draftwick)
set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION python)
string(APPEND CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS ", python3 (>= 3.10)")
# The command, which needs this library and no other version of it.
if(DRAFTWICK_COMMAND)
    list(APPEND CPACK_COMPONENTS_ALL command)
    set(CPACK_DEBIAN_COMMAND_PACKAGE_NAME draftwick)
    set(CPACK_DEBIAN_COMMAND_PACKAGE_SECTION text)
    set(CPACK_DEBIAN_COMMAND_PACKAGE_SHLIBDEPS ON)
    if(BUILD_SHARED_LIBS)
        set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${PROJECT_BINARY_DIR}/draftwick)
        set(CPACK_DEBIAN_COMMAND_PACKAGE_DEPENDS "libdraftwick${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
    endif()
    set(CPACK_COMPONENT_COMMAND_DESCRIPTION
        "This command writes Markdown, data in CSV and JSON,\nand documents in JSON as RTF that word processors open.")
endif()
string(CONCAT description
    "Draftwick streams documents of sections, paragraphs, tables, lists, notes,\n"
    "fields, shapes and pictures to one RTF file.")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "${description} This is the shared library.")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "${description} These are its headers and\nwhat CMake and pkg-config need.")
set(CPACK_COMPONENT_C_DESCRIPTION "${description} This is the interface for C\nand every language that can call C.")
set(CPACK_COMPONENT_PYTHON_DESCRIPTION "${description} This is the package for Python 3.")
# cpack -G ZIP, from the preset automation: what automation hosts on Windows need.
set(CPACK_ARCHIVE_AUTOMATION_FILE_NAME draftwick-automation-${PROJECT_VERSION}-x64)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
    set(CPACK_ARCHIVE_COMPONENT_INSTALL ON)
    set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
    set(CPACK_COMPONENT_INCLUDE_TOPLEVEL_DIRECTORY OFF)
    set(CPACK_COMPONENTS_ALL automation)
else()
    set(CPACK_PRE_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian-docs.cmake)
endif()
include(CPack)
