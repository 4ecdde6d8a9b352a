# Settings that every target of our own shares, and the kinds of target that the folders add. A
# target takes every source that stands in its folder: a new file needs no line anywhere.

add_library(caudalera_options INTERFACE)
target_include_directories(caudalera_options INTERFACE "${PROJECT_SOURCE_DIR}")
target_compile_options(caudalera_options INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
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

# caudalera_sources(OUT): the sources of the current folder.
function(caudalera_sources OUT)
    file(GLOB sources CONFIGURE_DEPENDS "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
    set(${OUT} ${sources} PARENT_SCOPE)
endfunction()

# caudalera_room(NAME [room...]): the current folder as a room of the model, a static library that
# may use the rooms named. A room of headers alone is an interface.
function(caudalera_room NAME)
    caudalera_sources(sources)
    if(sources)
        add_library(${NAME} STATIC ${sources})
        target_link_libraries(${NAME} PUBLIC caudalera_options ${ARGN})
    else()
        add_library(${NAME} INTERFACE)
        target_link_libraries(${NAME} INTERFACE caudalera_options ${ARGN})
    endif()
endfunction()

# What the tests themselves compute takes no time; compiling them does.
add_library(caudalera_test_options INTERFACE)
target_compile_options(caudalera_test_options INTERFACE $<$<CXX_COMPILER_ID:GNU,Clang>:-O0>)

# caudalera_tests(NAME [target...]): the current folder as one GoogleTest program, which CTest runs
# as one test with a time limit, so that nothing hangs unseen.
function(caudalera_tests NAME)
    caudalera_sources(sources)
    add_executable(${NAME} ${sources})
    target_precompile_headers(${NAME} REUSE_FROM test_support)
    target_link_libraries(${NAME} PRIVATE
        caudalera_options caudalera_test_options ${ARGN} GTest::gtest GTest::gtest_main)
    target_compile_definitions(${NAME} PRIVATE
        CAUDALERA_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    add_test(NAME ${NAME} COMMAND ${NAME})
    set_tests_properties(${NAME} PROPERTIES TIMEOUT 120)
endfunction()
