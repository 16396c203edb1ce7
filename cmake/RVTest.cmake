# A test program uses the libraries, which are optimised as usual; the program itself is compiled fast.
set(RV_TEST_OPTIONS "$<$<AND:$<CXX_COMPILER_ID:GNU,Clang>,$<CONFIG:RelWithDebInfo,Release>>:-O1;-g1>")

# Qt6::Test also defines the folders of the test that links it, and a precompiled header holds only for the same definitions.
add_library(rv_test_library INTERFACE)
target_include_directories(rv_test_library SYSTEM INTERFACE
    $<TARGET_PROPERTY:Qt6::Test,INTERFACE_INCLUDE_DIRECTORIES>
)
target_link_libraries(rv_test_library INTERFACE Qt6::Core Qt6::Gui Qt6::Xml $<LINK_ONLY:Qt6::Test>)

add_library(rv_test_precompiled OBJECT ${CMAKE_CURRENT_LIST_DIR}/precompiled.cpp)
set_target_properties(rv_test_precompiled PROPERTIES POSITION_INDEPENDENT_CODE ON)
target_compile_options(rv_test_precompiled PRIVATE ${RV_TEST_OPTIONS})
target_link_libraries(rv_test_precompiled PRIVATE rv_test_library)
target_precompile_headers(rv_test_precompiled PRIVATE
    <QDebug>
    <QDomDocument>
    <QHash>
    <QMap>
    <QRegularExpression>
    <QSet>
    <QTest>
)

# A program is linked with all that gdb can show, which takes mold a tenth of the usual time.
find_program(MOLD_PROGRAM mold)
mark_as_advanced(MOLD_PROGRAM)
set(RV_TEST_LINK_OPTIONS)
if(MOLD_PROGRAM AND NOT (CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 12.1))
    set(RV_TEST_LINK_OPTIONS -fuse-ld=mold)
endif()

# rv_add_test_program(name NOT_PRECOMPILED SOURCE file LIBRARIES... DEFINITIONS... OPTIONS... PROGRAMS...)
# Builds a test program from one file, <name>.cpp if no other is given, which includes the output of moc. It may run
# other programs of the tree. It is NOT_PRECOMPILED if options or libraries change the headers of Qt.
function(rv_add_test_program name)
    cmake_parse_arguments(arg "NOT_PRECOMPILED" "SOURCE" "LIBRARIES;DEFINITIONS;OPTIONS;PROGRAMS" ${ARGN})
    if(NOT arg_SOURCE)
        set(arg_SOURCE ${name}.cpp)
    endif()

    # The build calls moc itself, because AUTOMOC costs three more processes and a source for each program. It is a
    # target, so that it can run before the libraries are built.
    cmake_path(GET arg_SOURCE STEM source_name)
    set(moc_folder ${CMAKE_CURRENT_BINARY_DIR}/moc/${name})
    qt_generate_moc(${arg_SOURCE} ${moc_folder}/${source_name}.moc)
    add_custom_target(${name}_moc DEPENDS ${moc_folder}/${source_name}.moc)

    add_executable(${name} ${arg_SOURCE})
    add_dependencies(${name} ${name}_moc)
    target_compile_definitions(${name} PRIVATE ${arg_DEFINITIONS})
    target_compile_options(${name} PRIVATE ${RV_TEST_OPTIONS} ${arg_OPTIONS})
    target_link_options(${name} PRIVATE ${RV_TEST_LINK_OPTIONS})
    target_include_directories(${name} PRIVATE ${moc_folder} ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE ${arg_LIBRARIES} rv_test_library)
    if(NOT arg_NOT_PRECOMPILED)
        rv_use_precompiled(${name} rv_test_precompiled)
    endif()
    if(arg_PROGRAMS)
        add_dependencies(${name} ${arg_PROGRAMS})
    endif()
endfunction()

# rv_add_test(name ... LABELS... WORKING_DIRECTORY folder)
# Does the same, and adds the test with that name.
function(rv_add_test name)
    cmake_parse_arguments(arg "" "WORKING_DIRECTORY" "LABELS" ${ARGN})
    rv_add_test_program(${name} ${arg_UNPARSED_ARGUMENTS})
    rv_add_run(${name} ${name} LABELS ${arg_LABELS})
    if(arg_WORKING_DIRECTORY)
        set_tests_properties(${name} PROPERTIES WORKING_DIRECTORY ${arg_WORKING_DIRECTORY})
    endif()
endfunction()

# rv_add_run(name command... LABELS...)
# Adds a test that runs a program, without a screen and for at most five minutes.
function(rv_add_run name)
    cmake_parse_arguments(arg "" "" "LABELS" ${ARGN})
    add_test(NAME ${name} COMMAND ${arg_UNPARSED_ARGUMENTS})
    set_tests_properties(${name} PROPERTIES
        ENVIRONMENT QT_QPA_PLATFORM=offscreen
        TIMEOUT 300
        LABELS "${arg_LABELS}"
    )
endfunction()
