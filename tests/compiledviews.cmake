# Run by CTest: something in every view is compiled ahead of time. Where the compiler of QML does not find what a file
# imports it says nothing and leaves what names those types to the interpreter, in many files all of it, which takes
# longer and more memory.
cmake_minimum_required(VERSION 3.25)

file(GLOB_RECURSE views RELATIVE "${ROOT}" "${ROOT}/src/*.qml")
if(NOT views)
    message(SEND_ERROR "there are no views in ${ROOT}/src")
endif()
foreach(view IN LISTS views)
    cmake_path(GET view PARENT_PATH folder)
    cmake_path(GET view STEM name)
    file(STRINGS "${ROOT}/${folder}/CMakeLists.txt" library REGEX "^quib_library\\(")
    string(REGEX REPLACE "^quib_library\\(" "quib_" library "${library}")
    set(compiled "${BUILD}/${folder}/.rcc/qmlcache/${library}_${name}_qml.cpp")
    set(functions "")
    if(EXISTS "${compiled}")
        file(STRINGS "${compiled}" functions REGEX "AOTCompiledContext \\*aotContext")
    endif()
    if(NOT functions)
        message(SEND_ERROR "${view}: nothing in it is compiled; does its library link the modules that it imports?")
    endif()
endforeach()
