# What every target of this project is compiled with.
add_library(quib_options INTERFACE)
add_library(Quib::options ALIAS quib_options)
target_compile_options(quib_options INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wsign-conversion
    "$<$<COMPILE_LANGUAGE:CXX>:-Wnon-virtual-dtor;-Woverloaded-virtual;-Wold-style-cast>"
    -Wno-missing-field-initializers # a designated initialiser names what differs from the defaults
    $<$<BOOL:${QUIB_WERROR}>:-Werror>)
# Every test links what a debugger reads of all that it tests: with variables too the tests are four times as large.
target_compile_options(quib_options INTERFACE $<$<CONFIG:Debug>:${QUIB_DEBUG_INFO}>)
target_compile_definitions(quib_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
    QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_NARROWING_CONVERSIONS_IN_CONNECT QT_STRICT_ITERATORS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(Qt6_VERSION VERSION_GREATER_EQUAL 6.5 AND Qt6_VERSION VERSION_LESS 6.10)
    # In the meantime the QTRY_ macros turned a long of milliseconds into an int, where they are used.
    set(links_tests $<IN_LIST:Qt6::Test,$<TARGET_PROPERTY:LINK_LIBRARIES>>)
    target_compile_options(quib_options INTERFACE $<${links_tests}:-Wno-conversion>)
endif()
if(QUIB_SANITIZE)
    target_compile_options(quib_options INTERFACE -fsanitize=${QUIB_SANITIZE} -fno-omit-frame-pointer)
    target_link_options(quib_options INTERFACE -fsanitize=${QUIB_SANITIZE})
    if(QUIB_SANITIZE STREQUAL thread AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        target_compile_options(quib_options INTERFACE -Wno-tsan) # Qt's headers have fences, which it does not know.
    endif()
    set(sanitizers ${CMAKE_CURRENT_LIST_DIR}/sanitizers)
    target_sources(quib_options INTERFACE ${sanitizers}/options.cpp)
    target_compile_definitions(quib_options INTERFACE SUPPRESSIONS="${sanitizers}")
endif()

# quib_library(model SOURCES store.cpp ... LINKS Qt6::Core): one static library per folder.
# With QML_URI the library is a QML module too, whose types QML's tools know with those of the modules it links.
function(quib_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "QML_URI" "SOURCES;LINKS;QML_FILES")
    qt_add_library(quib_${name} STATIC ${arg_SOURCES})
    add_library(Quib::${name} ALIAS quib_${name})
    target_include_directories(quib_${name} PUBLIC ${PROJECT_SOURCE_DIR}/src)
    target_link_libraries(quib_${name} PUBLIC ${arg_LINKS} PRIVATE Quib::options)
    if(arg_QML_URI)
        set(modules QtQuick QtQml.Models)
        set(types "")
        foreach(link IN LISTS arg_LINKS)
            get_target_property(uri ${link} QT_QML_MODULE_URI)
            if(uri)
                get_target_property(types_of_module ${link} QT_QML_MODULE_PLUGIN_TYPES_FILE)
                list(APPEND modules ${uri})
                list(APPEND types ${types_of_module})
            endif()
        endforeach()
        qt_add_qml_module(quib_${name} URI ${arg_QML_URI} VERSION 1.0 NO_PLUGIN RESOURCE_PREFIX /qt/qml
            DEPENDENCIES ${modules} QML_FILES ${arg_QML_FILES}
            IMPORT_PATH ${QT_QML_OUTPUT_DIRECTORY}) # else the compiler finds none of them, and says nothing
        get_target_property(generated quib_${name} SOURCES)
        list(FILTER generated INCLUDE REGEX "/qmlcache/")
        foreach(view IN LISTS generated)
            if(view MATCHES "_qml\\.cpp$")
                add_custom_command(OUTPUT ${view} APPEND DEPENDS ${types}) # it is compiled against them
            endif()
        endforeach()
        set_source_files_properties(${generated} PROPERTIES COMPILE_OPTIONS
            -Wno-conversion) # Qt 6.4 turns the length of a text or list into an int
    else()
        qt_extract_metatypes(quib_${name}) # so that QML tools know the types of this library
        target_compile_options(quib_${name} PRIVATE -Wshadow) # Qt 6.4's generated QML code shadows
    endif()
endfunction()

# quib_chance(tst_killrounds): that test tries chance, and `ctest -C Long` lets it try more often.
function(quib_chance name)
    get_test_property(${name} ENVIRONMENT environment)
    add_test(NAME ${name}_long COMMAND ${name} CONFIGURATIONS Long)
    set_tests_properties(${name}_long PROPERTIES LABELS chance TIMEOUT 7200 ENVIRONMENT
        "${environment};QUIB_TEST_LONG=1")
endfunction()

# quib_test(model/tst_store.cpp LINKS Quib::model): one executable and one CTest entry per file.
# BUS gives the test a session bus of its own, DISPLAY an X server of its own.
function(quib_test file)
    cmake_parse_arguments(PARSE_ARGV 1 arg "BUS;DISPLAY" "" "LINKS")
    cmake_path(GET file STEM name)
    qt_add_executable(${name} ${file})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE Qt6::Test Quib::options ${arg_LINKS})
    set(platform offscreen)
    if(arg_BUS)
        set(in_a_bus dbus-run-session --)
    endif()
    if(arg_DISPLAY)
        set(platform xcb)
        set(on_a_display xvfb-run -a -s "-screen 0 1600x900x24 -nolisten tcp" --)
    endif()
    add_test(NAME ${name} COMMAND ${on_a_display} ${in_a_bus} $<TARGET_FILE:${name}>)
    set_tests_properties(${name} PROPERTIES TIMEOUT 60 ENVIRONMENT
        "QT_QPA_PLATFORM=${platform};QT_QUICK_BACKEND=software;TZ=UTC;LC_ALL=C.UTF-8")
endfunction()
