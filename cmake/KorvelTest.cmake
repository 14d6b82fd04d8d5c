# Tests run in a locale with a decimal comma and with a HOME that does not exist.
#
#   korvel_add_tests(room
#       [LIBRARIES libraries...]         what the tests are of
#       [PROGRAMS targets...]            programs that they run, in support/built.h
#       [TESTS names or files...]        unit/tst_<name>.cpp, or <folder>/tst_<name>.cpp
#       [SLOW names or files...])        the same, of tests that take seconds
#                                          builds one program, tst_<room>; each is a test of ctest
#   korvel_add_fuzz_target(name libraries...)
#                                          builds fuzz/fuzz_<name>.cpp and runs it on its corpus;
#                                          with KORVEL_FUZZERS builds the fuzzer too
#
# All have the label "quick" but those that are SLOW.

find_package(Qt6 6.4 REQUIRED COMPONENTS Test)
find_program(LOCALEDEF localedef REQUIRED)

# The locale is made for the tests alone, so that they need none of the machine's.
set(KORVEL_TEST_LOCALES ${PROJECT_BINARY_DIR}/locales)
set(KORVEL_TEST_LOCALE it_IT.UTF-8)
add_custom_command(
    OUTPUT ${KORVEL_TEST_LOCALES}/${KORVEL_TEST_LOCALE}/LC_NUMERIC
    COMMAND ${CMAKE_COMMAND} -E make_directory ${KORVEL_TEST_LOCALES}
    COMMAND ${LOCALEDEF} -i it_IT -f UTF-8 ${KORVEL_TEST_LOCALES}/${KORVEL_TEST_LOCALE}
    COMMENT "Making the locale of the tests"
    VERBATIM)
add_custom_target(korvel-test-locale ALL
    DEPENDS ${KORVEL_TEST_LOCALES}/${KORVEL_TEST_LOCALE}/LC_NUMERIC)

# What moc makes of the tests. It is told where our headers are, whose macros may hold slots, and
# not where the toolkit's are: reading them would be nearly all of its work.
set(KORVEL_TEST_MOCS ${PROJECT_BINARY_DIR}/tests/mocs)
file(MAKE_DIRECTORY ${KORVEL_TEST_MOCS})

set(KORVEL_TEST_ENVIRONMENT
    LC_ALL=${KORVEL_TEST_LOCALE}
    LOCPATH=${KORVEL_TEST_LOCALES}
    HOME=${PROJECT_BINARY_DIR}/no-home
    QT_QPA_PLATFORM=offscreen)
if(KORVEL_SANITIZERS)
    # Of each allocation fewer calls are kept than usual, for reports alone; that takes time.
    list(APPEND KORVEL_TEST_ENVIRONMENT ASAN_OPTIONS=malloc_context_size=8)
endif()

# The toolkit's assertions hold in tests of a release, too.
add_library(korvel-test-options INTERFACE)
target_link_libraries(korvel-test-options INTERFACE korvel-warnings korvel-test-macros)
target_compile_definitions(korvel-test-options INTERFACE QT_NO_DEBUG QT_FORCE_ASSERTS)
add_library(korvel-test-macros INTERFACE) # whose options stand behind those of the warnings
if(Qt6_VERSION VERSION_GREATER_EQUAL 6.7) # its macros convert what they count
    target_compile_options(korvel-test-macros INTERFACE -Wno-conversion)
endif()

# Most of a test's time in the compiler goes into the toolkit's headers: they are compiled once, for
# all tests but those of windows, to which the toolkit's headers show more.
function(korvel_compile_test_headers)
    add_library(korvel-test-headers OBJECT ${PROJECT_SOURCE_DIR}/tests/support/headers.cpp)
    set_target_properties(korvel-test-headers PROPERTIES
        QT_TESTCASE_BUILDDIR ${CMAKE_CURRENT_SOURCE_DIR})
    target_link_libraries(korvel-test-headers PRIVATE Qt6::Test korvel-test-options)
    target_precompile_headers(korvel-test-headers PRIVATE <QtTest> <QDir> <QDirIterator> <QFile>
        <QProcess> <QRegularExpression> <QTemporaryDir> <algorithm> <memory> <vector>)
endfunction()

# Where the tests of a room are compiled as one source, what one of them includes is no fault of the
# next, nor is a test a header.
add_library(korvel-tests-as-one INTERFACE)
if(CMAKE_UNITY_BUILD)
    target_compile_options(korvel-tests-as-one INTERFACE -Wno-shadow -Wno-subobject-linkage)
endif()

# What of the tests differs from build to build.
function(korvel_name_what_is_built)
    add_library(korvel-built STATIC ${PROJECT_SOURCE_DIR}/tests/support/built.cpp)
    target_include_directories(korvel-built PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(korvel-built PRIVATE Qt6::Core)
    set(sanitized false)
    if(KORVEL_SANITIZERS)
        set(sanitized true)
    endif()
    target_compile_definitions(korvel-built PRIVATE
        KORVEL_BINARY_DIR="${PROJECT_BINARY_DIR}"
        KORVEL_SANITIZED=${sanitized})
    foreach(target IN ITEMS jobtokorvel korvel-backend korvel-check korvel-deliver
            korvel-failing-call korvel-journal korvel-preview korvel-print korvel-printer-sim
            korvel-recode korvel-settings)
        string(TOUPPER ${target} definition)
        string(REPLACE - _ definition ${definition})
        target_compile_definitions(korvel-built PRIVATE ${definition}="$<TARGET_FILE:${target}>")
    endforeach()
endfunction()

function(korvel_add_tests room)
    cmake_parse_arguments(PARSE_ARGV 1 room "" "" "LIBRARIES;PROGRAMS;TESTS;SLOW")
    if(NOT TARGET korvel-test-mocs)
        add_custom_target(korvel-test-mocs)
    endif()
    set(program tst_${room})
    add_executable(${program} support/test.cpp)
    set_target_properties(${program} PROPERTIES
        QT_TESTCASE_BUILDDIR ${CMAKE_CURRENT_SOURCE_DIR}) # which none asks for
    target_include_directories(${program} PRIVATE ${PROJECT_SOURCE_DIR}/tests ${KORVEL_TEST_MOCS})
    target_compile_definitions(${program} PRIVATE
        KORVEL_SOURCE_DIR="${PROJECT_SOURCE_DIR}"
        KORVEL_VERSION="${PROJECT_VERSION}")
    target_link_libraries(${program} PRIVATE
        Qt6::Test korvel-test-options ${room_LIBRARIES} korvel-built korvel-tests-as-one)
    if(NOT room_LIBRARIES MATCHES "korvel::(listview|picture|settings)")
        target_precompile_headers(${program} REUSE_FROM korvel-test-headers)
    endif()
    add_dependencies(${program} korvel-test-locale)
    if("korvel-print" IN_LIST room_PROGRAMS)
        add_dependencies(${program} korvel-translations)
    endif()
    # What is tested is linked whole and first, so that functions of headers that the tests hold
    # too, the toolkit's lists for one, are the tested library's.
    set(tested "")
    foreach(library IN LISTS room_LIBRARIES)
        get_target_property(type ${library} TYPE)
        if(type STREQUAL STATIC_LIBRARY)
            list(APPEND tested $<TARGET_FILE:${library}>)
        endif()
    endforeach()
    target_link_options(${program} PRIVATE
        LINKER:--whole-archive ${tested} LINKER:--no-whole-archive)
    if(room_PROGRAMS)
        add_dependencies(${program} ${room_PROGRAMS})
    endif()
    foreach(test IN LISTS room_TESTS room_SLOW)
        get_filename_component(name ${test} NAME)
        get_filename_component(folder ${test} DIRECTORY)
        if(NOT folder)
            set(folder unit)
        endif()
        set(moc ${KORVEL_TEST_MOCS}/tst_${name}.moc)
        add_custom_command(OUTPUT ${moc}
            COMMAND Qt6::moc -I ${PROJECT_SOURCE_DIR} -I ${PROJECT_SOURCE_DIR}/tests
                --output-dep-file --dep-file-path ${moc}.d -o ${moc}
                ${CMAKE_CURRENT_SOURCE_DIR}/${folder}/tst_${name}.cpp
            DEPENDS ${folder}/tst_${name}.cpp
            DEPFILE ${moc}.d
            VERBATIM)
        set_property(TARGET korvel-test-mocs APPEND PROPERTY SOURCES ${moc})
        target_sources(${program} PRIVATE ${folder}/tst_${name}.cpp ${moc})
        add_test(NAME ${name} COMMAND ${program} ${name})
        set(label quick)
        set(cost 0)
        if(test IN_LIST room_SLOW) # these begin, so that none runs alone in the end
            set(label slow)
            set(cost 1)
        endif()
        set_tests_properties(${name} PROPERTIES
            ENVIRONMENT "${KORVEL_TEST_ENVIRONMENT}" LABELS ${label} COST ${cost})
    endforeach()
endfunction()

option(KORVEL_FUZZERS "Build the fuzzers, which takes clang's -fsanitize=fuzzer" OFF)

function(korvel_add_fuzz_target name)
    set(executables replay_${name})
    add_executable(replay_${name} fuzz/fuzz_${name}.cpp fuzz/replay.cpp)
    if(KORVEL_FUZZERS)
        list(APPEND executables fuzz_${name})
        add_executable(fuzz_${name} fuzz/fuzz_${name}.cpp)
        target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
    endif()
    foreach(executable IN LISTS executables)
        target_include_directories(${executable} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
        target_link_libraries(${executable} PRIVATE korvel-test-options ${ARGN})
        add_dependencies(${executable} korvel-test-locale)
    endforeach()
    add_test(NAME fuzz-${name}
        COMMAND replay_${name} ${PROJECT_SOURCE_DIR}/tests/fuzz/corpus/${name})
    set_tests_properties(fuzz-${name} PROPERTIES
        ENVIRONMENT "${KORVEL_TEST_ENVIRONMENT}" LABELS quick)
endfunction()

# Builds and tests tests/consumer, a project of its own, on the installed libraries;
# docs/add-a-printer.md shows its sources.
function(korvel_add_consumer_test)
    set(consumer ${PROJECT_SOURCE_DIR}/tests/consumer)
    set(work ${PROJECT_BINARY_DIR}/consumer)
    set(flags ${CMAKE_CXX_FLAGS})
    if(KORVEL_SANITIZERS)
        string(APPEND flags " -fsanitize=${KORVEL_SANITIZERS}")
    endif()
    add_test(NAME consumer-install
        COMMAND ${CMAKE_COMMAND} --install ${PROJECT_BINARY_DIR}
            --component development --prefix ${work}/installed)
    set_tests_properties(consumer-install PROPERTIES FIXTURES_SETUP consumer LABELS slow)
    add_test(NAME consumer
        COMMAND ${CMAKE_CTEST_COMMAND}
            --build-and-test ${consumer} ${work}/build
            --build-generator ${CMAKE_GENERATOR}
            --build-options
                -DCMAKE_BUILD_TYPE=${CMAKE_BUILD_TYPE}
                -DCMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}
                -DCMAKE_CXX_FLAGS=${flags}
                -DKorvelPrint_ROOT=${work}/installed
            --test-command ${CMAKE_CTEST_COMMAND} --output-on-failure)
    set_tests_properties(consumer PROPERTIES FIXTURES_REQUIRED consumer LABELS slow)
    add_test(NAME consumer-page
        COMMAND ${CMAKE_COMMAND}
            -DPAGE=${PROJECT_SOURCE_DIR}/docs/add-a-printer.md
            "-DSOURCES=${consumer}/textprinter.h;${consumer}/main.cpp"
            -P ${consumer}/page.cmake)
    set_tests_properties(consumer-page PROPERTIES LABELS quick)
endfunction()
