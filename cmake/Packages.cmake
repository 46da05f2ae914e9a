# Debian packages of the three installed components, for `make packages`, which sets CMAKE_INSTALL_PREFIX to /usr.

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME tqfoundation)
# The developer, as in the library.
file(READ Sources/Catalogue/DeveloperIdentity.h identity)
foreach(entry IN ITEMS name homePage supportAddress)
    string(REGEX MATCH " \\*${entry} =[^;]*\"([^\"]+)\"\\)?;" _ "${identity}")
    set(developer_${entry} ${CMAKE_MATCH_1})
endforeach()
set(CPACK_PACKAGE_VENDOR "${developer_name}")
set(CPACK_PACKAGE_CONTACT "${developer_name} <${developer_supportAddress}>")
set(CPACK_PACKAGE_DIRECTORY ${PROJECT_BINARY_DIR}/packages)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_HOMEPAGE "${developer_homePage}")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_COMPONENTS_ALL runtime development qml)
set(CPACK_POST_BUILD_SCRIPTS ${PROJECT_SOURCE_DIR}/cmake/debian/RemoveScripts.cmake)
set(CPACK_STRIP_FILES ON)
# Permissions of packaged folders, independent of the umask of the build.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(library_package libtqfoundation${PROJECT_VERSION_MAJOR})
set(version "(= ${PROJECT_VERSION}-${CPACK_DEBIAN_PACKAGE_RELEASE})")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME ${library_package})
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
# CPack would search the QML plugin, which no package links, for a version too.
file(CONFIGURE OUTPUT debian/shlibs
    CONTENT "libTQFoundation @PROJECT_VERSION_MAJOR@ @library_package@ (>= @PROJECT_VERSION@)\n" @ONLY)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA
    ${PROJECT_SOURCE_DIR}/cmake/debian/triggers ${PROJECT_BINARY_DIR}/debian/shlibs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_DEPENDS
    "qml6-module-qtqml, qml6-module-qtqml-workerscript, qml6-module-qtquick, qml6-module-qtquick-controls, qml6-module-qtquick-templates, qml6-module-qtquick-window")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS "qml6-module-qtwebengine, xdg-utils")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SUGGESTS "default-mta | mail-transport-agent")
set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "The catalogue itself, a row of its icons, an onboarding guide, the texts
and links of a More screen, and an animated background, for apps on Qt Quick.")

set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libtqfoundation-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
    "${library_package} ${version}, qml6-module-tqfoundation ${version}, qt6-base-dev (>= 6.4), qt6-declarative-dev (>= 6.4)")
set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "For building such apps: headers, the packages for CMake and pkg-config,
a recording platform for the tests of apps, documents and example apps.")

set(CPACK_DEBIAN_QML_PACKAGE_NAME qml6-module-tqfoundation)
set(CPACK_DEBIAN_QML_PACKAGE_SECTION libs)
# The library package has all its other dependencies.
set(CPACK_DEBIAN_QML_PACKAGE_DEPENDS "${library_package} ${version}, libc6")
set(CPACK_COMPONENT_QML_DESCRIPTION "The QML module for apps that are written in QML alone and started by the
QML runtime.")

# Changelogs and copyright, which every Debian package has to contain.
string(TIMESTAMP date "%a, %d %b %Y 00:00:00 +0000" UTC)
file(CONFIGURE OUTPUT debian/changelog CONTENT
"tqfoundation (@PROJECT_VERSION@-@CPACK_DEBIAN_PACKAGE_RELEASE@) unstable; urgency=medium

  * See changelog.gz.

 -- @CPACK_PACKAGE_CONTACT@  @date@
" @ONLY)
find_program(GZIP gzip REQUIRED)
execute_process(COMMAND ${GZIP} -9nc ${PROJECT_BINARY_DIR}/debian/changelog
    OUTPUT_FILE ${PROJECT_BINARY_DIR}/debian/changelog.Debian.gz COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${GZIP} -9nc ${PROJECT_SOURCE_DIR}/CHANGELOG.md
    OUTPUT_FILE ${PROJECT_BINARY_DIR}/debian/changelog.gz COMMAND_ERROR_IS_FATAL ANY)
foreach(part IN ITEMS RUNTIME DEVELOPMENT QML)
    string(TOLOWER ${part} component)
    set(package ${CPACK_DEBIAN_${part}_PACKAGE_NAME})
    set(documents ${CMAKE_INSTALL_DATADIR}/doc/${package})
    install(FILES ${PROJECT_BINARY_DIR}/debian/changelog.Debian.gz ${PROJECT_BINARY_DIR}/debian/changelog.gz
        DESTINATION ${documents} COMPONENT ${component})
    install(FILES LICENSE DESTINATION ${documents} RENAME copyright COMPONENT ${component})
    file(WRITE ${PROJECT_BINARY_DIR}/debian/${package}
        "# Not for Debian's own archive, where the first version of a package closes a request for it.\n"
        "${package}: initial-upload-closes-no-bugs\n")
    install(FILES ${PROJECT_BINARY_DIR}/debian/${package}
        DESTINATION ${CMAKE_INSTALL_DATADIR}/lintian/overrides COMPONENT ${component})
endforeach()

include(CPack)
