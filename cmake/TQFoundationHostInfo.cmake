# tq_add_host_info(<target> [DISPLAY_NAME <text>] [NAME <text>] [VERSION <text>] [BUILD <text>])
#
# Writes an Info.plist with the given entries and embeds it in <target>. The library reads the host app's name, version
# and build from it; on Apple systems it is the bundle's Info.plist as well. For an entry that is missing or empty the
# library uses its documented fallback. Texts are taken verbatim. Call it after qt_add_qml_module().
cmake_policy(PUSH)
if(POLICY CMP0174)
    cmake_policy(SET CMP0174 NEW)
endif()
function(tq_add_host_info target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DISPLAY_NAME;NAME;VERSION;BUILD" "")
    if(arg_UNPARSED_ARGUMENTS OR arg_KEYWORDS_MISSING_VALUES)
        message(FATAL_ERROR "A host's entries are DISPLAY_NAME, NAME, VERSION and BUILD, each with a text; "
                            "cannot use '${arg_UNPARSED_ARGUMENTS}${arg_KEYWORDS_MISSING_VALUES}'")
    endif()

    set(entries "")
    foreach(pair IN ITEMS DISPLAY_NAME=CFBundleDisplayName NAME=CFBundleName
                          VERSION=CFBundleShortVersionString BUILD=CFBundleVersion)
        string(REGEX MATCH "^(.+)=(.+)$" _ ${pair})
        set(name ${CMAKE_MATCH_1})
        set(key ${CMAKE_MATCH_2})
        if(NOT "${arg_${name}}" STREQUAL "")
            set(value "${arg_${name}}")
            string(REPLACE "&" "&amp;" value "${value}")
            string(REPLACE "<" "&lt;" value "${value}")
            string(REPLACE ">" "&gt;" value "${value}")
            string(APPEND entries "    <key>${key}</key>\n    <string>${value}</string>\n")
        endif()
    endforeach()

    set(plist "${CMAKE_CURRENT_BINARY_DIR}/${target}-info/Info.plist")
    set(text "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n${entries}</dict>\n</plist>\n")
    # Written only if it differs, so that the same text causes no rebuild.
    file(CONFIGURE OUTPUT "${plist}" CONTENT "@text@" @ONLY)
    set_source_files_properties("${plist}" PROPERTIES QT_RESOURCE_ALIAS Info.plist)
    qt_add_resources(${target} "${target}_host_info" PREFIX / FILES "${plist}")
    set_target_properties(${target} PROPERTIES MACOSX_BUNDLE_INFO_PLIST "${plist}")

    # A shared Qt loads QML modules at run time, and yet from 6.8 on warns of each plugin that it will not link.
    # qt_add_qml_module() resets the property, so it has to be called first.
    if(QT6_IS_SHARED_LIBS_BUILD)
        set_target_properties(${target} PROPERTIES QT_QML_MODULE_NO_IMPORT_SCAN ON)
    endif()
endfunction()
cmake_policy(POP)
