# Settings that every target of our own shares, and the two kinds of target that the folders add.

add_library(caudalera_options INTERFACE)
target_include_directories(caudalera_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(caudalera_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror
    # g++ 12 sees overlapping copies in any "literal" + std::string (GCC bug 105329); clang-tidy,
    # which reads the same commands, does not know that warning.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
    $<$<CXX_COMPILER_ID:GNU>:-Wno-unknown-warning-option>
    # Results must not depend on how a compiler fuses multiplications and additions.
    -ffp-contract=off)
if(CAUDALERA_SANITIZE)
    target_compile_options(caudalera_options INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(caudalera_options INTERFACE -fsanitize=address,undefined)
endif()

# caudalera_room(NAME SOURCES file... [LINKS room...]): a folder of the model as a static library.
function(caudalera_room NAME)
    cmake_parse_arguments(ARG "" "" "SOURCES;LINKS" ${ARGN})
    add_library(${NAME} STATIC ${ARG_SOURCES})
    target_link_libraries(${NAME} PUBLIC caudalera_options ${ARG_LINKS})
endfunction()

# caudalera_tests(NAME SOURCES file... [LINKS target...]): one GoogleTest program whose cases CTest
# runs as one test with a time limit, so that nothing hangs unseen.
function(caudalera_tests NAME)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;LINKS" ${ARGN})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    add_executable(${NAME} ${ARG_SOURCES})
    target_link_libraries(${NAME} PRIVATE caudalera_options ${ARG_LINKS} GTest::gtest GTest::gtest_main)
    target_compile_definitions(${NAME} PRIVATE
        CAUDALERA_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    add_test(NAME ${NAME} COMMAND ${NAME})
    set_tests_properties(${NAME} PROPERTIES TIMEOUT ${ARG_TIMEOUT})
endfunction()
