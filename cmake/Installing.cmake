# Installation in three components: runtime (the shared library), development (headers, CMake and pkg-config files), and
# qml (the QML module, for hosts that do not link the library). cmake/Packages.cmake makes a package of each.

include(CMakePackageConfigHelpers)
set(TQFOUNDATION_INSTALL_CMAKEDIR ${CMAKE_INSTALL_LIBDIR}/cmake/TQFoundation)
# Below /usr, Debian's Qt searches for modules in qt6/qml.
set(qml_folder ${CMAKE_INSTALL_LIBDIR}/qml)
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr")
    set(qml_folder ${CMAKE_INSTALL_LIBDIR}/qt6/qml)
endif()
set(TQFOUNDATION_INSTALL_QMLDIR ${qml_folder} CACHE STRING "Folder of QML modules, relative to the prefix")

install(TARGETS TQFoundation EXPORT TQFoundationTargets
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT runtime)
if(NOT BUILD_SHARED_LIBS)
    get_target_property(objects TQFoundation TQ_OBJECTS)
    install(TARGETS ${objects} EXPORT TQFoundationTargets
        OBJECTS DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
endif()
get_target_property(public_headers TQFoundation TQ_PUBLIC_HEADERS)
install(FILES ${public_headers} ${header_folder}/tqfoundation_export.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TQFoundation COMPONENT development)
if(TQFOUNDATION_TESTING)
    install(TARGETS TQFoundationTesting EXPORT TQFoundationTargets
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT development)
    install(FILES Tests/Support/RecordingPlatform.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/TQFoundation/Testing COMPONENT development)
endif()
install(EXPORT TQFoundationTargets NAMESPACE TQFoundation::
    DESTINATION ${TQFOUNDATION_INSTALL_CMAKEDIR} COMPONENT development)
configure_package_config_file(cmake/TQFoundationConfig.cmake.in ${PROJECT_BINARY_DIR}/TQFoundationConfig.cmake
    INSTALL_DESTINATION ${TQFOUNDATION_INSTALL_CMAKEDIR}
    PATH_VARS TQFOUNDATION_INSTALL_QMLDIR)
write_basic_package_version_file(${PROJECT_BINARY_DIR}/TQFoundationConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES
    ${PROJECT_BINARY_DIR}/TQFoundationConfig.cmake
    ${PROJECT_BINARY_DIR}/TQFoundationConfigVersion.cmake
    cmake/TQFoundationHostInfo.cmake
    DESTINATION ${TQFOUNDATION_INSTALL_CMAKEDIR} COMPONENT development)
# A host of the static library links objects too, which pkg-config cannot find, and its QML module needs no plugin.
if(BUILD_SHARED_LIBS)
    # Relative to the file's own folder, so that the prefix can be moved.
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
        BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${CMAKE_INSTALL_LIBDIR}/pkgconfig OUTPUT_VARIABLE prefix_from_pkgconfig)
    configure_file(cmake/tqfoundation.pc.in ${PROJECT_BINARY_DIR}/tqfoundation.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/tqfoundation.pc
        DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig COMPONENT development)

    # The plugin finds the library relative to its own folder; below /usr the dynamic linker finds it.
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_LIBDIR BASE_DIRECTORY ${TQFOUNDATION_INSTALL_QMLDIR}/TQFoundation
        OUTPUT_VARIABLE library_from_plugin)
    if(NOT CMAKE_INSTALL_PREFIX STREQUAL "/usr")
        set_target_properties(TQFoundationplugin PROPERTIES INSTALL_RPATH "$ORIGIN/${library_from_plugin}")
    endif()
    install(TARGETS TQFoundationplugin
        LIBRARY DESTINATION ${TQFOUNDATION_INSTALL_QMLDIR}/TQFoundation COMPONENT qml
        RUNTIME DESTINATION ${TQFOUNDATION_INSTALL_QMLDIR}/TQFoundation COMPONENT qml)
endif()
install(DIRECTORY ${CMAKE_BINARY_DIR}/qml/TQFoundation/
    DESTINATION ${TQFOUNDATION_INSTALL_QMLDIR}/TQFoundation COMPONENT qml
    FILES_MATCHING PATTERN "Base" EXCLUDE PATTERN "Desktop" EXCLUDE PATTERN "Nibs" EXCLUDE PATTERN "qmldir" PATTERN "*.qmltypes" PATTERN "*.qml")

# Documents and examples, each of which is a project by itself except Grove. The paths in documents are those of the
# source tree, so they are replaced.
if(PROJECT_IS_TOP_LEVEL)
    set(TQFOUNDATION_INSTALL_DOCDIR ${CMAKE_INSTALL_DATADIR}/doc/TQFoundation
        CACHE STRING "Folder of documents, relative to the prefix")
    cmake_path(RELATIVE_PATH CMAKE_INSTALL_INCLUDEDIR BASE_DIRECTORY ${TQFOUNDATION_INSTALL_DOCDIR}
        OUTPUT_VARIABLE headers)
    file(GLOB pages RELATIVE ${PROJECT_SOURCE_DIR} *.md docs/*.md)
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${pages})
    foreach(page IN LISTS pages)
        file(READ ${page} text)
        string(REPLACE "](Sources/Platform/" "](${headers}/TQFoundation/" text "${text}")
        string(REPLACE "](Tests/Support/" "](${headers}/TQFoundation/Testing/" text "${text}")
        string(REPLACE "Tests/Consumer" "examples" text "${text}")
        string(REGEX REPLACE "([`(])Example/" "\\1examples/Grove/" text "${text}")
        file(WRITE ${PROJECT_BINARY_DIR}/documents/${page} "${text}")
    endforeach()
    install(DIRECTORY ${PROJECT_BINARY_DIR}/documents/
        DESTINATION ${TQFOUNDATION_INSTALL_DOCDIR} COMPONENT development)
    install(FILES LICENSE DESTINATION ${TQFOUNDATION_INSTALL_DOCDIR} COMPONENT development)
    install(DIRECTORY docs/pictures DESTINATION ${TQFOUNDATION_INSTALL_DOCDIR}/docs COMPONENT development)
    install(DIRECTORY Example/ DESTINATION ${TQFOUNDATION_INSTALL_DOCDIR}/examples/Grove COMPONENT development)
    foreach(host IN ITEMS CppHost FirstApp HostTests MoreHost QmlOnlyHost SheetHost SmallestHost WidgetsHost)
        install(DIRECTORY Tests/Consumer/${host} DESTINATION ${TQFOUNDATION_INSTALL_DOCDIR}/examples
            COMPONENT development)
    endforeach()
endif()
